#pragma once

#include "dialectometry/Levenshtein.h"
#include "dialectometry/SurveyAnswers.h"

#include <cstdint>
#include <limits>
#include <vector>

/// How the distance of two localities is counted, from 0 (alike) to 1.
enum class DistanceMeasure : std::uint8_t {
    /// 1 - the relative identity value, the share of the common items with the same answer: Séguy (1973),
    /// Goebl (1984). Where there are several answers, an item counts by the share of the word forms that both
    /// have among those that either has.
    RelativeIdentity,
    /// 1 - the weighted identity value: Goebl (1984). A shared word form that n of the N localities with an
    /// answer have counts 1 - (n - 1) / N, a difference 1; the value is what the shared ones count, divided
    /// by what all count.
    WeightedIdentity,
    /// The mean Levenshtein distance of the answers, divided by the length of the alignment: Heeringa (2004).
    /// Of several answers each is compared with the one of the other side that is nearest, and the mean taken
    /// over the answers of both sides: Nerbonne & Kleiweg (2003), Lexical distance in LAMSAS.
    Levenshtein,
};

struct DistanceSettings
{
    DistanceMeasure measure = DistanceMeasure::RelativeIdentity;
    /// Whether vowels never stand against consonants in an alignment.
    bool vowelsApart = false;

    bool operator==(const DistanceSettings&) const = default;
};

/// How two localities differ in one item, or in all so far: `difference` of at most `weight`. They have no
/// common item where the weight is 0.
struct Difference
{
    double difference = 0;
    double weight = 0;

    /// Not a number where there is none.
    double distance() const
    {
        return weight > 0 ? difference / weight : std::numeric_limits<double>::quiet_NaN();
    }
    void operator+=(const Difference& other)
    {
        difference += other.difference;
        weight += other.weight;
    }
};

/// An item, prepared to be compared. Localities with the same word forms share one answer.
class ItemComparison
{
public:
    ItemComparison() = default;
    ItemComparison(const ComparedItem& item, const DistanceSettings& settings);

    /// How many different answers there are; number 0 is that of the localities without one.
    int answers() const { return static_cast<int>(m_answers.size()); }
    int answerOf(int locality) const { return m_answerOf[static_cast<std::size_t>(locality)]; }

    /// The differences of all answers to all, row by row. Each distinct pair of word forms is compared once.
    std::vector<Difference> table() const;

private:
    using Forms = std::vector<int>;
    /// The distances of each word form to all.
    using FormDistances = std::vector<std::vector<double>>;

    void collectAnswers(const ComparedItem& item);
    void weighForms();
    FormDistances formDistances() const;
    Difference compare(const Forms& a, const Forms& b, const FormDistances& distances) const;
    Difference identity(const Forms& a, const Forms& b) const;

    DistanceMeasure m_measure = DistanceMeasure::RelativeIdentity;
    /// The distinct answers, their word forms in rising order.
    std::vector<Forms> m_answers{Forms()};
    std::vector<int> m_answerOf;
    /// The word forms spelled out, for Levenshtein distances.
    std::vector<SpelledForm> m_spelled;
    /// What each word form counts where two localities share it, for identity values.
    std::vector<double> m_weights;
};
