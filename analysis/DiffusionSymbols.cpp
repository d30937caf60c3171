#include "analysis/DiffusionSymbols.h"

#include "symbols/SymbolFile.h"

bool DiffusionSymbols::operator==(const DiffusionSymbols& other) const
{
    bool same = DiffusionComment == other.DiffusionComment && NDiffusion == other.NDiffusion;
    for (int k = 1; same && k <= NDiffusion; ++k) {
        same = DiffusionHanko(k) == other.DiffusionHanko(k) && MinimumPoints(k) == other.MinimumPoints(k) &&
               DiffusionCaption(k) == other.DiffusionCaption(k);
    }
    return same;
}

DiffusionSymbols readDiffusionSymbols(SequentialReader& file)
{
    DiffusionSymbols symbols;
    symbols.DiffusionComment = file.readString();
    symbols.NDiffusion = file.readCount();
    for (int k = 1; k <= symbols.NDiffusion; ++k) {
        symbols.DiffusionHanko(k) = readHankoStyle(file);
        symbols.MinimumPoints(k) = file.readInteger();
        symbols.DiffusionCaption(k) = file.readString();
    }
    return symbols;
}

void writeDiffusionSymbols(SequentialWriter& file, const DiffusionSymbols& symbols)
{
    file.write(symbols.DiffusionComment, symbols.NDiffusion);
    for (int k = 1; k <= symbols.NDiffusion; ++k) {
        const HankoStyle& hanko = symbols.DiffusionHanko(k);
        file.write(hanko.HankoNo, hanko.LineColor, hanko.PaintColor, hanko.PaintOn, hanko.SymbolSize,
                   hanko.LineThick, symbols.MinimumPoints(k), symbols.DiffusionCaption(k));
    }
}
