#include "dialectometry/GroupMarks.h"

#include "dialectometry/Moments.h"

#include <algorithm>
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

/// The mean of the distances from the group to itself, or to the others; not a number where there is none.
double meanDistance(const DistanceMatrix& distances, const std::vector<int>& groups, int group, bool isWithin)
{
    double sum = 0;
    double count = 0;
    for (int a = 0; a < distances.size(); ++a) {
        for (int b = a + 1; b < distances.size(); ++b) {
            const int first = groups[static_cast<std::size_t>(a)];
            const int second = groups[static_cast<std::size_t>(b)];
            const bool touches = (first == group || second == group) && first != 0 && second != 0;
            if (touches && (first == second) == isWithin && distances.has(a, b)) {
                sum += distances(a, b);
                ++count;
            }
        }
    }
    return count > 0 ? sum / count : std::numeric_limits<double>::quiet_NaN();
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

std::optional<std::vector<ItemOfGroup>> itemsOfGroup(const SurveyComparison& survey,
                                                     const std::vector<int>& groups, int group,
                                                     const DistanceProgress& goOn)
{
    std::vector<ItemOfGroup> found;
    for (int item = 0; item < survey.items(); ++item) {
        if (!goOn(item, survey.items())) {
            return std::nullopt;
        }
        const DistanceMatrix distances = survey.ofItem(item);
        const double within = meanDistance(distances, groups, group, true);
        const double between = meanDistance(distances, groups, group, false);
        const double deviation = momentsOf(countedDistances(distances, groups)).deviation();
        if (const double score = (between - within) / deviation; std::isfinite(score)) {
            found.push_back({item, within, between, score});
        }
    }
    std::ranges::stable_sort(found, std::greater<>(), &ItemOfGroup::score);
    return goOn(survey.items(), survey.items()) ? std::optional(std::move(found)) : std::nullopt;
}
