#pragma once

#include "analysis/CumulativeTable.h"
#include "platform/FileKind.h"
#include "platform/SequentialFile.h"

/// The statistics of the counts of each word form over the localities where it was met at least once. A count
/// level v runs from 0 to the number of items.
struct Statistics
{
    static constexpr int MostItems = 400;
    static constexpr int MostWordforms = 10;

    /// Number of localities whose count of word form k is at least v.
    BoundedArray<qint16, Bounds{0, MostItems}, Bounds{0, MostWordforms}> CumCount;
    /// Number of localities whose count of word form k is v.
    BoundedArray<qint16, Bounds{0, MostItems}, Bounds{0, MostWordforms}> FreqCount;
    BoundedArray<double, Bounds{0, MostWordforms}> Median;
    BoundedArray<float, Bounds{0, MostWordforms}> Mode;
    BoundedArray<double, Bounds{0, MostWordforms}> Average;
    /// Standard deviation of the sample.
    BoundedArray<double, Bounds{0, MostWordforms}> Sigma;
    /// Path of the statistics file last written.
    QString StatsFileName;
    /// The numbers of word forms and items that the statistics are of; no word forms before there are any.
    int StatsWordforms = 0;
    int StatsItems = 0;
};

/// The number of localities that the statistics of word form k are taken over: with flag 1 those where it was
/// met, otherwise all.
int GetNL(int flag, int k, int localities, const Statistics& statistics);

/// `x` cut to `n` decimal places towards minus infinity.
double Rnd(double x, int n);

/// Computes the statistics of all word forms. The median is the first level that at most half of the
/// localities with the word form reach. Raises division by zero for a word form met at no locality or at just
/// one, overflow for a sum of counts past 32767, subscript out of range beyond 400 items; the statistics are
/// then as they were.
void Stats(const CumulativeTable& table, int localities, Statistics& statistics);

/// Whether `statistics` are those of the counts that `table` has now.
bool areCurrent(const Statistics& statistics, const CumulativeTable& table, int localities);

inline constexpr FileKind StatisticsFiles{QLatin1String("Statistic Files"), QLatin1String(".stt")};

/// A `.stt` file: the number of word forms and of items; then for each word form its number, a line with
/// median, mode, average and deviation, and a line with both counts for each level.
void writeStatistics(SequentialWriter& file, const CumulativeTable& table, const Statistics& statistics);

/// Reads a `.stt` file. Raises subscript out of range beyond ten word forms or 400 items, and the errors of a
/// short or malformed file.
Statistics readStatistics(SequentialReader& file);

/// Saves the statistics to the `.stt` file at `path`.
void SaveStats(const DriveC& drive, const QString& path, const CumulativeTable& table,
               Statistics& statistics);

/// Loads the `.stt` file at `path`. A load that fails leaves the statistics as they were.
void LoadStats(const DriveC& drive, const QString& path, Statistics& statistics);
