#pragma once

#include "analysis/CumulativeTable.h"
#include "platform/SequentialFile.h"

// The file of the counted items, `.itm`, lies beside the cumulative file of the same name. Two files cannot
// be replaced in one step, so the names are saved first and say how many items the table has with them: where
// a save broke between the two, the table has fewer, and the last names are those of items that it does not
// hold. Names are never missing for what is counted, which would double it when it is counted once more.

/// Path of the file of the counted items that belongs to the cumulative file at `totalPath`.
QString countedItemsPath(const QString& totalPath);

/// Reads a `.itm` file, the number of names and of items, then one name a line, into the names of what a
/// table of `items` items counts.
QStringList readCountedItems(SequentialReader& file, int items);

/// Writes a `.itm` file.
void writeCountedItems(SequentialWriter& file, const CumulativeTable& table);
