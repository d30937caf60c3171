#include "platform/DrawingPainter.h"

#include "platform/AreaPainter.h"

#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPen>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

constexpr std::array<Qt::PenStyle, 5> PenStyles = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine,
                                                   Qt::DashDotDotLine};

QPen toPen(const LinePen& pen, double scale)
{
    const bool solid = pen.style == PenStyle::Solid;
    return {QColor::fromRgb(pen.color), pen.width * TwipsPerPixel * scale,
            PenStyles.at(static_cast<std::size_t>(pen.style)), solid ? Qt::RoundCap : Qt::FlatCap,
            Qt::MiterJoin};
}

/// Whether the target is made of pixels, which lie along the painter's axes.
bool hasPixels(const QPainter& painter)
{
    return painter.paintEngine()->type() == QPaintEngine::Raster &&
           painter.deviceTransform().type() <= QTransform::TxScale;
}

/// Paints operation after operation and remembers which pen, fill and font the painter holds. Shapes are
/// scaled here, since the painter strokes faster without a transformation; texts and pictures by the painter.
/// What is so small that it would be lost between the pixels of the target is painted in whole pixels.
class DrawingPainter
{
public:
    DrawingPainter(const Drawing& drawing, QPainter& painter, double scale)
        : m_drawing(drawing), m_painter(painter), m_scale(scale), m_shapes(painter.worldTransform()),
          m_texts(QTransform::fromScale(scale, scale) * m_shapes), m_hasPixels(hasPixels(painter)),
          m_toPixels(QTransform::fromScale(scale, scale) * painter.deviceTransform()),
          m_pixels(painter.deviceTransform().inverted() * m_shapes), m_shrunk(drawing.pictures.size())
    {
        painter.setBrush(Qt::NoBrush);
        for (const LinePen& pen : drawing.pens) {
            m_pens.push_back(toPen(pen, scale));
        }
        for (const TextFont& font : drawing.fonts) {
            m_fonts.push_back(twipFont(font));
            m_ascents.push_back(QFontMetricsF(m_fonts.back()).ascent());
        }
    }

    void operator()(const PolylineOperation& line)
    {
        usePen(line.pen);
        m_points.clear();
        for (std::size_t i = 0; i < line.points; ++i) {
            m_points.push_back(m_drawing.points[line.firstPoint + i] * m_scale);
        }
        const auto count = static_cast<int>(m_points.size());
        if (count > MostPointsAtOnce && m_hasPixels && isSolid(line.pen)) {
            drawInPieces(m_points, m_painter);
        } else if (count > 3 && m_points.front() == m_points.back()) {
            useFill(0);
            m_painter.drawPolygon(m_points.data(), count - 1);
        } else if (count == 2) {
            m_painter.drawLine(m_points[0], m_points[1]);
        } else {
            m_painter.drawPolyline(m_points.data(), count);
        }
    }

    void operator()(const BoxOperation& box)
    {
        usePen(box.pen);
        useFill(box.fill);
        m_painter.drawRect(
            QRectF(box.x * m_scale, box.y * m_scale, box.width * m_scale, box.height * m_scale));
    }

    void operator()(const EllipseOperation& ellipse)
    {
        if (m_hasPixels && isDot(ellipse)) {
            drawDot(ellipse);
            return;
        }
        usePen(ellipse.pen);
        useFill(ellipse.fill);
        m_painter.drawEllipse(boxAround(ellipse));
    }

    void operator()(const ArcOperation& arc)
    {
        usePen(arc.pen);
        const QRectF box = boxAround(arc);
        if (arc.closed()) {
            useFill(arc.fill);
            m_painter.drawPie(box, sixteenths(arc.start), sixteenths(arc.span));
            return;
        }
        m_painter.drawArc(box, sixteenths(arc.start), sixteenths(arc.span));
        if (arc.startRadius) {
            drawRadius(box, arc.start);
        }
        if (arc.endRadius) {
            drawRadius(box, arc.start + arc.span);
        }
    }

    void operator()(const TextOperation& text)
    {
        useTextColor(text.color);
        if (m_font != text.font) {
            m_font = text.font;
            m_painter.setFont(m_fonts[static_cast<std::size_t>(text.font)]);
        }
        const double baseline = text.y + m_ascents[static_cast<std::size_t>(text.font)];
        within(m_texts, [&] { m_painter.drawText(QPointF(text.x, baseline), m_drawing.texts[text.text]); });
    }

    void operator()(const PictureOperation& picture)
    {
        const QImage& image = m_drawing.pictures[picture.picture];
        const QRectF box(picture.x, picture.y, picture.width, picture.height);
        const QRectF pixels = m_toPixels.mapRect(box);
        const QSize size = pixels.size().toSize().expandedTo({1, 1});
        if (m_hasPixels && size == size.boundedTo(image.size())) {
            within(m_pixels,
                   [&] { m_painter.drawImage(pixels.topLeft().toPoint(), shrunk(picture.picture, size)); });
        } else {
            within(m_texts, [&] { m_painter.drawImage(box, image); });
        }
    }

    void operator()(const AreaOperation& area)
    {
        const QPen outline = area.pen < 0 ? QPen(Qt::NoPen) : m_pens[static_cast<std::size_t>(area.pen)];
        paintArea(m_drawing, area, outline, {m_painter, m_scale, m_hasPixels});
        m_pen = OtherPen;
        m_textColor = 0;
        m_fill = 0;
    }

private:
    static constexpr int NoPen = -1;
    static constexpr int OtherPen = -2;

    bool isSolid(int pen) const
    {
        return m_drawing.pens[static_cast<std::size_t>(pen)].style == PenStyle::Solid;
    }

    static int sixteenths(float radians)
    {
        return static_cast<int>(std::lround(radians * 180 * 16 / std::numbers::pi));
    }

    template <typename Round>
    QRectF boxAround(const Round& round) const
    {
        return {(round.x - round.halfWidth) * m_scale, (round.y - round.halfHeight) * m_scale,
                2 * round.halfWidth * m_scale, 2 * round.halfHeight * m_scale};
    }

    template <typename Paint>
    void within(const QTransform& coordinates, Paint paint)
    {
        m_painter.setWorldTransform(coordinates);
        paint();
        m_painter.setWorldTransform(m_shapes);
    }

    /// A picture in as many pixels as the target has for it, each the average over its area: the painter
    /// itself reads but the nearest points of a fine picture, and loses the thin strokes of its letters.
    const QImage& shrunk(std::size_t picture, QSize size)
    {
        QImage& image = m_shrunk[picture];
        if (image.size() != size) {
            image = m_drawing.pictures[picture].scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        }
        return image;
    }

    /// Half the width of an ellipse with its outline, in pixels of the target.
    double outerRadius(const EllipseOperation& ellipse) const
    {
        const double outline = m_drawing.pens[static_cast<std::size_t>(ellipse.pen)].width * TwipsPerPixel;
        return (std::max(ellipse.halfWidth, ellipse.halfHeight) + outline / 2) * std::abs(m_toPixels.m11());
    }

    /// Whether an ellipse is of one colour and so small that it may cover no whole pixel.
    bool isDot(const EllipseOperation& ellipse) const
    {
        if (ellipse.pen < 0 || outerRadius(ellipse) >= std::numbers::sqrt2) {
            return false;
        }
        const LinePen& pen = m_drawing.pens[static_cast<std::size_t>(ellipse.pen)];
        const bool hasHole = 2 * std::max(ellipse.halfWidth, ellipse.halfHeight) > pen.width * TwipsPerPixel;
        return !hasHole || ellipse.fill == pen.color;
    }

    /// A dot lies about the middle of a pixel and covers this pixel at least.
    void drawDot(const EllipseOperation& dot)
    {
        usePen(NoPen);
        useFill(m_drawing.pens[static_cast<std::size_t>(dot.pen)].color);
        const QPointF place = m_toPixels.map(QPointF(dot.x, dot.y));
        const QPointF middle(std::floor(place.x()) + 0.5, std::floor(place.y()) + 0.5);
        const double radius = std::max(outerRadius(dot), std::numbers::sqrt2 / 2);
        within(m_pixels, [&] { m_painter.drawEllipse(middle, radius, radius); });
    }

    void drawRadius(const QRectF& box, float angle)
    {
        const QPointF end(box.width() / 2 * std::cos(angle), -box.height() / 2 * std::sin(angle));
        m_painter.drawLine(box.center(), box.center() + end);
    }

    void usePen(int pen)
    {
        if (m_pen != pen) {
            m_pen = pen;
            m_textColor = 0;
            m_painter.setPen(pen < 0 ? QPen(Qt::NoPen) : m_pens[static_cast<std::size_t>(pen)]);
        }
    }

    /// Texts are painted with the pen, too.
    void useTextColor(QRgb color)
    {
        if (m_textColor != color) {
            m_textColor = color;
            m_pen = OtherPen;
            m_painter.setPen(QColor::fromRgb(color));
        }
    }

    void useFill(QRgb fill)
    {
        if (m_fill != fill) {
            m_fill = fill;
            m_painter.setBrush(fill == 0 ? QBrush(Qt::NoBrush) : QBrush(QColor::fromRgb(fill)));
        }
    }

    const Drawing& m_drawing;
    QPainter& m_painter;
    double m_scale;
    QTransform m_shapes;
    QTransform m_texts;
    bool m_hasPixels;
    /// From twips to pixels of the target, and the transformation that paints in those.
    QTransform m_toPixels;
    QTransform m_pixels;
    /// The pictures as the target shows them; empty before they are needed.
    std::vector<QImage> m_shrunk;
    std::vector<QPointF> m_points;
    std::vector<QPen> m_pens;
    std::vector<QFont> m_fonts;
    std::vector<double> m_ascents;
    /// What the painter holds: a line's pen or a text's colour, a fill, a font.
    int m_pen = OtherPen;
    QRgb m_textColor = 0;
    QRgb m_fill = 0;
    int m_font = -1;
};

} // namespace

void paintDrawing(const Drawing& drawing, QPainter& painter, double scale)
{
    const PaintedOperations all{0, drawing.operations.size()};
    paintDrawing(drawing, painter, scale, {&all, 1});
}

void paintDrawing(const Drawing& drawing, QPainter& painter, double scale,
                  std::span<const PaintedOperations> parts)
{
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    const double opacity = painter.opacity();
    DrawingPainter paint(drawing, painter, scale);
    for (const PaintedOperations& part : parts) {
        painter.setOpacity(opacity * part.opacity);
        for (std::size_t i = part.first; i < part.end; ++i) {
            std::visit(paint, drawing.operations[i]);
        }
    }
    painter.restore();
}
