#include "render/SymbolShapes.h"

#include "platform/StandardColors.h"
#include "plot/DrawingFile.h"
#include "tests/support/TestDrive.h"
#include "tests/support/Transcript.h"

#include <QRegularExpression>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

/// A symbol with a blue outline; those of odd numbers are filled.
HankoStyle symbol(int number, int size = 1, int thickness = 1)
{
    return {static_cast<qint16>(number),   1, 12, static_cast<qint16>(number % 2), static_cast<qint16>(size),
            static_cast<qint16>(thickness)};
}

/// What symbols draw about (0, 0), one after the other.
Drawing drawn(TestSurvey& survey, const std::vector<HankoStyle>& symbols)
{
    DrawSurface target;
    SymbolShapes shapes(survey.varn, survey.varn, {target, survey.frmMap});
    for (const HankoStyle& hanko : symbols) {
        shapes.DrawHanko(hanko, 0, 0);
    }
    return target.drawing();
}

/// The lines of a transcript joined, each with its pen only where it is another than that of the next.
std::string onOneLine(const std::string& transcript)
{
    return QString::fromStdString(transcript)
        .replace(QRegularExpression("( pen \\S+)(?=\n.*\\1\n)"), QString())
        .replace(QRegularExpression("\n(?=.)"), " ")
        .toStdString();
}

/// How many pixels of two pictures differ clearly: in a channel by more than 96 of 255.
int clearlyDifferent(const QImage& one, const QImage& other)
{
    const auto differ = [](QRgb a, QRgb b) {
        return a != b && std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                                   std::abs(qBlue(a) - qBlue(b))}) > 96;
    };
    const auto* first = reinterpret_cast<const QRgb*>(one.constBits());
    const auto* second = reinterpret_cast<const QRgb*>(other.constBits());
    return std::inner_product(first, first + one.sizeInBytes() / 4, second, 0, std::plus(), differ);
}

/// A symbol as it stands on a screen of 96 dpi, at no whole pixel.
QImage seen(const HankoStyle& hanko)
{
    DrawSurface target;
    MapGeometry geometry;
    SymbolShapes(PolygonTable(), geometry, {target, target}).DrawHanko(hanko, 244, 244);
    return drawingImage(target.drawing(), {480, 480}, 96);
}

/// Whether two symbols are told apart at a glance: at least three pixels, and a twentieth of what one colours
/// on average, differ clearly.
bool lookDifferent(const QImage& one, const QImage& other)
{
    static const QImage paper = seen({0, 0, 0, 0, 0, 0});
    const int different = clearlyDifferent(one, other);
    return different >= 3 && 40 * different >= clearlyDifferent(one, paper) + clearlyDifferent(other, paper);
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
    std::string found = "\n";
    for (const int number :
         {1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 49,  50,  51,  52,
          53, 54, 55, 56, 57, 58, 59,                                            // every design
          13, 24, 25, 36, 37, 48, 60, 70, 71, 81, 82, 92, 113, 132, 133, 152}) { // the ends of each range
        found += std::to_string(number) + onOneLine(transcript(drawn(survey, {symbol(number)})));
    }
    EXPECT_EQ(found, R"(
1 box -96,-96 96,96 filled 12 pen 3/0/1
2 line 0,-96 0,96 line -96,0 96,0 pen 3/0/1
3 line -96,96 96,-96 line -96,-96 96,96 pen 3/0/1
4 box -96,-96 96,96 line -96,96 96,-96 line -96,-96 96,96 pen 3/0/1
5 box -96,-96 96,96 filled 12 line 0,-96 0,96 line -96,0 96,0 pen 3/0/1
6 box -96,-96 0,96 filled 1 pen 1/0/1 box -96,-96 96,96 pen 3/0/1
7 box -96,0 96,96 filled 12 pen 1/0/1 box -96,-96 96,96 pen 3/0/1
8 box -38.4,-38.4 38.4,38.4 filled 1 pen 1/0/1 box -96,-96 96,96 pen 3/0/1
9 box -96,-96 96,96 filled 12 line -96,96 96,-96 pen 3/0/1
10 line 0,-96 96,0 0,96 -96,0 0,-96 pen 3/0/1
11 line -96,-96 96,-96 -96,96 96,96 -96,-96 pen 3/0/1
12 line 0,-103.5 0,103.5 line -103.5,0 103.5,0 line -103.5,103.5 103.5,-103.5 line -103.5,-103.5 103.5,103.5 pen 2/0/1
49 ellipse 0,0 100,100 pen 3/0/1
50 ellipse 0,0 100,100 filled 12 pen 3/0/1
51 ellipse 0,0 100,100 pen 3/0/1 ellipse 0,0 50,50 filled 12 pen 1/0/1
52 ellipse 0,0 100,100 line 0,-100 0,100 pen 3/0/1
53 ellipse 0,0 100,100 line -100,0 100,0 pen 3/0/1
54 ellipse 0,0 100,100 line 0,-100 0,100 line -100,0 100,0 pen 3/0/1
55 ellipse 0,0 100,100 arc 0,0 100,100 360,180 start end filled 12 pen 3/0/1
56 ellipse 0,0 100,100 arc 0,0 100,100 180,180 start end filled 12 pen 3/0/1
57 ellipse 0,0 107.5,107.5 ellipse 0,0 53.8,53.8 pen 2/0/1
58 ellipse 0,0 100,100 line -70.7,70.7 70.7,-70.7 pen 3/0/1
59 ellipse 0,0 100,100 line -70.7,70.7 70.7,-70.7 line -70.7,-70.7 70.7,70.7 pen 3/0/1
13 box -55.5,-55.5 55.5,55.5 filled 12 pen 2/0/1
24 line 0,-63 0,63 line -63,0 63,0 line -63,63 63,-63 line -63,-63 63,63 pen 1/0/1
25 box -103.5,-55.5 103.5,55.5 filled 12 pen 2/0/1
36 line 0,-63 0,63 line -111,0 111,0 line -111,63 111,-63 line -111,-63 111,63 pen 1/0/1
37 box -55.5,-103.5 55.5,103.5 filled 12 pen 2/0/1
48 line 0,-111 0,111 line -63,0 63,0 line -63,111 63,-111 line -63,-111 63,111 pen 1/0/1
60 ellipse 0,0 50,50 pen 3/0/1
70 ellipse 0,0 57.5,57.5 line -40.7,40.7 40.7,-40.7 line -40.7,-40.7 40.7,40.7 pen 2/0/1
71 ellipse 0,0 50,100 pen 3/0/1
81 ellipse 0,0 57.5,107.5 line -40.7,76 40.7,-76 line -40.7,-76 40.7,76 pen 2/0/1
82 ellipse 0,0 100,50 pen 3/0/1
92 ellipse 0,0 107.5,57.5 line -76,40.7 76,-40.7 line -76,-40.7 76,40.7 pen 2/0/1
113 arc 0,0 50,100 360,180 start end filled 12 pen 3/0/1
132 arc 0,0 50,100 360,270 start end pen 3/0/1
133 arc 0,0 100,50 360,180 start end filled 12 pen 3/0/1
152 arc 0,0 100,50 360,270 start end pen 3/0/1
)");
}

TEST(SymbolShapes, PolygonsAreStretchedAndSlanted)
{
    TestSurvey survey;
    EXPECT_EQ(transcript(drawn(survey, {symbol(153), symbol(154), symbol(156), symbol(158), symbol(160)})),
              R"(
line -60,-60 60,-60 60,60 -60,60 -60,-60 pen 3/0/1
line -60,-30 60,30 pen 3/0/1
line -30,-60 30,60 pen 3/0/1
line -90,-30 90,30 pen 3/0/1
line -30,-30 30,30 pen 3/0/1
)") << "a square, a line, half as wide and twice as high, slanted right, slanted left";
}

TEST(SymbolShapes, SizeAndWidthCodesBeyondTheTablesAreTheLargest)
{
    TestSurvey survey;
    std::string found = "\n";
    for (const auto& [size, thickness] : {std::pair(0, 0), {1, 0}, {1, 1}, {2, 2}, {3, 3}, {-1, -1}}) {
        std::string row = std::to_string(size);
        for (const int number : {2, 8, 51, 154}) {
            row += onOneLine(transcript(drawn(survey, {symbol(number, size, thickness)})));
            row.pop_back();
        }
        found += row + '\n';
    }
    EXPECT_EQ(found, R"(
0 line 0,-48 0,48 line -48,0 48,0 pen 1/0/1 box -19.2,-19.2 19.2,19.2 filled 1 box -48,-48 48,48 pen 1/0/1 ellipse 0,0 50,50 ellipse 0,0 25,25 filled 12 pen 1/0/1 line -30,-15 30,15 pen 1/0/1
1 line 0,-96 0,96 line -96,0 96,0 pen 1/0/1 box -38.4,-38.4 38.4,38.4 filled 1 box -96,-96 96,96 pen 1/0/1 ellipse 0,0 100,100 ellipse 0,0 50,50 filled 12 pen 1/0/1 line -60,-30 60,30 pen 1/0/1
1 line 0,-96 0,96 line -96,0 96,0 pen 3/0/1 box -38.4,-38.4 38.4,38.4 filled 1 pen 1/0/1 box -96,-96 96,96 pen 3/0/1 ellipse 0,0 100,100 pen 3/0/1 ellipse 0,0 50,50 filled 12 pen 1/0/1 line -60,-30 60,30 pen 3/0/1
2 line 0,-144 0,144 line -144,0 144,0 pen 5/0/1 box -57.6,-57.6 57.6,57.6 filled 1 pen 2/0/1 box -144,-144 144,144 pen 5/0/1 ellipse 0,0 150,150 pen 5/0/1 ellipse 0,0 75,75 filled 12 pen 2/0/1 line -90,-45 90,45 pen 5/0/1
3 line 0,-192 0,192 line -192,0 192,0 pen 7/0/1 box -76.8,-76.8 76.8,76.8 filled 1 pen 3/0/1 box -192,-192 192,192 pen 7/0/1 ellipse 0,0 200,200 pen 7/0/1 ellipse 0,0 100,100 filled 12 pen 3/0/1 line -120,-60 120,60 pen 7/0/1
-1 line 0,-192 0,192 line -192,0 192,0 pen 7/0/1 box -76.8,-76.8 76.8,76.8 filled 1 pen 3/0/1 box -192,-192 192,192 pen 7/0/1 ellipse 0,0 200,200 pen 7/0/1 ellipse 0,0 100,100 filled 12 pen 3/0/1 line -120,-60 120,60 pen 7/0/1
)");
}

TEST(SymbolShapes, NumbersWithoutADesignDrawNothing)
{
    TestSurvey survey;
    EXPECT_EQ(transcript(drawn(survey, {symbol(0), symbol(-1), symbol(-300), symbol(161), symbol(30000)})),
              "\n");
    EXPECT_EQ(survey.frmMap.drawing().texts, std::vector<QString>({"iSymbol=161", "iSymbol=30000"}));
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
        const auto sector = operationsOf<ArcOperation>(drawn(survey, {symbol(number++)})).at(0);
        EXPECT_NEAR(std::remainder(qRadiansToDegrees(sector.start) - start, 360), 0, 0.01) << number - 1;
        EXPECT_NEAR(qRadiansToDegrees(sector.span), span, 0.01) << number - 1;
    }
}

TEST(StandardColors, SixteenColorsHaveTheirNumbersAndNames)
{
    const QRgb colors[] = {0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xc0c0c0,
                           0x808080, 0x0000ff, 0x00ff00, 0x00ffff, 0xff0000, 0xff00ff, 0xffff00, 0xffffff};
    for (int number = 0; number < 16; ++number) {
        EXPECT_EQ(QBColor(number), 0xff000000 | colors[number]) << number;
    }
    EXPECT_EQ(standardColorNames().join(QLatin1Char(' ')),
              "Black Blue Green Cyan Red Magenta Yellow White Gray L.Blue L.Green L.Cyan L.Red L.Magenta "
              "L.Yellow L.White");
    for (const int number : {-1, 16}) {
        EXPECT_EQ(errorOf([&] { QBColor(number); }).number(), ErrorNumber::InvalidProcedureCall);
    }
}

TEST(SymbolShapes, EverySymbolLooksDifferentOnAScreenAtEverySize)
{
    for (const auto size : std::initializer_list<qint16>{0, 1, 2, 3}) {
        for (const HankoStyle& style : {HankoStyle{1, 0, 0, 0, size, 1}, HankoStyle{1, 0, 12, 1, size, 1}}) {
            std::vector<QImage> symbols;
            for (HankoStyle hanko = style; hanko.HankoNo <= 152; ++hanko.HankoNo) {
                const QImage& symbol = symbols.emplace_back(seen(hanko));
                for (int earlier = 1; earlier < hanko.HankoNo; ++earlier) {
                    EXPECT_TRUE(lookDifferent(symbols[static_cast<std::size_t>(earlier - 1)], symbol) ||
                                fillUpAlike(earlier, hanko.HankoNo, size))
                        << earlier << " and " << hanko.HankoNo << ", size " << size << ", painted "
                        << style.PaintOn;
                }
            }
        }
    }
}

TEST(SymbolShapes, EveryThicknessIsSeenOnEverySymbol)
{
    for (qint16 number = 1; number <= 152; ++number) {
        for (const auto thickness : std::initializer_list<qint16>{0, 2}) {
            EXPECT_TRUE(lookDifferent(seen({number, 0, 12, 1, 1, thickness}), seen({number, 0, 12, 1, 1, 1})))
                << number << ", thickness " << thickness;
        }
    }
}
