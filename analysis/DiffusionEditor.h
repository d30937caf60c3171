#pragma once

#include "analysis/CumulativeTable.h"
#include "analysis/DiffusionSymbols.h"

/// Makes the symbols those of the table's word forms, one for each. A word form that had no symbol gets one
/// in its colours, its name as the caption, to be drawn from one point on. A caption that is the name its
/// word form had, which `formerNames` tells, becomes the new name. Raises subscript out of range beyond ten
/// word forms.
void followWordforms(const CumulativeTable& table, const QStringList& formerNames, DiffusionSymbols& symbols);

/// At how many of `localities` localities the symbol of word form k is drawn.
int markedLocalities(const CumulativeTable& table, const DiffusionSymbols& symbols, int k, int localities);
