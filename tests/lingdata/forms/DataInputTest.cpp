#include "lingdata/forms/WordTableView.h"
#include "platform/forms/ThemeColors.h"
#include "render/forms/LocalityView.h"
#include "tests/support/EnteredWords.h"
#include "tests/support/TestProgram.h"

#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMap>
#include <QPlainTextEdit>
#include <QStatusBar>

namespace {

using Cell = std::pair<int, int>;

const QString Folder = VarnPath + QStringLiteral("\\VarnData\\Test\\Ling\\");
const Shown OpenWarning{"Data proccessed will be lost if Linguistic File is opened.",
                        "Open Linguistic Data File"};
/// The item "rain.dbs", as `DataInput::entered` tells it.
const QString Rain = QStringLiteral("ame,uyu//uyu|ame,uyu|Rain||");

/// The data input form for the map of a `TestSurvey`, which has three localities.
class DataInput : public StartedForms
{
protected:
    DataInput()
    {
        program.click("cmdInputData");
        QApplication::processEvents();
        shown();
    }

    QAction& menu(const char* name) { return child<QAction>(input, name); }
    void click(const char* name) { child<QPushButton>(input, name).click(); }
    Cell cell() { return {table.locality(), table.column()}; }

    /// The words as the table shows them.
    QString words()
    {
        return wordsText(table.model()->rowCount(), [this](int i, int j) {
            return table.model()->index(i - 1, j - 1).data().toString();
        });
    }
    QString kinds() { return rowsOf(kindList).join(','); }
    /// All that is entered: words, kinds, caption and comment, and a star where it is not saved.
    QString entered()
    {
        const QString unsaved = input.isWindowModified() ? "*" : "";
        return QStringList({words(), kinds(), caption.text(), comment.toPlainText(), unsaved}).join('|');
    }

    static void strikeIn(QWidget& target, const QString& keys, Qt::KeyboardModifiers modifiers = {})
    {
        static const QMap<QChar, Qt::Key> named = {
            {u'⏎', Qt::Key_Return}, {u'⌤', Qt::Key_Enter}, {u'⇥', Qt::Key_Tab},  {u'⎋', Qt::Key_Escape},
            {u'⌦', Qt::Key_Delete}, {u'↑', Qt::Key_Up},    {u'↓', Qt::Key_Down}, {u'⇱', Qt::Key_Home},
            {u'⇲', Qt::Key_End},    {u'✎', Qt::Key_F2}};
        for (const QChar key : keys) {
            const Qt::Key code = named.value(key, Qt::Key_unknown);
            QKeyEvent press(QEvent::KeyPress, code, modifiers,
                            code == Qt::Key_unknown ? QString(key) : QString());
            QApplication::sendEvent(&target, &press);
            QApplication::processEvents();
        }
    }
    /// Strikes `keys`, letters and signs that stand on keys, where a user would: in the list of kinds
    /// offered, in the cell being edited, else in the table.
    void type(const QString& keys, Qt::KeyboardModifiers modifiers = {})
    {
        for (const QChar key : keys) {
            QWidget* editor = table.indexWidget(table.currentIndex());
            QWidget* list = QApplication::activePopupWidget();
            strikeIn(list != nullptr ? *list : editor != nullptr ? *editor : table, key, modifiers);
        }
    }

    void open(const char* file, std::deque<bool> answers = {})
    {
        dialogs.yesNo = std::move(answers);
        dialogs.files = {survey.drive().hostPath(Folder + file)};
        menu("mnuOpen").trigger();
        dialogs.files.clear();
    }
    void save(const char* name, std::deque<bool> answers = {})
    {
        dialogs.yesNo = std::move(answers);
        fileName.setText(name);
        menu("mnuSave").trigger();
    }
    void setKinds(const QStringList& texts)
    {
        for (const QString& text : texts) {
            kind.setText(text);
            click("cmdSetKind");
        }
    }
    std::vector<Shown> shown() { return std::exchange(dialogs.shown, {}); }

    frmDataInput& input = form<frmDataInput>();
    ScriptedDialogs& dialogs = program.dialogs;
    WordTableView& table = child<WordTableView>(input, "tblWords");
    QLineEdit& fileName = child<QLineEdit>(input, "txtFileName");
    QLineEdit& caption = child<QLineEdit>(input, "txtHanrei");
    QPlainTextEdit& comment = child<QPlainTextEdit>(input, "txtComment");
    QLineEdit& kind = child<QLineEdit>(input, "txtKind");
    QListWidget& kindList = child<QListWidget>(input, "lstKind");
    QWidget& faults = child<QWidget>(input, "fraCheck");
};

} // namespace

TEST_F(DataInput, KeysAloneFillTheTable)
{
    type("ame⇥uyu⏎x↓last⏎↑⌦⌤dropped⎋");
    EXPECT_EQ(entered(), "ame,uyu//last||||*");
    EXPECT_EQ(cell(), Cell(3, 1));
}

TEST_F(DataInput, SaveAsksForANameAndBeforeItOverwrites)
{
    const QByteArray before = survey.read(Folder + "rain.dbs");
    caption.insert("A \"title\"");
    comment.setPlainText("two\nlines");
    setKinds({"kind"});
    save(" ");
    EXPECT_EQ(shown(), (std::vector<Shown>{{"Input File Name ", "Input File Name of Linguistic Data"}}));
    EXPECT_TRUE(fileName.hasFocus());
    table.setFocus();
    save("rain", {false});
    EXPECT_EQ(shown(), (std::vector<Shown>{{"File Exist. Overwrite O.K.?", "Re-input of File Name"}}));
    EXPECT_TRUE(fileName.hasFocus());
    EXPECT_EQ(fileName.selectedText(), "rain") << "to be replaced";
    EXPECT_EQ(survey.read(Folder + "rain.dbs"), before);
    EXPECT_EQ(entered(), "//|kind|A \"title\"|two\nlines|*");

    table.goTo(3, 2);
    type("being typed");
    save("new.dbs");
    EXPECT_EQ(shown(), std::vector<Shown>());
    EXPECT_EQ(survey.read(Folder + "new.dbs"),
              "3,\"\",\"A \"\"title\"\"\",\"two\nlines\"\r\n0\r\n0\r\n1\r\n\"being typed\"\r\n");
    EXPECT_EQ(survey.read(Folder + "new.ipt"), "1\r\n\"kind\"\r\n");
    EXPECT_EQ(survey.read(Folder + "new.srt"), "1\r\n\"being typed\",1\r\n");
    EXPECT_EQ(input.windowTitle(), "VARN Input Linguistic Data - Test - new.dbs[*]");
    EXPECT_FALSE(input.isWindowModified());
    EXPECT_EQ(program.varn.LoadState, 0) << "nothing is loaded by it";
}

TEST_F(DataInput, OpenWarnsAndReadsTheItemWithItsKinds)
{
    table.goTo(2, 2);
    type("a\\Q1");
    click("cmdCheckCode");
    kind.setText("k");
    open("rain.dbs", {true});
    EXPECT_EQ(shown(), (std::vector<Shown>{OpenWarning, {"DBS Files (*.dbs)|*.dbs", OpenWarning.title}}));
    EXPECT_EQ(entered(), Rain);
    EXPECT_EQ(fileName.text() + kind.text(), "rain");
    EXPECT_FALSE(faults.isVisible());
    EXPECT_EQ(cell(), Cell(1, 1));
    EXPECT_TRUE(table.hasFocus());
    EXPECT_EQ(program.varn.LoadState, 0) << "the item that the other forms have loaded is another one";

    type("⌦");
    dialogs.yesNo = {false};
    menu("mnuOpen").trigger();
    EXPECT_EQ(shown(), std::vector{OpenWarning}) << "No keeps what is unsaved";
    open("gone.dbs", {true});
    EXPECT_EQ(dialogs.errors.size(), 1U);
    EXPECT_EQ(entered(), ",uyu//uyu|ame,uyu|Rain||*");
}

TEST_F(DataInput, ItemOfAnotherSizeKeepsItsCount)
{
    QLabel& warning = *input.statusBar()->findChildren<QLabel*>().at(1);
    for (const QLabel* label : {&warning, &child<QLabel>(input, "lblFault")}) {
        EXPECT_EQ(label->palette().color(QPalette::WindowText), warningText(input.palette()));
    }
    survey.write(Folder + "odd.ipt", "?");
    const std::tuple<int, const char*, const char*> rows[] = {
        {1, "1,\"\",\"\",\"\"\r\n1\r\n\"ame\"\r\n", "ame//"},
        {4, "4,\"\",\"\",\"\"\r\n0\r\n0\r\n0\r\n1\r\n\"x\"\r\n", "///x"}};
    for (const auto& [localities, text, grown] : rows) {
        survey.write(Folder + "odd.dbs", text);
        open("odd.dbs");
        EXPECT_EQ(warning.text(), QString("The item has %1 localities, the map has 3.").arg(localities));
        menu("mnuAddLocalities").trigger();
        EXPECT_EQ(words(), grown);
        EXPECT_FALSE(menu("mnuAddLocalities").isEnabled());
        menu("mnuUndo").trigger();
        EXPECT_EQ(table.model()->rowCount(), localities);
        save("odd", {true});
        EXPECT_EQ(survey.read(Folder + "odd.dbs"), text);
    }
    EXPECT_TRUE(shown().at(2).text.contains("odd.ipt")) << "a list of kinds that cannot be read is told of";
}

TEST_F(DataInput, KindsAreSetDeletedAndPutIntoTheData)
{
    setKinds({"b", "a", "b", "", "\\Q1"});
    EXPECT_TRUE(kind.hasFocus()) << "for the next kind";
    kindList.setCurrentRow(1);
    Q_EMIT kindList.itemDoubleClicked(kindList.currentItem());
    table.goTo(2, 2);
    kindList.setCurrentRow(0);
    click("cmdKindToData");
    EXPECT_EQ(cell(), Cell(3, 1));
    click("cmdDelKind");
    type("new");
    click("cmdDataToKind");
    const QString all = "a/,b/new|a,\\Q1,b,new|||*";
    EXPECT_EQ(entered(), all);
    kindList.setCurrentRow(-1);
    click("cmdDelKind");
    click("cmdKindToData");
    EXPECT_EQ(entered(), all) << "no kind is chosen";
}

TEST_F(DataInput, CheckCodeLeadsToTheFaults)
{
    table.goTo(2, 3);
    type("a\\Q1⏎b\\");
    click("cmdCheckCode");
    auto& list = child<QListWidget>(input, "lstCheck");
    EXPECT_TRUE(faults.isVisible());
    EXPECT_EQ(rowsOf(list), QStringList({"Locality 2, word 3:   a\\Q1   (\\Q1 is in no code)",
                                         "Locality 3, word 1:   b\\   (\\ is cut short)"}));
    EXPECT_EQ(cell(), Cell(2, 3));
    list.setCurrentRow(1);
    EXPECT_EQ(cell(), Cell(3, 1));
    type("⌦");
    EXPECT_EQ(list.count(), 1) << "a fault that was mended leaves the list";
}

TEST_F(DataInput, WhatIsUnsavedIsGivenUpOnlyIfWanted)
{
    int left = 0;
    QObject::connect(&input, &frmDataInput::toMain, &input, [&left] { ++left; });
    open("rain.dbs");
    menu("mnuToMain").trigger();
    input.Form_Load();
    EXPECT_EQ(entered(), Rain) << "the same map keeps it";
    type("x⇥");
    program.varn.VarnMapName = "\\Other";
    program.varn.NLocality = 2;
    const std::pair<std::function<void()>, QString> ways[] = {
        {[&] { menu("mnuToMain").trigger(); }, "x,uyu//uyu|ame,uyu|Rain||*"},
        {[&] { input.Form_Load(); }, "/||||"},
        {[&] { menu("mnuInitialize").trigger(); }, "/||||"}};
    for (const auto& [giveUp, after] : ways) {
        const QString before = entered();
        for (const bool yes : {false, true}) {
            dialogs.yesNo = {yes};
            giveUp();
            EXPECT_EQ(entered(), yes ? after : before);
        }
        type("x⇥");
    }
    EXPECT_EQ(left, 2);
}

TEST_F(DataInput, LocalitiesAreFoundOnTheMapAndByTheirNumbers)
{
    auto& map = child<LocalityView>(input, "picMap");
    const QImage first = map.grab().toImage();
    const QString wrong = "Locality No. must be a number from 1 to 3.";
    program.varn.localityNames.resize(3);
    program.varn.localityNames[2].name = "Amele";
    const std::pair<std::optional<QString>, QString> rows[] = {
        {" 3 ", "Locality No."}, {"0", wrong}, {"4", wrong}, {"two", wrong}, {std::nullopt, "Locality No."}};
    for (const auto& [answer, text] : rows) {
        dialogs.inputs = {answer};
        menu("mnuGoTo").trigger();
        EXPECT_EQ(shown().back().text, text);
        EXPECT_EQ(cell(), Cell(3, 1)) << qPrintable(answer.value_or("cancelled"));
    }
    EXPECT_EQ(child<QLabel>(input, "lblCell").text(), "Locality 3 Amele, word 1");
    const QAbstractItemModel& model = *child<QTableView>(input, "tblWords").model();
    EXPECT_EQ(model.headerData(2, Qt::Vertical), "3 Amele");
    EXPECT_EQ(model.headerData(1, Qt::Vertical), "2");
    EXPECT_NE(map.grab().toImage(), first);
    Q_EMIT map.localityClicked(1);
    EXPECT_EQ(cell(), Cell(1, 1));
    EXPECT_EQ(map.grab().toImage(), first);
}

TEST_F(DataInput, BlocksAreEmptiedCutCopiedAndPasted)
{
    constexpr auto ToTheEnd = Qt::ControlModifier | Qt::ShiftModifier;
    open("rain.dbs");
    type("⇲", Qt::ControlModifier);
    EXPECT_EQ(cell(), Cell(3, 5));
    type("⌦");
    type("⇱", Qt::ControlModifier);
    type("⌦");
    EXPECT_EQ(words(), ",uyu//uyu");
    type("⇲", ToTheEnd);
    type("⌦");
    EXPECT_EQ(words(), "//");
    menu("mnuUndo").trigger();
    EXPECT_EQ(words(), ",uyu//uyu") << "one step";
    EXPECT_EQ(cell(), Cell(1, 2)) << "where something changed";

    QClipboard& clipboard = *QGuiApplication::clipboard();
    clipboard.setText("a\tb\n\" c\nd\"\t\"\"");
    table.goTo(2, 2);
    menu("mnuPaste").trigger();
    table.goTo(3, 5);
    shown();
    menu("mnuPaste").trigger();
    EXPECT_EQ(shown().at(0).text, "There is no room for the 2 rows and 2 columns from locality 3, word 5 on. "
                                  "Nothing was pasted.");
    EXPECT_EQ(words(), ",uyu/,a,b/uyu,c d,\"\"");
    table.goTo(2, 2);
    type("⇲", ToTheEnd);
    menu("mnuCut").trigger();
    EXPECT_EQ(clipboard.text(), "a\tb\t\t\nc d\t\"\"\t\t\n");
    EXPECT_EQ(words(), ",uyu//uyu");
    caption.setFocus();
    caption.selectAll();
    menu("mnuCopy").trigger();
    EXPECT_EQ(clipboard.text(), "Rain") << "of the box that has the focus";
}

TEST_F(DataInput, EverythingIsUndoneAndTakenAgain)
{
    open("rain.dbs");
    type("x⏎");
    setKinds({"k"});
    click("cmdKindToData");
    kindList.setCurrentRow(0);
    click("cmdDelKind");
    caption.insert("y");
    comment.setPlainText("c");
    for (const auto& [name, after] :
         {std::pair("mnuUndo", Rain), {"mnuRedo", "x,uyu/k/uyu|uyu,k|Rainy|c|*"}, {"mnuUndo", Rain}}) {
        int steps = 0;
        for (; steps < 20 && menu(name).isEnabled(); ++steps) {
            menu(name).trigger();
        }
        EXPECT_EQ(steps, 6) << name;
        EXPECT_EQ(entered(), after) << name;
    }
    EXPECT_EQ(menu("mnuUndo").shortcuts(), QList({QKeySequence("Ctrl+Z")}));
    EXPECT_EQ(menu("mnuRedo").shortcuts(), QList({QKeySequence("Ctrl+Y"), QKeySequence("Ctrl+Shift+Z")}));
}

TEST_F(DataInput, EmptyWordFormsAreSeenAndEntered)
{
    survey.write(Folder + "gap.dbs", "3,\"\",\"\",\"\"\r\n2\r\n\"\"\r\n\" \"\r\n0\r\n1\r\n\"\"\r\n");
    open("gap.dbs");
    type("✎⏎");
    table.goTo(1, 2);
    type("✎⏎");
    EXPECT_EQ(entered(), "\"\", //\"\"|\"\", |||") << "looked at, not changed";
    const QBrush quiet = QGuiApplication::palette().placeholderText();
    EXPECT_EQ(kindList.item(0)->foreground(), quiet);
    EXPECT_NE(kindList.item(1)->foreground(), quiet);
    EXPECT_EQ(table.model()->index(0, 0).data(Qt::ForegroundRole), QVariant(quiet));
    EXPECT_EQ(table.model()->index(0, 1).data(Qt::ForegroundRole), QVariant());
    type("\"\"⏎");
    kindList.setCurrentRow(0);
    table.goTo(3, 3);
    click("cmdKindToData");
    EXPECT_EQ(entered(), "\"\", /\"\"/\"\",,\"\"|\"\", |||*");
}

TEST_F(DataInput, TheTableHasAWordALineAndFillsItsWidth)
{
    const QHeaderView& rows = *table.verticalHeader();
    const QHeaderView& columns = *table.horizontalHeader();
    EXPECT_EQ(rows.sectionSize(0), input.fontMetrics().height() + 8);
    EXPECT_EQ(rows.sectionResizeMode(0), QHeaderView::Fixed);
    EXPECT_EQ(rows.defaultAlignment(), Qt::AlignRight | Qt::AlignVCenter);
    EXPECT_EQ(columns.minimumSectionSize(), input.fontMetrics().averageCharWidth() * 14);
    EXPECT_NEAR(columns.length(), std::max(table.viewport()->width(), 5 * columns.minimumSectionSize()), 1);
    EXPECT_FALSE(columns.highlightSections() || table.wordWrap());
    EXPECT_EQ(table.verticalScrollMode(), QAbstractItemView::ScrollPerItem);
}

TEST_F(DataInput, KindsAreEnteredByTheirLettersHoweverQuickly)
{
    setKinds({"b", "l", "lb", "w", "wa", "wl"});
    strikeIn(kindList, "w⏎l⏎b⏎");
    table.goTo(1, 2);
    strikeIn(kindList, "wl⏎wa⌦");
    EXPECT_EQ(words(), "w,wl/l/b");
    EXPECT_EQ(kinds(), "b,l,lb,w,wl");
}

TEST_F(DataInput, KindsAreOfferedWhileAWordIsTyped)
{
    setKinds({"walk", "water", "b"});
    const std::tuple<const char*, const char*, Cell> rows[] = {
        {"wa⏎", "wa//", {2, 1}}, // what is typed, though kinds are listed
        {"wa↓↓⌤", "water//", {2, 1}},
        {"W↓⇥", "walk//", {1, 2}},
        {"wax↓", "wax//", {2, 1}}, // no kind: the arrow leaves the cell
        {"wa⎋⎋", "//", {1, 1}}};
    for (const auto& [keys, expected, next] : rows) {
        table.goTo(1, 1);
        type(QString("⌦") + keys);
        EXPECT_EQ(words(), expected) << keys;
        EXPECT_EQ(cell(), next) << keys;
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << keys;
    }
}

TEST_F(DataInput, TheProgramEndsWhileAWordIsTyped)
{
    table.goTo(1, 1);
    type("half a wo");
    EXPECT_NE(table.indexWidget(table.currentIndex()), nullptr) << "the forms go with the cell's editor open";
}
