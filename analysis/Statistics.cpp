#include "analysis/Statistics.h"

#include "platform/Numbers.h"

#include <algorithm>
#include <cmath>

namespace {

/// Runs `compute` for word form k and names it in an error.
template <typename Compute>
void ofWordform(const CumulativeTable& table, int k, const char* figure, Compute compute)
{
    try {
        compute();
    } catch (const RunTimeError& error) {
        throw error.during(QStringLiteral("The %1 of word form %2 (%3).")
                               .arg(QLatin1String(figure))
                               .arg(k)
                               .arg(table.WordformName(k)));
    }
}

void requireAtMost(int most, int number, const char* things)
{
    if (number > most) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("Statistics are of at most %1 %2, not of %3.")
                               .arg(most)
                               .arg(QLatin1String(things))
                               .arg(number));
    }
}

void distribute(const CumulativeTable& table, int k, int localities, Statistics& statistics)
{
    for (int v = 0; v <= table.NumItemsAccumulated; ++v) {
        statistics.CumCount(v, k) = 0;
        statistics.FreqCount(v, k) = 0;
    }
    qint16 beyond = 0; // an item may count more than once
    for (int j = 1; j <= localities; ++j) {
        const int count = table.Counts(k, j);
        if (count > table.NumItemsAccumulated) {
            ++beyond;
        } else if (count >= 0) {
            ++statistics.FreqCount(count, k);
        }
    }
    qint16 atLeast = beyond;
    for (int v = table.NumItemsAccumulated; v >= 0; --v) {
        atLeast = static_cast<qint16>(atLeast + statistics.FreqCount(v, k));
        statistics.CumCount(v, k) = atLeast;
    }
}

void findMedian(const CumulativeTable& table, int k, int NL, Statistics& statistics)
{
    for (int v = 1; v <= table.NumItemsAccumulated; ++v) {
        // Not the middle value: counts 1, 2, 3 have the median 3. Without such a level the old median stays.
        if (statistics.CumCount(v, k) <= NL / 2.0) {
            statistics.Median(k) = v;
            return;
        }
    }
}

void findModeAndAverage(const CumulativeTable& table, int k, int NL, Statistics& statistics)
{
    qint16 highest = 0;
    qint16 sum = 0;
    for (int v = 1; v <= table.NumItemsAccumulated; ++v) {
        const qint16 frequency = statistics.FreqCount(v, k);
        if (frequency > highest) { // among equals the smallest level is the mode
            highest = frequency;
            statistics.Mode(k) = static_cast<float>(v);
        }
        sum = toInteger(sum + frequency * v);
    }
    statistics.Average(k) = divide(sum, NL);
}

void findSigma(const CumulativeTable& table, int k, int NL, Statistics& statistics)
{
    double squares = 0;
    for (int v = 1; v <= table.NumItemsAccumulated; ++v) {
        const double deviation = v - statistics.Average(k);
        squares += deviation * deviation * statistics.FreqCount(v, k);
    }
    statistics.Sigma(k) = std::sqrt(divide(squares, NL - 1));
}

} // namespace

int GetNL(int flag, int k, int localities, const Statistics& statistics)
{
    return flag == 1 ? localities - statistics.FreqCount(0, k) : localities;
}

double Rnd(double x, int n)
{
    const double p = toInteger(std::pow(10, n));
    return std::floor(x * p) / p;
}

void Stats(const CumulativeTable& table, int localities, Statistics& statistics)
{
    requireAtMost(Statistics::MostItems, table.NumItemsAccumulated, "items");
    Statistics fresh = statistics; // a median or a mode that is not found stays what it was
    for (int k = 1; k <= table.NumWordforms; ++k) {
        distribute(table, k, localities, fresh);
    }
    for (int k = 1; k <= table.NumWordforms; ++k) {
        findMedian(table, k, GetNL(1, k, localities, fresh), fresh);
    }
    for (int k = 1; k <= table.NumWordforms; ++k) {
        ofWordform(table, k, "average",
                   [&] { findModeAndAverage(table, k, GetNL(1, k, localities, fresh), fresh); });
    }
    for (int k = 1; k <= table.NumWordforms; ++k) {
        ofWordform(table, k, "deviation",
                   [&] { findSigma(table, k, GetNL(1, k, localities, fresh), fresh); });
    }
    fresh.StatsWordforms = table.NumWordforms;
    fresh.StatsItems = table.NumItemsAccumulated;
    statistics = std::move(fresh);
}

bool areCurrent(const Statistics& statistics, const CumulativeTable& table, int localities)
{
    if (statistics.StatsWordforms != table.NumWordforms ||
        statistics.StatsItems != table.NumItemsAccumulated) {
        return false;
    }
    Statistics now;
    for (int k = 1; k <= table.NumWordforms; ++k) {
        distribute(table, k, localities, now);
        for (int v = 0; v <= table.NumItemsAccumulated; ++v) {
            if (now.CumCount(v, k) != statistics.CumCount(v, k) ||
                now.FreqCount(v, k) != statistics.FreqCount(v, k)) {
                return false;
            }
        }
    }
    return true;
}

void writeStatistics(SequentialWriter& file, const CumulativeTable& table, const Statistics& statistics)
{
    file.write(table.NumWordforms, table.NumItemsAccumulated);
    for (int k = 1; k <= table.NumWordforms; ++k) {
        file.write(k);
        file.write(statistics.Median(k), statistics.Mode(k), statistics.Average(k), statistics.Sigma(k));
        for (int v = 0; v <= table.NumItemsAccumulated; ++v) {
            file.write(statistics.CumCount(v, k), statistics.FreqCount(v, k));
        }
    }
}

Statistics readStatistics(SequentialReader& file)
{
    Statistics read;
    read.StatsWordforms = file.readCount();
    requireAtMost(Statistics::MostWordforms, read.StatsWordforms, "word forms");
    read.StatsItems = file.readCount();
    requireAtMost(Statistics::MostItems, read.StatsItems, "items");
    for (int n = 1; n <= read.StatsWordforms; ++n) {
        const int k = file.readInteger();
        read.Median(k) = file.readNumber();
        read.Mode(k) = file.readSingle();
        read.Average(k) = file.readNumber();
        read.Sigma(k) = file.readNumber();
        for (int v = 0; v <= read.StatsItems; ++v) {
            read.CumCount(v, k) = file.readInteger();
            read.FreqCount(v, k) = file.readInteger();
        }
    }
    return read;
}

void SaveStats(const DriveC& drive, const QString& path, const CumulativeTable& table, Statistics& statistics)
{
    writeSequentialFile(drive, path,
                        [&](SequentialWriter& file) { writeStatistics(file, table, statistics); });
    statistics.StatsFileName = path;
}

void LoadStats(const DriveC& drive, const QString& path, Statistics& statistics)
{
    Statistics loaded = readSequentialFile(drive, path, readStatistics);
    loaded.StatsFileName = statistics.StatsFileName;
    statistics = std::move(loaded);
}
