#pragma once

#include "analysis/CumulativeTable.h"
#include "platform/FileKind.h"
#include "platform/SequentialFile.h"

/// Two groups of word forms to contrast, sides 1 and 2, and their difference at each locality.
struct ContrastData
{
    QString ContrastTitle;
    /// The number of legend steps, plus 1.
    double ContrastSteps = 0;
    /// Radius of the largest circle, in twips.
    qint16 ContrastMaxSize = 0;
    /// Number of word forms chosen for a side.
    BoundedArray<int, Bounds{1, 2}> ContrastCount;
    /// Name of the t-th word form of a side, and its number in the cumulative table.
    BoundedArray<QString, Bounds{1, 2}, Bounds{1, 10}> ContrastWordName;
    BoundedArray<qint16, Bounds{1, 2}, Bounds{1, 10}> ContrastWord;
    /// Colour numbers 0..15 of outline and fill of a side.
    BoundedArray<int, Bounds{1, 2}> ContrastSymbolColor;
    BoundedArray<qint16, Bounds{1, 2}> ContrastPaintColor;
    /// Sums of sides 1 and 2 at locality j, and in row 0 their difference.
    BoundedArray<qint16, Bounds{0, 2}, Bounds{0, 1000}> ContrastSum;
    /// Whether the sums are of the groups as they are.
    bool ContrastAnalysed = false;
};

/// Notes that the sums are no longer of the groups and the counts as they are. Whatever changes either says
/// so.
void outdateSums(ContrastData& contrast);

/// Sums the counts of each side's word forms at each of `localities` localities and their difference. Raises
/// overflow, and subscript out of range for a word form that the table does not have; the sums are then as
/// they were.
void analyseContrast(const CumulativeTable& table, int localities, ContrastData& contrast);

inline constexpr FileKind ContrastFiles{QLatin1String("RNK files"), QLatin1String(".rnk")};

/// Reads a `.rnk` file: title, steps plus 1 and largest size; then for each side its count, its colours, and
/// a line with name and number of each word form.
ContrastData readContrast(SequentialReader& file);

/// Writes a `.rnk` file.
void writeContrast(SequentialWriter& file, const ContrastData& contrast);

/// Loads the `.rnk` file at `path`. A load that fails leaves the groups as they were.
void LoadRankFile(const DriveC& drive, const QString& path, ContrastData& contrast);

/// Saves the groups to the `.rnk` file at `path`.
void SaveRankFile(const DriveC& drive, const QString& path, const ContrastData& contrast);
