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

/// Where the rows of a legend stand.
class LegendGrid
{
public:
    LegendGrid(const AreaMapParts& parts, const AreaLegend& legend, const FormArea& area, DrawSurface& target)
        : m_step(static_cast<float>(std::max((parts.text.font.MapFontSize + 2) * 20, 300))),
          m_origin(captionOrigin(parts.base))
    {
        measure(parts, legend, area, target);
    }

    QPointF title() const { return m_origin + QPointF(Margin, Margin); }
    /// The top left corner of row i, from 0.
    QPointF row(std::size_t i) const
    {
        const auto line = static_cast<float>(i % m_rows + 1);
        return title() + QPointF(m_columns[i / m_rows], line * m_step + TitleGap);
    }
    float step() const { return m_step; }
    /// The lower right corner of all.
    QPointF end() const
    {
        const std::size_t lines = std::min(m_rows, m_count);
        const float bottom = static_cast<float>(lines + 1) * m_step + (lines > 0 ? TitleGap : 0);
        return title() + QPointF(m_width, bottom);
    }

private:
    static constexpr float TitleGap = 60;

    void measure(const AreaMapParts& parts, const AreaLegend& legend, const FormArea& area,
                 DrawSurface& target)
    {
        constexpr float FewestRows = 6;

        DrawSurface ruler;
        ruler.setFont(target.font());
        PhoneticText text(parts.text, {ruler, ruler});
        const float room = (area.Height - static_cast<float>(title().y()) - TitleGap) / m_step - 1;
        m_rows = static_cast<std::size_t>(std::max(room, FewestRows));
        m_count = legend.rows.size();
        m_width = text.PlotChar(0, 0, legend.title);
        float column = 0;
        for (std::size_t i = 0; i < m_count; i += m_rows) {
            m_columns.push_back(column);
            float widest = 0;
            for (std::size_t j = i; j < std::min(i + m_rows, m_count); ++j) {
                widest = std::max(widest, text.PlotChar(0, 0, legend.rows[j].text));
            }
            m_width = std::max(m_width, column + TextIndent + widest);
            column += TextIndent + widest + ColumnGap;
        }
    }

    float m_step;
    QPointF m_origin;
    std::size_t m_rows = 1;
    std::size_t m_count = 0;
    std::vector<float> m_columns;
    float m_width = 0;
};

void drawGround(const LegendGrid& grid, DrawSurface& target)
{
    const KeptStyle kept(target);
    target.DrawStyle = PenStyle::None;
    const QPointF corner = grid.title() - QPointF(Margin, Margin);
    const QPointF end = grid.end() + QPointF(Margin, 0);
    target.FilledBox(static_cast<float>(corner.x()), static_cast<float>(corner.y()),
                     static_cast<float>(end.x()), static_cast<float>(end.y()),
                     QBColor(StandardColor::LightWhite));
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
    const LegendGrid grid(parts, legend, surfaces.area, target);
    drawGround(grid, target);
    PhoneticText text(parts.text, surfaces);
    text.PlotChar(static_cast<float>(grid.title().x()), static_cast<float>(grid.title().y()), legend.title);
    for (std::size_t i = 0; i < legend.rows.size(); ++i) {
        const QPointF corner = grid.row(i);
        drawSample(legend.rows[i], {corner + QPointF(0, Air / 2), QSizeF(SampleWidth, grid.step() - Air)},
                   legend.look, target);
        const float lower = std::max((grid.step() - target.TextHeight()) / 2, 0.0F);
        text.PlotChar(static_cast<float>(corner.x()) + TextIndent, static_cast<float>(corner.y()) + lower,
                      legend.rows[i].text);
    }
    surfaces.thinLines();
}
