#pragma once

#include "platform/BoundedArray.h"
#include "platform/FileKind.h"
#include "platform/SequentialFile.h"
#include "symbols/SymbolSet.h"

/// The symbols of the diffusion map: for each distinguished word form a symbol, its caption, and the count
/// that a locality must reach to be marked.
struct DiffusionSymbols
{
    QString DiffusionComment;
    int NDiffusion = 0;
    BoundedArray<HankoStyle, Bounds{1, 10}> DiffusionHanko;
    BoundedArray<qint16, Bounds{1, 10}> MinimumPoints;
    BoundedArray<QString, Bounds{1, 10}> DiffusionCaption;

    /// Whether the symbols are the same: what stands behind the last one does not count.
    bool operator==(const DiffusionSymbols& other) const;
};

inline constexpr FileKind DiffusionSymbolFiles{QLatin1String("HTL files"), QLatin1String(".htL")};

/// Reads a `.htL` file: comment and number of records; then a line for each word form with symbol number,
/// line colour, paint colour, paint flag, size, thickness, minimum points, and caption.
DiffusionSymbols readDiffusionSymbols(SequentialReader& file);

/// Writes a `.htL` file.
void writeDiffusionSymbols(SequentialWriter& file, const DiffusionSymbols& symbols);
