#pragma once

#include "platform/SequentialFile.h"

#include <QStringList>

/// Of the names of lists of input kinds.
inline constexpr QLatin1String InputKindsEnding(".ipt");

/// How many kinds a list of input kinds holds at most.
constexpr int MostInputKinds = 500;

/// Reads a `.ipt` file: the count, then that many lines of one kind each. Raises subscript out of range
/// beyond `MostInputKinds`, and the errors of a short or malformed file.
QStringList readInputKinds(SequentialReader& file);

/// Writes a `.ipt` file.
void writeInputKinds(SequentialWriter& file, const QStringList& kinds);
