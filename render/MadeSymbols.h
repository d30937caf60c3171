#pragma once

#include "symbols/SymbolSet.h"

#include <QStringList>

#include <vector>

/// A kind of word form of an item, and how often it was answered.
struct KindFrequency
{
    QString kind;
    int count = 0;
};

/// The kinds of an item, the most frequent first; those that are as frequent in binary order.
std::vector<KindFrequency> kindsByFrequency(const std::vector<QStringList>& answers);

/// Makes a symbol set for each item from its kinds, which `kindsByFrequency` gives: a record a kind, in their
/// order, long captions cut short in long legends. Of more kinds than records the most frequent keep a symbol
/// of their own, and a first record with an empty kind, a small grey dot, stands for the rest. In a
/// categorical survey a word form has the same symbol in every item. `polygons` tells how many polygon
/// designs the installation has.
std::vector<SymbolSet> makeSymbols(const std::vector<std::vector<KindFrequency>>& items, bool categorical,
                                   int polygons);

/// Whether the comment of `symbols` says that `makeSymbols` made them, for word forms that equal their kinds.
bool isMadeForWholeWordForms(const SymbolRecords& symbols);
