#include "dialectometry/GroupMarks.h"

#include "dialectometry/Moments.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

namespace {

/// How many localities have something, and how many of those are in the group.
struct Having
{
    double all = 0;
    double inGroup = 0;

    void add(bool isInGroup)
    {
        ++all;
        inGroup += isInGroup ? 1 : 0;
    }
    double share() const { return all > 0 ? inGroup / all : 0; }
};

FormOfGroup formOfGroup(int item, int form, const Having& having, const Having& answered)
{
    const double size = answered.share();
    return {item, form, having.inGroup / answered.inGroup,
            size < 1 ? (having.share() - size) / (1 - size) : 0};
}

void addFormsOfItem(const SurveyAnswers& survey, int item, const std::vector<int>& groups, int group,
                    std::vector<FormOfGroup>& found)
{
    const ComparedItem& compared = survey.items[static_cast<std::size_t>(item)];
    std::vector<Having> having(static_cast<std::size_t>(compared.forms.size()));
    Having answered;
    for (std::size_t i = 0; i < groups.size(); ++i) {
        if (groups[i] == 0 || compared.answers[i].empty()) {
            continue;
        }
        answered.add(groups[i] == group);
        for (const int form : compared.answers[i]) {
            having[static_cast<std::size_t>(form)].add(groups[i] == group);
        }
    }
    for (std::size_t form = 0; form < having.size(); ++form) {
        if (having[form].inGroup > 0) {
            found.push_back(formOfGroup(item, static_cast<int>(form), having[form], answered));
        }
    }
}

/// The mean of some distances; not a number where there is none.
class MeanDistance
{
public:
    void add(double distance)
    {
        m_sum += distance;
        ++m_count;
    }
    double mean() const { return m_count > 0 ? m_sum / m_count : std::numeric_limits<double>::quiet_NaN(); }

private:
    double m_sum = 0;
    double m_count = 0;
};

/// The distances from a group to itself, and to the others.
struct PartedDistances
{
    MeanDistance within;
    MeanDistance between;
};

/// Those of group 1 and the following.
std::vector<PartedDistances> partedDistances(const DistanceMatrix& distances, const std::vector<int>& groups)
{
    std::vector<PartedDistances> parted(static_cast<std::size_t>(groupCount(groups)));
    const auto of = [&](int group) -> PartedDistances& {
        return parted[static_cast<std::size_t>(group - 1)];
    };
    auto pair = distances.pairs().begin();
    for (std::size_t a = 0; a < groups.size(); ++a) {
        for (std::size_t b = a + 1; b < groups.size(); ++b, ++pair) {
            if (groups[a] == 0 || groups[b] == 0 || std::isnan(*pair)) {
                continue;
            }
            if (groups[a] == groups[b]) {
                of(groups[a]).within.add(*pair);
            } else {
                of(groups[a]).between.add(*pair);
                of(groups[b]).between.add(*pair);
            }
        }
    }
    return parted;
}

/// The distances between localities that count.
std::vector<double> countedDistances(const DistanceMatrix& distances, const std::vector<int>& groups)
{
    std::vector<double> counted;
    auto pair = distances.pairs().begin();
    for (std::size_t a = 0; a < groups.size(); ++a) {
        for (std::size_t b = a + 1; b < groups.size(); ++b, ++pair) {
            if (groups[a] != 0 && groups[b] != 0) {
                counted.push_back(*pair);
            }
        }
    }
    return counted;
}

} // namespace

std::vector<FormOfGroup> formsOfGroup(const SurveyAnswers& survey, const std::vector<int>& groups, int group)
{
    std::vector<FormOfGroup> found;
    for (int item = 0; item < static_cast<int>(survey.items.size()); ++item) {
        addFormsOfItem(survey, item, groups, group, found);
    }
    std::ranges::stable_sort(found, std::greater<>(), &FormOfGroup::importance);
    return found;
}

int groupCount(const std::vector<int>& groups)
{
    return groups.empty() ? 0 : std::ranges::max(groups);
}

std::optional<std::vector<ItemsOfGroup>>
itemsOfGroups(const SurveyComparison& survey, const std::vector<int>& groups, const DistanceProgress& goOn)
{
    std::vector<ItemsOfGroup> found(static_cast<std::size_t>(groupCount(groups)));
    for (int item = 0; item < survey.items(); ++item) {
        if (!goOn(item, survey.items())) {
            return std::nullopt;
        }
        const DistanceMatrix distances = survey.ofItem(item);
        const double deviation = momentsOf(countedDistances(distances, groups)).deviation();
        const std::vector<PartedDistances> parted = partedDistances(distances, groups);
        for (std::size_t i = 0; i < parted.size(); ++i) {
            const double within = parted[i].within.mean();
            const double between = parted[i].between.mean();
            if (const double score = (between - within) / deviation; std::isfinite(score)) {
                found[i].push_back({item, within, between, score});
            }
        }
    }
    for (ItemsOfGroup& items : found) {
        std::ranges::stable_sort(items, std::greater<>(), &ItemOfGroup::score);
    }
    return goOn(survey.items(), survey.items()) ? std::optional(std::move(found)) : std::nullopt;
}
