#include "analysis/DiffusionSymbols.h"

DiffusionSymbols readDiffusionSymbols(SequentialReader& file)
{
    DiffusionSymbols symbols;
    symbols.DiffusionComment = file.readString();
    symbols.NDiffusion = file.readCount();
    for (int k = 1; k <= symbols.NDiffusion; ++k) {
        HankoStyle& hanko = symbols.DiffusionHanko(k);
        hanko.HankoNo = file.readInteger();
        hanko.LineColor = file.readInteger();
        hanko.PaintColor = file.readInteger();
        hanko.PaintOn = file.readInteger();
        hanko.SymbolSize = file.readInteger();
        hanko.LineThick = file.readInteger();
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
