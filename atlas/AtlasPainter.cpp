#include "atlas/AtlasDrawing.h"
#include "platform/DrawnArea.h"

#include <QTransform>

#include <algorithm>
#include <span>

namespace {

/// What is seen of the symbols that do not stand out.
constexpr double Faded = 0.12;

/// A symbol painted once, in pixels of the target, and set down wherever it stands: stroking each anew takes
/// longer than all else.
class Stamp
{
public:
    Stamp(const Drawing& sample, double scale)
    {
        const QRectF area = drawnArea(sample).translated(-SampleMiddle);
        const QRect pixels = QRectF(area.topLeft() * scale, area.size() * scale).toAlignedRect();
        if (area.isEmpty() || std::max(pixels.width(), pixels.height()) > MostPixels) {
            return;
        }
        m_corner = pixels.topLeft() - QPoint(Rim, Rim);
        m_picture = QImage(pixels.size() + QSize(2 * Rim, 2 * Rim), QImage::Format_ARGB32_Premultiplied);
        m_picture.fill(Qt::transparent);
        QPainter painter(&m_picture);
        painter.translate(-m_corner - SampleMiddle * scale);
        paintDrawing(sample, painter, scale);
    }

    /// A symbol that is large, or nothing, has no stamp.
    bool exists() const { return !m_picture.isNull(); }
    void setDown(QPainter& painter, QPointF pixel) const
    {
        painter.drawImage(pixel.toPoint() + m_corner, m_picture);
    }

private:
    static constexpr int MostPixels = 100;
    static constexpr int Rim = 1;

    QImage m_picture;
    /// From the middle of the symbol.
    QPoint m_corner;
};

/// Paints the symbols of a map record by record.
class SymbolPainter
{
public:
    SymbolPainter(const AtlasDrawing& map, QPainter& painter, const AtlasView& view)
        : m_map(map), m_painter(painter), m_view(view),
          m_near(QRectF(view.visible.topLeft() - SampleMiddle, view.visible.bottomRight() + SampleMiddle)),
          m_toPixels(QTransform::fromScale(view.scale, view.scale) * painter.deviceTransform())
    {}

    void paint()
    {
        const auto end = m_map.symbols.end();
        for (auto first = m_map.symbols.begin(); first != end;) {
            const auto next =
                std::find_if(first, end, [&](const DrawnSymbol& s) { return s.record != first->record; });
            paintRecord({first, next});
            first = next;
        }
    }

private:
    void paintRecord(std::span<const DrawnSymbol> symbols)
    {
        const int record = symbols.front().record;
        const bool standsOut = m_view.records.empty() || m_view.records.contains(record);
        const auto sample = static_cast<std::size_t>(record - 1);
        if (sample < m_map.samples.size()) {
            const Stamp stamp(m_map.samples[sample], m_toPixels.m11());
            if (stamp.exists()) {
                setDown(stamp, symbols, standsOut ? 1 : Faded);
                return;
            }
        }
        paintEach(symbols, standsOut ? 1 : Faded);
    }

    void setDown(const Stamp& stamp, std::span<const DrawnSymbol> symbols, double opacity)
    {
        m_painter.save();
        m_painter.setWorldTransform(m_painter.deviceTransform().inverted() * m_painter.worldTransform());
        m_painter.setOpacity(opacity);
        for (const DrawnSymbol& symbol : symbols) {
            if (m_near.contains(symbol.x, symbol.y)) {
                stamp.setDown(m_painter, m_toPixels.map(QPointF(symbol.x, symbol.y)));
            }
        }
        m_painter.restore();
    }

    void paintEach(std::span<const DrawnSymbol> symbols, double opacity)
    {
        std::vector<PaintedOperations> parts;
        for (const DrawnSymbol& symbol : symbols) {
            if (m_near.contains(symbol.x, symbol.y)) {
                parts.push_back({symbol.operations.first, symbol.operations.end, opacity});
            }
        }
        paintDrawing(m_map.drawing, m_painter, m_view.scale, parts);
    }

    const AtlasDrawing& m_map;
    QPainter& m_painter;
    const AtlasView& m_view;
    /// Where symbols are that can be seen.
    QRectF m_near;
    QTransform m_toPixels;
};

void paintRange(const AtlasDrawing& map, QPainter& painter, double scale, const OperationRange& range)
{
    const PaintedOperations part{range.first, range.end};
    paintDrawing(map.drawing, painter, scale, {&part, 1});
}

} // namespace

void paintAtlasMap(const AtlasDrawing& map, QPainter& painter, const AtlasView& view)
{
    const std::size_t all = map.drawing.operations.size();
    const std::size_t behind = map.legend.end > 0 ? map.legend.first : all;
    const OperationRange symbols = map.symbols.empty() ? OperationRange{behind, behind}
                                                       : OperationRange{map.symbols.front().operations.first,
                                                                        map.symbols.back().operations.end};
    paintRange(map, painter, view.scale, {0, symbols.first});
    SymbolPainter(map, painter, view).paint();
    paintRange(map, painter, view.scale, {symbols.end, behind});
    if (view.withLegend) {
        paintRange(map, painter, view.scale, map.legend);
    }
    paintRange(map, painter, view.scale, {std::max(behind, map.legend.end), all});
}

void paintLegend(const AtlasDrawing& map, QPainter& painter, double scale)
{
    paintRange(map, painter, scale, map.legend);
}
