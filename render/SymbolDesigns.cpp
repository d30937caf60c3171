// The designs of the rectangle and circle families.

#include "render/SymbolShapes.h"

#include <algorithm>
#include <cmath>
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

/// Whether the lines of a design stand so close together that they are to be finer.
enum class Lines { Plain, Fine };

/// The outline of a design and the pen of all its lines.
struct Outline
{
    HalfExtent extent;
    int pen;
};

/// An outline that `pen` would fill up is drawn with a finer pen, its outer edge staying where it is; so a
/// small design keeps room for what it shows inside, and a thicker pen always changes it.
Outline legibleOutline(HalfExtent extent, int pen, Lines lines)
{
    const float share = lines == Lines::Plain ? 0.4F : 0.3F; // of the half extent with its outline
    const float given = static_cast<float>(pen * TwipsPerPixel) / 2;
    const float outerEdge = std::min(extent.width, extent.height) + given;
    const auto widest = static_cast<int>(std::lround(outerEdge * share / TwipsPerPixel));
    const int legible = std::clamp(widest, 1, std::max(pen, 1));
    const float growth = given - static_cast<float>(legible * TwipsPerPixel) / 2;
    return {{extent.width + growth, extent.height + growth}, legible};
}

/// The pen of a figure within an outline of this pen.
int innerPen(int pen)
{
    return std::max(1, pen / 2);
}

/// The building blocks of a rectangle design: boxes and segments around the centre, in parts of its half
/// extent (-1..1).
class BoxDesign
{
public:
    BoxDesign(DrawSurface& target, float x0, float y0, const Outline& outline, QRgb color)
        : m_target(target), m_x0(x0), m_y0(y0), m_extent(outline.extent), m_color(color)
    {
        target.DrawWidth = outline.pen;
    }

    void box(bool painted)
    {
        m_target.FillStyle = fillOf(painted);
        m_target.Box(x(-1), y(-1), x(1), y(1), m_color);
    }

    /// A box within, full of the fill colour.
    void innerBox(float left, float top, float right, float bottom)
    {
        const int pen = m_target.DrawWidth;
        m_target.DrawWidth = innerPen(pen);
        m_target.FillStyle = DrawSurface::Fill::Solid;
        m_target.Box(x(left), y(top), x(right), y(bottom), m_color);
        m_target.DrawWidth = pen;
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

/// The building blocks of a circle design: circles, halves and diameters about the centre.
class RoundDesign
{
public:
    RoundDesign(DrawSurface& target, float x0, float y0, const Outline& outline, QRgb color)
        : m_target(target), m_x0(x0), m_y0(y0), m_extent(outline.extent), m_color(color)
    {
        target.DrawWidth = outline.pen;
    }

    void circle(bool filled) { round(filled, 1); }

    void dot()
    {
        m_target.DrawWidth = innerPen(m_target.DrawWidth);
        round(true, 0.5F);
    }

    void ring() { round(false, 0.5F); }

    void filledHalf(float start, float end)
    {
        m_target.FillStyle = DrawSurface::Fill::Solid;
        m_target.Arc(m_x0, m_y0, radius(), m_color, start, end, aspect());
    }

    /// A diameter that ends the given parts of the half extent from the centre.
    void diameter(float x, float y)
    {
        const float dx = x * m_extent.width;
        const float dy = y * m_extent.height;
        m_target.Line(m_x0 - dx, m_y0 - dy, m_x0 + dx, m_y0 + dy, m_color);
    }

    void rising() { diameter(Diagonal, -Diagonal); }
    void falling() { diameter(Diagonal, Diagonal); }

private:
    static constexpr float Diagonal = std::numbers::sqrt2_v<float> / 2;

    float radius() const { return std::max(m_extent.width, m_extent.height); }
    float aspect() const { return m_extent.height / m_extent.width; }

    void round(bool filled, float part)
    {
        m_target.FillStyle = fillOf(filled);
        m_target.Circle(m_x0, m_y0, radius() * part, m_color, aspect());
    }

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
    const Lines lines = design == 12 ? Lines::Fine : Lines::Plain;
    const Outline outline = legibleOutline(halfExtent(size * 0.8F, aspect), m_target.DrawWidth, lines);
    BoxDesign shape(m_target, stamp.x0, stamp.y0, outline, stamp.outline);
    // A half or a box within is full also where the symbol is not painted.
    const bool isPartlyFull = design >= 6 && design <= 8;
    m_target.FillColor = stamp.painted || !isPartlyFull ? stamp.fill : stamp.outline;
    switch (design) {
    case 1:
        shape.box(stamp.painted);
        break;
    case 2:
        shape.uprightCross();
        break;
    case 3:
        shape.diagonalCross();
        break;
    case 4: // box with diagonals
        shape.box(stamp.painted);
        shape.diagonalCross();
        break;
    case 5: // box with an upright cross
        shape.box(stamp.painted);
        shape.uprightCross();
        break;
    case 6: // box, its left half full
        shape.innerBox(-1, -1, 0, 1);
        shape.box(false);
        break;
    case 7: // box, its lower half full
        shape.innerBox(-1, 0, 1, 1);
        shape.box(false);
        break;
    case 8: // box with a full box in it
        shape.innerBox(-0.4F, -0.4F, 0.4F, 0.4F);
        shape.box(false);
        break;
    case 9: // box with one diagonal
        shape.box(stamp.painted);
        shape.rising();
        break;
    case 10:
        shape.diamond();
        break;
    case 11:
        shape.hourglass();
        break;
    case 12: // star of eight rays
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
    const HalfExtent extent = halfExtent(Radius, Aspect);
    // The plain circles keep the line that was asked for.
    const Outline outline =
        design <= 3 ? Outline{extent, m_target.DrawWidth}
                    : legibleOutline(extent, m_target.DrawWidth, design == 9 ? Lines::Fine : Lines::Plain);
    RoundDesign shape(m_target, stamp.x0, stamp.y0, outline, stamp.outline);
    m_target.FillColor = stamp.fill;
    if (design >= 1 && design <= 11) {
        shape.circle(design == 2);
    }
    switch (design) {
    case 3:
        shape.dot();
        break;
    case 4:
        shape.diameter(0, 1);
        break;
    case 5:
        shape.diameter(1, 0);
        break;
    case 6:
        shape.diameter(0, 1);
        shape.diameter(1, 0);
        break;
    case 7: // upper half filled
        shape.filledHalf(-2 * Pi, -Pi);
        break;
    case 8: // lower half filled
        shape.filledHalf(-Pi, -2 * Pi);
        break;
    case 9:
        shape.ring();
        break;
    case 10:
        shape.rising();
        break;
    case 11:
        shape.rising();
        shape.falling();
        break;
    default:
        break;
    }
}
