#include "dialectometry/Distances.h"

#include "platform/Parallel.h"

#include <algorithm>

namespace {

/// The differences of all pairs of localities so far. Tables are added in the order of the items, so the sums
/// are the same however the work is shared.
class Sums
{
public:
    explicit Sums(int localities)
        : m_localities(localities), m_matrix(localities), m_sums(m_matrix.pairs().size())
    {}

    /// Adds some items to the pairs of locality i with those after it.
    void addRow(int i, std::span<const ItemComparison> items,
                const std::vector<std::vector<Difference>>& tables)
    {
        const auto after = static_cast<std::size_t>(m_localities - 1 - i);
        const std::size_t end = m_sums.size() - after * (after > 0 ? after - 1 : 0) / 2;
        const std::span<Difference> row = std::span(m_sums).subspan(end - after, after);
        for (std::size_t k = 0; k < items.size(); ++k) {
            addItem(i, items[k], tables[k], row);
        }
    }

    DistanceMatrix distances()
    {
        std::ranges::transform(m_sums, m_matrix.pairs().begin(), &Difference::distance);
        return std::move(m_matrix);
    }

private:
    static void addItem(int i, const ItemComparison& item, const std::vector<Difference>& table,
                        std::span<Difference> row)
    {
        const int answer = item.answerOf(i);
        if (answer == 0) {
            return;
        }
        const Difference* differences = table.data() + static_cast<std::ptrdiff_t>(answer) * item.answers();
        for (Difference& sum : row) {
            sum += differences[item.answerOf(++i)];
        }
    }

    int m_localities;
    DistanceMatrix m_matrix;
    std::vector<Difference> m_sums;
};

} // namespace

SurveyComparison::SurveyComparison(const SurveyAnswers& survey, const DistanceSettings& settings)
    : m_localities(survey.localities), m_items(survey.items.size())
{
    inParallel(items(), [&](int k) {
        const auto item = static_cast<std::size_t>(k);
        m_items[item] = ItemComparison(survey.items[item], settings);
    });
}

DistanceMatrix SurveyComparison::ofItem(int k) const
{
    const std::span<const ItemComparison> item = std::span(m_items).subspan(static_cast<std::size_t>(k), 1);
    const std::vector<std::vector<Difference>> table{item.front().table()};
    Sums sums(m_localities);
    for (int i = 0; i < m_localities; ++i) {
        sums.addRow(i, item, table);
    }
    return sums.distances();
}

std::optional<DistanceMatrix> SurveyComparison::matrix(const DistanceProgress& goOn) const
{
    const auto itemsAtOnce = 2 * static_cast<std::size_t>(workers());
    Sums sums(m_localities);
    for (std::size_t first = 0; first < m_items.size(); first += itemsAtOnce) {
        if (!goOn(static_cast<int>(first), items())) {
            return std::nullopt;
        }
        const auto part = std::span(m_items).subspan(first, std::min(itemsAtOnce, m_items.size() - first));
        std::vector<std::vector<Difference>> tables(part.size());
        inParallel(static_cast<int>(part.size()), [&](int k) {
            tables[static_cast<std::size_t>(k)] = part[static_cast<std::size_t>(k)].table();
        });
        inParallel(m_localities, [&](int i) { sums.addRow(i, part, tables); });
    }
    return goOn(items(), items()) ? std::optional(sums.distances()) : std::nullopt;
}

std::optional<DistanceMatrix> distances(const SurveyAnswers& survey, const DistanceSettings& settings,
                                        const DistanceProgress& goOn)
{
    return SurveyComparison(survey, settings).matrix(goOn);
}
