#include "render/SymbolShapes.h"

#include "platform/Numbers.h"
#include "platform/StandardColors.h"

#include <array>

namespace {

constexpr int LastBuiltInSymbol = 152;

enum class Family { Rectangle, Circle, Sector };

/// Consecutive symbol numbers of one family: `first` is drawn as design `first - designOffset`.
struct NumberRange
{
    int last;
    Family family;
    int designOffset;
    float sizeFactor;
    float aspect;
};

/// Number 0 belongs to the rectangles, which have no design 0: it draws nothing.
constexpr std::array<NumberRange, 11> BuiltInSymbols = {{
    {12, Family::Rectangle, 0, 1, 1},
    {24, Family::Rectangle, 12, 0.5F, 1},
    {36, Family::Rectangle, 24, 1, 0.5F},
    {48, Family::Rectangle, 36, 1, 2},
    {59, Family::Circle, 48, 1, 1},
    {70, Family::Circle, 59, 0.5F, 1},
    {81, Family::Circle, 70, 1, 2},
    {92, Family::Circle, 81, 1, 0.5F},
    {112, Family::Sector, 92, 1, 1},
    {132, Family::Sector, 112, 1, 2},
    {152, Family::Sector, 132, 1, 0.5F},
}};

} // namespace

double SelectSize(int sizeCode)
{
    constexpr std::array<double, 3> Factors = {0.5, 1.0, 1.5};
    return sizeCode >= 0 && sizeCode < 3 ? Factors.at(static_cast<std::size_t>(sizeCode)) : 2.0;
}

qint16 LineWidth(int widthCode)
{
    constexpr std::array<qint16, 3> Widths = {1, 3, 5};
    return widthCode >= 0 && widthCode < 3 ? Widths.at(static_cast<std::size_t>(widthCode)) : qint16{7};
}

int symbolCount(const PolygonTable& polygons)
{
    return LastBuiltInSymbol + 4 * polygons.Nsquare;
}

void Polygon(const MapGeometry& geometry, DrawSurface& target, int count, float x0, float y0, QRgb color)
{
    for (int i = 1; i < count; ++i) {
        target.Line(x0 + geometry.ScreenXY(i, 0), y0 + geometry.ScreenXY(i, 1),
                    x0 + geometry.ScreenXY(i + 1, 0), y0 + geometry.ScreenXY(i + 1, 1), color);
    }
}

void SymbolShapes::DrawHanko(const HankoStyle& hanko, float x0, float y0)
{
    if (hanko.HankoNo < 0) {
        return;
    }
    const Stamp stamp{x0, y0, QBColor(hanko.LineColor), QBColor(hanko.PaintColor), hanko.PaintOn != 0};
    if (hanko.HankoNo <= LastBuiltInSymbol) {
        DrawOneSymbol(hanko, stamp);
    } else {
        DrawOnePolygon(hanko, stamp);
    }
}

void SymbolShapes::DrawOneSymbol(const HankoStyle& hanko, const Stamp& stamp)
{
    const auto factor = static_cast<float>(SelectSize(hanko.SymbolSize));
    m_target.DrawWidth = LineWidth(hanko.LineThick);
    for (const NumberRange& range : BuiltInSymbols) {
        if (hanko.HankoNo > range.last) {
            continue;
        }
        const int design = hanko.HankoNo - range.designOffset;
        switch (range.family) {
        case Family::Rectangle:
            DrawRectangle(design, stamp, 120 * factor * range.sizeFactor, range.aspect);
            return;
        case Family::Circle:
            DrawCircle(design, stamp, 100 * factor * range.sizeFactor, range.aspect);
            return;
        case Family::Sector:
            DrawFan(design, stamp, 100 * factor * range.sizeFactor, range.aspect);
            return;
        }
    }
}

void SymbolShapes::DrawFan(int design, const Stamp& stamp, float Radius, float Aspect)
{
    struct Sector
    {
        float start;
        float end;
    };
    // Angles are counted in these figures, a little short of the exact ones.
    constexpr float Pi = 3.1415926F;
    constexpr float Pi2 = 6.2831852F;
    constexpr float Pi3 = 9.4247778F;
    // Both angles are negative, so that both radii are drawn; that of zero is -Pi2, since zero has no sign.
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
    m_target.FillStyle = fillOf(stamp.painted);
    m_target.FillColor = stamp.fill;
    m_target.Arc(stamp.x0, stamp.y0, Radius, stamp.outline, sector.start, sector.end, Aspect);
}

void SymbolShapes::DrawOnePolygon(const HankoStyle& hanko, const Stamp& stamp)
{
    struct Variation
    {
        float Asp;
        int slant;
    };
    constexpr std::array<Variation, 4> Variations = {{{1, 0}, {2, 0}, {1, 1}, {1, -1}}};

    if (hanko.HankoNo > symbolCount(m_polygons)) {
        m_frmMap.Print(QStringLiteral("iSymbol=%1").arg(hanko.HankoNo));
        return;
    }
    const int index = hanko.HankoNo - LastBuiltInSymbol - 1;
    const Variation& variation =
        Variations.at(static_cast<std::size_t>(integerDivide(index, m_polygons.Nsquare)));
    m_target.DrawWidth = LineWidth(hanko.LineThick);
    DrawSquare(modulo(index, m_polygons.Nsquare) + 1, stamp,
               static_cast<float>(6 * SelectSize(hanko.SymbolSize)), variation.slant, variation.Asp);
}

void SymbolShapes::DrawSquare(int polygon, const Stamp& stamp, float Sqsize, int slant, float Asp)
{
    const int count = m_polygons.SquareVertices(polygon);
    const float xs = Sqsize / Asp;
    const float ys = Sqsize * Asp;
    for (int j = 1; j <= count; ++j) {
        const float x = m_polygons.SquareXY(polygon, j, 0);
        const float y = m_polygons.SquareXY(polygon, j, 1);
        m_geometry.ScreenXY(j, 0) = xs * x;
        m_geometry.ScreenXY(j, 1) = ys * y;
        if (slant == 1 || slant == -1) {
            m_geometry.ScreenXY(j, 0) = xs * x + static_cast<float>(slant) * (ys * y) / Asp;
        } else if (slant != 0) { // no symbol number asks for it
            m_geometry.ScreenXY(j, 1) = ys * y + Asp * (static_cast<float>(slant) * xs * x) / 2;
        }
    }
    // Polygons are outlines, so the fill shows nowhere on them; what is drawn next finds it solid.
    m_target.FillStyle = fillOf(stamp.painted);
    m_target.FillColor = stamp.fill;
    m_target.FillStyle = DrawSurface::Fill::Solid;
    Polygon(m_geometry, m_target, count, stamp.x0, stamp.y0, stamp.outline);
}
