#pragma once

#include "analysis/Statistics.h"

#include <QStringList>

/// The figures of word form k, a line each: number and name, median, mode, average, standard deviation, and
/// the average less and plus the deviation. Figures are cut to two decimal places.
QStringList statisticsLines(const CumulativeTable& table, const Statistics& statistics, int k);
