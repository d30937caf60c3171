// The lists of the atlas window: its items and its localities.

#include "atlas/AtlasItemTable.h"
#include "atlas/AtlasLocalityTable.h"
#include "atlas/forms/AtlasItemsPane.h"
#include "atlas/forms/frmAtlas.h"
#include "tests/atlas/AtlasItemFiles.h"
#include "tests/support/OneForm.h"

#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QTableView>

namespace {

class AtlasLists : public OneForm<frmAtlas>
{
protected:
    AtlasLists() { writeAtlasItems(survey); }

    void open()
    {
        form.Form_Load();
        form.show();
        readAll();
    }
    void readAll()
    {
        form.findChild<AtlasItemsPane*>()->refreshItems();
        QApplication::processEvents();
    }
    void bringToFront()
    {
        QEvent activated(QEvent::WindowActivate);
        QApplication::sendEvent(&form, &activated);
        QApplication::processEvents();
    }
    static void press(QWidget& widget, int key, const QString& text = {})
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
        QApplication::sendEvent(&widget, &event);
    }

    /// The items as they are listed: caption and line under it.
    QStringList items()
    {
        const QAbstractItemModel& model = *list().model();
        QStringList rows;
        for (int row = 0; row < model.rowCount(); ++row) {
            const QModelIndex index = model.index(row, 0);
            const QString trouble = index.data(AtlasItemTable::Trouble).toString();
            rows << (index.data(AtlasItemTable::IsUnsaved).toBool() ? "*" : "") + index.data().toString() +
                        '|' +
                        (trouble.isEmpty() ? index.data(AtlasItemTable::Figures).toString().simplified()
                                           : QStringLiteral("trouble"));
        }
        return rows;
    }
    /// The cells of the localities as they are listed.
    QStringList cells()
    {
        const QAbstractItemModel& model = *localities().model();
        QStringList rows;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model.columnCount(); ++column) {
                cells << model.index(row, column).data().toString();
            }
            rows << cells.join(',');
        }
        return rows;
    }
    /// Types `text` over the word form of a row and column as they are listed.
    void enter(int row, int word, const QString& text)
    {
        const QModelIndex cell = localities().model()->index(row, AtlasLocalityTable::FirstWord + word);
        localities().setCurrentIndex(cell);
        localities().edit(cell);
        auto& editor = dynamic_cast<QLineEdit&>(*localities().indexWidget(cell));
        editor.setText(text);
        press(editor, Qt::Key_Return);
        QApplication::processEvents();
    }
    QListView& list() { return control<QListView>("lstItems"); }
    QTableView& localities() { return control<QTableView>("tblLocalities"); }
    QString item() { return form.document().page().item.ItemFileName; }
    QString state(const char* label) { return control<QLabel>(label).text(); }
    AtlasSelection::Numbers selected() { return form.selection().localities(); }
};

} // namespace

TEST_F(AtlasLists, ItemsAreTurnedByKeysAndFiltered)
{
    open();
    EXPECT_EQ(items(), QStringList({"Rain|2 kinds · 2 of 3 · rain", "Snow|1 kind · 2 of 3 · snow"}));
    EXPECT_EQ(item(), "rain.dbs");
    press(list(), Qt::Key_Down);
    EXPECT_EQ(item() + varn.Hanrei, "snow.dbsSnow");
    press(list(), Qt::Key_Down);
    press(list(), Qt::Key_Up);
    EXPECT_EQ(item(), "rain.dbs");

    auto& box = control<QLineEdit>("txtItemFilter");
    box.setText("YUKI");
    EXPECT_EQ(items(), QStringList("Snow|1 kind · 2 of 3 · snow"));
    EXPECT_EQ(item(), "rain.dbs") << "the page stays while a text is typed";
    EXPECT_FALSE(list().currentIndex().isValid());
    press(box, Qt::Key_Down);
    EXPECT_EQ(item(), "snow.dbs");
    box.setText("rai");
    EXPECT_EQ(state("lblItems"), "1 of 2 items");
    EXPECT_EQ(item(), "snow.dbs");
    box.setText("none");
    EXPECT_EQ(state("lblItems"), "No item has this text. Empty the box to see all 2.");
    press(box, Qt::Key_Down);
    box.clear();
    EXPECT_EQ(list().currentIndex().row(), 1) << "the page is found again";
    form.findChild<AtlasItemsPane*>()->previousItem()->trigger();
    EXPECT_EQ(item(), "rain.dbs");
}

TEST_F(AtlasLists, BrokenItemsStandInTheListWithTheirReason)
{
    survey.write(ling("aaa.dbs"), "3,\"\",\"Broken\",\"\"\r\n1\r\n");
    survey.write(ling("snow.han"), "\"\"\r\n5\r\n");
    open();
    EXPECT_EQ(items(), QStringList({"aaa|trouble", "Rain|2 kinds · 2 of 3 · rain", "Snow|trouble"}));
    const QString told = list().model()->index(0, 0).data(Qt::AccessibleTextRole).toString();
    EXPECT_TRUE(told.contains("aaa.dbs") && told.contains("Input past end of file")) << qPrintable(told);
    EXPECT_TRUE(form.document().trouble().contains("Input past end of file")) << "it is the first page";
    press(list(), Qt::Key_Down);
    EXPECT_EQ(form.document().trouble(), "");
    EXPECT_EQ(varn.Hanrei, "Rain");

    survey.write(ling("aaa.dbs"), SnowItem);
    bringToFront();
    EXPECT_EQ(items()[0], "Snow|1 kind · 2 of 3 · aaa");
}

TEST_F(AtlasLists, ItemsComeAndGoAndFiguresFollowEdits)
{
    open();
    survey.write(ling("fog.dbs"), SnowItem);
    QFile::remove(survey.drive().hostPath(ling("snow.dbs")));
    QElapsedTimer time;
    for (time.start(); items().size() != 2 || items()[0] != "Snow|1 kind · 2 of 3 · fog";) {
        ASSERT_LT(time.elapsed(), 5000) << "nobody noticed";
        QApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 50);
    }
    EXPECT_EQ(list().currentIndex().row(), 1) << "the page stays the chosen row";
    form.document().setWords({{2, {"new", "newer"}}}, "Words");
    EXPECT_EQ(items()[1], "*Rain|4 kinds · 3 of 3 · rain");
    form.document().steps().undo();
    EXPECT_EQ(items()[1], "Rain|2 kinds · 2 of 3 · rain");
}

TEST_F(AtlasLists, AMapWithoutItemsSaysWhatToDo)
{
    QFile::remove(survey.drive().hostPath(ling("rain.dbs")));
    QFile::remove(survey.drive().hostPath(ling("snow.dbs")));
    open();
    EXPECT_TRUE(state("lblItems").contains("New Survey"));
    press(list(), Qt::Key_Down);
    EXPECT_FALSE(form.document().hasPage());
    EXPECT_EQ(cells(), QStringList({"1,,", "2,,", "3,,"}));
    varn.NLocality = 0;
    Q_EMIT form.document().baseMapChanged();
    EXPECT_EQ(state("lblLocalities"), "The map has no localities.");
}

TEST_F(AtlasLists, WordFormsAreEditedInPlaceAsSteps)
{
    open();
    EXPECT_EQ(cells(), QStringList({"1,,ame,uyu,", "2,,,,", "3,,uyu,,"}));
    EXPECT_TRUE(localities().isColumnHidden(AtlasLocalityTable::Name)) << "the map has no names";
    enter(1, 2, "ka\\N1a");
    EXPECT_EQ(cells()[1], "2,,ka\\N1a,,") << "there are no gaps";
    enter(1, 1, "\"\"");
    enter(0, 2, "third");
    EXPECT_EQ(cells(), QStringList({"1,,ame,uyu,third,", "2,,ka\\N1a,\"\",,", "3,,uyu,,,"}));
    EXPECT_EQ(varn.WordCount(2), 2);
    enter(0, 0, " ");
    EXPECT_EQ(cells()[0], "1,,uyu,third,");
    for (int step = 0; step < 4; ++step) {
        form.document().steps().undo();
    }
    EXPECT_EQ(cells(), QStringList({"1,,ame,uyu,", "2,,,,", "3,,uyu,,"}));
    EXPECT_FALSE(form.document().isUnsaved());

    localities().setCurrentIndex(localities().model()->index(0, AtlasLocalityTable::FirstWord));
    press(localities(), Qt::Key_U, "u");
    press(*localities().indexWidget(localities().currentIndex()), Qt::Key_Down);
    EXPECT_EQ(cells()[0], "1,,u,uyu,") << "typing replaces";
    EXPECT_EQ(localities().currentIndex().row(), 1);
    EXPECT_NE(localities().indexWidget(localities().currentIndex()), nullptr) << "an arrow key goes on below";
    form.save();

    survey.write(ling("few.dbs"), "2,\"\",\"Few\",\"\"\r\n0\r\n0\r\n");
    form.document().turnTo(ling("few.dbs"));
    EXPECT_EQ(cells(), QStringList({"1,,", "2,,", "3,,"}));
    const QModelIndex beyond = localities().model()->index(2, AtlasLocalityTable::FirstWord);
    EXPECT_FALSE(beyond.flags() & Qt::ItemIsEditable) << "the item has no such locality";
}

TEST_F(AtlasLists, LocalitiesAreSortedFilteredAndSelectedWithTheMap)
{
    varn.localityNames = {{"a", "Zell", 0, 0}, {"b", "Au", 0, 0}, {"c", "Imst", 0, 0}};
    open();
    EXPECT_EQ(cells(), QStringList({"1,Zell,ame,uyu,", "2,Au,,,", "3,Imst,uyu,,"}));
    const QModelIndex marked = localities().model()->index(0, AtlasLocalityTable::FirstWord + 1);
    EXPECT_EQ(marked.data(AtlasLocalityTable::Marks).toList(), QVariantList{2});
    EXPECT_EQ(marked.data(Qt::AccessibleTextRole), "uyu, symbol of UYU");

    localities().sortByColumn(AtlasLocalityTable::Name, Qt::DescendingOrder);
    EXPECT_EQ(cells()[2], "2,Au,,,");
    localities().sortByColumn(AtlasLocalityTable::FirstWord, Qt::DescendingOrder);
    EXPECT_EQ(cells(), QStringList({"3,Imst,uyu,,", "1,Zell,ame,uyu,", "2,Au,,,"})) << "no answer comes last";

    localities().selectRow(1);
    EXPECT_EQ(selected(), AtlasSelection::Numbers({1}));
    form.selection().setLocalities({2, 3});
    EXPECT_EQ(localities().selectionModel()->selectedRows().size(), 2);
    control<QCheckBox>("chkOnlySelected").setChecked(true);
    EXPECT_EQ(cells(), QStringList({"3,Imst,uyu,,", "2,Au,,,"}));
    localities().selectRow(0);
    EXPECT_EQ(selected(), AtlasSelection::Numbers({3}));
    EXPECT_EQ(cells().size(), 2) << "the rows stay while one is looked at";
    EXPECT_EQ(state("lblLocalities"), "2 of 3 localities, 1 selected");
    form.selection().setLocalities({1});
    EXPECT_EQ(cells(), QStringList("1,Zell,ame,uyu,"));
    control<QCheckBox>("chkOnlySelected").setChecked(false);

    for (const char* text : {"3", "ims", "UYU"}) {
        type("txtLocalityFilter", text);
        EXPECT_TRUE(cells().contains("3,Imst,uyu,,")) << text;
        EXPECT_LT(cells().size(), 3) << text;
    }
    EXPECT_EQ(selected(), AtlasSelection::Numbers({1})) << "a filter selects nothing else";
    type("txtLocalityFilter", "");
    for (const char* item : {"snow.dbs", "rain.dbs"}) { // which have fewer and more word forms
        form.document().turnTo(ling(item));
        EXPECT_EQ(selected(), AtlasSelection::Numbers({1})) << item;
        EXPECT_EQ(localities().selectionModel()->selectedRows().size(), 1) << item;
    }
}

TEST_F(AtlasLists, ManyItemsAreListedAtOnceAndReadWhileTheWindowAnswers)
{
    for (int i = 0; i < 300; ++i) {
        survey.write(ling(qPrintable(QStringLiteral("i%1.dbs").arg(i, 3, 10, QLatin1Char('0')))), SnowItem);
    }
    AtlasItemTable table(varn);
    table.refresh();
    EXPECT_EQ(table.rowCount(), 302);
    EXPECT_TRUE(table.readSome(0)) << "nothing is read in no time";
    EXPECT_FALSE(table.isRead(301));
    while (table.readSome(1)) {
    }
    EXPECT_TRUE(table.isRead(301));
}
