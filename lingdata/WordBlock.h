#pragma once

#include "lingdata/WordCell.h"

#include <vector>

/// A block of cells, row by row, as it is copied from a table and pasted into one.
using WordBlock = std::vector<std::vector<WordCell>>;

/// How many cells the longest row of `block` has.
int columnsOf(const WordBlock& block);

/// Reads a block as spreadsheets copy it: rows on lines of their own, cells between tabs, a cell with either
/// in it in double quotes. A cell becomes a word form on one line without blanks around it, a blank one
/// becomes nothing. Two double quotes stand for an empty word form.
WordBlock readBlock(const QString& text);

/// Writes a block so that `readBlock` and spreadsheets read it.
QString blockText(const WordBlock& block);
