#include "dialectometry/AreaLegend.h"

#include "dialectometry/GroupColors.h"
#include "dialectometry/KeptStyle.h"
#include "platform/StandardColors.h"
#include "render/Legend.h"
#include "render/PhoneticText.h"

#include <algorithm>

namespace {

constexpr float Margin = MapGeometry::Margin;
constexpr float SampleWidth = 400;
constexpr float TextIndent = SampleWidth + 120;
constexpr float ColumnGap = 300;

/// Writes texts nowhere and tells how wide they are.
class TextRuler
{
public:
    TextRuler(const TextParts& parts, const TextFont& font) : m_text(parts, {m_surface, m_surface})
    {
        m_surface.setFont(font);
    }

    float width(const QString& text) { return m_text.PlotChar(0, 0, text); }

private:
    DrawSurface m_surface;
    PhoneticText m_text;
};

/// Where the rows of a legend stand.
class LegendGrid
{
public:
    LegendGrid(const AreaMapParts& parts, const AreaLegend& legend, const FormArea& area, TextRuler& ruler)
        : m_step(static_cast<float>(std::max((parts.text.font.MapFontSize + 2) * 20, 300))),
          m_origin(captionOrigin(parts.base)), m_titleLines(legend.title.count(u'\n') + 1)
    {
        measure(legend, area, ruler);
    }

    /// The top left corner of a line of the title, from 0.
    QPointF title(qsizetype line = 0) const
    {
        return m_origin + QPointF(Margin, Margin + static_cast<float>(line) * m_step);
    }
    /// The top left corner of row i, from 0.
    QPointF row(std::size_t i) const
    {
        const auto line = static_cast<float>(i % m_rows);
        return title(m_titleLines) + QPointF(m_columns[i / m_rows], line * m_step + TitleGap);
    }
    float step() const { return m_step; }

private:
    static constexpr float TitleGap = 60;

    void measure(const AreaLegend& legend, const FormArea& area, TextRuler& ruler)
    {
        constexpr float FewestRows = 6;

        const float room =
            (area.Height - static_cast<float>(title(m_titleLines).y()) - TitleGap) / m_step - 1;
        m_rows = static_cast<std::size_t>(std::max(room, FewestRows));
        const std::size_t count = legend.rows.size();
        float column = 0;
        for (std::size_t i = 0; i < count; i += m_rows) {
            m_columns.push_back(column);
            float widest = 0;
            for (std::size_t j = i; j < std::min(i + m_rows, count); ++j) {
                widest = std::max(widest, ruler.width(legend.rows[j].text));
            }
            column += TextIndent + widest + ColumnGap;
        }
    }

    float m_step;
    QPointF m_origin;
    qsizetype m_titleLines;
    std::size_t m_rows = 1;
    std::vector<float> m_columns;
};

/// Paints a row white as far as it reaches and no further, so that the map stays whole.
void drawGround(QPointF corner, float width, float height, DrawSurface& target)
{
    const KeptStyle kept(target);
    target.DrawStyle = PenStyle::None;
    const auto x = static_cast<float>(corner.x());
    const auto y = static_cast<float>(corner.y());
    target.FilledBox(x - Margin, y, x + width + Margin, y + height, QBColor(StandardColor::LightWhite));
}

void drawBox(const std::vector<AreaFill>& fills, const QRectF& box, DrawSurface& target)
{
    const Ring ring = {box.topLeft(), box.topRight(), box.bottomRight(), box.bottomLeft()};
    paintArea({ring}, fills, target);
    const KeptStyle kept(target);
    target.FillStyle = DrawSurface::Fill::Transparent;
    target.DrawWidth = 1;
    target.Area({ring}, QBColor(StandardColor::Black));
}

/// What a row shows, in `box`.
void drawSample(const AreaLegendRow& row, const QRectF& box, AreaLook look, DrawSurface& target)
{
    const auto middle = static_cast<float>(box.center().y());
    if (!row.fills.empty()) {
        drawBox(row.fills, box, target);
    }
    if (row.line.style != PenStyle::None) {
        const KeptStyle kept(target);
        target.DrawWidth = row.line.width;
        target.DrawStyle = row.line.style;
        target.Line(static_cast<float>(box.left()), middle, static_cast<float>(box.right()), middle,
                    row.line.color);
    }
    if (row.groupSymbol > 0) {
        drawGroupSymbol(row.groupSymbol, look, static_cast<float>(box.center().x()), middle,
                        static_cast<float>(box.height() / 3), target);
    }
}

} // namespace

QString withCount(const QString& caption, std::ptrdiff_t count)
{
    return QStringLiteral("%1 (%2)").arg(caption, QString::number(count));
}

void drawAreaLegend(const AreaMapParts& parts, const AreaLegend& legend, MapSurfaces surfaces)
{
    constexpr float Air = 40; // between the boxes of two rows

    DrawSurface& target = surfaces.DrawTarget;
    TextRuler ruler(parts.text, target.font());
    const LegendGrid grid(parts, legend, surfaces.area, ruler);
    PhoneticText text(parts.text, surfaces);
    // The name of the map, which stands there too, is covered.
    float width = target.TextWidth(parts.base.map.KanjiText(1));
    qsizetype number = 0;
    for (const QString& line : legend.title.split(u'\n')) {
        const QPointF corner = grid.title(number++);
        drawGround(corner, std::max(width, ruler.width(line)), grid.step(), target);
        text.PlotChar(static_cast<float>(corner.x()), static_cast<float>(corner.y()), line);
        width = 0;
    }
    for (std::size_t i = 0; i < legend.rows.size(); ++i) {
        const AreaLegendRow& row = legend.rows[i];
        const QPointF corner = grid.row(i);
        drawGround(corner, TextIndent + ruler.width(row.text), grid.step(), target);
        drawSample(row, {corner + QPointF(0, Air / 2), QSizeF(SampleWidth, grid.step() - Air)}, legend.look,
                   target);
        const float lower = std::max((grid.step() - target.TextHeight()) / 2, 0.0F);
        text.PlotChar(static_cast<float>(corner.x()) + TextIndent, static_cast<float>(corner.y()) + lower,
                      row.text);
    }
    surfaces.thinLines();
}
