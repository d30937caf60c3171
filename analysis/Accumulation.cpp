#include "analysis/Accumulation.h"

#include "platform/Numbers.h"

#include <QHash>

#include <array>

namespace {

/// How much each word form's count grows at a locality with a given answer.
using Growth = std::array<int, 11>;

/// Every string that is in the answer counts: two of one word form count twice, and an answer may count for
/// several word forms. An empty string is in every answer.
Growth growthOf(const QString& answer, const CumulativeData& data)
{
    Growth growth{};
    for (int k = 1; k <= data.NumWordforms; ++k) {
        for (int c = 1; c <= data.NumSpecifyChars(k); ++c) {
            growth.at(static_cast<std::size_t>(k)) += answer.contains(data.SpecifyChars(k, c)) ? 1 : 0;
        }
    }
    return growth;
}

qint16 grown(const CumulativeTable& table, int k, int j, int growth)
{
    try {
        return toInteger(table.Counts(k, j) + growth);
    } catch (const RunTimeError& error) {
        throw error.during(QStringLiteral("The count of word form %1 (%2) at locality %3.")
                               .arg(k)
                               .arg(table.WordformName(k))
                               .arg(j));
    }
}

} // namespace

void accumulateItem(const ItemAnswers& item, int localities, CumulativeData& data)
{
    auto counts = data.Counts;
    QHash<QString, Growth> growths; // an item has few kinds of answers
    for (int j = 1; j <= localities; ++j) {
        // The first answer of a locality alone is counted.
        const QString answer = j <= item.NLocate && item.WordCount(j) > 0 ? item.WordData(j, 1) : QString();
        auto known = growths.constFind(answer);
        if (known == growths.constEnd()) {
            known = growths.insert(answer, growthOf(answer, data));
        }
        for (int k = 1; k <= data.NumWordforms; ++k) {
            if (const int growth = known->at(static_cast<std::size_t>(k)); growth != 0) {
                counts(k, j) = grown(data, k, j, growth);
            }
        }
    }
    data.Counts = std::move(counts);
    ++data.NumItemsAccumulated;
}

void clearCounts(int localities, CumulativeTable& table)
{
    for (int k = 1; k <= table.NumWordforms; ++k) {
        for (int j = 1; j <= localities; ++j) {
            table.Counts(k, j) = 0;
        }
    }
    table.NumItemsAccumulated = 0;
    table.CountedItems.clear();
}
