#include "exchange/SourceWindow.h"

#include "exchange/MapFrame.h"

#include <QPolygonF>

#include <cmath>

namespace {

const QRectF Earth(-180, -90, 360, 180);

/// Points all over the map as the source has them, longitudes counted on over the date line.
QPolygonF mapGrid(const MapFrame& frame)
{
    constexpr int Steps = 20;

    const auto centre = frame.toSource({MapFrame::Width / 2, MapFrame::Height / 2});
    QPolygonF grid;
    for (int i = 0; i <= Steps; ++i) {
        for (int j = 0; j <= Steps; ++j) {
            auto point = frame.toSource({MapFrame::Width * i / Steps, MapFrame::Height * j / Steps});
            if (point && centre && !frame.isPlane()) {
                point->rx() = centre->x() + std::remainder(point->x() - centre->x(), 360);
            }
            if (point) {
                grid << *point;
            }
        }
    }
    return grid;
}

bool showsPole(const MapFrame& frame)
{
    for (const double pole : {-90.0, 90.0}) {
        const auto place = frame.toMap({0, pole});
        if (place && QRectF(0, 0, MapFrame::Width, MapFrame::Height).contains(*place)) {
            return true;
        }
    }
    return false;
}

} // namespace

std::vector<QRectF> sourceWindow(const MapFrame& frame)
{
    QRectF window = mapGrid(frame).boundingRect();
    const double margin = 0.1 * std::max(window.width(), window.height());
    window.adjust(-margin, -margin, margin, margin);
    if (frame.isPlane()) {
        return {window};
    }
    if (window.width() >= Earth.width() || showsPole(frame)) {
        return {Earth};
    }
    std::vector<QRectF> parts;
    for (const double turn : {0.0, -360.0, 360.0}) {
        const QRectF part = window.translated(turn, 0) & Earth;
        if (part.width() > 0 && part.height() > 0) {
            parts.push_back(part);
        }
    }
    return parts;
}
