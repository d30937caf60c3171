#include "exchange/ScaleBar.h"

#include "exchange/MapFrame.h"
#include "exchange/SurveyProjection.h"

#include <QLineF>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

/// Metres a map unit, measured across the centre of the map.
double metresPerUnit(const MapFrame& frame)
{
    constexpr double Reach = 5;

    const QPointF centre(MapFrame::Width / 2, MapFrame::Height / 2);
    const auto middle = frame.toSource(centre);
    const auto left = frame.toSource(centre - QPointF(Reach, 0));
    const auto right = frame.toSource(centre + QPointF(Reach, 0));
    if (frame.isPlane() || !middle || !left || !right) {
        return 0;
    }
    const MapFrame distances(distancePipeline(*middle));
    return QLineF(distances.toMap(*left).value_or(QPointF()), distances.toMap(*right).value_or(QPointF()))
               .length() /
           (2 * Reach);
}

} // namespace

ScaleBar makeScaleBar(const MapFrame& frame)
{
    constexpr double Longest = MapFrame::Width / 5;
    constexpr std::array Steps = {5, 2, 1};

    const double metres = metresPerUnit(frame);
    if (metres <= 0) {
        return {};
    }
    const double most = Longest * metres;
    const double power = std::pow(10, std::floor(std::log10(most)));
    const int step = *std::ranges::find_if(Steps, [&](int s) { return s * power <= most || s == 1; });
    const double length = step * power;
    const QString label = length < 1000 ? QStringLiteral("%1 m").arg(length)
                                        : QStringLiteral("%1 km").arg(length / 1000, 0, 'f', 0);
    return {length / metres, step == 2 ? 4 : 5, label};
}
