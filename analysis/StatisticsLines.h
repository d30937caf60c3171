#pragma once

#include "analysis/Statistics.h"

#include <QStringList>

// The figures of word form k with their labels, cut to two decimal places.

/// Median, mode and average.
QStringList averageTexts(const Statistics& statistics, int k);
/// The standard deviation, which is called `name`, and the average less and plus the deviation.
QStringList deviationTexts(const Statistics& statistics, int k, const QString& name);

/// A line each: number and name of the word form, its averages, its deviations.
QStringList statisticsLines(const CumulativeTable& table, const Statistics& statistics, int k);
