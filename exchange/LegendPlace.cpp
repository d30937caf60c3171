#include "exchange/LegendPlace.h"

#include "exchange/MapFrame.h"
#include "mapdata/MapFiles.h"
#include "platform/DrawnArea.h"
#include "render/Legend.h"
#include "render/MapSize.h"

#include <QPolygonF>

#include <algorithm>
#include <array>
#include <optional>

namespace {

/// What is kept free around localities, for their symbols, and between them and the edge of the map.
constexpr double SymbolRoom = 16;
constexpr double EdgeRoom = 40;
/// What a legend's room is larger than the legend.
constexpr double LegendGap = LegendInset + 8;
/// The widest room that a legend gets.
constexpr double WidestLegend = 0.6 * MapFrame::Width;

/// The corners of the map that a legend can have, those to the left first; a high one has the whole side.
std::vector<QRectF> legendRooms(QSizeF legend)
{
    constexpr double High = 0.75 * MapFrame::Height;

    if (legend.isEmpty()) {
        return {QRectF()};
    }
    const double width = std::min(legend.width() + LegendGap, WidestLegend);
    const bool high = legend.height() > High;
    const double height = high ? MapFrame::Height : legend.height() + LegendGap;
    const double right = MapFrame::Width - width;
    const double bottom = MapFrame::Height - height;
    std::vector<QRectF> rooms;
    for (const QPointF corner :
         {QPointF(0, 0), QPointF(right, 0), QPointF(0, bottom), QPointF(right, bottom)}) {
        rooms.emplace_back(corner, QSizeF(width, height));
    }
    return rooms;
}

bool isFree(const QRectF& room, const std::vector<QPointF>& points, const MapLayout& layout)
{
    const QRectF kept = room.adjusted(-SymbolRoom, -SymbolRoom, SymbolRoom, SymbolRoom);
    return std::ranges::none_of(points, [&](QPointF p) {
        return kept.contains(layout.offset.x() + layout.scale * p.x(),
                             layout.offset.y() - layout.scale * p.y());
    });
}

/// The extent of the points, `aroundSpot` where they lie on one spot.
QRectF extentOf(const std::vector<QPointF>& points, double aroundSpot)
{
    constexpr double Spot = 0.001;

    const QRectF extent = QPolygonF(QList<QPointF>(points.begin(), points.end())).boundingRect();
    const bool spot = std::max(extent.width(), extent.height()) < Spot * aroundSpot;
    const double grow = spot ? aroundSpot / 2 : 0;
    return extent.adjusted(-grow, -grow, grow, grow);
}

/// The layout with the points at `scale`, the room that is left beside them parted by `share`: (0, 0) sets
/// them into the upper left corner.
MapLayout withPointsAt(const QRectF& extent, double scale, QPointF share)
{
    MapLayout layout;
    layout.scale = scale;
    const double left = MapFrame::Width - 2 * EdgeRoom - scale * extent.width();
    const double above = MapFrame::Height - 2 * EdgeRoom - scale * extent.height();
    layout.offset = {EdgeRoom + share.x() * left - scale * extent.left(),
                     EdgeRoom + share.y() * above + scale * extent.bottom()};
    return layout;
}

/// The layout at `scale` in which one of `rooms` is free, the points as near to the middle as can be.
std::optional<MapLayout> layoutWithLegend(const std::vector<QPointF>& points, const QRectF& extent,
                                          double scale, const std::vector<QRectF>& rooms)
{
    constexpr std::array Shares = {0.5, 0.75, 0.25, 1.0, 0.0};

    for (const double across : Shares) {
        for (const double down : Shares) {
            MapLayout layout = withPointsAt(extent, scale, {across, down});
            const auto room =
                std::ranges::find_if(rooms, [&](const QRectF& r) { return isFree(r, points, layout); });
            if (room != rooms.end()) {
                layout.legend = *room;
                return layout;
            }
        }
    }
    return std::nullopt;
}

} // namespace

LegendMeasure::LegendMeasure(const Folders& folders) : m_folders(folders)
{
    LoadSquareData(folders.Drive, folders.VarnPath, m_map);
}

QSizeF LegendMeasure::legendSize(const ItemAnswers& item, const SymbolSet& symbols) const
{
    DrawSurface form;
    form.setFont(textFont(m_font));
    MapGeometry geometry;
    geometry.Scale = 1; // the block starts at 0, 0
    const LinguisticMapParts parts{{m_map, m_style, symbols.SymbolFileName, geometry},
                                   {m_folders, m_font, m_style, m_pictures},
                                   item,
                                   symbols};
    PlotHanrei(parts, {{form, form}, firstArea()});
    const QPointF end = drawnArea(form.drawing()).bottomRight();
    return {end.x(), end.y()};
}

QSizeF LegendMeasure::titleSize(const QString& title) const
{
    ItemAnswers item;
    item.Hanrei = title;
    return legendSize(item, {});
}

MapLayout layOutMap(const std::vector<QPointF>& points, double aroundSpot, QSizeF legend)
{
    constexpr int Smallest = 20; // of a hundred
    constexpr int Step = 2;

    const QRectF extent = extentOf(points, aroundSpot);
    const double largest = std::min((MapFrame::Width - 2 * EdgeRoom) / extent.width(),
                                    (MapFrame::Height - 2 * EdgeRoom) / extent.height());
    const std::vector<QRectF> rooms = legendRooms(legend);
    for (int share = 100; share > Smallest; share -= Step) {
        if (auto layout = layoutWithLegend(points, extent, share * largest / 100, rooms)) {
            layout->legendIsFree = legend.width() + LegendGap <= WidestLegend;
            return *layout;
        }
    }
    MapLayout layout = withPointsAt(extent, largest / 2, {1, 0.5});
    layout.legend = rooms.front();
    layout.legendIsFree = false;
    return layout;
}
