#include "platform/DrawSurface.h"

#include "platform/StandardColors.h"
#include "tests/support/TestDrive.h"
#include "tests/support/Transcript.h"

TEST(DrawSurface, KeepsWhatIsDrawnWithThePenAndTheFillOfItsTime)
{
    constexpr float Pi = 3.1415926F;
    QImage picture(96, 48, QImage::Format_Grayscale8);
    picture.setDotsPerMeterX(3780); // 96 dpi
    picture.setDotsPerMeterY(7559); // 192 dpi
    DrawSurface surface;
    surface.Line(0, 0, 10, 0, QBColor(0));
    surface.Line(10, 0, 10, 10, QBColor(0));
    surface.Line(10, 10, 0, 0, QBColor(1)); // another colour
    surface.Line(5, 5, 6, 6, QBColor(1));   // begins elsewhere
    surface.DrawStyle = PenStyle::None;
    surface.Line(6, 6, 7, 7, QBColor(1)); // style none draws nothing
    surface.DrawStyle = penStyle(9);
    surface.Line(6, 6, 7, 7, QBColor(1)); // unknown styles are solid
    surface.ScaleLeft = -100;
    surface.FillColor = QBColor(10);
    surface.FillStyle = DrawSurface::Fill::Transparent;
    surface.Box(30, 40, 10, 20, QBColor(0));
    surface.FilledBox(30, 40, 10, 20, QBColor(1));
    surface.FillStyle = DrawSurface::Fill::Solid;
    surface.Box(10, 20, 30, 40, QBColor(0));
    surface.Arc(200, 200, 100, QBColor(0), Pi / 2, -Pi);
    surface.DrawStyle = PenStyle::None;
    surface.Arc(200, 200, 100, QBColor(0), -3 * Pi / 2, -Pi / 4, 2);
    surface.PaintPicture(picture, 10, 20);
    EXPECT_EQ(transcript(surface.drawing()), R"(
line 0,0 10,0 10,10 pen 1/0/0
line 10,10 0,0 pen 1/0/1
line 5,5 6,6 7,7 pen 1/0/1
box 110,20 130,40 pen 1/0/0
box 110,20 130,40 filled 1 pen 1/0/1
box 110,20 130,40 filled 10 pen 1/0/0
arc 300,200 100,100 90,90 end filled 10 pen 1/0/0
arc 300,200 50,100 270,135 start end filled 10
picture 110,20 1439.8,360
)");
    EXPECT_EQ(surface.drawing().pens.size(), 2U);
}

TEST(DrawSurface, PrintMovesThePositionAndUsesTheFontOfItsTime)
{
    const QString family = QStringLiteral("Some Sans");
    DrawSurface surface;
    surface.FontName = family;
    surface.FontSize = 12;
    surface.FontBold = true;
    surface.CurrentX = 100;
    surface.CurrentY = 200;
    surface.Print(QStringLiteral("ab"), DrawSurface::LineEnd::Stay);
    EXPECT_FLOAT_EQ(surface.CurrentX, 100 + surface.TextWidth(QStringLiteral("ab")));
    EXPECT_EQ(surface.CurrentY, 200);
    surface.FontBold = false;
    surface.FontItalic = true;
    surface.Print(QStringLiteral("line\r\nbreak"));
    EXPECT_EQ(surface.CurrentX, 0);
    EXPECT_FLOAT_EQ(surface.CurrentY, 200 + surface.TextHeight());
    EXPECT_TRUE(wasPrinted(surface.drawing(), QStringLiteral("line  break")));
    EXPECT_EQ(surface.drawing().fonts,
              std::vector<TextFont>({{family, 12, true, false}, {family, 12, false, true}}));
    for (const TextFont& used : surface.drawing().fonts) {
        const QFont font = twipFont(used);
        EXPECT_EQ(std::tuple(font.family(), font.pixelSize(), font.bold(), font.italic()),
                  std::tuple(family, 240, used.bold, used.italic));
    }
    surface.Cls();
    EXPECT_TRUE(surface.drawing().operations.empty());
    EXPECT_EQ(surface.CurrentY, 0);
}
