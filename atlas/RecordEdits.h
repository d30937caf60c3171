#pragma once

#include "lingdata/LinguisticData.h"
#include "symbols/SymbolSet.h"

#include <set>

// Edits of symbol records. Each takes records as they are and returns them as they would be. Numbers of
// records are those that the set has, from 1.

/// Numbers of records.
using RecordNumbers = std::set<int>;

/// One of the six numbers of a symbol.
using StyleField = qint16 HankoStyle::*;

/// The most records that a symbol set can have.
constexpr int MostRecords = decltype(SymbolRecords::HankoWord)::last();

/// Gives record k another kind or caption, without the blanks at its end.
SymbolRecords withKind(SymbolRecords records, int k, const QString& kind);
SymbolRecords withCaption(SymbolRecords records, int k, const QString& caption);

/// Adds a record for `kind` at the end, which stands under the same caption in the legend, with a symbol that
/// no other record has. `polygons` tells how many polygon designs the installation has. Raises subscript out
/// of range where the set is full.
SymbolRecords withRecord(SymbolRecords records, const QString& kind, int polygons);

SymbolRecords withoutRecords(const SymbolRecords& records, const RecordNumbers& numbers);

/// Moves records, in their order, before record `before`, or to the end for the number after the last one.
SymbolRecords withRecordsMoved(const SymbolRecords& records, const RecordNumbers& numbers, int before);
/// The numbers that these records have after that move.
RecordNumbers numbersMoved(const RecordNumbers& numbers, int before);

/// Sets one number of the symbols of some records.
SymbolRecords withStyle(SymbolRecords records, const RecordNumbers& numbers, StyleField field, qint16 value);

/// Puts records under one symbol and one row of the legend, those of the first of them: the others get its
/// symbol, and a hyphen before its caption, which keeps them out of the legend.
SymbolRecords withSameSymbol(SymbolRecords records, const RecordNumbers& numbers);

/// Records for all kinds of an item, as a new survey gets them.
SymbolRecords madeRecords(const ItemAnswers& item, int polygons);
