#pragma once

#include "dialectometry/DistanceMatrix.h"
#include "dialectometry/ItemComparison.h"
#include "dialectometry/SurveyAnswers.h"

#include <functional>
#include <optional>
#include <vector>

/// Told how many steps are done; work stops, with nothing, where it returns false.
using DistanceProgress = std::function<bool(int done, int of)>;

/// The answers of a survey, prepared to be compared. Items that one of two localities has no answer to are
/// left out of their distance; two localities without a common item have none.
class SurveyComparison
{
public:
    SurveyComparison(const SurveyAnswers& survey, const DistanceSettings& settings);

    int localities() const { return m_localities; }
    int items() const { return static_cast<int>(m_items.size()); }

    /// The distances of item k (from 0) alone.
    DistanceMatrix ofItem(int k) const;

    /// The distances of every two localities: the differences over their common items, divided by the
    /// weights. Works on all processors, with the same sums however many there are.
    std::optional<DistanceMatrix> matrix(const DistanceProgress& goOn) const;

private:
    int m_localities;
    std::vector<ItemComparison> m_items;
};

/// The distances of every two localities; nothing where `goOn` returned false.
std::optional<DistanceMatrix> distances(const SurveyAnswers& survey, const DistanceSettings& settings,
                                        const DistanceProgress& goOn);
