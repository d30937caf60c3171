#include "bench/FullSurvey.h"
#include "platform/DrawingPainter.h"
#include "render/LinguisticMap.h"
#include "render/MapSize.h"
#include "shell/MapParts.h"

#include <QPainter>
#include <QPen>

#include <benchmark/benchmark.h>
#include <memory>
#include <numbers>

namespace {

constexpr double PixelsPerTwip = 2 / TwipsPerPixel; // 12000 x 9000 twips on 1600 x 1200 pixels

QImage blankPage()
{
    QImage page(1600, 1200, QImage::Format_RGB32);
    page.fill(Qt::white);
    return page;
}

struct FullMap
{
    FullMap() : varn(std::make_unique<VarnModule>())
    {
        fillSurvey(*varn);
        varn->Scale = FindMinMax(*varn, firstArea(), *varn);
    }

    void record()
    {
        frmMap.Cls();
        PlotLinguisticData(linguisticMapParts(*varn), {{frmMap, frmMap}, firstArea()});
    }

    std::unique_ptr<VarnModule> varn;
    DrawSurface frmMap;
};

/// The program's way: the map's drawing commands are recorded, then painted.
void recordAndPaint(benchmark::State& state)
{
    FullMap map;
    QImage page = blankPage();
    for ([[maybe_unused]] auto step : state) {
        map.record();
        QPainter painter(&page);
        paintDrawing(map.frmMap.drawing(), painter, PixelsPerTwip);
    }
    state.counters["operations"] = static_cast<double>(map.frmMap.drawing().operations.size());
}

void recordOnly(benchmark::State& state)
{
    FullMap map;
    for ([[maybe_unused]] auto step : state) {
        map.record();
    }
}

/// The same primitives in pixels, ready to paint.
struct Primitive
{
    enum class Kind { Polyline, Polygon, Box, Ellipse, Pie };

    Kind kind;
    int pen;
    QRgb fill;
    QRectF box;
    int start;
    int span;
    QPolygonF points;
};

class PrimitiveList
{
public:
    explicit PrimitiveList(const Drawing& drawing) : m_drawing(drawing)
    {
        for (const LinePen& pen : drawing.pens) {
            pens.emplace_back(QColor::fromRgb(pen.color), pen.width * 2.0, Qt::SolidLine, Qt::RoundCap,
                              Qt::MiterJoin);
        }
        for (const DrawingOperation& operation : drawing.operations) {
            std::visit(*this, operation);
        }
    }

    void operator()(const PolylineOperation& line)
    {
        QPolygonF points;
        for (std::size_t i = 0; i < line.points; ++i) {
            points << m_drawing.points[line.firstPoint + i] * PixelsPerTwip;
        }
        const bool closed = points.size() > 3 && points.isClosed();
        list.push_back(
            {closed ? Primitive::Kind::Polygon : Primitive::Kind::Polyline, line.pen, 0, {}, 0, 0, points});
    }
    void operator()(const BoxOperation& box)
    {
        add(Primitive::Kind::Box, box.pen, box.fill, QRectF(box.x, box.y, box.width, box.height), 0, 0);
    }
    void operator()(const EllipseOperation& circle)
    {
        add(Primitive::Kind::Ellipse, circle.pen, circle.fill, around(circle), 0, 0);
    }
    void operator()(const ArcOperation& arc)
    {
        const double sixteenths = 180 * 16 / std::numbers::pi;
        add(Primitive::Kind::Pie, arc.pen, arc.fill, around(arc), static_cast<int>(arc.start * sixteenths),
            static_cast<int>(arc.span * sixteenths));
    }
    void operator()(const TextOperation& /*text*/) {}
    void operator()(const PictureOperation& /*picture*/) {}
    void operator()(const AreaOperation& /*area*/) {}

    std::vector<QPen> pens;
    std::vector<Primitive> list;

private:
    template <typename Round>
    static QRectF around(const Round& round)
    {
        return {round.x - round.halfWidth, round.y - round.halfHeight, 2 * round.halfWidth,
                2 * round.halfHeight};
    }

    void add(Primitive::Kind kind, int pen, QRgb fill, const QRectF& box, int start, int span)
    {
        const QRectF pixels(box.topLeft() * PixelsPerTwip, box.size() * PixelsPerTwip);
        list.push_back({kind, pen, fill, pixels, start, span, {}});
    }

    const Drawing& m_drawing;
};

void paintPrimitive(QPainter& painter, const Primitive& primitive)
{
    switch (primitive.kind) {
    case Primitive::Kind::Polyline:
        painter.drawPolyline(primitive.points);
        break;
    case Primitive::Kind::Polygon:
        painter.drawPolygon(primitive.points);
        break;
    case Primitive::Kind::Box:
        painter.drawRect(primitive.box);
        break;
    case Primitive::Kind::Ellipse:
        painter.drawEllipse(primitive.box);
        break;
    case Primitive::Kind::Pie:
        painter.drawPie(primitive.box, primitive.start, primitive.span);
        break;
    }
}

/// A bare loop over a QPainter that holds its pen and brush as long as it can.
void barePainter(benchmark::State& state)
{
    FullMap map;
    map.record();
    const PrimitiveList primitives(map.frmMap.drawing());
    QImage page = blankPage();
    for ([[maybe_unused]] auto step : state) {
        QPainter painter(&page);
        painter.setRenderHint(QPainter::Antialiasing);
        int pen = -1;
        QRgb fill = 0;
        for (const Primitive& primitive : primitives.list) {
            if (pen != primitive.pen) {
                pen = primitive.pen;
                painter.setPen(primitives.pens[static_cast<std::size_t>(pen)]);
            }
            if (fill != primitive.fill) {
                fill = primitive.fill;
                painter.setBrush(fill == 0 ? QBrush(Qt::NoBrush) : QBrush(QColor::fromRgb(fill)));
            }
            paintPrimitive(painter, primitive);
        }
    }
    state.counters["operations"] = static_cast<double>(primitives.list.size());
}

BENCHMARK(barePainter)->Unit(benchmark::kMillisecond);
BENCHMARK(recordAndPaint)->Unit(benchmark::kMillisecond);
BENCHMARK(recordOnly)->Unit(benchmark::kMillisecond);

} // namespace
