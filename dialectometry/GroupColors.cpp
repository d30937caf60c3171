#include "dialectometry/GroupColors.h"

#include "dialectometry/KeptStyle.h"
#include "platform/StandardColors.h"

#include <array>
#include <cmath>
#include <numbers>

namespace {

/// Colours that readers with any kind of colour vision can tell apart (Okabe and Ito 2008), and a grey.
constexpr std::array<QRgb, 8> Colors = {qRgb(230, 159, 0),   qRgb(86, 180, 233), qRgb(0, 158, 115),
                                        qRgb(204, 121, 167), qRgb(240, 228, 66), qRgb(0, 114, 178),
                                        qRgb(213, 94, 0),    qRgb(140, 140, 140)};

/// The patterns over the colours when they are used again.
constexpr std::array Patterns = {FillPattern::DenseRising, FillPattern::DenseDots, FillPattern::DenseVertical,
                                 FillPattern::DenseCross, FillPattern::DenseFalling};

std::size_t indexOf(int group)
{
    return static_cast<std::size_t>(group - 1);
}

/// How often the colours were used up before the group.
std::size_t roundOf(int group)
{
    return indexOf(group) / Colors.size();
}

/// A shape with corners at these angles (in degrees) and parts of its size.
Ring corners(QPointF middle, double size, std::initializer_list<std::pair<double, double>> places)
{
    Ring ring;
    for (const auto& [degrees, part] : places) {
        const double angle = degrees * std::numbers::pi / 180;
        ring.push_back(middle + QPointF(std::cos(angle), -std::sin(angle)) * (size * part));
    }
    return ring;
}

/// The outline of the symbol of a group; empty for a circle.
Ring outlineOf(int group, QPointF middle, double size)
{
    constexpr double Waist = 0.5;

    switch (indexOf(group) % Colors.size()) {
    case 1:
        return corners(middle, size * 1.2, {{45, 1}, {135, 1}, {225, 1}, {315, 1}});
    case 2:
        return corners(middle, size * 1.25, {{90, 1}, {210, 1}, {330, 1}});
    case 3:
        return corners(middle, size * 1.25, {{0, 1}, {90, 1}, {180, 1}, {270, 1}});
    case 4:
        return corners(middle, size * 1.25, {{30, 1}, {150, 1}, {270, 1}});
    case 5:
        return corners(
            middle, size * 1.4,
            {{0, 1}, {45, Waist}, {90, 1}, {135, Waist}, {180, 1}, {225, Waist}, {270, 1}, {315, Waist}});
    case 6:
        return corners(middle, size * 1.3,
                       {{30, 1},
                        {60, Waist},
                        {90, 1},
                        {120, Waist},
                        {150, 1},
                        {180, Waist},
                        {210, 1},
                        {240, Waist},
                        {270, 1},
                        {300, Waist},
                        {330, 1},
                        {0, Waist}});
    case 7:
        return corners(middle, size * 1.2, {{25, 1}, {155, 1}, {205, 1}, {335, 1}});
    default:
        return {};
    }
}

} // namespace

QRgb groupColor(int group)
{
    constexpr double Lighter = 0.45;

    const QRgb color = Colors.at(indexOf(group) % Colors.size());
    return roundOf(group) % 2 == 0 ? color : tint(color, Lighter);
}

AreaFill groupFill(int group, AreaLook look)
{
    constexpr double Lighter = 0.65;

    if (group <= 0) {
        return missingFill();
    }
    if (look == AreaLook::Hatched) {
        return hatchedFill(group - 1);
    }
    const QRgb color = Colors.at(indexOf(group) % Colors.size());
    const std::size_t round = roundOf(group);
    return round == 0 ? AreaFill{color, 0, FillPattern::Solid}
                      : AreaFill{tint(color, Lighter), color, Patterns.at((round - 1) % Patterns.size())};
}

void drawGroupSymbol(int group, AreaLook look, float x, float y, float size, DrawSurface& target)
{
    constexpr float Smaller = 0.65F;

    const KeptStyle kept(target);
    const QRgb black = QBColor(StandardColor::Black);
    const QRgb color = look == AreaLook::Colored ? groupColor(group) : black;
    const std::size_t round = roundOf(group);
    size *= round < 2 ? 1 : Smaller;
    target.DrawWidth = 1;
    target.DrawStyle = PenStyle::Solid;
    target.FillStyle = DrawSurface::Fill::Solid;
    target.FillColor = round % 2 == 1 ? QBColor(StandardColor::LightWhite) : color;
    const Ring ring = outlineOf(group, {x, y}, size);
    if (ring.empty()) {
        target.Circle(x, y, size, black);
    } else {
        target.Area({ring}, black);
    }
}
