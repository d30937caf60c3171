#include "dialectometry/Reliability.h"

#include "dialectometry/Moments.h"

#include <algorithm>
#include <cmath>

namespace {

/// The standardised distances of each pair of localities, added over the items.
class StandardSums
{
public:
    void add(std::span<const double> distances)
    {
        const Moments moments = momentsOf(distances);
        if (moments.variance == 0) {
            return;
        }
        ++m_items;
        m_pairs.resize(distances.size());
        for (std::size_t i = 0; i < distances.size(); ++i) {
            if (!std::isnan(distances[i])) {
                const double standard = (distances[i] - moments.mean) / moments.deviation();
                m_pairs[i].sum += standard;
                m_pairs[i].squares += standard * standard;
                ++m_pairs[i].items;
            }
        }
    }

    /// From the square of a sum follow the products of all its parts: they need not be made.
    std::optional<double> alpha() const
    {
        double products = 0;
        double count = 0;
        for (const Pair& pair : m_pairs) {
            products += pair.sum * pair.sum - pair.squares;
            count += pair.items * (pair.items - 1);
        }
        if (count == 0) {
            return std::nullopt;
        }
        constexpr double Rounding = 1e-12;
        const double correlation = products / count;
        const double spread = 1 + (m_items - 1) * correlation;
        return spread > Rounding ? std::optional(m_items * correlation / spread) : std::nullopt;
    }

private:
    struct Pair
    {
        double sum = 0;
        double squares = 0;
        double items = 0;
    };
    std::vector<Pair> m_pairs;
    double m_items = 0;
};

/// A locality as seen from another.
struct Neighbour
{
    double distance;
    double length;
};

std::vector<Neighbour> neighboursOf(int locality, const DistanceMatrix& distances,
                                    const DistanceMatrix& lengths)
{
    std::vector<Neighbour> neighbours;
    for (int other = 0; other < distances.size(); ++other) {
        if (other != locality && distances.has(locality, other)) {
            neighbours.push_back({distances(locality, other), lengths(locality, other)});
        }
    }
    return neighbours;
}

/// The lengths of the first eight in some order, each counting less than the one before.
template <typename Order>
double weightedLength(std::vector<Neighbour>& neighbours, const Order& order)
{
    constexpr std::ptrdiff_t Nearest = 8;
    const auto count = std::min(Nearest, std::ssize(neighbours));
    std::ranges::partial_sort(neighbours, neighbours.begin() + count, {}, order);
    double sum = 0;
    for (std::ptrdiff_t j = 0; j < count; ++j) {
        sum += neighbours[static_cast<std::size_t>(j)].length * std::exp2(-0.5 * static_cast<double>(j + 1));
    }
    return sum;
}

} // namespace

std::optional<double> cronbachAlpha(const SurveyComparison& survey, const DistanceProgress& goOn)
{
    StandardSums sums;
    for (int k = 0; k < survey.items(); ++k) {
        if (!goOn(k, survey.items())) {
            return std::nullopt;
        }
        sums.add(survey.ofItem(k).pairs());
    }
    return goOn(survey.items(), survey.items()) ? sums.alpha() : std::nullopt;
}

std::optional<double> localIncoherence(const DistanceMatrix& distances, const DistanceMatrix& lengths)
{
    double sum = 0;
    int localities = 0;
    for (int i = 0; i < distances.size(); ++i) {
        std::vector<Neighbour> neighbours = neighboursOf(i, distances, lengths);
        const double nearest = weightedLength(neighbours, &Neighbour::length);
        if (nearest > 0) {
            const auto likeness = [](const Neighbour& n) { return std::pair(n.distance, n.length); };
            sum += (weightedLength(neighbours, likeness) - nearest) / nearest;
            ++localities;
        }
    }
    return localities == 0 ? std::nullopt : std::optional(sum / localities);
}

std::optional<double> lengthCorrelation(const DistanceMatrix& distances, const DistanceMatrix& lengths)
{
    const double correlation = correlationOf(distances.pairs(), lengths.pairs());
    return std::isnan(correlation) ? std::nullopt : std::optional(correlation);
}
