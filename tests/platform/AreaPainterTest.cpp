// Areas as they are painted: fill, holes and hatches.

#include "platform/DrawSurface.h"
#include "platform/DrawingPainter.h"
#include "platform/DrawnArea.h"
#include "tests/support/TestDrive.h"
#include "tests/support/Transcript.h"

#include <QPainter>

namespace {

constexpr QRgb Red = qRgb(200, 0, 0);

Ring square(double left, double top, double width, double height)
{
    return {{left, top}, {left + width, top}, {left + width, top + height}, {left, top + height}};
}

QImage painted(const DrawSurface& surface, double scale = 1 / TwipsPerPixel)
{
    QImage image(100, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintDrawing(surface.drawing(), painter, scale);
    return image;
}

/// An area filled with black, without an outline.
void fill(DrawSurface& surface, const Rings& rings, FillPattern pattern)
{
    surface.DrawStyle = PenStyle::None;
    surface.FillStyle = DrawSurface::Fill::Solid;
    surface.FillColor = qRgb(0, 0, 0);
    surface.Area(rings, 0, pattern);
}

QImage paintedPattern(FillPattern pattern)
{
    DrawSurface surface;
    fill(surface, {square(0, 0, 1500, 1500)}, pattern);
    return painted(surface);
}

double darkness(const QImage& image)
{
    double sum = 0;
    for (int i = 0; i < image.width() * image.height(); ++i) {
        sum += 1 - qGray(image.pixel(i % image.width(), i / image.width())) / 255.0;
    }
    return sum / image.width() / image.height();
}

} // namespace

TEST(AreaPainter, FillsBetweenAnOutlineAndItsHoles)
{
    DrawSurface surface;
    surface.ScaleLeft = 15;
    surface.FillStyle = DrawSurface::Fill::Solid;
    surface.FillColor = Red;
    surface.Area({square(165, 150, 900, 900), square(465, 450, 300, 300), {{0, 0}, {9, 9}}}, qRgb(0, 0, 255));
    EXPECT_EQ(transcript(surface.drawing()),
              "\narea 150,150 1050,150 1050,1050 150,1050 and 450,450 750,450 750,750 450,750"
              " filled #c80000 pen 1/0/9\n");
    const QImage image = painted(surface);
    EXPECT_EQ(image.pixel(15, 15), Red);
    EXPECT_EQ(image.pixel(40, 40), qRgb(255, 255, 255)) << "the hole";
    EXPECT_EQ(image.pixel(5, 40), qRgb(255, 255, 255)) << "outside";
    EXPECT_LT(qRed(image.pixel(30, 40)), 150) << "the outline of the hole is blue";
    EXPECT_TRUE(drawnArea(surface.drawing()).contains(QRectF(150, 150, 900, 900)));

    surface.Cls();
    surface.FillStyle = DrawSurface::Fill::Transparent;
    surface.Area({square(165, 150, 900, 900)}, Red);
    EXPECT_EQ(painted(surface).pixel(40, 40), qRgb(255, 255, 255));
    surface.Area({}, Red);
    EXPECT_EQ(surface.drawing().operations.size(), 1U);
}

TEST(AreaPainter, AfterAnAreaPensFillsAndTextsAreAsBefore)
{
    DrawSurface alone;
    DrawSurface after;
    fill(after, {square(0, 0, 10, 10)}, FillPattern::Cross);
    for (DrawSurface* surface : {&alone, &after}) {
        surface->DrawStyle = PenStyle::Solid;
        surface->FillStyle = DrawSurface::Fill::Solid;
        surface->FillColor = Red;
        surface->Box(300, 300, 600, 600, Red);
        if (surface == &after) {
            surface->Area({square(750, 750, 15, 15)}, 0);
        }
        surface->Box(900, 300, 1200, 600, Red);
        surface->Line(300, 900, 600, 900, Red);
    }
    const QRect rest(15, 15, 85, 30);
    EXPECT_EQ(painted(alone).copy(rest), painted(after).copy(rest));
    EXPECT_EQ(painted(alone).copy(0, 55, 100, 45), painted(after).copy(0, 55, 100, 45));
}

TEST(AreaPainter, PatternsDifferWithoutColour)
{
    constexpr int Patterns = static_cast<int>(FillPattern::DenseDots) + 1;
    constexpr int Shapes = 7;

    std::vector<QImage> images;
    for (int i = 0; i < Patterns; ++i) {
        images.push_back(paintedPattern(static_cast<FillPattern>(i)));
        for (int j = 0; j < i; ++j) {
            EXPECT_NE(images[static_cast<std::size_t>(i)], images[static_cast<std::size_t>(j)])
                << i << ' ' << j;
        }
        EXPECT_GT(darkness(images.back()), 0.03) << i;
        if (i > Shapes) {
            const auto light = static_cast<std::size_t>(i - Shapes);
            EXPECT_GT(darkness(images.back()), 1.4 * darkness(images[light])) << i;
        }
    }
}

TEST(AreaPainter, HatchesStayInTheirAreaAndRunOnInTheNext)
{
    for (const FillPattern pattern : {FillPattern::Rising, FillPattern::DenseCross, FillPattern::Falling}) {
        DrawSurface parted;
        fill(parted, {{{150, 150}, {750, 150}, {600, 1050}, {150, 1050}}}, pattern);
        fill(parted, {{{750, 150}, {1050, 150}, {1050, 1050}, {600, 1050}}}, pattern);
        DrawSurface whole;
        fill(whole, {square(150, 150, 900, 900)}, pattern);
        const QImage a = painted(parted, 2 / TwipsPerPixel / 2);
        const QImage b = painted(whole, 2 / TwipsPerPixel / 2);
        EXPECT_NEAR(darkness(a), darkness(b), 0.003);
        EXPECT_EQ(darkness(a.copy(0, 0, 100, 9)), 0);
        EXPECT_EQ(darkness(a.copy(72, 0, 28, 100)), 0);
    }
    DrawSurface ring;
    fill(ring, {square(0, 0, 1500, 1500), square(300, 300, 900, 900)}, FillPattern::DenseRising);
    EXPECT_EQ(darkness(painted(ring).copy(22, 22, 56, 56)), 0) << "no line in the hole";
}
