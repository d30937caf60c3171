#include "render/SymbolHelp.h"

#include "render/PhoneticText.h"

#include <algorithm>

namespace {

constexpr float Margin = MapGeometry::Margin;

/// The places of the code list on its page for one size of letters, in twips.
struct SymbolHelpLayout
{
    int fontSize;
    /// From the code of an entry to its glyph, on to the letter, and on to the letter's name.
    float partStep;
    float rowStep;
    float columnGap;
    int rowsPerColumn;
    /// Whether all columns stand on the page.
    bool fits;

    float firstRow() const { return Margin + 2 * rowStep; }
};

SymbolHelpLayout layoutOf(const std::vector<PhoneticSymbol>& symbols, int fontSize, MapSurfaces surfaces)
{
    const TextCell cell = X0Y0(static_cast<qint16>(fontSize), false);
    surfaces.DrawTarget.FontSize = fontSize;
    float nameWidth = 0;
    for (const PhoneticSymbol& symbol : symbols) {
        nameWidth = std::max(nameWidth, surfaces.DrawTarget.TextWidth(symbol.name));
    }
    SymbolHelpLayout layout{fontSize, 2 * cell.dx, static_cast<float>(cell.dy), cell.dx, 1, false};
    const float height = surfaces.area.Height - layout.firstRow();
    layout.rowsPerColumn = std::max(1, static_cast<int>(height / layout.rowStep));
    const auto codes = static_cast<int>(symbols.size());
    const int wholeColumns = (codes + layout.rowsPerColumn - 1) / layout.rowsPerColumn;
    const auto columns = static_cast<float>(wholeColumns);
    const float width = columns * (3 * layout.partStep + nameWidth) + (columns - 1) * layout.columnGap;
    layout.fits = Margin + width <= surfaces.area.Width;
    return layout;
}

/// The layout with the largest letters, up to those of the map, with which all codes stand on the page; that
/// with the least ones where none does.
SymbolHelpLayout fittingLayout(const std::vector<PhoneticSymbol>& symbols, int fontSize, MapSurfaces surfaces)
{
    constexpr int LeastFontSize = 8; // a row is then as high as a glyph

    SymbolHelpLayout layout = layoutOf(symbols, fontSize, surfaces);
    while (!layout.fits && layout.fontSize > LeastFontSize) {
        layout = layoutOf(symbols, layout.fontSize - 1, surfaces);
    }
    return layout;
}

/// Writes the entries of the code list down the page, column after column.
class SymbolHelpPage
{
public:
    SymbolHelpPage(const TextParts& parts, const SymbolHelpLayout& layout, MapSurfaces surfaces)
        : m_target(surfaces.DrawTarget), m_layout(layout), m_phonetic(parts, surfaces)
    {}

    void writeHeading()
    {
        print(Margin, Margin, QStringLiteral("** List of VARN Format Data and Phonetic Alphabets **"));
        if (!m_layout.fits) {
            print(Margin, Margin + m_layout.rowStep,
                  QStringLiteral("Make the map form larger to see all codes."));
        }
    }

    /// The code, the glyph that it is drawn with, the letter, and the letter's name.
    void write(const PhoneticSymbol& symbol)
    {
        if (m_row == m_layout.rowsPerColumn) {
            m_row = 0;
            m_x = m_widestEnd + m_layout.columnGap;
        }
        const float y = m_layout.firstRow() + static_cast<float>(m_row) * m_layout.rowStep;
        float x = m_x;
        print(x, y, symbol.code);
        XYPosition(m_target, x, m_widestEnd, m_layout.partStep);
        m_phonetic.PlotChar(x, y, symbol.code);
        XYPosition(m_target, x, m_widestEnd, m_layout.partStep);
        print(x, y, symbol.letter);
        XYPosition(m_target, x, m_widestEnd, m_layout.partStep);
        print(x, y, symbol.name);
        XYPosition(m_target, x, m_widestEnd, 0);
        ++m_row;
    }

private:
    void print(float x, float y, const QString& text)
    {
        m_target.CurrentX = x;
        m_target.CurrentY = y;
        m_target.Print(text, DrawSurface::LineEnd::Stay);
    }

    DrawSurface& m_target;
    const SymbolHelpLayout& m_layout;
    PhoneticText m_phonetic;
    int m_row = 0;
    float m_x = Margin;
    float m_widestEnd = 0;
};

} // namespace

void WriteSymbolHelp(const std::vector<PhoneticSymbol>& codes, const TextParts& parts, MapSurfaces surfaces)
{
    surfaces.frmMap.Cls();
    const int fontSize = surfaces.DrawTarget.FontSize;
    const SymbolHelpLayout layout = fittingLayout(codes, parts.font.MapFontSize, surfaces);
    SymbolHelpPage page(parts, layout, surfaces);
    page.writeHeading();
    for (const PhoneticSymbol& symbol : codes) {
        page.write(symbol);
    }
    surfaces.DrawTarget.FontSize = fontSize;
}
