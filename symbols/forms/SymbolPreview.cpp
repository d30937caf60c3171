#include "symbols/forms/SymbolPreview.h"

#include "lingdata/PhoneticCheck.h"
#include "platform/StandardColors.h"
#include "render/SymbolSample.h"
#include "render/SymbolShapes.h"
#include "symbols/SymbolEditor.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr float NumberEnd = 500;
constexpr float SymbolColumn = 960;
constexpr float KindColumn = 1470;
constexpr float NarrowestKinds = 1500;
constexpr float NarrowestCaptions = 900;
constexpr float ColumnGap = 300;
constexpr float Edge = 120;
constexpr float Headings = 390;
constexpr float SmallestRow = 330;
constexpr float LargestRow = 420;

constexpr QRgb HeadingColor = qRgb(96, 96, 96);
constexpr QRgb RuleColor = qRgb(192, 192, 192);
constexpr QRgb FaultColor = qRgb(176, 0, 0);
constexpr QRgb CurrentRowColor = qRgb(219, 233, 249);

/// The map font, small enough for the rows.
MapFont previewFont(const MapFont& mapFont)
{
    MapFont font = mapFont;
    font.MapFontSize = std::clamp(mapFont.MapFontSize, qint16{8}, qint16{11});
    return font;
}

float rowHeight(const DrawSurface& surface)
{
    return std::clamp((surface.Height - Headings) / SymbolEditor::MaxShown, SmallestRow, LargestRow);
}

/// One drawing of the preview.
class Preview
{
public:
    Preview(VarnModule& varn, int first, DrawSurface& surface)
        : m_varn(varn), m_first(first), m_surface(surface), m_font(previewFont(varn)),
          m_rowHeight(rowHeight(surface)),
          m_phonetic({varn, m_font, varn, varn.Pictures}, {surface, m_traces})
    {
        m_surface.setFont(textFont(m_font));
    }

    void shade(int record)
    {
        const float top = middle(record) - m_rowHeight / 2;
        m_surface.FilledBox(0, top, m_surface.Width, top + m_rowHeight, CurrentRowColor);
    }

    void drawNumber(int record)
    {
        const QString number = QString::number(record);
        write(NumberEnd - m_surface.TextWidth(number), record, number, HeadingColor);
    }

    void drawHanko(int record)
    {
        const HankoStyle& hanko = m_varn.Hanko(record);
        if (canDraw(hanko, m_varn)) {
            SymbolShapes(m_varn, m_varn, {m_surface, m_traces})
                .DrawHanko(hanko, SymbolColumn, middle(record));
        } else {
            const QString unknown = QStringLiteral("?");
            write(SymbolColumn - m_surface.TextWidth(unknown) / 2, record, unknown, FaultColor);
        }
    }

    /// Writes a coded text and returns the x where it ended.
    float drawText(float x, int record, const QString& text)
    {
        if (findCodeFault(text)) {
            write(x, record, text, FaultColor);
            return m_surface.CurrentX;
        }
        return m_phonetic.PlotChar(x, middle(record) - m_surface.TextHeight() / 2, text);
    }

    void drawHeading(float x, const QString& text)
    {
        writeAt(x, (Headings - Edge / 2 - m_surface.TextHeight()) / 2, text, HeadingColor);
    }

    void drawRule()
    {
        const float y = Headings - Edge / 2;
        m_surface.DrawWidth = 1;
        m_surface.Line(0, y, m_surface.Width, y, RuleColor);
    }

private:
    float middle(int record) const
    {
        return Headings + (static_cast<float>(record - m_first) + 0.5F) * m_rowHeight;
    }

    void write(float x, int record, const QString& text, QRgb color)
    {
        writeAt(x, middle(record) - m_surface.TextHeight() / 2, text, color);
    }

    void writeAt(float x, float y, const QString& text, QRgb color)
    {
        m_surface.ForeColor = color;
        m_surface.CurrentX = x;
        m_surface.CurrentY = y;
        m_surface.Print(text, DrawSurface::LineEnd::Stay);
        m_surface.ForeColor = qRgb(0, 0, 0);
    }

    VarnModule& m_varn;
    int m_first;
    DrawSurface& m_surface;
    /// Takes what the drawing procedures would write on the map form.
    DrawSurface m_traces;
    MapFont m_font;
    float m_rowHeight;
    PhoneticText m_phonetic;
};

} // namespace

float DisplayHanrei(VarnModule& varn, int first, int last, DrawSurface& surface)
{
    surface.Cls();
    if (first > last) {
        return 0;
    }
    Preview preview(varn, first, surface);
    if (varn.CurrentHanko >= first && varn.CurrentHanko <= last) {
        preview.shade(varn.CurrentHanko);
    }
    float kindsEnd = KindColumn + NarrowestKinds;
    for (int k = first; k <= last; ++k) {
        preview.drawNumber(k);
        preview.drawHanko(k);
        kindsEnd = std::max(kindsEnd, preview.drawText(KindColumn, k, varn.HankoWord(k)));
    }
    const float captionColumn = kindsEnd + ColumnGap;
    float end = captionColumn + NarrowestCaptions;
    for (int k = first; k <= last; ++k) {
        end = std::max(end, preview.drawText(captionColumn, k, varn.HankoCaption(k)));
    }
    preview.drawHeading(KindColumn, QStringLiteral("Kind"));
    preview.drawHeading(captionColumn, QStringLiteral("Caption"));
    preview.drawRule();
    return end + Edge;
}

std::optional<int> recordAt(float y, int first, int last, const DrawSurface& surface)
{
    const int record = first + static_cast<int>(std::floor((y - Headings) / rowHeight(surface)));
    return record >= first && record <= last ? std::optional(record) : std::nullopt;
}

float smallestPreviewHeight()
{
    return Headings + SymbolEditor::MaxShown * SmallestRow;
}
