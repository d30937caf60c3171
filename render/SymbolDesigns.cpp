// The designs of the rectangle, circle and sector families.

#include "render/SymbolShapes.h"

#include <algorithm>
#include <array>
#include <numbers>

namespace {

/// The extent of a design on either side of its centre.
struct HalfExtent
{
    float width;
    float height;
};

HalfExtent halfExtent(float radius, float aspect)
{
    return {aspect > 1 ? radius / aspect : radius, aspect < 1 ? radius * aspect : radius};
}

/// The pen width of the lines inside an outline: no wider than the outline's, and so fine that a small design
/// does not fill up.
int innerWidth(int outlineWidth, HalfExtent extent)
{
    constexpr float TwipsPerPenPixel = 50;
    const auto finest = static_cast<int>(std::min(extent.width, extent.height) / TwipsPerPenPixel);
    return std::min(outlineWidth, std::max(1, finest));
}

/// The building blocks of a rectangle design: boxes and segments around the centre, in parts of its half
/// extent (-1..1).
class BoxDesign
{
public:
    BoxDesign(DrawSurface& target, float x0, float y0, HalfExtent extent, QRgb color)
        : m_target(target), m_x0(x0), m_y0(y0), m_extent(extent), m_color(color)
    {}

    void fineLines() { m_target.DrawWidth = innerWidth(m_target.DrawWidth, m_extent); }

    void box(bool painted, float left = -1, float top = -1, float right = 1, float bottom = 1)
    {
        m_target.FillStyle = painted ? 0 : 1;
        m_target.Box(x(left), y(top), x(right), y(bottom), m_color);
    }

    void segment(float x1, float y1, float x2, float y2)
    {
        m_target.Line(x(x1), y(y1), x(x2), y(y2), m_color);
    }

    void uprightCross()
    {
        segment(0, -1, 0, 1);
        segment(-1, 0, 1, 0);
    }

    void rising() { segment(-1, 1, 1, -1); }

    void diagonalCross()
    {
        rising();
        segment(-1, -1, 1, 1);
    }

    void diamond()
    {
        segment(0, -1, 1, 0);
        segment(1, 0, 0, 1);
        segment(0, 1, -1, 0);
        segment(-1, 0, 0, -1);
    }

    void hourglass()
    {
        segment(-1, -1, 1, -1);
        segment(1, -1, -1, 1);
        segment(-1, 1, 1, 1);
        segment(1, 1, -1, -1);
    }

private:
    float x(float part) const { return m_x0 + part * m_extent.width; }
    float y(float part) const { return m_y0 + part * m_extent.height; }

    DrawSurface& m_target;
    float m_x0;
    float m_y0;
    HalfExtent m_extent;
    QRgb m_color;
};

} // namespace

void SymbolShapes::DrawRectangle(int design, const Stamp& stamp, float size, float aspect)
{
    // Four fifths of the size make a box that looks as large as the circle of the same size code.
    const HalfExtent extent = halfExtent(size * 0.8F, aspect);
    BoxDesign shape(m_target, stamp.x0, stamp.y0, extent, stamp.outline);
    m_target.FillColor = stamp.fill;
    switch (design) {
    case 1: // box
        shape.box(stamp.painted);
        break;
    case 2: // upright cross
        shape.uprightCross();
        break;
    case 3: // diagonal cross
        shape.diagonalCross();
        break;
    case 4: // box with diagonals
        shape.box(stamp.painted);
        shape.fineLines();
        shape.diagonalCross();
        break;
    case 5: // box with an upright cross
        shape.box(stamp.painted);
        shape.fineLines();
        shape.uprightCross();
        break;
    case 6: // box, its left half painted
        shape.box(false);
        shape.fineLines();
        shape.box(stamp.painted, -1, -1, 0, 1);
        break;
    case 7: // box, its lower half painted
        shape.box(false);
        shape.fineLines();
        shape.box(stamp.painted, -1, 0, 1, 1);
        break;
    case 8: // box in a box, the inner one painted
        shape.box(false);
        shape.fineLines();
        shape.box(stamp.painted, -0.4F, -0.4F, 0.4F, 0.4F);
        break;
    case 9: // box with one diagonal
        shape.box(stamp.painted);
        shape.fineLines();
        shape.rising();
        break;
    case 10:
        shape.diamond();
        break;
    case 11:
        shape.hourglass();
        break;
    case 12: // star of eight rays
        shape.fineLines();
        shape.uprightCross();
        shape.diagonalCross();
        break;
    default:
        break;
    }
}

void SymbolShapes::DrawCircle(int design, const Stamp& stamp, float Radius, float Aspect)
{
    constexpr auto Pi = std::numbers::pi_v<float>;
    constexpr float Diagonal = std::numbers::sqrt2_v<float> / 2;
    const HalfExtent extent = halfExtent(Radius, Aspect);
    const auto circle = [&](int fillStyle, float radius) {
        m_target.FillStyle = fillStyle;
        m_target.Circle(stamp.x0, stamp.y0, radius, stamp.outline, Aspect);
    };
    const auto outline = [&] {
        circle(1, Radius);
        m_target.DrawWidth = innerWidth(m_target.DrawWidth, extent);
    };
    const auto filledHalf = [&](float start, float end) {
        m_target.FillStyle = 0;
        m_target.Arc(stamp.x0, stamp.y0, Radius, stamp.outline, start, end, Aspect);
    };
    /// A diameter whose ends lie the given parts of the half-axes from the centre.
    const auto diameter = [&](float x, float y) {
        m_target.Line(stamp.x0 - x * extent.width, stamp.y0 - y * extent.height, stamp.x0 + x * extent.width,
                      stamp.y0 + y * extent.height, stamp.outline);
    };

    m_target.FillColor = stamp.fill;
    switch (design) {
    case 1:
        circle(1, Radius);
        break;
    case 2:
        circle(0, Radius);
        break;
    case 3: // a dot within
        outline();
        circle(0, Radius / 2);
        break;
    case 4:
        outline();
        diameter(0, 1);
        break;
    case 5:
        outline();
        diameter(1, 0);
        break;
    case 6:
        outline();
        diameter(0, 1);
        diameter(1, 0);
        break;
    case 7: // upper half filled
        outline();
        filledHalf(-2 * Pi, -Pi);
        break;
    case 8: // lower half filled
        outline();
        filledHalf(-Pi, -2 * Pi);
        break;
    case 9: // a ring within
        outline();
        circle(1, Radius / 2);
        break;
    case 10:
        outline();
        diameter(Diagonal, -Diagonal);
        break;
    case 11:
        outline();
        diameter(Diagonal, -Diagonal);
        diameter(Diagonal, Diagonal);
        break;
    default:
        break;
    }
}

void SymbolShapes::DrawFan(int design, const Stamp& stamp, float Radius, float Aspect)
{
    struct Sector
    {
        float start;
        float end;
    };
    constexpr float Pi = 3.1415926F;
    constexpr float Pi2 = 6.2831852F;
    constexpr float Pi3 = 9.4247778F;
    constexpr std::array<Sector, 20> Sectors = {{
        {-Pi2, -Pi},
        {-Pi, -Pi2},
        {-Pi / 2, -Pi3 / 2},
        {-Pi3 / 2, -Pi / 2},
        {-Pi / 4, -7 * Pi / 4},
        {-Pi3 / 4, -Pi / 4},
        {-5 * Pi / 4, -Pi3 / 4},
        {-7 * Pi / 4, -5 * Pi / 4},
        {-Pi3 / 4, -5 * Pi / 4},
        {-7 * Pi / 4, -Pi / 4},
        {-Pi / 4, -Pi3 / 4},
        {-5 * Pi / 4, -7 * Pi / 4},
        {-Pi2, -Pi / 2},
        {-Pi / 2, -Pi},
        {-Pi, -Pi3 / 2},
        {-Pi3 / 2, -Pi2},
        {-Pi / 2, -Pi2},
        {-Pi, -Pi / 2},
        {-Pi3 / 2, -Pi},
        {-Pi2, -Pi3 / 2},
    }};
    if (design < 1 || design > static_cast<int>(Sectors.size())) {
        return;
    }
    const Sector& sector = Sectors.at(static_cast<std::size_t>(design - 1));
    m_target.FillStyle = stamp.painted ? 0 : 1;
    m_target.FillColor = stamp.fill;
    m_target.Arc(stamp.x0, stamp.y0, Radius, stamp.outline, sector.start, sector.end, Aspect);
}
