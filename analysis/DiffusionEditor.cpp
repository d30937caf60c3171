#include "analysis/DiffusionEditor.h"

namespace {

bool isBlank(const DiffusionSymbols& symbols, int k)
{
    return symbols.DiffusionCaption(k).isEmpty() && symbols.DiffusionHanko(k) == HankoStyle{};
}

HankoStyle firstSymbol(const CumulativeTable& table, int k)
{
    HankoStyle hanko;
    hanko.HankoNo = static_cast<qint16>(k);
    hanko.LineColor = static_cast<qint16>(table.WordformSymbolColor(k));
    hanko.PaintColor = table.WordformPaintColor(k);
    hanko.PaintOn = 1;
    hanko.SymbolSize = 1;
    return hanko;
}

} // namespace

void followWordforms(const CumulativeTable& table, const QStringList& formerNames, DiffusionSymbols& symbols)
{
    for (int k = 1; k <= table.NumWordforms; ++k) {
        QString& caption = symbols.DiffusionCaption(k);
        if (isBlank(symbols, k)) {
            symbols.DiffusionHanko(k) = firstSymbol(table, k);
            symbols.MinimumPoints(k) = 1;
            caption = table.WordformName(k);
        } else if (caption == formerNames.value(k - 1)) {
            caption = table.WordformName(k);
        }
    }
    symbols.NDiffusion = table.NumWordforms;
}

int markedLocalities(const CumulativeTable& table, const DiffusionSymbols& symbols, int k, int localities)
{
    int marked = 0;
    for (int j = 1; j <= localities; ++j) {
        marked += table.Counts(k, j) >= symbols.MinimumPoints(k) ? 1 : 0;
    }
    return marked;
}
