// The map of the atlas window under the mouse, the wheel and the keys.

#include "atlas/forms/AtlasMapView.h"

#include "atlas/AtlasDocument.h"
#include "atlas/AtlasSelection.h"
#include "atlas/forms/AtlasCanvas.h"
#include "tests/support/Controls.h"
#include "tests/support/TestDrive.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QWheelEvent>

namespace {

using Numbers = std::set<int>;

/// The map of an item with two kinds, one of them at locality 2 only; no symbols for the other item.
class AtlasMap : public testing::Test
{
protected:
    AtlasMap()
    {
        survey.write(ling + "rain.dbs",
                     "3,\"\",\"Rain\",\"\"\r\n2\r\n\"ame\"\r\n\"uyu\"\r\n1\r\n\"uyu\"\r\n0\r\n");
        survey.write(ling + "rain.han", "\"\"\r\n2\r\n\"ame\",\"AME\"\r\n49\r\n0\r\n0\r\n1\r\n1\r\n1\r\n"
                                        "\"uyu\",\"UYU\"\r\n49\r\n4\r\n0\r\n0\r\n1\r\n1\r\n");
        survey.write(ling + "snow.dbs", "3,\"\",\"Snow\",\"\"\r\n0\r\n0\r\n1\r\n\"yuki\"\r\n");
        varn.localityNames = {{"a", "Amele", 0, 0}, {"b", "Ueno", 0, 0}, {"c", "Ci", 0, 0}};
        document.restart();
        document.turnTo(ling + "rain.dbs");
        view.resize(900, 700);
        view.show();
        QApplication::processEvents();
        QObject::connect(&view, &AtlasMapView::localityHovered,
                         [this](const QString& text) { hover = text; });
    }

    QPointF place(int locality) { return canvas.placeOf(locality); }

    void mouse(QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons buttons,
               Qt::KeyboardModifiers keys = {})
    {
        QMouseEvent event(type, at, canvas.mapToGlobal(at), button, buttons, keys);
        QApplication::sendEvent(&canvas, &event);
    }
    void point(QPointF at) { mouse(QEvent::MouseMove, at, Qt::NoButton, Qt::NoButton); }
    void press(QPointF at, Qt::KeyboardModifiers keys = {})
    {
        mouse(QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton, keys);
    }
    void release(QPointF at, Qt::KeyboardModifiers keys = {})
    {
        mouse(QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton, keys);
    }
    void click(QPointF at, Qt::KeyboardModifiers keys = {})
    {
        press(at, keys);
        release(at, keys);
    }
    void drag(QPointF from, QPointF to, Qt::KeyboardModifiers keys = {})
    {
        press(from, keys);
        mouse(QEvent::MouseMove, (from + to) / 2, Qt::NoButton, Qt::LeftButton, keys);
        mouse(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, keys);
        release(to, keys);
    }
    void wheel(QPointF at, int notches,
               const QPointingDevice* device = QPointingDevice::primaryPointingDevice())
    {
        QWheelEvent event(at, canvas.mapToGlobal(at), {}, {0, 120 * notches}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false, Qt::MouseEventNotSynthesized, device);
        QApplication::sendEvent(&canvas, &event);
    }
    static void key(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers keys = {})
    {
        QKeyEvent event(QEvent::KeyPress, key, keys);
        QApplication::sendEvent(&widget, &event);
    }
    void choose(const char* action) { child<QAction>(view, action).trigger(); }
    QString message() { return child<QLabel>(view, "mapMessage").text(); }
    QWidget& card() { return child<QWidget>(view, "hoverCard"); }
    static void expectNear(QPointF a, QPointF b)
    {
        EXPECT_NEAR(a.x(), b.x(), 1) << a.y();
        EXPECT_NEAR(a.y(), b.y(), 1) << a.x();
    }
    double radius() { return operationsOf<EllipseOperation>(canvas.map().drawing).back().halfWidth; }

    const QString ling = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Ling\\");
    TestSurvey survey;
    VarnModule& varn = survey.varn;
    AtlasDocument document{varn};
    AtlasSelection selection;
    AtlasMapView view{varn, document, selection};
    AtlasCanvas& canvas = child<AtlasCanvas>(view, "map");
    QString hover;
};

} // namespace

TEST_F(AtlasMap, IsZoomedAndMovedByMouseAndKeys)
{
    const QPointF second = place(2);
    const QPointF first = place(1);
    wheel(second, 4);
    expectNear(place(2), second);
    EXPECT_GT(QPointF(second - place(1)).manhattanLength(), 2.3 * (second - first).manhattanLength());
    drag(second + QPointF(80, -90), second + QPointF(110, -50));
    expectNear(place(2), second + QPointF(30, 40));
    EXPECT_EQ(selection.localities(), Numbers()) << "a drag is no click";
    const std::pair<Qt::Key, QPointF> keys[] = {
        {Qt::Key_Left, {60, 0}}, {Qt::Key_Right, {-60, 0}}, {Qt::Key_Up, {0, 60}}, {Qt::Key_Down, {0, -60}}};
    for (const auto& [arrow, by] : keys) {
        const QPointF before = place(2);
        key(canvas, arrow);
        expectNear(place(2), before + by);
    }
    const double zoom = canvas.viewport().zoom();
    key(canvas, Qt::Key_Plus);
    key(canvas, Qt::Key_Minus);
    key(canvas, Qt::Key_Minus);
    EXPECT_NEAR(canvas.viewport().zoom(), zoom / 1.25, 1e-9);
    choose("actFit");
    expectNear(place(1), first);
    choose("actZoomIn");
    EXPECT_GT(canvas.viewport().zoom(), 1);
    mouse(QEvent::MouseButtonDblClick, place(3) + QPointF(70, 5), Qt::LeftButton, Qt::LeftButton);
    expectNear(place(1), first);

    const QPointingDevice pad(QStringLiteral("pad"), 7, QInputDevice::DeviceType::TouchPad,
                              QPointingDevice::PointerType::Finger, QInputDevice::Capability::Scroll, 2, 0);
    wheel(second, -1, &pad);
    expectNear(place(1), first + QPointF(0, -60));
    EXPECT_EQ(canvas.viewport().zoom(), 1) << "two fingers move the map";
}

TEST_F(AtlasMap, SymbolsKeepTheirSizeOrGrow)
{
    const QPointF first = place(1);
    const double shownRadius = radius() * canvas.viewport().scale();
    wheel(first, 5);
    EXPECT_NEAR(radius() * canvas.viewport().scale() / canvas.map().zoom, shownRadius, 1e-6);
    choose("actKeepSize");
    EXPECT_EQ(canvas.map().zoom, 1);
    EXPECT_NEAR(radius() * canvas.viewport().scale(), shownRadius * canvas.viewport().zoom(), 1e-6);
    expectNear(place(1), first);
    EXPECT_EQ(view.drawing().operations.size(), canvas.map().drawing.operations.size());
    EXPECT_EQ(view.paperSize(), QSizeF(12000, 9000));
}

TEST_F(AtlasMap, APointedLocalityTellsItsWordForms)
{
    point(place(1) + QPointF(3, 3));
    EXPECT_EQ(hover, "1 Amele: ame, uyu");
    EXPECT_TRUE(card().isVisible());
    EXPECT_EQ(card().accessibleDescription(), hover);
    EXPECT_TRUE(canvas.rect().contains(card().geometry()));
    EXPECT_FALSE(card().geometry().contains(place(1).toPoint()));
    const QImage first = card().grab().toImage();
    point(place(3));
    EXPECT_EQ(hover, "3 Ci") << "without a word form";
    EXPECT_NE(card().grab().toImage(), first);
    point(place(3) + QPointF(60, 60));
    EXPECT_EQ(hover, "");
    EXPECT_FALSE(card().isVisible());
    point(place(2));
    wheel(place(2), 1);
    EXPECT_FALSE(card().isVisible());
    point(place(2) + QPointF(1, 0));
    EXPECT_TRUE(card().isVisible()) << "again, the map was zoomed meanwhile";
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&canvas, &leave);
    EXPECT_FALSE(card().isVisible());
}

TEST_F(AtlasMap, LocalitiesAreSelectedByClicksAndARubberBand)
{
    click(place(1));
    EXPECT_EQ(selection.localities(), Numbers{1});
    click(place(3), Qt::ControlModifier);
    EXPECT_EQ(selection.localities(), (Numbers{1, 3}));
    click(place(1), Qt::ControlModifier);
    EXPECT_EQ(selection.localities(), Numbers{3});
    drag(place(1) - QPointF(30, 30), place(2) + QPointF(30, 30), Qt::ShiftModifier);
    EXPECT_EQ(selection.localities(), (Numbers{1, 2}));
    drag(place(3) - QPointF(30, 30), place(3) + QPointF(30, 30), Qt::ControlModifier);
    EXPECT_EQ(selection.localities(), (Numbers{1, 2, 3}));

    const QImage marked = canvas.grab().toImage();
    selection.setLocalities({1});
    EXPECT_NE(canvas.grab().toImage(), marked) << "marks follow the selection of other views";
    selection.setRecords({1});
    const QImage faded = canvas.grab().toImage();
    const QPoint ring = (place(2) + QPointF(radius() * canvas.viewport().scale(), 0)).toPoint();
    EXPECT_GT(qGray(faded.pixel(ring)), qGray(marked.pixel(ring))) << "the ring of the other record";
    click(place(3) + QPointF(60, 60));
    EXPECT_EQ(selection.localities(), Numbers());
    EXPECT_EQ(selection.records(), Numbers());
}

TEST_F(AtlasMap, FindGoesFromOneLocalityToTheNext)
{
    for (int i = 0; i < 12; ++i) {
        wheel(place(3), 1);
    }
    EXPECT_FALSE(canvas.rect().contains(place(2).toPoint()));
    choose("actFind");
    auto& box = child<QLineEdit>(view, "txtFind");
    auto& hit = child<QLabel>(view, "lblHit");
    EXPECT_TRUE(box.isVisible());
    box.setText("U");
    EXPECT_EQ(hit.text(), "1 of 2");
    EXPECT_EQ(selection.localities(), Numbers{2}) << "by its name, before the word form";
    EXPECT_TRUE(canvas.rect().contains(place(2).toPoint()));
    EXPECT_EQ(hover, "2 Ueno: uyu");
    const std::pair<Qt::KeyboardModifier, int> steps[] = {
        {Qt::NoModifier, 1}, {Qt::NoModifier, 2}, {Qt::ShiftModifier, 1}};
    for (const auto& [modifier, locality] : steps) {
        key(box, Qt::Key_Return, modifier);
        EXPECT_EQ(selection.localities(), Numbers{locality});
    }
    box.setText("3");
    EXPECT_EQ(selection.localities(), Numbers{3});
    box.setText("nowhere");
    EXPECT_EQ(hit.text(), "Not found");
    key(box, Qt::Key_Escape);
    EXPECT_FALSE(box.isVisible());
    Q_EMIT selection.localitySought(1);
    EXPECT_TRUE(canvas.rect().contains(place(1).toPoint()));
    for (const int none : {99, 0}) {
        selection.setLocalities({none});
        Q_EMIT selection.localitySought(none);
        canvas.grab();
    }
    EXPECT_EQ(hover, "1 Amele: ame, uyu");
}

TEST_F(AtlasMap, TheLegendIsDraggedUndoneAndSaved)
{
    const QPointF before = document.legendPlace();
    const QRectF box = canvas.legendRectangle();
    const QPointF town = printedAt(canvas.map().drawing, "Town");
    drag(box.center(), box.center() + QPointF(200, 150));
    expectNear(canvas.legendRectangle().topLeft(), box.topLeft() + QPointF(200, 150));
    EXPECT_EQ(printedAt(canvas.map().drawing, "Town"), town);
    EXPECT_TRUE(document.isLegendPlaceUnsaved());
    document.save();
    EXPECT_FALSE(survey.read("C:\\Varn62E\\Varn\\VarnData\\Test\\Map\\kanji.map").contains("20,30.5"));
    document.steps().undo();
    EXPECT_NEAR(document.legendPlace().y(), before.y(), 1);
    expectNear(canvas.legendRectangle().topLeft(), box.topLeft());

    press(box.center());
    mouse(QEvent::MouseMove, box.center() + QPointF(90, 90), Qt::NoButton, Qt::LeftButton);
    key(canvas, Qt::Key_Escape);
    release(box.center() + QPointF(90, 90));
    expectNear(canvas.legendRectangle().topLeft(), box.topLeft());

    document.setLegendPlace({100, 200}); // on locality 1
    choose("actFreePlace");
    for (const int locality : {1, 2, 3}) {
        EXPECT_FALSE(canvas.legendRectangle().contains(place(locality))) << locality;
    }
}

TEST_F(AtlasMap, ALegendIsMovedOnAMapWithoutPlaceNames)
{
    varn.NKanji = 0; // the scale bar is the first entry then
    varn.KanjiXY(1, 0) = 100;
    varn.KanjiXY(1, 1) = 900;
    document.setLegendPlace({300.5, 1e9});
    EXPECT_EQ(document.legendPlace(), QPointF(300.5, 32767)) << "as far as a file can say";
    EXPECT_EQ(std::tuple(varn.NKanji, varn.KanjiText(1)), std::tuple(1, QString()));
    EXPECT_EQ(QPointF(varn.KanjiXY(2, 0), varn.KanjiXY(2, 1)), QPointF(100, 900));
    EXPECT_TRUE(document.isLegendPlaceUnsaved());
}

TEST_F(AtlasMap, LayersAndStyleAreChosenByActions)
{
    const auto shows = [&](const char* text) { return wasPrinted(view.drawing(), text); };
    EXPECT_TRUE(shows("Town") && shows("UYU"));
    choose("actPlaceNames");
    choose("actLegend");
    choose("actNames");
    EXPECT_FALSE(shows("Town") || shows("UYU"));
    EXPECT_TRUE(shows("Ueno"));
    EXPECT_EQ(view.drawing().operations.size(), canvas.map().drawing.operations.size());
    choose("actPlace4");
    EXPECT_EQ(varn.HankoPosition, HankoDown);
    EXPECT_EQ(canvas.map().symbols.at(1).y, canvas.map().symbols.at(0).y + 80);
    choose("actWholeWordForms");
    EXPECT_TRUE(varn.WholeWordForms);
    varn.WholeWordForms = false; // another form did
    document.followSharedState();
    EXPECT_FALSE(child<QAction>(view, "actWholeWordForms").isChecked());
}

TEST_F(AtlasMap, FollowsThePageAndItsSymbols)
{
    SymbolRecords records = document.page().symbols;
    records.HankoWord(1) = "u";
    document.previewSymbols(records);
    EXPECT_EQ(canvas.map().symbols.size(), 4u) << "both records mark uyu now";
    document.endPreview();
    EXPECT_EQ(canvas.map().symbols.size(), 3u);
    document.setWords({{3, {"ame"}}}, "Edit");
    EXPECT_EQ(canvas.map().symbols.size(), 4u);
    EXPECT_EQ(message(), "");
    document.turnTo(ling + "snow.dbs");
    EXPECT_TRUE(canvas.map().symbols.empty());
    EXPECT_TRUE(message().contains("no symbols yet")) << qPrintable(message());
    EXPECT_TRUE(wasPrinted(canvas.map().drawing, "Snow"));
    document.steps().undo();
    EXPECT_EQ(canvas.map().symbols.size(), 3u) << "back on the other page";

    OtherMap other;
    other.draw = [](const LinguisticMapParts&, MapSurfaces on) { on.DrawTarget.PrintAt(0, 0, "other"); };
    view.setOtherMap(other);
    EXPECT_TRUE(wasPrinted(view.drawing(), "other"));
    EXPECT_FALSE(wasPrinted(view.drawing(), "Rain"));
    point(place(2));
    EXPECT_EQ(hover, "2 Ueno: uyu");
    other.draw = [](const LinguisticMapParts&, MapSurfaces) {
        throw RunTimeError(ErrorNumber::DivisionByZero, "no counts");
    };
    view.setOtherMap(other);
    EXPECT_TRUE(message().contains("no counts")) << qPrintable(message());
    view.setOtherMap({});
    EXPECT_TRUE(wasPrinted(view.drawing(), "Rain"));
}
