#include "analysis/StatisticsLines.h"

#include "platform/Numbers.h"

#include <array>
#include <charconv>

namespace {

/// `number` in the shortest form that reads back to it.
template <typename Number>
QString shortest(Number number)
{
    constexpr std::size_t MostDigits = 64;
    std::array<char, MostDigits> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    return QString::fromLatin1(digits.data(), end - digits.data());
}

QString cut(double figure)
{
    return shortest(Rnd(figure, 2));
}

} // namespace

QStringList statisticsLines(const CumulativeTable& table, const Statistics& statistics, int k)
{
    const double average = statistics.Average(k);
    const double sigma = statistics.Sigma(k);
    return {QStringLiteral("Kt=%1 ").arg(k) + table.WordformName(k),
            QStringLiteral("Median =") + cut(statistics.Median(k)),
            QStringLiteral("Mode   =") + cut(statistics.Mode(k)),
            QStringLiteral("Average=") + cut(average),
            QStringLiteral("Standard Dev. Sigma=") + cut(sigma),
            QStringLiteral("Av - Sigma=") + cut(average - sigma),
            QStringLiteral("Av + SIgma=") + shortest(toSingle(Rnd(average + sigma, 2)))};
}
