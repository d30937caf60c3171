#include "symbols/SymbolPalette.h"

#include <array>

namespace {

// Codes of fill, size and thickness.
constexpr qint16 Open = 0;
constexpr qint16 Full = 1;
constexpr qint16 Normal = 1;
constexpr qint16 Large = 2;
constexpr qint16 Thin = 0;
constexpr qint16 Medium = 1;
constexpr qint16 Thick = 2; // fills a polygon of normal size

constexpr qint16 FirstPolygon = 153;

constexpr HankoStyle shape(int number, qint16 fill, qint16 size, qint16 thickness)
{
    return {static_cast<qint16>(number), 0, 0, fill, size, thickness};
}

/// The polygon of that number, from 1, upright: full, and as an outline.
constexpr HankoStyle fullPolygon(qint16 polygon)
{
    return shape(FirstPolygon - 1 + polygon, Open, Normal, Thick);
}
constexpr HankoStyle openPolygon(qint16 polygon)
{
    return shape(FirstPolygon - 1 + polygon, Open, Large, Thin);
}

constexpr std::array Shapes = {
    shape(50, Full, Normal, Thin),   // disc
    shape(1, Full, Normal, Thin),    // square
    fullPolygon(1),                  // triangle upward
    shape(49, Open, Normal, Medium), // ring
    shape(1, Open, Normal, Medium),  // box
    fullPolygon(5),                  // diamond
    shape(3, Open, Normal, Medium),  // diagonal cross
    fullPolygon(2),                  // triangle downward
    shape(2, Open, Normal, Medium),  // upright cross
    shape(93, Full, Normal, Thin),   // upper half of a disc
    openPolygon(1),                  // triangle upward
    shape(10, Open, Normal, Medium), // diamond
    shape(51, Full, Normal, Thin),   // circle with a dot
    openPolygon(9),                  // star
    shape(6, Full, Normal, Thin),    // box, its left half full
    openPolygon(14),                 // arrow upward
    shape(11, Open, Normal, Thin),   // hourglass
    shape(8, Full, Normal, Thin),    // box in a box
    shape(59, Open, Normal, Thin),   // circle with a diagonal cross
    shape(97, Full, Normal, Thin),   // disc open to the right
    shape(12, Open, Normal, Thin),   // star of rays
    shape(72, Full, Normal, Thin),   // high ellipse
    shape(25, Full, Normal, Thin),   // wide bar
    fullPolygon(3),                  // triangle to the left
    shape(94, Full, Normal, Thin),   // lower half of a disc
    shape(4, Open, Normal, Thin),    // box with a diagonal cross
    openPolygon(17),                 // arrow to the right
    shape(52, Open, Normal, Thin),   // circle with an upright line
    openPolygon(24),                 // heart
    shape(37, Full, Normal, Thin),   // high bar
    shape(83, Full, Normal, Thin),   // wide ellipse
    fullPolygon(4),                  // triangle to the right
    shape(54, Open, Normal, Thin),   // circle with an upright cross
    shape(7, Full, Normal, Thin),    // box, its lower half full
    shape(57, Open, Normal, Thin),   // circle in a circle
    shape(95, Full, Normal, Thin),   // left half of a disc
    openPolygon(15),                 // arrow downward
    shape(99, Full, Normal, Thin),   // disc open to the left
    openPolygon(25),                 // moon
    openPolygon(28),                 // letter T
};

/// Black, red, blue, magenta, cyan: neighbours differ in lightness, too, and all stand out from the paper.
constexpr std::array<qint16, 5> Colors = {0, 12, 9, 13, 3};

} // namespace

SymbolPalette::SymbolPalette(int polygons)
{
    for (const HankoStyle& shape : Shapes) {
        if (shape.HankoNo < FirstPolygon + polygons) {
            m_shapes.push_back(shape);
        }
    }
}

int SymbolPalette::size() const
{
    return static_cast<int>(m_shapes.size() * Colors.size());
}

HankoStyle SymbolPalette::symbol(int n) const
{
    const auto round = static_cast<size_t>(n) / m_shapes.size();
    const auto shape = static_cast<size_t>(n) % m_shapes.size();
    HankoStyle symbol = m_shapes[shape];
    symbol.LineColor = Colors[(shape + round) % Colors.size()];
    symbol.PaintColor = symbol.LineColor;
    return symbol;
}

HankoStyle SymbolPalette::dot()
{
    constexpr qint16 FullDisc = 61;
    constexpr qint16 Gray = 8;
    return {FullDisc, Gray, Gray, Full, Normal, Thin};
}
