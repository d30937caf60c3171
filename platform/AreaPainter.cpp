#include "platform/AreaPainter.h"

#include "platform/HatchLines.h"

#include <QPainterPath>
#include <QPen>
#include <QPolygonF>

#include <algorithm>

namespace {

/// The points of a ring in units of the painter, the first one again as the last.
QPolygonF closedRing(const Drawing& drawing, const PointRange& ring, double scale)
{
    QPolygonF points;
    points.reserve(static_cast<qsizetype>(ring.count) + 1);
    for (std::size_t i = 0; i <= ring.count; ++i) {
        points << drawing.points[ring.first + i % ring.count] * scale;
    }
    return points;
}

void fill(const std::vector<QPolygonF>& rings, QRgb color, QPainter& painter)
{
    QPainterPath path; // of which lies inside what an odd number of rings holds
    for (const QPolygonF& ring : rings) {
        path.addPolygon(ring);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(color));
    painter.drawPath(path);
    painter.setBrush(Qt::NoBrush);
}

void hatch(std::vector<QLineF> lines, const HatchPen& pen, QRgb color, const AreaCanvas& canvas)
{
    for (QLineF& line : lines) {
        line.setPoints(line.p1() * canvas.scale, line.p2() * canvas.scale);
    }
    canvas.painter.setPen(QPen(QColor::fromRgb(color), pen.width * canvas.scale, Qt::SolidLine,
                               pen.dots ? Qt::RoundCap : Qt::FlatCap));
    canvas.painter.drawLines(lines.data(), static_cast<int>(lines.size()));
}

void drawOutlines(const std::vector<QPolygonF>& rings, const QPen& pen, const AreaCanvas& canvas)
{
    canvas.painter.setPen(pen);
    for (const QPolygonF& ring : rings) {
        if (ring.size() > MostPointsAtOnce && canvas.hasPixels && pen.style() == Qt::SolidLine) {
            drawInPieces({ring.data(), static_cast<std::size_t>(ring.size())}, canvas.painter);
        } else {
            canvas.painter.drawPolygon(ring.data(), static_cast<int>(ring.size()) - 1);
        }
    }
}

} // namespace

void drawInPieces(std::span<const QPointF> points, QPainter& painter)
{
    const auto count = static_cast<int>(points.size());
    for (int first = 0; first < count - 1; first += MostPointsAtOnce - 1) {
        painter.drawPolyline(&points[static_cast<std::size_t>(first)],
                             std::min(MostPointsAtOnce, count - first));
    }
}

void paintArea(const Drawing& drawing, const AreaOperation& area, const QPen& outline,
               const AreaCanvas& canvas)
{
    const std::span ranges(&drawing.rings[area.firstRing], area.rings);
    std::vector<QPolygonF> rings;
    for (const PointRange& range : ranges) {
        rings.push_back(closedRing(drawing, range, canvas.scale));
    }
    canvas.painter.setBrush(Qt::NoBrush);
    if (area.fill != 0 && area.pattern == FillPattern::Solid) {
        fill(rings, area.fill, canvas.painter);
    } else if (area.fill != 0) {
        hatch(hatchLines(drawing.points, ranges, area.pattern), hatchPen(area.pattern), area.fill, canvas);
    }
    if (area.pen >= 0) {
        drawOutlines(rings, outline, canvas);
    }
}
