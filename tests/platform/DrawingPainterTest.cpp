// What is painted is looked at: place, size and colour of the ink.

#include "platform/DrawingPainter.h"

#include "platform/DrawSurface.h"
#include "platform/DrawnArea.h"
#include "platform/StandardColors.h"
#include "tests/support/Pixels.h"
#include "tests/support/TestDrive.h"

#include <QFile>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

/// 96 dpi.
constexpr double ScreenScale = 1 / TwipsPerPixel;

QImage painted(const Drawing& drawing, double scale, QSize size, double pixelRatio = 1)
{
    QImage image(size * pixelRatio, QImage::Format_RGB32);
    image.setDevicePixelRatio(pixelRatio);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintDrawing(drawing, painter, scale);
    return image;
}

/// How dark a pixel is, from 0 to 1.
double ink(const QImage& image, QPoint pixel)
{
    return 1 - qGray(image.pixel(pixel)) / 255.0;
}

/// The rectangle of all pixels that are at least half dark.
QRect inkBox(const QImage& image)
{
    return extent(image, image.rect(), [](const QColor& color) { return qGray(color.rgb()) < 128; });
}

/// The sum of the ink in columns `first` to `last`.
double inkOfColumns(const QImage& image, int first, int last)
{
    double sum = 0;
    for (int i = 0; i < (last - first + 1) * image.height(); ++i) {
        sum += ink(image, {first + i / image.height(), i % image.height()});
    }
    return sum;
}

/// How dark the part of `picture` is that lies under pixel (x, y), where it is shown in `size` pixels.
double averageInk(const QImage& picture, QSize size, int x, int y)
{
    constexpr int Samples = 16; // across and down the pixel
    double sum = 0;
    for (int i = 0; i < Samples * Samples; ++i) {
        const double column = (x + (i % Samples + 0.5) / Samples) * picture.width() / size.width();
        const double row = (y + (i / Samples + 0.5) / Samples) * picture.height() / size.height();
        sum += qAlpha(picture.pixel(static_cast<int>(column), static_cast<int>(row))) / 255.0;
    }
    return sum / (Samples * Samples);
}

} // namespace

TEST(DrawingPainter, ATextStandsAtItsPlaceInItsSizeAndColor)
{
    DrawSurface surface;
    surface.ScaleLeft = -150;
    surface.FontSize = 20; // a pixel of the font is a twip: 400
    surface.ForeColor = QBColor(12);
    surface.PrintAt(150, 600, QStringLiteral("H"));
    const double baseline = 600 + surface.TextAscent();
    for (const double scale : {1.0, 0.5, 2 * ScreenScale}) {
        const QImage image = painted(surface.drawing(), scale, {900, 1300});
        const QRect box = inkBox(image);
        EXPECT_NEAR(box.bottom() + 1, baseline * scale, 2) << scale;
        EXPECT_NEAR(box.height(), 0.72 * 400 * scale, 0.05 * 400 * scale + 1) << "as high as a capital";
        EXPECT_NEAR(box.left(), 300 * scale, 0.12 * 400 * scale + 1) << scale;
        EXPECT_NEAR(box.center().x(), (300 + surface.TextWidth(QStringLiteral("H")) / 2) * scale, 2);
        EXPECT_EQ(image.pixel(box.center()), QBColor(12)) << "the bar between the stems";
    }
}

TEST(PictureStore, GrayPicturesAreInkOnGlassAndOthersStayAsTheyAre)
{
    const TestDrive drive;
    PictureStore store;
    for (const bool gray : {true, false}) {
        QImage file(3, 1, QImage::Format_RGB32);
        file.setDotsPerMeterX(7559);
        file.setDotsPerMeterY(5669);
        const QRgb colors[] = {qRgb(0, 0, 0), qRgb(255, 255, 255), gray ? qRgb(100, 100, 100) : QBColor(12)};
        const QRgb seen[] = {qRgb(0, 0, 0), gray ? 0 : colors[1], gray ? qRgba(0, 0, 0, 155) : colors[2]};
        const QString name = gray ? "gray.bmp" : "red.bmp";
        for (int x = 0; x < 3; ++x) {
            file.setPixel(x, 0, colors[x]);
        }
        ASSERT_TRUE(file.save(drive.hostPath(name)));
        const QImage picture = store.picture(drive.drive(), "C:\\" + name);
        for (int x = 0; x < 3; ++x) {
            EXPECT_EQ(picture.pixel(x, 0), seen[x]) << qPrintable(name) << ' ' << x;
        }
        EXPECT_EQ(std::pair(picture.dotsPerMeterX(), picture.dotsPerMeterY()), std::pair(7559, 5669));
        QFile::remove(drive.hostPath(name));
        EXPECT_EQ(store.picture(drive.drive(), "C:\\" + name), picture) << "read once";
    }
}

TEST(DrawingPainter, EveryGlyphIsAveragedOverTheAreaOfAPixel)
{
    const DriveC drive;
    const QString folder =
        drive.varnPath(QStringLiteral(INSTALLATION_FOLDER)) + QStringLiteral("\\VarnSymbol\\");
    for (const auto& [set, pixelRatio] :
         {std::pair("Standard16", 1.0), {"Standard18", 1.0}, {"Bold16", 1.5}, {"Bold18", 1.5}}) {
        for (int number = 1; number <= 38 + 16; ++number) {
            const QString name = number <= 38 ? QStringLiteral("\\Symbol%1.bmp").arg(number)
                                              : QStringLiteral("\\SymbolS%1.bmp").arg(number - 38);
            PictureStore store;
            const QImage picture = store.picture(drive, folder + QLatin1String(set) + name);
            DrawSurface surface;
            surface.PaintPicture(picture, 10 * 15 - 4, 20 * 15 + 2); // between the pixels
            const QImage image = painted(surface.drawing(), ScreenScale, {60, 60}, pixelRatio);
            const QSize size = (naturalSize(picture) * ScreenScale * pixelRatio).toSize();
            const QPoint place = (QPointF(146, 302) * ScreenScale * pixelRatio).toPoint();
            EXPECT_FALSE(inkBox(image).isEmpty()) << qPrintable(name);
            for (int i = 0; i < size.width() * size.height(); ++i) {
                const QPoint pixel(i % size.width(), i / size.width());
                EXPECT_NEAR(ink(image, place + pixel), averageInk(picture, size, pixel.x(), pixel.y()), 0.06)
                    << qPrintable(name) << " at " << pixel.x() << ' ' << pixel.y();
            }
        }
    }
}

TEST(DrawingPainter, ALineIsAsWideAsItsPenAndWithoutAGap)
{
    for (const int width : {1, 3, 5}) {
        for (const double scale : {ScreenScale, 2.5 * ScreenScale}) {
            DrawSurface surface;
            surface.DrawWidth = width;
            for (int i = 0; i < 200; ++i) { // so many pieces that they are not painted at once
                const auto x = static_cast<float>(60 * i);
                surface.Line(x, 307, x + 60, 307, QBColor(0));
            }
            const int end = static_cast<int>(12000 * scale);
            const QImage image = painted(surface.drawing(), scale, {end + 20, 60});
            const double expected = width * scale / ScreenScale;
            EXPECT_NEAR(inkOfColumns(image, 20, 20), expected, 0.05) << width << ' ' << scale;
            for (int x = 1; x < end; ++x) {
                EXPECT_GT(inkOfColumns(image, x, x), expected - 0.05) << width << ' ' << scale << " at " << x;
            }
            EXPECT_EQ(inkOfColumns(image, end + 8, end + 19), 0) << "behind its end";
        }
    }
}

TEST(DrawingPainter, EachOperationIsPaintedAlone)
{
    constexpr float Pi = 3.1415926F;
    DrawSurface surface;
    surface.FillColor = QBColor(12);
    surface.Box(120, 20, 200, 100, QBColor(0));
    surface.FillStyle = DrawSurface::Fill::Solid;
    surface.Arc(60, 60, 50, QBColor(0), Pi / 2, -Pi); // upper left quarter, with the radius at its end
    surface.Arc(300, 60, 50, QBColor(0), -3 * Pi / 2, -2 * Pi);    // lower right quarter
    surface.Arc(60, 180, 50, QBColor(0), -7 * Pi / 4, -Pi / 4, 2); // a wedge at the right, half as wide
    surface.FilledBox(120, 120, 200, 200, QBColor(4));
    surface.Line(120, 240, 200, 240, QBColor(9));
    surface.Line(220, 240, 300, 240, QBColor(10));
    surface.Line(220, 120, 300, 120, QBColor(1));
    surface.Line(300, 120, 300, 200, QBColor(1));
    surface.Line(300, 200, 220, 120, QBColor(1));
    const QImage image = painted(surface.drawing(), 1, {400, 260});
    const std::tuple<int, int, int> rows[] = {
        {30, 60, 0},   {60, 30, 15},  {45, 45, 15},   {25, 25, 0},                     // the open quarter
        {160, 60, 15}, {120, 60, 0},  {320, 80, 12},  {280, 40, 15},  {320, 40, 15},   // box, filled quarter
        {75, 180, 12}, {50, 180, 15}, {60, 150, 15},  {95, 180, 15},                   // wedge
        {160, 160, 4}, {160, 240, 9}, {260, 240, 10}, {210, 240, 15},                  // filled box, lines
        {208, 115, 1}, {260, 120, 1}, {300, 160, 1},  {260, 160, 1},  {280, 140, 15}}; // triangle
    for (const auto& [x, y, color] : rows) {
        EXPECT_EQ(image.pixel(x, y), QBColor(color)) << x << ' ' << y;
    }
}

TEST(DrawingPainter, ATextChangesNeitherThePenNorThePlaceOfWhatFollows)
{
    DrawSurface surface;
    surface.DrawWidth = 3;
    surface.Line(150, 150, 1500, 150, QBColor(9));
    surface.PrintAt(150, 300, QStringLiteral("H"));
    surface.Arc(3000, 1500, 900, QBColor(4), 0, 3);
    surface.Line(150, 2250, 1500, 2250, QBColor(9));
    const QImage image = painted(surface.drawing(), ScreenScale, {300, 200});
    for (const auto& [x, y, color] : {std::tuple(50, 10, 9), {200, 39, 4}, {50, 150, 9}}) {
        EXPECT_EQ(image.pixel(x, y), QBColor(color)) << x << ' ' << y;
    }
}

TEST(DrawingPainter, DashesAndDotsDiffer)
{
    DrawSurface surface;
    for (const std::string& pattern : std::vector<std::string>{"############", "####..####..", "#..#..#..#..",
                                                               "####..#..####..#", "####..#..#..####"}) {
        surface.Cls();
        for (int i = 0; i < 100; ++i) { // a polyline: the pattern goes on over its points
            surface.Line(static_cast<float>(9 * i), 30, static_cast<float>(9 * i + 9), 30, QBColor(0));
        }
        const QImage image = painted(surface.drawing(), 10 * ScreenScale, {600, 40}); // a pen of 10 pixels
        std::string found;
        for (int x = 5; found.size() < pattern.size(); x += 10) {
            found += ink(image, {x, 20}) > 0.5 ? '#' : '.';
        }
        EXPECT_EQ(found, pattern) << static_cast<int>(surface.DrawStyle);
        surface.DrawStyle = penStyle(static_cast<int>(surface.DrawStyle) + 1);
    }
}

TEST(DrawingPainter, ADotIsAtLeastOneBlackPixel)
{
    for (const double pixelRatio : {0.5, 1.0, 1.5, 2.0}) {
        for (const float shift : {0.0F, 4.0F, 7.5F, 14.0F}) {
            DrawSurface surface;
            surface.Circle(150 + shift, 300 - shift, 2, QBColor(0));
            const QImage image = painted(surface.drawing(), ScreenScale * pixelRatio, {60, 60});
            const QPointF place = QPointF(150 + shift, 300 - shift) * ScreenScale * pixelRatio;
            EXPECT_GT(ink(image, {static_cast<int>(place.x()), static_cast<int>(place.y())}), 0.95)
                << pixelRatio << ' ' << shift;
            const double sum = inkOfColumns(image, 0, 59);
            EXPECT_LT(sum, 1.7 * std::max(1.0, pixelRatio * pixelRatio)) << "and no blot";
            EXPECT_GT(sum, std::max(0.9, pixelRatio * pixelRatio)) << "as large as its outline";
        }
    }
}

TEST(DrawnArea, HoldsLinesAndTexts)
{
    DrawSurface surface;
    surface.PrintAt(1000, 2000, QStringLiteral("a text"));
    const QRectF text(1000, 2000, surface.TextWidth(QStringLiteral("a text")), surface.TextHeight());
    EXPECT_EQ(drawnArea(surface.drawing()).toRect(), text.toRect());
    surface.Line(10, 20, 30, 40, QBColor(0));
    EXPECT_TRUE(drawnArea(surface.drawing()).contains(text | QRectF(10, 20, 20, 20)));
}
