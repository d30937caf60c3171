#include "dialectometry/ItemComparison.h"

#include <algorithm>
#include <iterator>
#include <map>

namespace {

/// The sum, over the word forms of `a`, of the distance to the nearest of `b`.
template <typename Distance>
double nearestSum(const std::vector<int>& a, const std::vector<int>& b, const Distance& distance)
{
    double sum = 0;
    for (const int form : a) {
        double nearest = distance(form, b.front());
        for (const int other : b) {
            nearest = std::min(nearest, distance(form, other));
        }
        sum += nearest;
    }
    return sum;
}

} // namespace

ItemComparison::ItemComparison(const ComparedItem& item, const DistanceSettings& settings)
    : m_measure(settings.measure)
{
    collectAnswers(item);
    if (m_measure == DistanceMeasure::Levenshtein) {
        Speller speller(settings.vowelsApart);
        for (const QString& form : item.forms) {
            m_spelled.push_back(speller.spell(form));
        }
    } else {
        m_weights.assign(static_cast<std::size_t>(item.forms.size()), 1.0);
    }
    if (m_measure == DistanceMeasure::WeightedIdentity) {
        weighForms();
    }
}

void ItemComparison::collectAnswers(const ComparedItem& item)
{
    std::map<Forms, int> numbers{{Forms(), 0}};
    for (Forms forms : item.answers) {
        std::ranges::sort(forms);
        const auto [known, isNew] = numbers.try_emplace(forms, answers());
        if (isNew) {
            m_answers.push_back(std::move(forms));
        }
        m_answerOf.push_back(known->second);
    }
}

void ItemComparison::weighForms()
{
    const auto without = std::ranges::count(m_answerOf, 0);
    const auto answered = static_cast<double>(std::ssize(m_answerOf) - without);
    std::vector<int> having(m_weights.size(), 0);
    for (const int answer : m_answerOf) {
        for (const int form : m_answers[static_cast<std::size_t>(answer)]) {
            ++having[static_cast<std::size_t>(form)];
        }
    }
    std::ranges::transform(having, m_weights.begin(), [&](int n) { return 1 - (n - 1) / answered; });
}

std::vector<Difference> ItemComparison::table() const
{
    const FormDistances distances = formDistances();
    const std::size_t size = m_answers.size();
    std::vector<Difference> table(size * size);
    for (std::size_t a = 1; a < size; ++a) {
        for (std::size_t b = a; b < size; ++b) {
            table[a * size + b] = compare(m_answers[a], m_answers[b], distances);
            table[b * size + a] = table[a * size + b];
        }
    }
    return table;
}

ItemComparison::FormDistances ItemComparison::formDistances() const
{
    Aligner aligner;
    FormDistances distances(m_spelled.size(), std::vector<double>(m_spelled.size()));
    for (std::size_t a = 0; a < m_spelled.size(); ++a) {
        for (std::size_t b = a + 1; b < m_spelled.size(); ++b) {
            distances[a][b] = distances[b][a] = aligner.distance(m_spelled[a], m_spelled[b]);
        }
    }
    return distances;
}

Difference ItemComparison::compare(const Forms& a, const Forms& b, const FormDistances& distances) const
{
    if (a.empty() || b.empty()) {
        return {};
    }
    if (m_measure != DistanceMeasure::Levenshtein) {
        return identity(a, b);
    }
    const auto there = [&](int form, int other) {
        return distances[static_cast<std::size_t>(form)][static_cast<std::size_t>(other)];
    };
    const auto back = [&](int other, int form) { return there(form, other); };
    const auto forms = static_cast<double>(a.size() + b.size());
    return {(nearestSum(a, b, there) + nearestSum(b, a, back)) / forms, 1};
}

Difference ItemComparison::identity(const Forms& a, const Forms& b) const
{
    Forms common;
    std::ranges::set_intersection(a, b, std::back_inserter(common));
    const auto all = static_cast<double>(a.size() + b.size() - common.size());
    double shared = 0;
    for (const int form : common) {
        shared += m_weights[static_cast<std::size_t>(form)] / all;
    }
    const double different = (all - static_cast<double>(common.size())) / all;
    return {different, different + shared};
}
