// What is painted is looked at: place, size and colour of the ink.

#include "platform/DrawingPainter.h"

#include "platform/DrawSurface.h"
#include "platform/DrawnArea.h"
#include "platform/StandardColors.h"
#include "tests/support/TestDrive.h"

#include <QPainter>

#include <algorithm>
#include <array>
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
double ink(const QImage& image, int x, int y)
{
    return 1 - qGray(image.pixel(x, y)) / 255.0;
}

/// The rectangle of all pixels that are at least half dark.
QRect inkBox(const QImage& image)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (ink(image, x, y) >= 0.5) {
                box |= QRect(x, y, 1, 1);
            }
        }
    }
    return box;
}

double inkOfColumn(const QImage& image, int x)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        sum += ink(image, x, y);
    }
    return sum;
}

/// How much of pixel `pixel` lies between `start` and `end`.
double overlap(double start, double end, int pixel)
{
    return std::max(0.0, std::min(end, pixel + 1.0) - std::max(start, static_cast<double>(pixel)));
}

/// How dark the part of `picture` is that lies under pixel (x, y), where it is shown in `size` pixels.
double averageInk(const QImage& picture, QSize size, int x, int y)
{
    const double width = static_cast<double>(picture.width()) / size.width();
    const double height = static_cast<double>(picture.height()) / size.height();
    const QRectF part(x * width, y * height, width, height);
    double sum = 0;
    for (int row = static_cast<int>(part.top()); row < part.bottom() && row < picture.height(); ++row) {
        for (int column = static_cast<int>(part.left()); column < part.right() && column < picture.width();
             ++column) {
            sum += overlap(part.left(), part.right(), column) * overlap(part.top(), part.bottom(), row) *
                   qAlpha(picture.pixel(column, row)) / 255;
        }
    }
    return sum / (width * height);
}

/// The greatest difference between what is painted at `place` and the average over the picture's area.
double worstDifference(const QImage& image, QPoint place, const QImage& picture, QSize size)
{
    double worst = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const double difference =
                ink(image, place.x() + x, place.y() + y) - averageInk(picture, size, x, y);
            worst = std::max(worst, std::abs(difference));
        }
    }
    return worst;
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

TEST(DrawingPainter, EveryGlyphIsAveragedOverTheAreaOfAPixel)
{
    struct Row
    {
        QString set;
        double pixelRatio;
    };
    const DriveC drive;
    const QString folder =
        drive.varnPath(QStringLiteral(INSTALLATION_FOLDER)) + QStringLiteral("\\VarnSymbol\\");
    for (const Row& row : {Row{QStringLiteral("Standard16"), 1}, Row{QStringLiteral("Bold18"), 1.5}}) {
        for (int number = 1; number <= 38 + 16; ++number) {
            const QString name = number <= 38 ? QStringLiteral("\\Symbol%1.bmp").arg(number)
                                              : QStringLiteral("\\SymbolS%1.bmp").arg(number - 38);
            PictureStore store;
            const QImage picture = store.picture(drive, folder + row.set + name);
            DrawSurface surface;
            surface.PaintPicture(picture, 10 * 15 - 4, 20 * 15 + 2); // between the pixels
            const QImage image = painted(surface.drawing(), ScreenScale, {60, 60}, row.pixelRatio);
            const QSizeF exact = naturalSize(picture) * ScreenScale * row.pixelRatio;
            const QPoint place = (QPointF(146, 302) * ScreenScale * row.pixelRatio).toPoint();
            EXPECT_LT(worstDifference(image, place, picture, exact.toSize()), 0.02) << qPrintable(name);
            EXPECT_FALSE(inkBox(image).isEmpty()) << qPrintable(name);
        }
    }
}

TEST(DrawingPainter, ALineIsAsWideAsItsPen)
{
    for (const int width : {1, 3, 5}) {
        for (const double scale : {ScreenScale, 2.5 * ScreenScale}) {
            DrawSurface surface;
            surface.DrawWidth = width;
            surface.Line(0, 307, 600, 307, QBColor(0));
            const QImage image = painted(surface.drawing(), scale, {60, 60});
            EXPECT_NEAR(inkOfColumn(image, 20), width * scale / ScreenScale, 0.05) << width << ' ' << scale;
        }
    }
}

TEST(DrawingPainter, EachOperationIsPaintedAlone)
{
    DrawSurface surface;
    surface.DrawWidth = 3;
    surface.FilledBox(30, 30, 240, 240, QBColor(12));
    surface.Line(30, 307, 300, 307, QBColor(9));
    surface.Line(600, 607, 870, 607, QBColor(10));
    for (const auto& [x1, y1, x2, y2] :
         {std::array{600, 30, 870, 30}, {870, 30, 870, 240}, {870, 240, 600, 30}}) {
        surface.Line(static_cast<float>(x1), static_cast<float>(y1), static_cast<float>(x2),
                     static_cast<float>(y2), QBColor(0));
    }
    const QImage image = painted(surface.drawing(), ScreenScale, {60, 60});
    struct Row
    {
        int x;
        int y;
        int color;
    };
    const Row rows[] = {{9, 9, 12},   {10, 20, 9}, {50, 40, 10}, {30, 30, 15},
                        {30, 20, 15}, {53, 6, 15}, {58, 10, 0},  {50, 2, 0}};
    for (const Row& row : rows) {
        EXPECT_EQ(image.pixel(row.x, row.y), QBColor(row.color)) << row.x << ' ' << row.y;
    }
}

TEST(DrawingPainter, DashesAndDotsDiffer)
{
    // Lengths in pen widths: ink, gap, ink ...
    const std::vector<int> styles[] = {
        {60}, {4, 2, 4, 2}, {1, 2, 1, 2}, {4, 2, 1, 2, 4}, {4, 2, 1, 2, 1, 2, 4}};
    DrawSurface surface;
    for (const std::vector<int>& lengths : styles) {
        surface.Cls();
        surface.Line(0, 30, 900, 30, QBColor(0));
        const QImage image = painted(surface.drawing(), 10 * ScreenScale, {600, 40}); // a pen of 10 pixels
        int start = 0;
        double expected = 1;
        for (const int length : lengths) {
            EXPECT_EQ(ink(image, start + 2, 20), expected) << surface.DrawStyle << ' ' << start;
            EXPECT_EQ(ink(image, start + 10 * length - 3, 20), expected) << surface.DrawStyle << ' ' << start;
            start += 10 * length;
            expected = 1 - expected;
        }
        ++surface.DrawStyle;
    }
}

TEST(DrawingPainter, ALongLineHasNoGap)
{
    constexpr int Points = 200;
    DrawSurface surface;
    for (int i = 1; i < Points; ++i) {
        const auto x = static_cast<float>(i * 60);
        surface.Line(x - 60, 150, x, 150, QBColor(0));
    }
    const QImage image = painted(surface.drawing(), ScreenScale, {900, 20});
    for (int x = 1; x < 900; ++x) {
        const int end = 4 * (Points - 1);
        EXPECT_TRUE(x < end ? inkOfColumn(image, x) > 0.95 : x == end || inkOfColumn(image, x) == 0) << x;
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
            EXPECT_GT(ink(image, static_cast<int>(place.x()), static_cast<int>(place.y())), 0.95)
                << pixelRatio << ' ' << shift;
            double sum = 0;
            for (int x = 0; x < 60; ++x) {
                sum += inkOfColumn(image, x);
            }
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
