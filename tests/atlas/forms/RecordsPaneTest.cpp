// The pane of kinds and symbols, worked with by mouse and keys.

#include "atlas/AtlasDocument.h"
#include "atlas/AtlasSelection.h"
#include "atlas/forms/AtlasRecordsPane.h"
#include "tests/support/Controls.h"
#include "tests/support/Pixels.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestDrive.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QMouseEvent>
#include <QTabWidget>
#include <QTableView>
#include <QToolButton>

#include <memory>

namespace {

const QByteArray ThreeRecords = "\"\"\r\n3\r\n\"ame\",\"Rain\"\r\n50\r\n0\r\n0\r\n1\r\n1\r\n0\r\n"
                                "\"uyu\",\"Snow\"\r\n1\r\n9\r\n9\r\n1\r\n1\r\n0\r\n"
                                "\"no\",\"Of\"\r\n2\r\n12\r\n12\r\n0\r\n1\r\n1\r\n";

/// The pane on the items `rain.dbs`, which has three records, and `sun.dbs`, which has none.
class RecordsPane : public testing::Test
{
protected:
    enum Column { Symbol, Kind, Caption, Words, Localities };

    RecordsPane()
    {
        survey.write(ling("rain.dbs"), "3,\"\",\"Rain\",\"\"\r\n2\r\n\"ame\"\r\n\"ame no\"\r\n"
                                       "1\r\n\"uyu\"\r\n2\r\n\"yuki\"\r\n\"ame\"\r\n");
        survey.write(ling("rain.han"), ThreeRecords);
        survey.write(ling("sun.dbs"),
                     "3,\"\",\"Sun\",\"\"\r\n1\r\n\"hi\"\r\n1\r\n\"hi\"\r\n1\r\n\"taiyo\"\r\n");
        survey.write(ling("bad.dbs"), "1,\"\",\"Bad\",\"\"\r\n1\r\n\"hi\"\r\n");
        survey.write(ling("bad.han"), "\"\"\r\n1\r\n\"hi\"");
        document.restart();
        pane = std::make_unique<AtlasRecordsPane>(varn, document, selection, dialogs);
        pane->resize(480, 600);
        pane->show();
        pane->activateWindow();
        document.turnTo(ling("rain.dbs"));
        QApplication::processEvents();
    }

    static QString ling(const char* file)
    {
        return QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Ling\\") + QLatin1String(file);
    }

    QTableView& table() { return child<QTableView>(*pane, "tblRecords"); }
    QAction& command(const char* name) { return child<QAction>(*pane, name); }
    QString note() { return child<QLabel>(*pane, "lblRecordsNote").text(); }

    static QString cell(const QTableView& view, int row, int column)
    {
        return view.model()->index(row, column).data().toString();
    }
    static QString row(const QTableView& view, int number)
    {
        QStringList cells;
        for (int column = 0; column < view.model()->columnCount(); ++column) {
            cells << cell(view, number, column);
        }
        return cells.join('|');
    }
    /// Kinds, captions and counts of all rows.
    QString rows()
    {
        QStringList all;
        for (int number = 0; number < table().model()->rowCount(); ++number) {
            all << row(table(), number).mid(1);
        }
        return all.join(' ');
    }
    /// The kinds of the page's records.
    QString kinds()
    {
        QStringList all;
        for (int k = 1; k <= records().NHanrei; ++k) {
            all << records().HankoWord(k);
        }
        return all.join(',');
    }
    const SymbolRecords& records() { return document.page().symbols; }

    static void press(QWidget& widget, const QPoint& place, Qt::KeyboardModifiers modifiers = {})
    {
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, place, widget.mapToGlobal(place), Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, modifiers);
            QApplication::sendEvent(&widget, &event);
        }
    }
    static void click(QTableView& view, int row, int column, Qt::KeyboardModifiers modifiers = {})
    {
        press(*view.viewport(), view.visualRect(view.model()->index(row, column)).center(), modifiers);
    }
    static void key(QWidget& widget, int pressed, Qt::KeyboardModifiers modifiers = {},
                    const QString& text = {})
    {
        QKeyEvent event(QEvent::KeyPress, pressed, modifiers, text);
        QApplication::sendEvent(&widget, &event);
        QApplication::processEvents(); // a cell is written behind the key
    }
    static void type(QWidget& widget, const QString& text)
    {
        for (const QChar letter : text) {
            key(widget, letter.toUpper().unicode(), {}, letter);
        }
    }
    /// The box of the cell that is edited.
    QLineEdit& box()
    {
        auto* found = table().viewport()->findChild<QLineEdit*>();
        if (found == nullptr) {
            throw std::logic_error("no cell is edited");
        }
        return *found;
    }
    /// Opens a cell by double click and puts `text` there, key by key.
    void typeInto(int row, int column, const QString& text)
    {
        table().setCurrentIndex(table().model()->index(row, column));
        key(table(), Qt::Key_F2);
        box().selectAll();
        type(box(), text);
    }
    QWidget& popup() { return child<QWidget>(*pane, "popSymbol"); }
    void choose(const char* name)
    {
        for (QToolButton* button : popup().findChildren<QToolButton*>()) {
            if (button->accessibleName() == QLatin1String(name)) {
                button->click();
                return;
            }
        }
        ADD_FAILURE() << name;
    }

    TestSurvey survey;
    VarnModule& varn = survey.varn;
    ScriptedDialogs dialogs;
    AtlasDocument document{varn};
    AtlasSelection selection;
    std::unique_ptr<AtlasRecordsPane> pane;
};

using Numbers = AtlasSelection::Numbers;

} // namespace

TEST_F(RecordsPane, ShowsWhatEachRecordMarksAndWhatNoneOrSeveralDo)
{
    EXPECT_EQ(rows(), "ame|Rain|2|2 uyu|Snow|1|1 no|Of|1|1 Type a kind|||");
    auto& tabs = child<QTabWidget>(*pane, "tabMarkedWords");
    EXPECT_EQ(tabs.tabText(0), "Not marked: 1 word form");
    EXPECT_EQ(tabs.tabText(1), "More than once: 1");
    auto& unmarked = child<QTableView>(*pane, "tblUnmarked");
    auto& several = child<QTableView>(*pane, "tblMarkedTwice");
    EXPECT_EQ(row(unmarked, 0), "yuki|1|New record");
    EXPECT_EQ(row(several, 0), "ame no|1|ame, no");
    click(unmarked, 0, 0);
    EXPECT_EQ(selection.localities(), Numbers{3});
    tabs.setCurrentIndex(1);
    click(several, 0, 0);
    EXPECT_EQ(selection.localities(), Numbers{1});
    document.setWords({{3, {"ame"}}}, "Change Words");
    EXPECT_EQ(tabs.tabText(0), "Not marked: 0 word forms");
    MapStyle style = varn;
    style.WholeWordForms = true;
    document.setMapStyle(style);
    EXPECT_EQ(rows(), "ame|Rain|1|2 uyu|Snow|1|1 no|Of|0|0 Type a kind|||");
}

TEST_F(RecordsPane, ChosenRowsAreTheChosenRecordsOfAllViews)
{
    click(table(), 0, Kind);
    click(table(), 2, Caption, Qt::ControlModifier);
    EXPECT_EQ(selection.records(), Numbers({1, 3}));
    command("mnuSelectLocalities").trigger();
    EXPECT_EQ(selection.localities(), Numbers({1, 3}));
    selection.setRecords({2});
    EXPECT_EQ(table().selectionModel()->selectedRows().size(), 1);
    EXPECT_EQ(table().currentIndex().row(), 1);
    click(table(), 3, Kind); // the row for a new record
    EXPECT_EQ(selection.records(), Numbers());
    click(table(), 0, Kind);
    document.turnTo(ling("sun.dbs"));
    EXPECT_EQ(selection.records(), Numbers());
    EXPECT_FALSE(command("mnuDeleteRecord").isEnabled());
}

TEST_F(RecordsPane, AKindIsShownWhileItIsTypedAndWrittenByEnter)
{
    typeInto(1, Kind, "yu");
    EXPECT_EQ(document.shownSymbols().HankoWord(2), "yu");
    EXPECT_EQ(records().HankoWord(2), "uyu");
    EXPECT_EQ(row(table(), 1), "|yu|Snow|2|2");
    EXPECT_EQ(child<QTabWidget>(*pane, "tabMarkedWords").tabText(0), "Not marked: 0 word forms");
    key(box(), Qt::Key_Home);
    type(box(), "a");
    EXPECT_EQ(box().text(), "ayu") << "the box keeps its place";
    key(box(), Qt::Key_Escape);
    EXPECT_EQ(row(table(), 1), "|uyu|Snow|1|1");
    EXPECT_EQ(document.steps().count(), 0);
    typeInto(1, Kind, "yu ");
    key(box(), Qt::Key_Return);
    EXPECT_EQ(records().HankoWord(2), "yu");
    EXPECT_EQ(varn.HankoWord(2), "yu") << "other forms see it";
    EXPECT_EQ(document.steps().undoText(), "Change Kind");
    typeInto(1, Caption, "Snow, snow");
    EXPECT_EQ(document.shownSymbols().HankoCaption(2), "Snow, snow");
    key(box(), Qt::Key_Return);
    EXPECT_EQ(document.steps().undoText(), "Change Caption");
    document.steps().undo();
    document.steps().undo();
    EXPECT_EQ(row(table(), 1), "|uyu|Snow|1|1");
}

TEST_F(RecordsPane, AKindTypedBehindTheLastRowIsASearchAndThenARecord)
{
    command("mnuNewRecord").trigger();
    type(box(), "yu");
    EXPECT_EQ(row(table(), 3), "|yu|yu|2|2");
    EXPECT_EQ(document.shownSymbols().NHanrei, 4);
    EXPECT_EQ(selection.records(), Numbers{4}) << "the map shows what it would mark";
    key(box(), Qt::Key_Escape);
    EXPECT_EQ(document.shownSymbols().NHanrei, 3);
    EXPECT_EQ(selection.records(), Numbers());
    command("mnuNewRecord").trigger();
    type(box(), "yuki");
    key(box(), Qt::Key_Return);
    EXPECT_EQ(rows(), "ame|Rain|2|2 uyu|Snow|1|1 no|Of|1|1 yuki|yuki|1|1 Type a kind|||");
    document.steps().undo();
    command("mnuNewRecord").trigger();
    key(box(), Qt::Key_Return);
    EXPECT_EQ(kinds(), "ame,uyu,no") << "an empty kind is no record";
    EXPECT_EQ(table().model()->rowCount(), 4);
}

TEST_F(RecordsPane, AnUnmarkedWordFormGetsARecord)
{
    click(child<QTableView>(*pane, "tblUnmarked"), 0, 0);
    EXPECT_TRUE(command("mnuNewRecordOfWord").isEnabled());
    click(child<QTableView>(*pane, "tblUnmarked"), 0, 2);
    EXPECT_EQ(kinds(), "ame,uyu,no,yuki");
    EXPECT_EQ(selection.records(), Numbers{4});
    EXPECT_FALSE(command("mnuNewRecordOfWord").isEnabled());
}

TEST_F(RecordsPane, ASymbolIsRecolouredByThreeClicks)
{
    click(table(), 0, Symbol);
    ASSERT_TRUE(popup().isVisible());
    choose("Line L.Red");
    EXPECT_EQ(document.shownSymbols().Hanko(1), (HankoStyle{50, 12, 12, 1, 1, 0})) << "as it had one colour";
    EXPECT_EQ(records().Hanko(1).LineColor, 0);
    EXPECT_EQ(table().model()->index(0, 0).data(Qt::UserRole).value<HankoStyle>().LineColor, 12);
    popup().hide(); // as a click elsewhere does
    EXPECT_EQ(records().Hanko(1), (HankoStyle{50, 12, 12, 1, 1, 0}));
    EXPECT_EQ(document.steps().count(), 1);
    click(table(), 0, Symbol);
    choose("Fill L.Blue");
    choose("Size Large");
    key(popup(), Qt::Key_Escape);
    EXPECT_EQ(document.shownSymbols().Hanko(1), (HankoStyle{50, 12, 12, 1, 1, 0}));
    EXPECT_EQ(document.steps().count(), 1);
    document.steps().undo();
    EXPECT_EQ(records().Hanko(1).LineColor, 0);
}

TEST_F(RecordsPane, TheSymbolsOfSeveralRecordsAreChangedByOneStep)
{
    click(table(), 0, Kind);
    click(table(), 1, Kind, Qt::ControlModifier);
    click(table(), 1, Symbol);
    EXPECT_EQ(selection.records(), Numbers({1, 2})) << "they stay chosen";
    choose("Size Large");
    choose("Line width Thick");
    auto& designs = child<QListWidget>(popup(), "lstDesigns");
    EXPECT_EQ(designs.count(), 160);
    EXPECT_EQ(designs.currentRow(), 0);
    key(designs, Qt::Key_Right);
    child<QCheckBox>(popup(), "chkFilled").click();
    key(popup(), Qt::Key_Return);
    EXPECT_FALSE(popup().isVisible());
    EXPECT_EQ(records().Hanko(1), (HankoStyle{2, 0, 0, 0, 2, 2}));
    EXPECT_EQ(records().Hanko(2), (HankoStyle{2, 9, 9, 0, 2, 2}));
    EXPECT_EQ(document.steps().count(), 1);
}

TEST_F(RecordsPane, TwoKindsAreGroupedByThreeClicks)
{
    click(table(), 0, Kind);
    click(table(), 1, Kind, Qt::ControlModifier);
    command("mnuSameSymbol").trigger();
    EXPECT_EQ(rows(), "ame|Rain|2|2 uyu|-Rain|1|1 no|Of|1|1 Type a kind|||");
    EXPECT_EQ(records().Hanko(2), records().Hanko(1));
    EXPECT_EQ(table().model()->index(1, Caption).data(Qt::ToolTipRole),
              "-Rain\nNot in the legend: the caption has a hyphen.");
    document.steps().undo();
    EXPECT_EQ(cell(table(), 1, Caption), "Snow");
}

TEST_F(RecordsPane, RowsAreDraggedAndMovedByKeys)
{
    const std::unique_ptr<QMimeData> dragged(
        table().model()->mimeData({table().model()->index(2, Kind), table().model()->index(2, Caption)}));
    EXPECT_TRUE(table().model()->dropMimeData(dragged.get(), Qt::MoveAction, 0, 0, {}));
    EXPECT_EQ(kinds(), "no,ame,uyu");
    EXPECT_EQ(selection.records(), Numbers{1}) << "they stay chosen";
    EXPECT_FALSE(command("mnuRecordUp").isEnabled());
    EXPECT_TRUE(table().model()->dropMimeData(dragged.get(), Qt::MoveAction, -1, -1, {})) << "below the rows";
    EXPECT_EQ(kinds(), "no,ame,uyu") << "the third is the last already";
    selection.setRecords({1});
    command("mnuRecordDown").trigger();
    command("mnuRecordDown").trigger();
    EXPECT_EQ(kinds(), "ame,uyu,no");
    EXPECT_FALSE(command("mnuRecordDown").isEnabled());
    command("mnuRecordUp").trigger();
    EXPECT_EQ(kinds(), "ame,no,uyu");
    EXPECT_EQ(selection.records(), Numbers{2});
}

TEST_F(RecordsPane, EditsOfTwoItemsAreUndoneInTheirOrder)
{
    click(table(), 0, Kind);
    command("mnuDeleteRecord").trigger();
    EXPECT_EQ(kinds(), "uyu,no");
    EXPECT_EQ(selection.records(), Numbers{1});
    document.turnTo(ling("sun.dbs"));
    EXPECT_EQ(note(), "No symbols yet. Type a kind, or let Make Symbols give each word form one.");
    command("mnuMakeSymbols").trigger();
    EXPECT_EQ(rows(), "hi|hi|1|2 taiyo|taiyo|1|1 Type a kind|||");
    EXPECT_TRUE(varn.WholeWordForms);
    document.steps().undo();
    EXPECT_EQ(rows(), "Type a kind|||");
    EXPECT_FALSE(varn.WholeWordForms);
    document.steps().undo();
    EXPECT_EQ(document.page().item.Hanrei, "Rain");
    EXPECT_EQ(kinds(), "ame,uyu,no");
}

TEST_F(RecordsPane, MakeSymbolsAsksBeforeItReplacesRecords)
{
    dialogs.yesNo = {false, true};
    command("mnuMakeSymbols").trigger();
    EXPECT_EQ(kinds(), "ame,uyu,no");
    command("mnuMakeSymbols").trigger();
    EXPECT_EQ(kinds(), "ame,ame no,uyu,yuki");
    EXPECT_EQ(dialogs.shown.back(),
              (ScriptedDialogs::Shown{"Replace the 3 records by one for each word form ?", "Make Symbols"}));
}

TEST_F(RecordsPane, AFullSetAndOneThatCannotBeReadSayWhy)
{
    SymbolRecords full = records();
    full.NHanrei = 100;
    full.HankoCaption(100) = QString(1000, 'x');
    document.setSymbols(full, "Fill");
    EXPECT_EQ(note(), "A symbol file holds 100 records, no more.");
    EXPECT_EQ(table().model()->rowCount(), 100);
    EXPECT_EQ(cell(table(), 99, Caption).size(), 1000);
    EXPECT_EQ(cell(table(), 99, Kind), "(every word form)");
    EXPECT_FALSE(command("mnuNewRecord").isEnabled());
    document.turnTo(ling("bad.dbs"));
    EXPECT_TRUE(note().startsWith("The symbol file cannot be read. It is left as it is: "))
        << qPrintable(note());
    EXPECT_EQ(table().model()->rowCount(), 0);
    for (const char* name : {"mnuNewRecord", "mnuNewRecordOfWord", "mnuDeleteRecord", "mnuMakeSymbols"}) {
        EXPECT_FALSE(command(name).isEnabled()) << name;
    }
}

TEST_F(RecordsPane, SymbolsArePaintedInTheirCells)
{
    SymbolRecords symbols = records();
    symbols.Hanko(1) = {50, 12, 12, 1, 1, 1};
    symbols.Hanko(2) = {25, 12, 12, 1, 2, 2};   // wider than the cell is high
    symbols.Hanko(3) = {5000, 12, 12, 1, 1, 1}; // there is no such design
    document.setSymbols(symbols, "Change Symbol");
    table().clearSelection();
    const QImage picture = table().viewport()->grab().toImage();
    const auto isRed = [](const QColor& color) { return color.red() > 200 && color.green() < 60; };
    for (int row = 0; row < 2; ++row) {
        const QRect area = table().visualRect(table().model()->index(row, Symbol));
        const QRect symbol = extent(picture, area, isRed);
        EXPECT_GT(symbol.height(), 8) << row;
        EXPECT_LT(symbol.height(), area.height() - 4) << row;
        EXPECT_NEAR(symbol.center().x(), area.center().x(), 2) << row;
        EXPECT_NEAR(symbol.center().y(), area.center().y(), 2) << row;
    }
    const QRect unknown = table().visualRect(table().model()->index(2, Symbol));
    EXPECT_TRUE(extent(picture, unknown, isRed).isEmpty());
    EXPECT_EQ(row(table(), 2), "|no|Of|1|1") << "the record is there all the same";
}

TEST_F(RecordsPane, WhatIsOpenIsGivenUpWithThePane)
{
    click(table(), 0, Symbol);
    choose("Line L.Red");
    pane.reset();
    EXPECT_EQ(records().Hanko(1).LineColor, 0);
    EXPECT_EQ(document.steps().count(), 0);
}
