#pragma once

#include "platform/FileKind.h"

/// The kinds of files that the user opens, beside those of a base map.

/// Items of a survey, and symbol sets.
inline constexpr FileKind ItemFiles{QLatin1String("DBS Files"), QLatin1String(".dbs")};
inline constexpr FileKind SymbolFiles{QLatin1String("HAN files"), QLatin1String(".han")};

/// Counts, identifying strings, statistics, contrasts, and the symbols of diffusion maps.
inline constexpr FileKind TotalFiles{QLatin1String("Total Files"), QLatin1String(".ttl")};
inline constexpr FileKind StringFiles{QLatin1String("Sum Files"), QLatin1String(".sum")};
inline constexpr FileKind StatisticsFiles{QLatin1String("Statistic Files"), QLatin1String(".stt")};
inline constexpr FileKind ContrastFiles{QLatin1String("RNK files"), QLatin1String(".rnk")};
inline constexpr FileKind DiffusionSymbolFiles{QLatin1String("HTL files"), QLatin1String(".htL")};
