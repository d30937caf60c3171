#include "render/LinguisticMap.h"

#include "render/BlankMap.h"
#include "render/Legend.h"
#include "render/SymbolShapes.h"
#include "symbols/SymbolFile.h"

namespace {

/// The way from one word form of a locality to the next, in twips.
QPointF wordStep(qint16 hankoPosition)
{
    constexpr double Step = 80;
    switch (hankoPosition) {
    case HankoRight:
        return {Step, 0};
    case HankoLeft:
        return {-Step, 0};
    case HankoUp:
        return {0, -Step};
    case HankoDown:
        return {0, Step};
    default:
        return {0, 0};
    }
}

/// An empty word form contains no kind, not even the empty one.
bool containsKind(const QString& word, const QString& kind)
{
    return !word.isEmpty() && word.contains(kind);
}

/// Draws the symbol of record k at every word form that contains its kind.
void plotRecord(VarnModule& varn, int k, QPointF step, SymbolShapes& shapes)
{
    const auto dx = static_cast<float>(step.x());
    const auto dy = static_cast<float>(step.y());
    for (int i = 1; i <= varn.NLocate; ++i) {
        const float x = varn.toScreen(varn.LocXY(i, 0));
        const float y = varn.toScreen(varn.LocXY(i, 1));
        varn.ScreenXY(i, 0) = x;
        varn.ScreenXY(i, 1) = y;
        for (int j = 1; j <= varn.WordCount(i); ++j) {
            if (containsKind(varn.WordData(i, j), varn.HankoWord(k))) {
                const auto steps = static_cast<float>(j - 1);
                shapes.DrawHanko(varn.Hanko(k), x + steps * dx, y + steps * dy);
            }
        }
    }
}

} // namespace

void PlotLinguisticData(VarnModule& varn, MapSurfaces surfaces)
{
    SymbolShapes shapes(varn, varn, surfaces);
    for (int k = 1; k <= varn.NHanrei; ++k) {
        try {
            plotRecord(varn, k, wordStep(varn.HankoPosition), shapes);
        } catch (const RunTimeError& error) {
            throw ofRecord(error, varn, k);
        }
    }
    surfaces.thinLines();
}

void drawLinguisticMap(VarnModule& varn, MapSurfaces surfaces)
{
    DrawBlankMap(varn, surfaces);
    PlotLinguisticData(varn, surfaces);
    PlotHanrei(varn, surfaces);
}
