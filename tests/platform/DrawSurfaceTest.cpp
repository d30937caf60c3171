#include "platform/DrawSurface.h"

#include "platform/DrawingPainter.h"
#include "platform/StandardColors.h"
#include "tests/support/TestDrive.h"

#include <QPainter>

namespace {

constexpr float Pi = 3.1415926F;

/// The surface painted at one pixel a twip.
QImage painted(const DrawSurface& surface, int size = 400)
{
    QImage image(size, size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintDrawing(surface.drawing(), painter, 1);
    return image;
}

} // namespace

TEST(DrawSurface, ConnectedSegmentsOfOnePenAreOneRun)
{
    DrawSurface surface;
    const QRgb black = QBColor(0);
    surface.Line(0, 0, 10, 0, black);
    surface.Line(10, 0, 10, 10, black);
    surface.Line(10, 10, 0, 0, QBColor(1)); // another colour
    surface.Line(5, 5, 6, 6, QBColor(1));   // begins elsewhere
    surface.DrawStyle = PenStyle::None;
    surface.Line(6, 6, 7, 7, QBColor(1)); // style none draws nothing
    surface.DrawStyle = penStyle(9);
    surface.Line(6, 6, 7, 7, QBColor(1)); // unknown styles are solid
    const auto lines = operationsOf<PolylineOperation>(surface.drawing());
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0].points, 3U);
    EXPECT_EQ(lines[1].points, 2U);
    EXPECT_EQ(lines[2].points, 3U);
    EXPECT_EQ(surface.drawing().pens.size(), 2U);
}

TEST(DrawSurface, SlicesRunCounterClockwiseAndAreFilled)
{
    struct Row
    {
        float start;
        float end;
        QPoint inside;
        QPoint outside;
    };
    // About the centre (200, 200); y grows downwards.
    const Row rows[] = {
        {-2 * Pi, -Pi, {200, 150}, {200, 250}},         // upper half
        {-Pi, -2 * Pi, {200, 250}, {200, 150}},         // lower half
        {-Pi / 4, -7 * Pi / 4, {150, 200}, {250, 200}}, // open to the right
        {-7 * Pi / 4, -Pi / 4, {250, 200}, {150, 200}}, // the wedge at the right
        {-3 * Pi / 2, -2 * Pi, {240, 240}, {160, 160}}, // lower right quadrant
    };
    for (const Row& row : rows) {
        DrawSurface surface;
        surface.FillStyle = DrawSurface::Fill::Solid;
        surface.FillColor = QBColor(12);
        surface.Arc(200, 200, 100, QBColor(0), row.start, row.end);
        const QImage image = painted(surface);
        EXPECT_EQ(image.pixel(row.inside), QBColor(12)) << row.start << ' ' << row.end;
        EXPECT_EQ(image.pixel(row.outside), QBColor(15)) << row.start << ' ' << row.end;
    }
}

TEST(DrawSurface, AnOpenArcDrawsOnlyTheRadiiAskedFor)
{
    DrawSurface surface;
    surface.FillStyle = DrawSurface::Fill::Solid;
    surface.FillColor = QBColor(12);
    surface.Arc(200, 200, 100, QBColor(0), Pi / 2, -Pi); // upper left quarter, its end radius
    const QImage image = painted(surface);
    EXPECT_EQ(image.pixel(150, 200), QBColor(0)) << "the radius at the end";
    EXPECT_EQ(image.pixel(200, 150), QBColor(15)) << "no radius at the start";
    EXPECT_EQ(image.pixel(170, 170), QBColor(15)) << "not filled";
}

TEST(DrawSurface, BoxesAreFilledAsTheFillStyleSays)
{
    DrawSurface surface;
    surface.FillColor = QBColor(10);
    surface.FillStyle = DrawSurface::Fill::Transparent;
    surface.Box(100, 100, 20, 20, QBColor(0));
    surface.FillStyle = DrawSurface::Fill::Solid;
    surface.Box(200, 20, 300, 100, QBColor(0));
    surface.FilledBox(20, 200, 100, 300, QBColor(4));
    const QImage image = painted(surface);
    EXPECT_EQ(image.pixel(60, 60), QBColor(15));
    EXPECT_EQ(image.pixel(100, 60), QBColor(0)) << "its outline";
    EXPECT_EQ(image.pixel(250, 60), QBColor(10));
    EXPECT_EQ(image.pixel(60, 250), QBColor(4));
}

TEST(DrawSurface, PrintMovesThePosition)
{
    DrawSurface surface;
    surface.CurrentX = 100;
    surface.CurrentY = 200;
    surface.Print(QStringLiteral("ab"), DrawSurface::LineEnd::Stay);
    EXPECT_FLOAT_EQ(surface.CurrentX, 100 + surface.TextWidth(QStringLiteral("ab")));
    EXPECT_EQ(surface.CurrentY, 200);
    surface.Print(QStringLiteral("line\r\nbreak"));
    EXPECT_EQ(surface.CurrentX, 0);
    EXPECT_FLOAT_EQ(surface.CurrentY, 200 + surface.TextHeight());
    EXPECT_TRUE(wasPrinted(surface.drawing(), QStringLiteral("line  break")));
    surface.Cls();
    EXPECT_TRUE(surface.drawing().operations.empty());
    EXPECT_EQ(surface.CurrentY, 0);
}

TEST(DrawSurface, FontsAreThoseOfTheSurfaceInTwips)
{
    DrawSurface surface;
    surface.FontName = QStringLiteral("Some Sans");
    surface.FontSize = 12;
    surface.FontBold = true;
    surface.Print(QStringLiteral("bold"));
    surface.FontBold = false;
    const float plain = std::as_const(surface).TextWidth(QStringLiteral("a"));
    surface.FontSize = 24;
    EXPECT_NEAR(surface.TextWidth(QStringLiteral("a")), 2 * plain, 2);
    surface.FontSize = 12;
    surface.FontItalic = true;
    surface.Print(QStringLiteral("italic"));
    for (const int n : {0, 1}) {
        const QFont font = twipFont(surface.drawing().fonts.at(static_cast<std::size_t>(n)));
        EXPECT_EQ(font.family(), QStringLiteral("Some Sans"));
        EXPECT_EQ(font.pixelSize(), 240);
        EXPECT_EQ(std::pair(font.bold(), font.italic()), std::pair(n == 0, n == 1));
    }
    EXPECT_EQ(surface.drawing().fonts.size(), 2U) << "measuring leaves no trace";
}

TEST(DrawSurface, PicturesHaveTheirNaturalSize)
{
    QImage picture(96, 48, QImage::Format_Grayscale8);
    picture.setDotsPerMeterX(3780); // 96 dpi
    picture.setDotsPerMeterY(7559); // 192 dpi
    EXPECT_NEAR(naturalSize(picture).width(), 1440, 0.2);
    EXPECT_NEAR(naturalSize(picture).height(), 360, 0.2);
}
