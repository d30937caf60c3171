#include "exchange/BaseMapLines.h"

#include "exchange/MapFrame.h"
#include "exchange/SourceWindow.h"
#include "geodata/GeoData.h"

std::vector<BaseLine> readBaseLines(const QString& path, const MapFrame& frame, const QRectF& legend)
{
    const auto toMap = [&frame](QPointF point) { return frame.toMap(point); };
    return geoData().readLines(
        path,
        {!frame.isPlane(), sourceWindow(frame), toMap, {0, 0, MapFrame::Width, MapFrame::Height}, legend});
}
