#include "analysis/forms/DiffusionPreview.h"

#include "analysis/DiffusionEditor.h"
#include "platform/StandardColors.h"
#include "render/ListText.h"
#include "render/SymbolSample.h"
#include "render/SymbolShapes.h"
#include "shell/MapParts.h"

namespace {

constexpr int MostRows = 10;

// All lengths are twips.
constexpr float NumberEnd = 400;
constexpr float SymbolColumn = 860;
constexpr float CaptionColumn = 1320;
constexpr float MinimumWidth = 900;
constexpr float LocalitiesWidth = 1300;
constexpr float Edge = 150;
constexpr float Headings = 390;
constexpr float RowHeight = 600;

constexpr QRgb HeadingColor = qRgb(96, 96, 96);
constexpr QRgb RuleColor = qRgb(192, 192, 192);
constexpr QRgb FaultColor = qRgb(176, 0, 0);
constexpr QRgb CurrentRowColor = qRgb(219, 233, 249);

/// One drawing of the preview.
class Preview
{
public:
    Preview(VarnModule& varn, DrawSurface& surface)
        : m_varn(varn), m_surface(surface), m_text(textParts(varn), surface)
    {}

    void shade(int k)
    {
        m_surface.FilledBox(0, top(k), m_surface.Width, top(k) + RowHeight, CurrentRowColor);
    }

    void drawHeadings()
    {
        const float y = (Headings - m_surface.TextHeight()) / 2;
        m_text.setColor(HeadingColor);
        m_text.write(CaptionColumn, y, QStringLiteral("Caption"));
        m_text.writeRight(minimumEnd(), y, QStringLiteral("Minimum"));
        m_text.writeRight(localitiesEnd(), y, QStringLiteral("Localities"));
        m_surface.DrawWidth = 1;
        m_surface.Line(0, Headings, m_surface.Width, Headings, RuleColor);
    }

    void drawRow(int k)
    {
        const float y = top(k) + (RowHeight - m_surface.TextHeight()) / 2;
        const float captionWidth = minimumEnd() - MinimumWidth - CaptionColumn;
        m_text.setColor(HeadingColor);
        m_text.writeRight(NumberEnd, y, QString::number(k));
        m_text.setColor(QBColor(StandardColor::Black));
        m_text.write(CaptionColumn, y,
                     m_text.shortened(m_varn.DiffusionCaption(k), captionWidth, ListText::Coding::Phonetic),
                     ListText::Coding::Phonetic);
        m_text.writeRight(minimumEnd(), y, QString::number(m_varn.MinimumPoints(k)));
        m_text.writeRight(localitiesEnd(), y,
                          QString::number(markedLocalities(m_varn, m_varn, k, m_varn.NLocality)));
        drawHanko(k, y);
    }

private:
    static float top(int k) { return Headings + RowHeight * static_cast<float>(k - 1); }
    float localitiesEnd() const { return m_surface.Width - Edge; }
    float minimumEnd() const { return localitiesEnd() - LocalitiesWidth; }

    void drawHanko(int k, float y)
    {
        if (!canDraw(m_varn.DiffusionHanko(k), m_varn)) {
            m_text.setColor(FaultColor);
            m_text.writeRight(SymbolColumn + Edge / 2, y, QStringLiteral("?"));
            return;
        }
        SymbolShapes(m_varn, m_varn, {m_surface, m_surface})
            .DrawHanko(m_varn.DiffusionHanko(k), SymbolColumn, top(k) + RowHeight / 2);
    }

    VarnModule& m_varn;
    DrawSurface& m_surface;
    ListText m_text;
};

} // namespace

void drawDiffusionPreview(VarnModule& varn, int current, DrawSurface& surface)
{
    surface.Cls();
    if (varn.NDiffusion == 0) {
        return;
    }
    Preview preview(varn, surface);
    if (current >= 1 && current <= varn.NDiffusion) {
        preview.shade(current);
    }
    preview.drawHeadings();
    for (int k = 1; k <= varn.NDiffusion; ++k) {
        preview.drawRow(k);
    }
}

float diffusionPreviewHeight()
{
    return Headings + MostRows * RowHeight + Edge;
}
