#include "render/Legend.h"

#include "platform/Numbers.h"
#include "platform/StandardColors.h"
#include "render/PhoneticText.h"
#include "render/SymbolShapes.h"
#include "symbols/SymbolFile.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr float Margin = MapGeometry::Margin;

int rowStep(const MapFont& font)
{
    return std::max((font.MapFontSize + 2) * 20, 300);
}

/// The cells of the legend: rows down a column, then the next column to the right of the widest text.
class LegendCells
{
public:
    LegendCells(float firstColumn, float height, int rowStep)
        : m_column(firstColumn), m_rowStep(rowStep),
          m_rowsPerColumn(integerDivide(static_cast<int>(height), rowStep) - 1)
    {}

    /// The next cell. Row 1 of the first column stays empty, that of later columns does not. Raises division
    /// by zero where the title's row is the only one.
    void next()
    {
        requireRows();
        ++m_row;
        if (modulo(m_row, m_rowsPerColumn) == 0) {
            m_row = 1;
            m_column = m_widestEnd + ColumnGap;
            m_widestEnd = 0;
        }
    }

    void noteTextEnd(float x) { m_widestEnd = std::max(m_widestEnd, x); }

    int row() const { return m_row; }
    float column() const { return m_column; }

private:
    static constexpr float ColumnGap = 400;

    void requireRows() const
    {
        if (m_rowsPerColumn == 0) {
            const double smallest = std::ceil(20 * m_rowStep / TwipsPerMm) / 10;
            throw RunTimeError(ErrorNumber::DivisionByZero,
                               QStringLiteral("The legend needs a map at least %1 mm high.").arg(smallest));
        }
    }

    int m_row = 1;
    float m_widestEnd = 1;
    float m_column;
    int m_rowStep;
    int m_rowsPerColumn;
};

} // namespace

QPointF captionOrigin(const BlankMapParts& parts)
{
    const float scale = parts.geometry.Scale;
    return {scale * parts.map.HanreiX, scale * static_cast<double>(parts.map.HanreiY)};
}

void ClsHanrei(const BlankMapParts& parts, DrawSurface& target, const QString& title)
{
    constexpr auto Edge = static_cast<float>(2 * TwipsPerPixel); // letters are painted at whole pixels

    const QPointF origin = captionOrigin(parts);
    const float width = std::max(target.TextWidth(title), target.TextWidth(parts.map.KanjiText(1)));
    const auto x = static_cast<float>(origin.x());
    const auto y = static_cast<float>(origin.y());
    target.DrawWidth = 1;
    target.FilledBox(x, y, x + Margin + width + Edge, y + Margin + target.TextHeight() + Edge,
                     QBColor(StandardColor::LightWhite));
}

void PlotHanrei(const LinguisticMapParts& parts, MapSurfaces surfaces)
{
    constexpr float SymbolIndent = 200 + 50 + 200;
    constexpr float SymbolDrop = 80;
    constexpr float TextIndent = 200;

    const SymbolSet& symbols = parts.symbols;
    DrawSurface& target = surfaces.DrawTarget;
    const int step = rowStep(parts.text.font);
    const QPointF origin = captionOrigin(parts.base);
    const auto x0 = static_cast<float>(origin.x());
    const auto y0 = static_cast<float>(origin.y());

    ClsHanrei(parts.base, target, parts.item.Hanrei);
    target.PrintAt(x0 + Margin, y0 + Margin, parts.item.Hanrei);

    SymbolShapes shapes(parts.base.map, parts.base.geometry, surfaces);
    PhoneticText phonetic(parts.text, surfaces);
    LegendCells cells(x0 + SymbolIndent, surfaces.area.Height, step);
    for (int k = 1; k <= symbols.NHanrei; ++k) {
        const QString& caption = symbols.HankoCaption(k);
        if (caption.contains(QLatin1Char('-'))) {
            continue; // a hyphen keeps a record out of the legend; its symbols are on the map
        }
        cells.next();
        const float top = y0 + static_cast<float>(step * cells.row()) + Margin;
        try {
            shapes.DrawHanko(symbols.Hanko(k), cells.column(), top + SymbolDrop);
        } catch (const RunTimeError& error) {
            throw ofRecord(error, symbols, k);
        }
        cells.noteTextEnd(phonetic.PlotChar(cells.column() + TextIndent, top, caption));
    }
    surfaces.thinLines();
}
