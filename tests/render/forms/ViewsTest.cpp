// What the views of drawings, maps, words and colours paint, and where.

#include "platform/StandardColors.h"
#include "platform/forms/ColorList.h"
#include "render/forms/LocalityView.h"
#include "render/forms/WordView.h"
#include "tests/support/Pixels.h"
#include "tests/support/TestDrive.h"

#include <QApplication>
#include <QComboBox>
#include <QMouseEvent>
#include <QPaintEvent>

#include <algorithm>

namespace {

QImage pictureOf(QWidget& view)
{
    return view.grab().toImage();
}

/// Where a view is of one colour, or of one like it.
QRect colored(QWidget& view, QColor color)
{
    const QImage picture = pictureOf(view);
    return extent(picture, picture.rect(), [=](const QColor& pixel) {
        return std::max({std::abs(pixel.red() - color.red()), std::abs(pixel.green() - color.green()),
                         std::abs(pixel.blue() - color.blue())}) < 60;
    });
}

/// The same but for a pixel at each side, which smooth edges may have.
bool isNear(const QRect& found, const QRect& expected)
{
    return expected.adjusted(-1, -1, 1, 1).contains(found) && found.contains(expected.adjusted(1, 1, -1, -1));
}

/// What of a widget is painted.
struct PaintedRegion : QObject
{
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            region |= static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }
    QRegion region;
};

} // namespace

TEST(Views, PaperLiesWhereItFits)
{
    DrawSurface surface;
    surface.Width = 1500; // 100 x 200 pixels
    surface.Height = 3000;
    SurfaceView view;
    view.resize(400, 300);
    view.setPlaceholder(QStringLiteral("nothing yet"));
    QPalette palette = view.palette();
    palette.setColor(QPalette::Mid, Qt::red);
    palette.setColor(QPalette::Window, Qt::green);
    view.setPalette(palette);
    view.show();
    QApplication::processEvents();
    using Fit = SurfaceView::Fit;
    const std::tuple<Fit, QRect, QRect, QColor> rows[] = {
        {Fit::NaturalSize, {0, 0, 100, 200}, {10, 20, 50, 40}, Qt::red},
        {Fit::WholePaper, {125, 0, 150, 300}, {140, 30, 75, 60}, Qt::green}};
    for (const auto& [fit, paper, box, around] : rows) {
        surface.Cls();
        view.setSurface(surface, fit);
        const QImage empty = pictureOf(view);
        EXPECT_TRUE(paper.adjusted(1, 1, -1, -1).contains(colored(view, Qt::darkGray))) << "the placeholder";
        surface.FilledBox(150, 300, 900, 900, qRgb(0, 0, 0));
        EXPECT_EQ(pictureOf(view), empty) << "what was painted is kept until it is refreshed";
        view.refresh();
        EXPECT_TRUE(isNear(colored(view, Qt::black), box)) << "and nothing of the placeholder";
        EXPECT_EQ(colored(view, around), view.rect());
        const QImage drawn = pictureOf(view);
        const QColor frame = fit == Fit::WholePaper ? Qt::red : Qt::white;
        const std::pair<QPoint, QColor> pixels[] = {{paper.center(), Qt::white},
                                                    {{paper.right() - 1, 150}, Qt::white},
                                                    {{paper.right() + 2, 150}, around},
                                                    {paper.topLeft(), frame}};
        for (const auto& [pixel, color] : pixels) {
            EXPECT_EQ(drawn.pixelColor(pixel), color) << pixel.x() << ' ' << pixel.y();
        }
    }
    view.resize(400, 150);
    EXPECT_TRUE(isNear(colored(view, Qt::black), {170, 15, 38, 30})) << "painted anew in another size";
    surface.Width = 22.4F;
    surface.Height = 1e9F;
    EXPECT_EQ(SurfaceView::paperPixels(surface), QSize(1, QWIDGETSIZE_MAX));
}

TEST(Views, AHighlightedLocalityIsFoundByAClick)
{
    TestSurvey survey;
    LocalityView view;
    view.resize(300, 400);
    view.setMap(survey.varn);
    view.show();
    QApplication::processEvents();
    std::vector<int> clicked;
    QObject::connect(&view, &LocalityView::localityClicked,
                     [&](int locality) { clicked.push_back(locality); });
    PaintedRegion painted;
    view.installEventFilter(&painted);
    QRect last;
    for (const int locality : {1, 2, 3}) {
        painted.region = {};
        view.highlight(locality);
        QApplication::processEvents();
        const QRegion repainted = painted.region;
        const QRect ring = colored(view, Qt::red);
        EXPECT_TRUE(isNear({ring.topLeft(), QSize(18, 18)}, ring));
        EXPECT_GE(ring.left(), last.left() + (last.isNull() ? 0 : 20)) << "the localities follow one another";
        EXPECT_TRUE(repainted.contains(ring.center()));
        EXPECT_TRUE(last.isNull() || repainted.contains(last.center())) << "the old place is cleared";
        EXPECT_FALSE(repainted.contains(view.rect().bottomLeft())) << "and nothing else painted";
        const QImage picture = pictureOf(view);
        EXPECT_EQ(picture.pixelColor(ring.center() + QPoint(2, 1)), Qt::red) << "a dot";
        EXPECT_NE(picture.pixelColor(ring.center() + QPoint(5, 0)), Qt::red) << "in a ring";
        for (const Qt::MouseButton button : {Qt::RightButton, Qt::LeftButton}) {
            const QPointF place(ring.center() + QPoint(8, -8));
            QMouseEvent press(QEvent::MouseButtonPress, place, view.mapToGlobal(place), button, button, {});
            QApplication::sendEvent(&view, &press);
        }
        last = ring;
    }
    EXPECT_EQ(clicked, std::vector({1, 2, 3}));
    for (const int none : {4, 0, -1}) {
        view.highlight(none);
        EXPECT_TRUE(colored(view, Qt::red).isEmpty()) << none;
    }
}

TEST(Views, AWordIsAsLargeAsItsFieldAllows)
{
    DrawnWord word;
    DrawSurface box;
    box.FilledBox(0, 0, 600, 300, qRgb(0, 0, 0));
    word.drawing = box.drawing();
    word.Width = 600;
    word.Height = 300;
    WordView view;
    const std::pair<QSize, QRect> rows[] = {{{200, 42}, {6, 6, 60, 30}}, {{42, 100}, {6, 42, 30, 15}}};
    for (const auto& [size, ink] : rows) {
        view.resize(size);
        view.setWord({});
        EXPECT_TRUE(colored(view, Qt::black).isEmpty());
        view.setWord(word);
        EXPECT_TRUE(isNear(colored(view, Qt::black), ink));
        EXPECT_EQ(pictureOf(view).pixel(0, 0), view.palette().color(QPalette::Mid).rgb()) << "a frame";
    }
    view.resize(10, 10);
    EXPECT_TRUE(colored(view, Qt::black).isEmpty()) << "no room";
}

TEST(Views, AColorListShowsItsColors)
{
    QComboBox box;
    box.addItem(QStringLiteral("old"));
    fillColorList(box);
    EXPECT_EQ(std::tuple(box.count(), box.currentIndex(), box.maxVisibleItems()), std::tuple(16, 0, 16));
    EXPECT_EQ(box.iconSize(), QSize(24, 14));
    for (int number = 0; number < box.count(); ++number) {
        EXPECT_EQ(box.itemText(number), standardColorNames()[number]);
        for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected}) {
            const QImage picture = box.itemIcon(number).pixmap(box.iconSize(), mode).toImage();
            EXPECT_EQ(picture.pixelColor(12, 7), QColor(QBColor(number))) << number;
            EXPECT_EQ(picture.pixelColor(0, 0), Qt::darkGray) << "its frame";
            EXPECT_EQ(picture.pixelColor(23, 13), Qt::darkGray);
        }
    }
}
