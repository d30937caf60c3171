#include "dialectometry/Kilometres.h"

#include <QLocale>
#include <QRegularExpression>
#include <QtMath>

#include <cmath>

namespace {

/// By the haversine formula, which is exact for near places too.
double greatCircle(const LocalityName& a, const LocalityName& b)
{
    constexpr double Radius = 6371.0088;
    const auto halfSineSquared = [](double degrees) {
        return std::pow(std::sin(qDegreesToRadians(degrees) / 2), 2);
    };
    const double parallels =
        std::cos(qDegreesToRadians(a.latitude)) * std::cos(qDegreesToRadians(b.latitude));
    const double haversine =
        halfSineSquared(b.latitude - a.latitude) + parallels * halfSineSquared(b.longitude - a.longitude);
    return 2 * Radius * std::asin(std::sqrt(std::min(1.0, haversine)));
}

/// The kilometres that a label such as "20 km" or "0,5 km" names; 0 for any other.
double kilometresOf(const QString& label)
{
    static const QRegularExpression Length(QStringLiteral("^\\s*(\\d+(?:[.,]\\d+)?)\\s*(km|m)\\b\\.?\\s*$"),
                                           QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = Length.match(label);
    const double number = QLocale::c().toDouble(match.captured(1).replace(u',', u'.'));
    return match.captured(2).size() == 2 ? number : number / 1000;
}

double mapLength(const Localities& map, int a, int b)
{
    return std::hypot(map.LocXY(b, 0) - map.LocXY(a, 0), map.LocXY(b, 1) - map.LocXY(a, 1));
}

template <typename Length>
DistanceMatrix lengthsBy(int localities, const Length& length)
{
    DistanceMatrix lengths(localities);
    for (int a = 0; a < localities; ++a) {
        for (int b = a + 1; b < localities; ++b) {
            lengths.set(a, b, length(a, b));
        }
    }
    return lengths;
}

} // namespace

Lengths localityLengths(const Localities& localities, const LocalityNames& names, const PlaceNames& scale)
{
    const int count = localities.NLocality;
    if (!names.plane && std::ssize(names.localityNames) == count && count > 0) {
        const auto place = [&](int i) -> const LocalityName& {
            return names.localityNames[static_cast<std::size_t>(i)];
        };
        return {lengthsBy(count, [&](int a, int b) { return greatCircle(place(a), place(b)); }),
                LengthUnit::Kilometres};
    }
    const double kilometres = kilometresOf(scale.ScaleLabel);
    const bool isKnown = kilometres > 0 && scale.ScaleLength > 0;
    const double unit = isKnown ? kilometres / scale.ScaleLength : 1;
    return {lengthsBy(count, [&](int a, int b) { return unit * mapLength(localities, a + 1, b + 1); }),
            isKnown ? LengthUnit::Kilometres : LengthUnit::MapUnits};
}
