#include "render/SymbolHelp.h"

#include "render/PhoneticText.h"

namespace {

/// Writes the entries of the code list down the page, column after column.
class SymbolHelpPage
{
public:
    SymbolHelpPage(VarnModule& varn, MapSurfaces surfaces)
        : m_target(surfaces.DrawTarget), m_height(surfaces.frmMap.Height),
          m_phonetic(varn, varn, varn, varn.Pictures, surfaces)
    {
        X0Y0(varn.MapFontSize, false, m_dx, m_dy);
        m_y = firstRow();
    }

    void writeHeading()
    {
        print(MapGeometry::Margin, MapGeometry::Margin,
              QStringLiteral("** List of VARN Format Data and Phonetic Alphabets **"));
    }

    /// The code, the glyph that it is drawn with, the letter, and the letter's name.
    void write(const PhoneticSymbol& symbol)
    {
        if (m_y + static_cast<float>(m_dy) > m_height) {
            m_x = m_widestEnd + m_dx;
            m_y = firstRow();
        }
        float x = m_x;
        print(x, m_y, symbol.code);
        XYPosition(m_target, x, m_widestEnd, 2 * m_dx);
        m_phonetic.PlotChar(x, m_y, symbol.code);
        XYPosition(m_target, x, m_widestEnd, 2 * m_dx);
        print(x, m_y, symbol.letter);
        XYPosition(m_target, x, m_widestEnd, 2 * m_dx);
        print(x, m_y, symbol.name);
        XYPosition(m_target, x, m_widestEnd, 0);
        m_y += static_cast<float>(m_dy);
    }

private:
    float firstRow() const { return MapGeometry::Margin + 2 * static_cast<float>(m_dy); }

    void print(float x, float y, const QString& text)
    {
        m_target.CurrentX = x;
        m_target.CurrentY = y;
        m_target.Print(text, DrawSurface::LineEnd::Stay);
    }

    DrawSurface& m_target;
    float m_height;
    PhoneticText m_phonetic;
    float m_dx = 0;
    qint16 m_dy = 0;
    float m_x = MapGeometry::Margin;
    float m_y = 0;
    float m_widestEnd = 0;
};

} // namespace

void WriteSymbolHelp(VarnModule& varn, MapSurfaces surfaces)
{
    surfaces.frmMap.Cls();
    SymbolHelpPage page(varn, surfaces);
    page.writeHeading();
    for (const PhoneticSymbol& symbol : varn.ExpSymbols) {
        page.write(symbol);
    }
}
