#pragma once

#include "analysis/CumulativeTable.h"
#include "platform/FileKind.h"
#include "platform/SequentialFile.h"

#include <optional>

/// Counts, and identifying strings.
inline constexpr FileKind TotalFiles{QLatin1String("Total Files"), QLatin1String(".ttl")};
inline constexpr FileKind StringFiles{QLatin1String("Sum Files"), QLatin1String(".sum")};

/// Reads a `.ttl` file: the number of word forms, of items, and the caption; three lines a word form; then
/// the counts of each of `localities` localities, which the file does not know. Raises subscript out of range
/// beyond ten word forms, and the errors of a short or malformed file.
CumulativeTable readTotal(SequentialReader& file, int localities);

/// Writes a `.ttl` file with the counts of `localities` localities.
void writeTotal(SequentialWriter& file, const CumulativeTable& table, int localities);

/// Reads a `.sum` file into the number of word forms and their identifying strings. A word form without
/// strings has no line in the file, which cannot be read past that point.
void readSpecifyChars(SequentialReader& file, CumulativeData& data);

/// Writes a `.sum` file; only word forms with one to ten identifying strings get a line.
void writeSpecifyChars(SequentialWriter& file, const CumulativeData& data);

/// Loads the `.ttl` file at `path` and the names of its items, where a file of them lies beside it. A load
/// that fails leaves the table as it was. Returns why the names could not be read where they could not: the
/// table is loaded all the same, and its items are not known.
std::optional<RunTimeError> LoadTotalFile(const DriveC& drive, const QString& path, int localities,
                                          CumulativeData& data);

/// Path of the `.ttl` file of the table's name in `folder`.
QString totalFilePath(const QString& folder, const CumulativeData& data);

/// Saves the table to the `.ttl` file at `path`, and the names of its items beside it. Raises permission
/// denied where the file is the one that was loaded or saved last and holds something else by now: another
/// program has counted there, and its items would be lost. Only one program saves at a time.
void SaveTotalFile(const DriveC& drive, const QString& path, int localities, CumulativeData& data);

/// Whether `path` is that of the file that was loaded or saved last.
bool isOwnFile(const CumulativeData& data, const QString& path);

/// Loads the `.sum` file at `path`. A load that fails leaves the strings as they were.
void LoadSetData(const DriveC& drive, const QString& path, CumulativeData& data);

/// Saves the identifying strings to the `.sum` file at `path`.
void SaveSetData(const DriveC& drive, const QString& path, CumulativeData& data);
