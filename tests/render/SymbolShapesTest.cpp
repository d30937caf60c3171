#include "render/SymbolShapes.h"

#include "platform/DrawingPainter.h"
#include "platform/StandardColors.h"
#include "tests/support/TestDrive.h"
#include "tests/support/Transcript.h"

#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <span>

namespace {

HankoStyle symbol(int number, int size = 1)
{
    HankoStyle hanko;
    hanko.HankoNo = static_cast<qint16>(number);
    hanko.LineColor = 0;
    hanko.PaintColor = 12;
    hanko.PaintOn = 1;
    hanko.SymbolSize = static_cast<qint16>(size);
    return hanko;
}

/// Symbols are drawn about (300, 300) on a surface of their own.
DrawSurface drawn(TestSurvey& survey, const HankoStyle& hanko)
{
    DrawSurface target;
    SymbolShapes(survey.varn, survey.varn, {target, survey.frmMap}).DrawHanko(hanko, 300, 300);
    return target;
}

/// Whether two colours differ clearly: a channel by more than 96 of 255.
bool differ(QRgb one, QRgb other)
{
    return one != other && std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                                     std::abs(qBlue(one) - qBlue(other))}) > 96;
}

/// A symbol as it stands on a screen of 96 dpi, at no whole pixel.
struct SeenSymbol
{
    explicit SeenSymbol(const HankoStyle& hanko)
    {
        DrawSurface target;
        MapGeometry geometry;
        SymbolShapes(PolygonTable(), geometry, {target, target}).DrawHanko(hanko, 244, 244);
        image.fill(Qt::white);
        QPainter painter(&image);
        paintDrawing(target.drawing(), painter, 1 / TwipsPerPixel);
        painter.end();
        colored = std::ranges::count_if(pixels(), [](QRgb pixel) { return differ(pixel, 0xffffffff); });
    }

    std::span<const QRgb> pixels() const
    {
        return {reinterpret_cast<const QRgb*>(image.constBits()),
                static_cast<std::size_t>(image.width() * image.height())};
    }

    QImage image{32, 32, QImage::Format_RGB32};
    std::ptrdiff_t colored;
};

/// Whether two symbols are told apart at a glance: at least three pixels, and a twentieth of what one colours
/// on average, differ clearly.
bool lookDifferent(const SeenSymbol& one, const SeenSymbol& other)
{
    int different = 0;
    const auto pixels = other.pixels();
    return std::ranges::any_of(one.pixels(), [&, i = std::size_t{0}](QRgb pixel) mutable {
        different += differ(pixel, pixels[i++]) ? 1 : 0;
        return different >= 3 && 40 * different >= one.colored + other.colored;
    });
}

/// Rings, discs and sectors keep radius and pen at every size: their lines fill up the smallest of them.
bool fillUpAlike(int one, int other, int size)
{
    if (size == 1) {
        return one == 61 && other == 62;
    }
    const std::vector<std::vector<int>> groups = {
        {50, 51}, {60, 61, 62}, {71, 72, 73, 118, 129, 132}, {82, 83, 84, 139, 151, 152}};
    return size == 0 && std::ranges::any_of(groups, [=](const std::vector<int>& group) {
               return std::ranges::count(group, one) + std::ranges::count(group, other) == 2;
           });
}

} // namespace

TEST(SymbolShapes, EveryDesignHasItsLinesAndFillsAndItsNumbers)
{
    TestSurvey survey;
    const auto drawnAll = [&survey](std::initializer_list<qint16> numbers) {
        DrawSurface target;
        SymbolShapes shapes(survey.varn, survey.varn, {target, survey.frmMap});
        for (const qint16 number : numbers) {
            shapes.DrawHanko({number, 1, 12, static_cast<qint16>(number % 2), 1, 1}, 0, 0);
        }
        return transcript(target.drawing());
    };
    EXPECT_EQ(drawnAll({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}), R"(
box -96,-96 96,96 filled 12 pen 3/0/1
line 0,-96 0,96 pen 3/0/1
line -96,0 96,0 pen 3/0/1
line -96,96 96,-96 pen 3/0/1
line -96,-96 96,96 pen 3/0/1
box -96,-96 96,96 pen 3/0/1
line -96,96 96,-96 pen 3/0/1
line -96,-96 96,96 pen 3/0/1
box -96,-96 96,96 filled 12 pen 3/0/1
line 0,-96 0,96 pen 3/0/1
line -96,0 96,0 pen 3/0/1
box -96,-96 0,96 filled 1 pen 1/0/1
box -96,-96 96,96 pen 3/0/1
box -96,0 96,96 filled 12 pen 1/0/1
box -96,-96 96,96 pen 3/0/1
box -38.4,-38.4 38.4,38.4 filled 1 pen 1/0/1
box -96,-96 96,96 pen 3/0/1
box -96,-96 96,96 filled 12 pen 3/0/1
line -96,96 96,-96 pen 3/0/1
line 0,-96 96,0 0,96 -96,0 0,-96 pen 3/0/1
line -96,-96 96,-96 -96,96 96,96 -96,-96 pen 3/0/1
line 0,-103.5 0,103.5 pen 2/0/1
line -103.5,0 103.5,0 pen 2/0/1
line -103.5,103.5 103.5,-103.5 pen 2/0/1
line -103.5,-103.5 103.5,103.5 pen 2/0/1
)");
    EXPECT_EQ(drawnAll({49, 50, 51, 52, 53, 54, 55, 56, 57, 58, 59}), R"(
ellipse 0,0 100,100 pen 3/0/1
ellipse 0,0 100,100 filled 12 pen 3/0/1
ellipse 0,0 100,100 pen 3/0/1
ellipse 0,0 50,50 filled 12 pen 1/0/1
ellipse 0,0 100,100 pen 3/0/1
line 0,-100 0,100 pen 3/0/1
ellipse 0,0 100,100 pen 3/0/1
line -100,0 100,0 pen 3/0/1
ellipse 0,0 100,100 pen 3/0/1
line 0,-100 0,100 pen 3/0/1
line -100,0 100,0 pen 3/0/1
ellipse 0,0 100,100 pen 3/0/1
arc 0,0 100,100 360,180 start end filled 12 pen 3/0/1
ellipse 0,0 100,100 pen 3/0/1
arc 0,0 100,100 180,180 start end filled 12 pen 3/0/1
ellipse 0,0 107.5,107.5 pen 2/0/1
ellipse 0,0 53.8,53.8 pen 2/0/1
ellipse 0,0 100,100 pen 3/0/1
line -70.7,70.7 70.7,-70.7 pen 3/0/1
ellipse 0,0 100,100 pen 3/0/1
line -70.7,70.7 70.7,-70.7 pen 3/0/1
line -70.7,-70.7 70.7,70.7 pen 3/0/1
)");
    // The first and the last number of each range.
    EXPECT_EQ(drawnAll({13, 22, 25, 34, 37, 46, 60, 70, 71, 81, 82, 92, 93, 112, 113, 132, 133, 152}),
              R"(
box -55.5,-55.5 55.5,55.5 filled 12 pen 2/0/1
line 0,-55.5 55.5,0 0,55.5 -55.5,0 0,-55.5 pen 2/0/1
box -103.5,-55.5 103.5,55.5 filled 12 pen 2/0/1
line 0,-55.5 103.5,0 0,55.5 -103.5,0 0,-55.5 pen 2/0/1
box -55.5,-103.5 55.5,103.5 filled 12 pen 2/0/1
line 0,-103.5 55.5,0 0,103.5 -55.5,0 0,-103.5 pen 2/0/1
ellipse 0,0 50,50 pen 3/0/1
ellipse 0,0 57.5,57.5 pen 2/0/1
line -40.7,40.7 40.7,-40.7 pen 2/0/1
line -40.7,-40.7 40.7,40.7 pen 2/0/1
ellipse 0,0 50,100 pen 3/0/1
ellipse 0,0 57.5,107.5 pen 2/0/1
line -40.7,76 40.7,-76 pen 2/0/1
line -40.7,-76 40.7,76 pen 2/0/1
ellipse 0,0 100,50 pen 3/0/1
ellipse 0,0 107.5,57.5 pen 2/0/1
line -76,40.7 76,-40.7 pen 2/0/1
line -76,-40.7 76,40.7 pen 2/0/1
arc 0,0 100,100 360,180 start end filled 12 pen 3/0/1
arc 0,0 100,100 360,270 start end pen 3/0/1
arc 0,0 50,100 360,180 start end filled 12 pen 3/0/1
arc 0,0 50,100 360,270 start end pen 3/0/1
arc 0,0 100,50 360,180 start end filled 12 pen 3/0/1
arc 0,0 100,50 360,270 start end pen 3/0/1
)");
}

TEST(SymbolShapes, SizeAndWidthCodesBeyondTheTablesAreTheLargest)
{
    TestSurvey survey;
    const std::pair<int, float> sizes[] = {{0, 50}, {1, 100}, {2, 150}, {3, 200}, {7, 200}, {-1, 200}};
    for (const auto& [code, radius] : sizes) {
        const auto shapeOf = [&](int number, auto shape) {
            return operationsOf<decltype(shape)>(drawn(survey, symbol(number, code)).drawing()).at(0);
        };
        EXPECT_FLOAT_EQ(shapeOf(49, EllipseOperation()).halfWidth, radius) << code;
        EXPECT_FLOAT_EQ(shapeOf(93, ArcOperation()).halfWidth, radius) << code;
        EXPECT_FLOAT_EQ(shapeOf(1, BoxOperation()).width, 1.92F * radius) << code;
        EXPECT_EQ(drawn(survey, symbol(154, code)).drawing().points.back().x(), 300 + 0.6 * radius) << code;
    }
    const std::pair<int, int> widths[] = {{0, 1}, {1, 3}, {2, 5}, {3, 7}, {-1, 7}};
    for (const auto& [code, width] : widths) {
        HankoStyle hanko = symbol(49);
        hanko.LineThick = static_cast<qint16>(code);
        EXPECT_EQ(drawn(survey, hanko).drawing().pens.at(0).width, width) << code;
    }
}

TEST(SymbolShapes, PolygonsAreStretchedAndSlanted)
{
    // Polygon 2 of the test survey is the line from (-10, -5) to (10, 5); 6 twips a unit.
    TestSurvey survey;
    struct Row
    {
        int number;
        QPointF end;
    };
    const Row rows[] = {
        {154, {360, 330}}, // upright
        {156, {330, 360}}, // half as wide, twice as high
        {158, {390, 330}}, // slanted right
        {160, {330, 330}}, // slanted left
    };
    for (const Row& row : rows) {
        const DrawSurface target = drawn(survey, symbol(row.number));
        EXPECT_EQ(target.drawing().points.back(), row.end) << row.number;
    }
    EXPECT_EQ(operationsOf<PolylineOperation>(drawn(survey, symbol(153)).drawing()).at(0).points, 5U)
        << "a closed figure repeats its first vertex";
}

TEST(SymbolShapes, NumbersWithoutADesign)
{
    TestSurvey survey;
    for (const int number : {0, -1, -300}) {
        EXPECT_TRUE(drawn(survey, symbol(number)).drawing().operations.empty()) << number;
    }
    EXPECT_TRUE(survey.frmMap.drawing().operations.empty());
    for (const int number : {161, 30000}) {
        EXPECT_TRUE(drawn(survey, symbol(number)).drawing().operations.empty()) << number;
        EXPECT_TRUE(wasPrinted(survey.frmMap.drawing(), QStringLiteral("iSymbol=%1").arg(number)));
    }
}

TEST(SymbolShapes, SectorsRunFromAngleToAngle)
{
    // Degrees counter-clockwise from three o'clock: where each sector starts and how far it runs.
    const std::pair<double, double> rows[] = {{0, 180},   {180, 180}, {90, 180},  {270, 180}, {45, 270},
                                              {135, 270}, {225, 270}, {315, 270}, {135, 90},  {315, 90},
                                              {45, 90},   {225, 90},  {0, 90},    {90, 90},   {180, 90},
                                              {270, 90},  {90, 270},  {180, 270}, {270, 270}, {0, 270}};
    TestSurvey survey;
    int number = 93;
    for (const auto& [start, span] : rows) {
        const auto sector = operationsOf<ArcOperation>(drawn(survey, symbol(number)).drawing()).at(0);
        EXPECT_NEAR(std::remainder(qRadiansToDegrees(sector.start) - start, 360), 0, 0.01) << number;
        EXPECT_NEAR(qRadiansToDegrees(sector.span), span, 0.01) << number;
        ++number;
    }
}

TEST(StandardColors, SixteenColorsHaveTheirNumbersAndNames)
{
    const std::pair<const char*, QRgb> rows[] = {
        {"Black", 0xff000000}, {"Blue", 0xff000080},      {"Green", 0xff008000},    {"Cyan", 0xff008080},
        {"Red", 0xff800000},   {"Magenta", 0xff800080},   {"Yellow", 0xff808000},   {"White", 0xffc0c0c0},
        {"Gray", 0xff808080},  {"L.Blue", 0xff0000ff},    {"L.Green", 0xff00ff00},  {"L.Cyan", 0xff00ffff},
        {"L.Red", 0xffff0000}, {"L.Magenta", 0xffff00ff}, {"L.Yellow", 0xffffff00}, {"L.White", 0xffffffff}};
    QStringList names;
    for (const auto& [name, color] : rows) {
        EXPECT_EQ(QBColor(static_cast<int>(names.size())), color) << name;
        names << QLatin1String(name);
    }
    EXPECT_EQ(standardColorNames(), names);
    for (const int number : {-1, 16}) {
        EXPECT_EQ(errorOf([&] { QBColor(number); }).number(), ErrorNumber::InvalidProcedureCall);
    }
}

TEST(SymbolShapes, EverySymbolLooksDifferentOnAScreenAtEverySize)
{
    for (const qint16 size : std::initializer_list<qint16>{0, 1, 2, 3}) {
        for (const HankoStyle& style : {HankoStyle{1, 0, 0, 0, size, 1}, HankoStyle{1, 0, 12, 1, size, 1}}) {
            std::vector<SeenSymbol> symbols;
            for (HankoStyle hanko = style; hanko.HankoNo <= 152; ++hanko.HankoNo) {
                const SeenSymbol symbol(hanko);
                for (int earlier = 1; earlier < hanko.HankoNo; ++earlier) {
                    EXPECT_TRUE(lookDifferent(symbols[static_cast<std::size_t>(earlier - 1)], symbol) ||
                                fillUpAlike(earlier, hanko.HankoNo, size))
                        << earlier << " and " << hanko.HankoNo << ", size " << size << ", painted "
                        << style.PaintOn;
                }
                symbols.push_back(symbol);
            }
        }
    }
}

TEST(SymbolShapes, EveryThicknessIsSeenOnEverySymbol)
{
    for (qint16 number = 1; number <= 152; ++number) {
        const SeenSymbol normal({number, 0, 12, 1, 1, 1});
        EXPECT_TRUE(lookDifferent(SeenSymbol({number, 0, 12, 1, 1, 0}), normal)) << number;
        EXPECT_TRUE(lookDifferent(SeenSymbol({number, 0, 12, 1, 1, 2}), normal)) << number;
    }
}

TEST(SymbolShapes, APolygonOfOnePointDrawsNothing)
{
    DrawSurface target;
    Polygon(MapGeometry(), target, 1, 10, 10, QBColor(0));
    EXPECT_TRUE(target.drawing().operations.empty());
}
