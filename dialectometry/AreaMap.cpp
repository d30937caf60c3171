#include "dialectometry/AreaMap.h"

#include "dialectometry/AreaLegend.h"
#include "platform/StandardColors.h"
#include "render/LinguisticMap.h"
#include "render/SymbolMarks.h"
#include "symbols/SymbolFile.h"

#include <algorithm>
#include <array>
#include <map>

namespace {

constexpr double Lighter = 0.3;
constexpr double Lightest = 0.75;

QRgb colorOf(const HankoStyle& hanko)
{
    return QBColor(hanko.PaintOn != 0 ? hanko.PaintColor : hanko.LineColor);
}

/// The fill of a record that `earlier` ones of its colour precede.
AreaFill coloredFill(QRgb color, int earlier)
{
    static constexpr std::array Patterns = {
        FillPattern::DenseRising,        FillPattern::DenseDots,  FillPattern::DenseHorizontal,
        FillPattern::DenseFalling,       FillPattern::DenseCross, FillPattern::DenseVertical,
        FillPattern::DenseDiagonalCross, FillPattern::Rising,     FillPattern::Dots,
        FillPattern::Horizontal,         FillPattern::Falling,    FillPattern::Cross};

    // White is the colour of what no record marks, so it is shown by lines.
    const bool white = color == QBColor(StandardColor::LightWhite);
    const QRgb ink = white ? QBColor(StandardColor::Gray) : tint(color, Lighter);
    const int plain = white ? 0 : 2;
    if (earlier < plain) {
        return {earlier == 0 ? tint(color, Lighter) : tint(color, Lightest), 0, FillPattern::Solid};
    }
    const auto number = static_cast<std::size_t>(earlier - plain) % Patterns.size();
    return {tint(color, 1 - (1 - Lightest) / 2), ink, Patterns.at(number)};
}

bool isAnswered(const ItemAnswers& item, int locality)
{
    for (int j = 1; j <= item.WordCount(locality); ++j) {
        if (!item.WordData(locality, j).isEmpty()) {
            return true;
        }
    }
    return false;
}

/// Adds a last fill, that of localities whose answers no record marks: they are not without an answer.
void addUnmarked(const ItemAnswers& item, FilledCells& cells)
{
    const auto unmarked = static_cast<int>(cells.fills.size());
    cells.fills.push_back({qRgb(236, 236, 236), 0, FillPattern::Solid});
    const int localities = std::min<int>(item.NLocate, static_cast<int>(cells.ofLocality.size()));
    for (int i = 1; i <= localities; ++i) {
        std::vector<int>& records = cells.ofLocality[static_cast<std::size_t>(i - 1)];
        if (records.empty() && isAnswered(item, i)) {
            records.push_back(unmarked);
        }
    }
}

/// `cells` has a fill for each record and that of the unmarked.
AreaLegend legendOf(const LinguisticMapParts& parts, const FilledCells& cells)
{
    std::vector<int> counts(cells.fills.size());
    for (const std::vector<int>& records : cells.ofLocality) {
        for (const int record : records) {
            ++counts[static_cast<std::size_t>(record)];
        }
    }
    AreaLegend legend;
    legend.title = parts.item.Hanrei;
    for (int k = 1; k <= parts.symbols.NHanrei; ++k) {
        const int count = counts[static_cast<std::size_t>(k - 1)];
        const QString& caption = parts.symbols.HankoCaption(k);
        if (count > 0 && !caption.contains(QLatin1Char('-'))) {
            AreaLegendRow row;
            row.fills = {cells.fills[static_cast<std::size_t>(k - 1)]};
            row.text = withCount(caption, count);
            legend.rows.push_back(row);
        }
    }
    if (counts.back() > 0) {
        AreaLegendRow row;
        row.fills = {cells.fills.back()};
        row.text = withCount(QStringLiteral("no symbol"), counts.back());
        legend.rows.push_back(row);
    }
    return legend;
}

FilledCells filledCells(const LinguisticMapParts& parts, AreaLook look)
{
    FilledCells filled{recordFills(parts.symbols, look),
                       recordsOfLocalities(parts.item, parts.symbols, parts.base.style.WholeWordForms,
                                           parts.base.map.NLocality)};
    addUnmarked(parts.item, filled);
    return filled;
}

void drawOverFills(const LinguisticMapParts& parts, const AreaMapParts& areas, const FilledCells& filled,
                   const AreaMapStyle& style, MapSurfaces surfaces)
{
    if (style.look == AreaLook::Hatched) {
        drawFillBorders(areas, filled, surfaces.DrawTarget);
    }
    if (style.withSymbols) {
        PlotLinguisticData(parts, surfaces);
    }
    drawAreaLegend(areas, legendOf(parts, filled), surfaces);
}

} // namespace

std::vector<std::vector<int>> recordsOfLocalities(const ItemAnswers& item, const SymbolSet& symbols,
                                                  bool wholeWordForms, int localities)
{
    const SymbolMarks marks(symbols, wholeWordForms);
    std::vector<std::vector<int>> records(static_cast<std::size_t>(localities));
    for (int i = 1; i <= std::min<int>(item.NLocate, localities); ++i) {
        for (int k = 1; k <= symbols.NHanrei; ++k) {
            for (int j = 1; j <= item.WordCount(i); ++j) {
                if (marks(k, item.WordData(i, j))) {
                    records[static_cast<std::size_t>(i - 1)].push_back(k - 1);
                    break;
                }
            }
        }
    }
    return records;
}

std::vector<AreaFill> recordFills(const SymbolSet& symbols, AreaLook look)
{
    std::map<QRgb, int> used;
    std::vector<AreaFill> fills;
    for (int k = 1; k <= symbols.NHanrei; ++k) {
        try {
            const QRgb color = colorOf(symbols.Hanko(k));
            fills.push_back(look == AreaLook::Hatched ? hatchedFill(k - 1)
                                                      : coloredFill(color, used[color]++));
        } catch (const RunTimeError& error) {
            throw ofRecord(error, symbols, k);
        }
    }
    return fills;
}

void drawAreas(const LinguisticMapParts& parts, const LocalityCells& cells, AreaLook look,
               MapSurfaces surfaces)
{
    drawCells({parts.base, parts.text, cells}, filledCells(parts, look), surfaces);
}

void drawOverAreas(const LinguisticMapParts& parts, const LocalityCells& cells, const AreaMapStyle& style,
                   MapSurfaces surfaces)
{
    drawOverFills(parts, {parts.base, parts.text, cells}, filledCells(parts, style.look), style, surfaces);
}

void drawAreaMap(const LinguisticMapParts& parts, const LocalityCells& cells, const AreaMapStyle& style,
                 MapSurfaces surfaces)
{
    const AreaMapParts areas{parts.base, parts.text, cells};
    const FilledCells filled = filledCells(parts, style.look);
    drawFilledMap(areas, filled, surfaces);
    drawOverFills(parts, areas, filled, style, surfaces);
}
