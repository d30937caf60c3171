#pragma once

#include "lingdata/LinguisticData.h"
#include "platform/SequentialFile.h"

/// Derives the kinds of the item's word forms in order of first appearance: their words, their counts, and
/// the kind of each word form. Raises subscript out of range beyond 200 kinds.
void SearchKindWord(LinguisticData& data);

/// Sorts the kinds in ascending binary order of their words, counts with them. `KindIndex` keeps the numbers
/// of first appearance.
void SortKindWord(WordKinds& kinds);

/// Reads a `.srt` file (the count, then word and count of each kind) into the kinds' words and counts.
void readKinds(SequentialReader& file, WordKinds& kinds);

/// Writes a `.srt` file.
void writeKinds(SequentialWriter& file, const WordKinds& kinds);
