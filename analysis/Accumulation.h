#pragma once

#include "analysis/CumulativeTable.h"
#include "lingdata/LinguisticData.h"

/// Adds one item to the table: at each of `localities` localities, each word form's count grows by the number
/// of its identifying strings that the first answer contains. The further answers do not count. Raises
/// overflow past 32767; the table is then as it was.
void accumulateItem(const ItemAnswers& item, int localities, CumulativeData& data);

/// Empties the counts of `localities` localities, the number of items and their names; the word forms with
/// their colours and identifying strings stay.
void clearCounts(int localities, CumulativeTable& table);
