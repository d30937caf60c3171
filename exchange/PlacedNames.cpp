#include "exchange/PlacedNames.h"

#include "exchange/LegendPlace.h"
#include "exchange/MapFrame.h"
#include "exchange/ScaleBar.h"

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace {

/// Room of a scale bar's ticks and texts above it and of the text behind it, in map units.
constexpr double AboveBar = 28;
constexpr double BehindBar = 65;
constexpr double EdgeGap = 12;

/// How many stretches of lines, a few map units each, lie in `room`.
int linesIn(const QRectF& room, const MapLines& lines)
{
    constexpr double Stretch = 5;

    int hits = 0;
    for (int i = 1; i <= lines.NLine; ++i) {
        for (int j = 2; j <= lines.LinePoints(i); ++j) {
            const QLineF line(lines.LineXY(i, j - 1, 0), lines.LineXY(i, j - 1, 1), lines.LineXY(i, j, 0),
                              lines.LineXY(i, j, 1));
            const int stretches = static_cast<int>(line.length() / Stretch) + 1;
            for (int k = 0; k <= stretches; ++k) {
                hits += room.contains(line.pointAt(static_cast<double>(k) / stretches)) ? 1 : 0;
            }
        }
    }
    return hits;
}

int localitiesIn(const QRectF& room, const Localities& map)
{
    int hits = 0;
    for (int i = 1; i <= map.NLocality; ++i) {
        hits += room.contains(map.LocXY(i, 0), map.LocXY(i, 1)) ? 1 : 0;
    }
    return hits;
}

/// What a scale bar in `room` would cover, the worst first.
auto coveredIn(const QRectF& room, const QRectF& legend, const Localities& localities, const MapLines& lines)
{
    return std::tuple(room.intersects(legend), localitiesIn(room, localities), linesIn(room, lines));
}

QRectF bestRoom(QSizeF size, const QRectF& legend, const Localities& localities, const MapLines& lines)
{
    constexpr int Steps = 8;

    const double right = MapFrame::Width - EdgeGap - size.width();
    const double bottom = MapFrame::Height - EdgeGap - size.height();
    std::vector<QRectF> rooms;
    for (const double y : {bottom, EdgeGap}) {
        for (int i = 0; i <= Steps; ++i) {
            rooms.emplace_back(QPointF(EdgeGap + (right - EdgeGap) * i / Steps, y), size);
        }
    }
    return *std::ranges::min_element(
        rooms, {}, [&](const QRectF& room) { return coveredIn(room, legend, localities, lines); });
}

void setPosition(PlaceNames& names, int slot, QPointF position)
{
    names.KanjiXY(slot, 0) = static_cast<float>(position.x());
    names.KanjiXY(slot, 1) = static_cast<float>(position.y());
}

} // namespace

PlaceNames makePlaceNames(const QString& title, const QRectF& legend, const MapFrame& frame,
                          const Localities& localities, const MapLines& lines)
{
    PlaceNames names;
    names.NKanji = 1;
    names.KanjiText(1) = title;
    const QPointF start(std::ceil(legend.left() + LegendInset), std::ceil(legend.top() + LegendInset));
    setPosition(names, 1, start);
    names.HanreiX = start.x();
    names.HanreiY = static_cast<qint16>(start.y());

    const ScaleBar bar = makeScaleBar(frame);
    const QRectF room = bestRoom({bar.length + BehindBar, AboveBar}, legend, localities, lines);
    setPosition(names, 2, room.bottomLeft());
    names.ScaleLabel = bar.label;
    names.ScaleDivisions = bar.divisions;
    names.ScaleLength = bar.length;
    return names;
}
