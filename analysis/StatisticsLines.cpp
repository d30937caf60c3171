#include "analysis/StatisticsLines.h"

#include "platform/Numbers.h"

namespace {

QString cut(double figure)
{
    return QString::fromLatin1(shortest(Rnd(figure, 2)));
}

} // namespace

QStringList averageTexts(const Statistics& statistics, int k)
{
    return {QStringLiteral("Median =") + cut(statistics.Median(k)),
            QStringLiteral("Mode   =") + cut(statistics.Mode(k)),
            QStringLiteral("Average=") + cut(statistics.Average(k))};
}

QStringList deviationTexts(const Statistics& statistics, int k, const QString& name)
{
    const double average = statistics.Average(k);
    const double sigma = statistics.Sigma(k);
    // "SIgma" is spelt as users know it. The last figure is a single.
    return {name + QStringLiteral(" Sigma=") + cut(sigma),
            QStringLiteral("Av - Sigma=") + cut(average - sigma),
            QStringLiteral("Av + SIgma=") + QString::fromLatin1(shortest(toSingle(Rnd(average + sigma, 2))))};
}

QStringList statisticsLines(const CumulativeTable& table, const Statistics& statistics, int k)
{
    return QStringList(QStringLiteral("Kt=%1 ").arg(k) + table.WordformName(k)) +
           averageTexts(statistics, k) + deviationTexts(statistics, k, QStringLiteral("Standard Dev."));
}
