// The atlas window around its panes: menus and keys, output, other maps, what it says of itself.

#include "atlas/forms/AtlasCanvas.h"
#include "atlas/forms/AtlasMapView.h"
#include "atlas/forms/ItemsDialog.h"
#include "atlas/forms/OpenMapDialog.h"
#include "tests/support/PlainPdf.h"
#include "tests/support/TestProgram.h"

#include <QCheckBox>
#include <QClipboard>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QProgressDialog>
#include <QSettings>
#include <QSplitter>
#include <QTest>
#include <QTimer>
#include <QTreeView>

namespace {

/// The started program with the atlas window on a map of two items; the first has symbols.
class AtlasWindow : public StartedForms
{
protected:
    AtlasWindow()
    {
        survey.write(ling("snow.dbs"), "3,\"\",\"Snow\",\"\"\r\n1\r\n\"yuki\"\r\n0\r\n0\r\n");
        press<frmMain>("cmdAtlas");
        QApplication::processEvents();
    }

    static QString ling(const char* file) { return VarnPath + "\\VarnData\\Test\\Ling\\" + file; }
    static QAction& entry(const char* name) { return control<frmAtlas, QAction>(name); }
    static AtlasDocument& document() { return form<frmAtlas>().document(); }
    static AtlasMapView& map() { return *form<frmAtlas>().findChild<AtlasMapView*>(); }
    static void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
    {
        QTest::keyClick(&form<frmAtlas>(), key, modifiers);
    }
    template <typename Dialog>
    static Dialog& opened()
    {
        if (auto* dialog = form<frmAtlas>().findChild<Dialog*>()) {
            return *dialog;
        }
        throw std::logic_error(Dialog::staticMetaObject.className() + std::string(" is not open"));
    }
    /// Exports the items that the button `tick` ticks.
    static void exportItems(const char* tick)
    {
        entry("mnuExportAtlas").trigger();
        auto& dialog = opened<ItemsDialog>();
        child<QPushButton>(dialog, tick).click();
        child<QPushButton>(dialog, "cmdChoose").click();
    }
    void recaption(const char* caption)
    {
        SymbolRecords records = document().page().symbols;
        records.HankoCaption(1) = caption;
        document().setSymbols(records, "New Caption");
    }
    QByteArray written(const char* name) const
    {
        QFile file(survey.hostPath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

/// The texts of the labels in the window that are shown.
QString said()
{
    QStringList texts;
    for (const auto* label : form<frmAtlas>().findChildren<QLabel*>()) {
        if (label->isVisible()) {
            texts << label->text();
        }
    }
    return texts.join(QLatin1Char('\n'));
}

} // namespace

TEST_F(AtlasWindow, TellsWhatIsLoadedSelectedAndUnsavedAndTakesItBack)
{
    EXPECT_EQ(form<frmAtlas>().windowTitle(), "VARN Atlas - Test - Rain[*]");
    EXPECT_TRUE(said().contains("Item: rain (3 localities)")) << qPrintable(said());
    EXPECT_TRUE(said().contains("Symbols: rain.han (2)"));
    EXPECT_TRUE(said().contains("Nothing selected"));
    EXPECT_FALSE(entry("mnuSave").isEnabled());
    EXPECT_FALSE(entry("mnuUndo").isEnabled());

    recaption("drizzle");
    EXPECT_TRUE(form<frmAtlas>().isWindowModified());
    EXPECT_EQ(entry("mnuUndo").text(), "&Undo New Caption");
    EXPECT_EQ(entry("mnuUndo").iconText(), "Undo") << "the tool bar stays as wide";
    EXPECT_TRUE(said().contains("1 item not saved")) << qPrintable(said());
    key(Qt::Key_Z);
    EXPECT_EQ(document().page().symbols.HankoCaption(1), "AME");
    EXPECT_FALSE(form<frmAtlas>().isWindowModified());
    key(Qt::Key_Y);
    key(Qt::Key_S);
    EXPECT_FALSE(form<frmAtlas>().isWindowModified());
    EXPECT_TRUE(survey.read(ling("rain.han")).contains("drizzle"));
}

TEST_F(AtlasWindow, TheMapGoesToFilesAndToTheClipboard)
{
    recaption("drizzle");
    program.dialogs.savedFiles = {survey.hostPath("map.svg"), survey.hostPath("map.png"),
                                  survey.hostPath("map.gif")};
    program.dialogs.inputs = {"96"};
    key(Qt::Key_E);
    EXPECT_EQ(program.dialogs.proposals.back().name, "rain");
    EXPECT_TRUE(written("map.svg").contains("drizzle"));
    key(Qt::Key_E);
    EXPECT_EQ(QImage(survey.hostPath("map.png")).width(), 800);
    key(Qt::Key_E);
    ASSERT_EQ(program.dialogs.errors.size(), 1U) << "no such format";
    program.dialogs.errors.clear();

    QGuiApplication::clipboard()->clear();
    auto* canvas = map().findChild<AtlasCanvas*>();
    canvas->setFocus();
    QTest::keyClick(canvas, Qt::Key_C, Qt::ControlModifier);
    ASSERT_NE(QGuiApplication::clipboard()->mimeData(), nullptr);
    EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->hasImage());
    EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->data("image/svg+xml").contains("drizzle"));
}

TEST_F(AtlasWindow, PrintingShowsThePagesFirst)
{
    key(Qt::Key_P);
    auto& preview = opened<QPrintPreviewDialog>();
    QApplication::processEvents();
    EXPECT_TRUE(preview.isVisible());
    EXPECT_EQ(preview.printer()->docName(), "Test - rain");
    preview.close();
}

TEST_F(AtlasWindow, AnAtlasIsSavedOfTheItemsChosen)
{
    recaption("drizzle");
    program.dialogs.savedFiles = {survey.hostPath("all.pdf"), survey.hostPath("some.pdf")};
    exportItems("cmdAll");
    EXPECT_EQ(plain(written("all.pdf")).count("/Type /Page\n"), 2);
    EXPECT_EQ(program.dialogs.shown.back().text, "2 pages are saved.");
    survey.write(ling("broken.dbs"), "many");
    exportItems("cmdWithSymbols");
    EXPECT_EQ(plain(written("some.pdf")).count("/Type /Page\n"), 1);
    EXPECT_EQ(program.dialogs.errors, std::vector<Shown>());
}

TEST_F(AtlasWindow, AnAtlasIsOfTheKindOfMapThatIsShown)
{
    const auto firstPage = [&](const char* kind, const char* map) {
        if (*kind != 0) {
            entry(kind).trigger();
        }
        program.dialogs.savedFiles = {survey.hostPath("page.pdf")};
        entry("mnuExportAtlas").trigger();
        auto& dialog = opened<ItemsDialog>();
        EXPECT_EQ(dialog.findChild<QLabel*>()->text(),
                  QStringLiteral("A PDF with %1 of each of these &items:").arg(map));
        child<QPushButton>(dialog, "cmdWithSymbols").click();
        child<QPushButton>(dialog, "cmdChoose").click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return shapesOf(written("page.pdf"), 0);
    };
    document().setWords({{2, {"uyu"}}}, "Words"); // neighbours that differ, not saved yet
    const auto symbols = firstPage("", "the linguistic map");
    const auto areas = firstPage("mnuKindAreasoftheItem", "the areas");
    EXPECT_TRUE(areas.value(0).painting.startsWith("f") && symbols.value(0).painting.startsWith("S"))
        << "they lie under lines";
    control<frmAtlas, QCheckBox>("chkWithSymbols").click();
    EXPECT_GT(firstPage("", "the areas").size(), areas.size());
    const auto isoglosses = firstPage("mnuKindIsoglossesoftheItem", "the isoglosses");
    EXPECT_EQ(countOf(isoglosses, "S 0.698"), 2) << "a red line and its sample";
    EXPECT_TRUE(isoglosses.contains(symbols.value(0)));
    EXPECT_TRUE(firstPage("mnuKindGroupsofLocalities", "the linguistic map") == symbols);
    EXPECT_EQ(program.dialogs.errors, std::vector<Shown>());
}

TEST_F(AtlasWindow, AStoppedAtlasLeavesNoFile)
{
    for (int i = 0; i < 40; ++i) {
        survey.write(ling(qPrintable(QStringLiteral("more%1.dbs").arg(i))), survey.read(ling("rain.dbs")));
    }
    program.dialogs.savedFiles = {survey.hostPath("all.pdf")};
    bool isStopped = false;
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, [&] {
        if (auto* progress = form<frmAtlas>().findChild<QProgressDialog*>()) {
            progress->cancel();
            isStopped = true;
        }
    });
    user.start(0);
    exportItems("cmdAll");
    EXPECT_TRUE(isStopped);
    EXPECT_FALSE(QFile::exists(survey.hostPath("all.pdf")));
    EXPECT_EQ(program.dialogs.errors, std::vector<Shown>());
}

TEST_F(AtlasWindow, AnotherMapIsOpenedByTypingItsName)
{
    const QString data = VarnPath + "\\VarnData";
    survey.write(data + "\\Lakes\\Map\\Loc.map", "1\r\n5,5\r\n");
    survey.write(data + "\\Lava\\Map\\Loc.map", "many\r\n");
    key(Qt::Key_O);
    auto& dialog = opened<OpenMapDialog>();
    auto& maps = child<QTreeView>(dialog, "tblMaps");
    const QAbstractItemModel& rows = *maps.model();
    EXPECT_EQ(rows.rowCount(), 3);
    EXPECT_EQ(maps.currentIndex().data().toString(), "Test");
    EXPECT_EQ(maps.currentIndex().siblingAtColumn(1).data().toInt(), 2);
    QTest::keyClicks(&child<QLineEdit>(dialog, "txtFilter"), "la");
    EXPECT_EQ(rows.rowCount(), 2);
    QTest::keyClick(&child<QLineEdit>(dialog, "txtFilter"), Qt::Key_Down);
    EXPECT_EQ(maps.currentIndex().data().toString(), "Lava");
    EXPECT_FALSE(maps.currentIndex().siblingAtColumn(3).data().toString().isEmpty()) << "it says why";
    QTest::keyClick(&child<QLineEdit>(dialog, "txtFilter"), Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible()) << "a broken map cannot be opened";
    QTest::keyClick(&child<QLineEdit>(dialog, "txtFilter"), Qt::Key_Up);
    QTest::keyClick(&child<QLineEdit>(dialog, "txtFilter"), Qt::Key_Return);
    EXPECT_EQ(program.varn.VarnMapName, "\\Lakes");
    EXPECT_TRUE(survey.read(MapNameFile).contains("Lakes")) << "for the next start, too";
    EXPECT_EQ(form<frmAtlas>().windowTitle(), "VARN Atlas - Lakes[*]");
    EXPECT_TRUE(said().contains("The map Lakes has no items yet."));
    entry("mnuInputData").trigger();
    EXPECT_TRUE(form<frmDataInput>().isVisible());
}

TEST_F(AtlasWindow, MapsOfTheTableTakeThePlaceOfTheItemsUntilAPageIsTurned)
{
    EXPECT_FALSE(entry("mnuKindBarsofOneWordForm").isEnabled()) << "there is no table";
    survey.write(ling("all.ttl"),
                 "2,5,\"the caption\"\r\n\"one\"\r\n12,9\r\n\"kept\",3\r\n\"two\"\r\n0,15\r\n2.5,0\r\n"
                 "1,2\r\n3,2\r\n5,4\r\n");
    press<frmMain>("cmdSumUp");
    program.dialogs.files = {survey.drive().hostPath(ling("all.ttl"))};
    trigger<frmCalc>("mnuFileOpen");
    QEvent activated(QEvent::WindowActivate);
    QApplication::sendEvent(&form<frmAtlas>(), &activated);
    form<frmAtlas>().refresh();
    entry("mnuKindBarsofOneWordForm").trigger();
    EXPECT_TRUE(wasPrinted(map().drawing(), "one")) << "the first word form";
    EXPECT_FALSE(wasPrinted(map().drawing(), "AME"));
    EXPECT_TRUE(said().contains("Bars of One Word Form: 2 word forms over 5 items")) << qPrintable(said());
    for (auto* menu : form<frmAtlas>().findChildren<QMenu*>()) {
        if (menu->title() == "&Word Form") {
            Q_EMIT menu->aboutToShow();
            ASSERT_EQ(menu->actions().size(), 2);
            menu->actions().at(1)->trigger();
        }
    }
    EXPECT_TRUE(wasPrinted(map().drawing(), "two"));
    document().turnTo(ling("snow.dbs"));
    EXPECT_TRUE(wasPrinted(map().drawing(), "Snow"));
    EXPECT_TRUE(entry("mnuKindLinguisticMap").isChecked());
}

TEST_F(AtlasWindow, ComesBackWithThePanesAndLayersAsTheyWereLeft)
{
    entry("actDots").trigger();
    entry("actNames").trigger();
    auto& panes = *form<frmAtlas>().findChild<QSplitter*>();
    panes.setSizes({100, 400, 200});
    const QList<int> sizes = panes.sizes();
    form<frmAtlas>().hide();
    frmAtlas again(program.varn, program.dialogs);
    again.show();
    QApplication::processEvents();
    EXPECT_EQ(again.findChild<QSplitter*>()->sizes(), sizes);
    EXPECT_FALSE(again.findChild<QAction*>("actDots")->isChecked());
    EXPECT_TRUE(again.findChild<QAction*>("actNames")->isChecked());
    EXPECT_TRUE(again.findChild<QAction*>("actLegend")->isChecked());
    again.hide();
    QSettings(QSettings::IniFormat, QSettings::UserScope, "varn", "atlas").clear(); // for other tests
}
