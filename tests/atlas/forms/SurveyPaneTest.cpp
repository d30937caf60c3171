// Maps of the survey as a whole in the atlas window: their settings, their locality, their files.

#include "atlas/forms/SurveyPane.h"

#include "atlas/forms/AtlasMapView.h"
#include "atlas/forms/ItemsDialog.h"
#include "tests/support/TestProgram.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QListView>
#include <QListWidget>
#include <QSpinBox>
#include <QTableView>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>

namespace {

/// The started program with the atlas window on a map of two items.
class SurveyMapsOfWindow : public StartedForms
{
protected:
    SurveyMapsOfWindow()
    {
        survey.write(ling("snow.dbs"),
                     "3,\"\",\"Snow\",\"\"\r\n1\r\n\"yuki\"\r\n1\r\n\"yuki\"\r\n1\r\n\"hyo\"\r\n");
        press<frmMain>("cmdAtlas");
        QApplication::processEvents();
    }

    static QString ling(const char* file) { return VarnPath + "\\VarnData\\Test\\Ling\\" + file; }
    template <typename Control>
    static Control& pane(const char* name)
    {
        return control<frmAtlas, Control>(name);
    }
    /// Shows a map of that kind, and waits until it is there.
    static void show(const char* entry)
    {
        trigger<frmAtlas>(entry);
        wait();
    }
    static void wait()
    {
        EXPECT_TRUE(QTest::qWaitFor([] { return pane<QWidget>("cmdStop").isHidden(); }, 30000));
    }
    static QString texts()
    {
        QString all;
        const Drawing drawing = form<frmAtlas>().findChild<AtlasMapView*>()->drawing();
        for (const QString& text : drawing.texts) {
            all += text + '\n';
        }
        return all;
    }
    static void choose(const char* box, int row)
    {
        pane<QComboBox>(box).setCurrentIndex(row);
        Q_EMIT pane<QComboBox>(box).activated(row);
        wait();
    }
};

} // namespace

TEST_F(SurveyMapsOfWindow, HaveTheirSettingsBesideThem)
{
    EXPECT_FALSE(form<frmAtlas>().findChild<SurveyPane*>()->isVisible());
    pane<QSpinBox>("spnGroups").setValue(2);
    show("mnuKindGroupsofLocalities");
    EXPECT_TRUE(texts().contains("2 groups by Ward's method\nrelative identity values over 2 items"))
        << qPrintable(texts());
    EXPECT_TRUE(pane<QLabel>("lblNotes").text().contains("Local incoherence"))
        << "how far they can be trusted";
    EXPECT_EQ(pane<QComboBox>("cboGroup").count(), 2);
    const QAbstractItemModel& marks = *pane<QTableView>("tblMarks").model();
    EXPECT_EQ(marks.rowCount(), 3) << "ame, uyu and yuki";
    choose("cboMarksBy", 1);
    EXPECT_EQ(marks.headerData(3, Qt::Horizontal), "Score");
    choose("cboMarksBy", 0);
    EXPECT_EQ(marks.rowCount(), 3);
    EXPECT_FALSE(pane<QComboBox>("cboClasses").isVisible()) << "of another kind of map";
    choose("cboMethod", 0);
    EXPECT_TRUE(texts().contains("single linkage"));
    choose("cboMeasure", 2);
    EXPECT_TRUE(texts().contains("Levenshtein distances over 2 items"));
    pane<QCheckBox>("chkVowels").click();
    wait();
    EXPECT_TRUE(texts().contains("vowels apart"));
    pane<QSpinBox>("spnGroups").setValue(9);
    wait();
    EXPECT_TRUE(pane<QLabel>("lblNotes").text().contains("9 groups cannot be made"));

    form<frmAtlas>().document().turnTo(ling("snow.dbs"));
    EXPECT_TRUE(texts().contains("Snow")) << "a page is of an item";
    EXPECT_FALSE(form<frmAtlas>().findChild<SurveyPane*>()->isVisible());
    show("mnuKindAreasoftheItem");
    EXPECT_TRUE(pane<QCheckBox>("chkWithSymbols").isVisible());
    form<frmAtlas>().document().turnTo(ling("rain.dbs"));
    EXPECT_TRUE(pane<QCheckBox>("chkWithSymbols").isVisible()) << "areas of the next item";
    EXPECT_TRUE(texts().contains("AME"));
}

TEST_F(SurveyMapsOfWindow, FollowTheLocalityThatIsChosen)
{
    show("mnuKindDistancestoaLocality");
    EXPECT_TRUE(texts().contains("Distance to locality 1"));
    form<frmAtlas>().selection().setLocalities({3});
    wait();
    EXPECT_TRUE(texts().contains("Distance to locality 3"));
    EXPECT_EQ(pane<QComboBox>("cboLocality").currentIndex(), 2);
    choose("cboLocality", 1);
    EXPECT_TRUE(texts().contains("Distance to locality 2"));
    EXPECT_EQ(form<frmAtlas>().selection().localities(), std::set<int>{2}) << "the same everywhere";
    show("mnuKindBeamsbetweenNeighbours");
    form<frmAtlas>().selection().setLocalities({3});
    show("mnuKindDistancestoaLocality");
    EXPECT_TRUE(texts().contains("Distance to locality 3")) << "chosen before";
}

TEST_F(SurveyMapsOfWindow, AreExportedByTheNameOfWhatTheyShow)
{
    program.dialogs.savedFiles = {std::nullopt, std::nullopt};
    show("mnuKindAreasoftheItem");
    trigger<frmAtlas>("mnuExportMap");
    show("mnuKindBeamsbetweenNeighbours");
    trigger<frmAtlas>("mnuExportMap");
    ASSERT_EQ(program.dialogs.proposals.size(), 2U);
    EXPECT_EQ(program.dialogs.proposals[0].name, "rain - Areas of the Item");
    EXPECT_EQ(program.dialogs.proposals[1].name, "Beams between Neighbours");
}

TEST_F(SurveyMapsOfWindow, CanBeStoppedAndGoOn)
{
    trigger<frmAtlas>("mnuKindBeamsbetweenNeighbours");
    pane<QToolButton>("cmdStop").click();
    wait();
    EXPECT_FALSE(texts().contains("Neighbours"));
    EXPECT_TRUE(pane<QLabel>("mapMessage").text().startsWith("Stopped"));
    EXPECT_TRUE(pane<QToolButton>("cmdGoOn").isVisible());
    pane<QToolButton>("cmdGoOn").click();
    wait();
    EXPECT_TRUE(texts().contains("Neighbours"));
    EXPECT_FALSE(pane<QToolButton>("cmdGoOn").isVisible());
}

TEST_F(SurveyMapsOfWindow, StayUntilAnItemIsChosen)
{
    form<frmAtlas>().document().turnTo(ling("rain.dbs"));
    show("mnuKindBeamsbetweenNeighbours");
    survey.write(ling("rain.dbs"),
                 "3,\"\",\"Hail\",\"\"\r\n1\r\n\"ame\"\r\n1\r\n\"ame\"\r\n1\r\n\"hyo\"\r\n");
    form<frmAtlas>().document().readChanged();
    wait();
    EXPECT_EQ(form<frmAtlas>().document().page().item.Hanrei, "Hail");
    EXPECT_TRUE(texts().contains("Neighbours")) << "another program changed the item";
    auto& items = pane<QListView>("lstItems");
    Q_EMIT items.clicked(items.currentIndex());
    EXPECT_TRUE(texts().contains("Hail")) << "the item is its own map, also where it was the page before";
}

TEST_F(SurveyMapsOfWindow, ScrollWithoutBeingChanged)
{
    show("mnuKindGroupsofLocalities");
    auto& groups = pane<QSpinBox>("spnGroups");
    const int before = groups.value();
    const auto turnWheel = [&groups] {
        const QPointF middle = QRectF(groups.rect()).center();
        QWheelEvent turn(middle, groups.mapToGlobal(middle), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(&groups, &turn);
    };
    turnWheel();
    EXPECT_EQ(groups.value(), before);
    groups.setFocus();
    turnWheel();
    EXPECT_EQ(groups.value(), before + 1) << "it has the focus";
    wait();
}

TEST_F(SurveyMapsOfWindow, GiveTheirRoomBack)
{
    auto& records = pane<QWidget>("tblRecords");
    const int before = records.height();
    EXPECT_GT(before, 0);
    show("mnuKindBeamsbetweenNeighbours");
    EXPECT_FALSE(records.isVisible());
    show("mnuKindAreasoftheItem");
    EXPECT_GT(records.height(), 0);
    show("mnuKindBeamsbetweenNeighbours");
    show("mnuKindLinguisticMap");
    QApplication::processEvents();
    EXPECT_TRUE(records.isVisible());
    EXPECT_NEAR(records.height(), before, 5);
}

TEST_F(SurveyMapsOfWindow, OfferTheLayersThatTheyHave)
{
    const auto enabled = [] {
        QStringList names;
        for (const QAction* layer : form<frmAtlas>().findChild<AtlasMapView*>()->layerActions()) {
            if (layer->isEnabled()) {
                names << layer->objectName();
            }
        }
        return names;
    };
    const QStringList ofLocalities = {"actDots", "actNoLabels", "actNumbers", "actNames"};
    EXPECT_EQ(enabled().size(), 7);
    show("mnuKindBeamsbetweenNeighbours");
    EXPECT_EQ(enabled(), ofLocalities);
    show("mnuKindDistancesandKilometres");
    EXPECT_EQ(enabled(), QStringList());
    show("mnuKindLinguisticMap");
    EXPECT_EQ(enabled().size(), 7);
}

TEST_F(SurveyMapsOfWindow, AreOfTheItemsOrTheFileThatAreChosen)
{
    show("mnuKindBeamsbetweenNeighbours");
    pane<QPushButton>("cmdItems").click();
    auto& dialog = *form<frmAtlas>().findChild<ItemsDialog*>();
    child<QListWidget>(dialog, "lstItems").item(0)->setCheckState(Qt::Unchecked);
    EXPECT_EQ(child<QPushButton>(dialog, "cmdChoose").text(), "&Compare by 1 Item");
    child<QPushButton>(dialog, "cmdChoose").click();
    wait();
    EXPECT_TRUE(texts().contains("over 1 item"));

    program.dialogs.savedFiles = {survey.hostPath("distances.csv")};
    pane<QPushButton>("cmdSaveDistances").click();
    EXPECT_TRUE(survey.read("C:\\distances.csv").startsWith("\"\",\"1\",\"2\",\"3\"\r\n\"1\",0,0,1\r\n"))
        << survey.read("C:\\distances.csv").constData();
    program.dialogs.files = {survey.hostPath("distances.csv")};
    pane<QPushButton>("cmdOpenDistances").click();
    wait();
    EXPECT_TRUE(texts().contains("Neighbours\ndistances"));
    EXPECT_TRUE(pane<QLabel>("lblCompared").text().contains("distances.csv"));
    EXPECT_FALSE(pane<QComboBox>("cboMeasure").isEnabled());
    show("mnuKindGroupsofLocalities");
    EXPECT_FALSE(pane<QTableView>("tblMarks").isVisible()) << "a file has no word forms";
    show("mnuKindIsoglossesofManyItems");
    EXPECT_TRUE(pane<QComboBox>("cboAnswers").isEnabled()) << "isoglosses are of items";
    EXPECT_EQ(pane<QLabel>("lblCompared").text(), "Answers to 1 item");
}

/// Rows come and go; each that can be seen has its full height, whatever was shown before.
TEST_F(SurveyMapsOfWindow, ShowTheControlsOfTheirKindInFull)
{
    pane<QSpinBox>("spnGroups").setValue(2);
    const QStringList source = {"lblCompared", "cboAnswers"};
    const QStringList distances = source + QStringList{"cboMeasure", "chkVowels"};
    const QStringList tree = distances + QStringList{"cboMethod", "spnGroups"};
    const std::vector<std::pair<const char*, QStringList>> kinds = {
        {"mnuKindGroupsofLocalities", tree + QStringList{"spnNoise", "chkHatched", "chkGroupSymbols",
                                                         "chkTree", "cboGroup", "cboMarksBy", "tblMarks"}},
        {"mnuKindIsoglossesofManyItems", source + QStringList{"chkSmooth", "chkNumbers"}},
        {"mnuKindDistancestoaLocality", distances + QStringList{"cboLocality", "cboClasses", "chkHatched"}},
        {"mnuKindBeamsbetweenNeighbours", distances},
        {"mnuKindTreeofLocalities", tree + QStringList{"chkHatched"}},
        {"mnuKindAreasoftheItem", {"chkHatched", "chkWithSymbols"}},
        {"mnuKindPlotbyScaling", tree},
        {"mnuKindIsoglossesoftheItem", {"chkSmooth"}}};
    QStringList all;
    for (const auto& [entry, shown] : kinds) {
        all += shown;
    }
    all.removeDuplicates();
    for (const auto& [entry, shown] : kinds) {
        show(entry);
        QApplication::processEvents();
        for (const QString& name : std::as_const(all)) {
            const auto& row = pane<QWidget>(qPrintable(name));
            EXPECT_EQ(row.isVisible(), shown.contains(name)) << entry << ' ' << qPrintable(name);
            EXPECT_TRUE(row.isHidden() || row.height() >= row.minimumSizeHint().height())
                << entry << ' ' << qPrintable(name);
        }
    }
    show("mnuKindGroupsofLocalities");
    pane<QDoubleSpinBox>("spnNoise").setValue(0.5);
    wait();
    EXPECT_GE(pane<QSpinBox>("spnSeed").height(), pane<QSpinBox>("spnSeed").minimumSizeHint().height());
}
