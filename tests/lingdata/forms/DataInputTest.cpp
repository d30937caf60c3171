#include "lingdata/forms/WordTableView.h"
#include "lingdata/forms/frmDataInput.h"
#include "platform/WholeFile.h"
#include "platform/forms/ThemeColors.h"
#include "render/forms/LocalityView.h"
#include "tests/support/Controls.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestDrive.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QFile>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {

using Shown = ScriptedDialogs::Shown;

const QString Folder = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Ling\\");
const Shown NoFileName{QStringLiteral("Input File Name "),
                       QStringLiteral("Input File Name of Linguistic Data")};
const Shown FileExists{QStringLiteral("File Exist. Overwrite O.K.?"),
                       QStringLiteral("Re-input of File Name")};
const Shown OpenWarning{QStringLiteral("Data proccessed will be lost if Linguistic File is opened."),
                        QStringLiteral("Open Linguistic Data File")};
const Shown OpenDialog{QStringLiteral("DBS Files (*.dbs)|*.dbs"),
                       QStringLiteral("Open Linguistic Data File")};

/// The data input form for the map of a `TestSurvey`, which has three localities.
class DataInput : public testing::Test
{
protected:
    DataInput()
    {
        survey.write(Folder + QStringLiteral("rain.dbs"),
                     "3,\"\",\"Rain\",\"from 1950\"\r\n2\r\n\"uyu\"\r\n\"ame\"\r\n0\r\n1\r\n\"uyu\"\r\n");
        form.Form_Load();
        form.show();
        QApplication::processEvents();
    }

    template <typename Widget>
    Widget& control(const char* name)
    {
        return child<Widget>(form, name);
    }
    QAction& menu(const char* name) { return control<QAction>(name); }
    void click(const char* name) { control<QPushButton>(name).click(); }
    WordTableView& table() { return control<WordTableView>("tblWords"); }

    QString word(int locality, int column)
    {
        return table().model()->index(locality - 1, column - 1).data().toString();
    }
    std::pair<int, int> cell() { return {table().locality(), table().column()}; }

    QStringList kinds() { return rowsOf(control<QListWidget>("lstKind")); }

    static void strikeIn(QWidget& target, Qt::Key key, const QString& text = {},
                         Qt::KeyboardModifiers modifiers = {})
    {
        QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
        QApplication::sendEvent(&target, &press);
        QApplication::processEvents();
    }
    /// Strikes a key where a user would: in the list of kinds offered, in the cell being edited, else in the
    /// table.
    void strike(Qt::Key key, const QString& text = {}, Qt::KeyboardModifiers modifiers = {})
    {
        QWidget* editor = table().indexWidget(table().currentIndex());
        QWidget* list = QApplication::activePopupWidget();
        strikeIn(list != nullptr ? *list : editor != nullptr ? *editor : table(), key, text, modifiers);
    }
    void type(const QString& text)
    {
        for (const QChar character : text) {
            strike(Qt::Key_unknown, character);
        }
    }

    void open(const char* file, std::deque<bool> answers = {})
    {
        dialogs.yesNo = std::move(answers);
        dialogs.files = {survey.drive().hostPath(Folder + QLatin1String(file))};
        menu("mnuOpen").trigger();
        dialogs.files.clear();
    }
    void save(const char* name, std::deque<bool> answers = {})
    {
        dialogs.yesNo = std::move(answers);
        control<QLineEdit>("txtFileName").setText(QLatin1String(name));
        menu("mnuSave").trigger();
    }
    /// The words of a locality as the table shows them.
    QStringList words(int locality)
    {
        QStringList found;
        for (int column = 1; column <= ItemEditor::MostWords; ++column) {
            found << word(locality, column);
        }
        return found;
    }
    void setKind(const QString& kind)
    {
        control<QLineEdit>("txtKind").setText(kind);
        click("cmdSetKind");
    }
    void paste(const QString& text)
    {
        QGuiApplication::clipboard()->setText(text);
        menu("mnuPaste").trigger();
    }
    std::vector<Shown> shown() { return std::exchange(dialogs.shown, {}); }

    TestSurvey survey;
    ScriptedDialogs dialogs;
    frmDataInput form{survey.varn, dialogs};
};

} // namespace

TEST_F(DataInput, KeysAloneFillTheTable)
{
    EXPECT_EQ(table().model()->rowCount(), 3);
    type(QStringLiteral("ame"));
    strike(Qt::Key_Tab);
    EXPECT_EQ(cell(), std::pair(1, 2));
    type(QStringLiteral("uyu"));
    strike(Qt::Key_Return);
    EXPECT_EQ(cell(), std::pair(2, 1));
    type(QStringLiteral("x"));
    strike(Qt::Key_Down);
    EXPECT_EQ(cell(), std::pair(3, 1));
    type(QStringLiteral("last"));
    strike(Qt::Key_Return);
    EXPECT_EQ(cell(), std::pair(3, 1));
    strike(Qt::Key_Up);
    strike(Qt::Key_Delete);
    strike(Qt::Key_Enter);
    type(QStringLiteral("dropped"));
    strike(Qt::Key_Escape);
    EXPECT_EQ(word(1, 1), QStringLiteral("ame"));
    EXPECT_EQ(word(1, 2), QStringLiteral("uyu"));
    EXPECT_EQ(word(2, 1), QString());
    EXPECT_EQ(word(3, 1), QStringLiteral("last"));
    EXPECT_TRUE(form.isWindowModified());
}

TEST_F(DataInput, SaveWritesItemInputKindsAndKinds)
{
    control<QLineEdit>("txtHanrei").insert(QStringLiteral("A \"title\""));
    Q_EMIT control<QLineEdit>("txtHanrei").textEdited(QStringLiteral("A \"title\""));
    control<QPlainTextEdit>("txtComment").setPlainText(QStringLiteral("two\nlines"));
    control<QLineEdit>("txtKind").setText(QStringLiteral("kind"));
    click("cmdSetKind");
    table().goTo(3, 2);
    type(QStringLiteral("being typed"));
    save("new.dbs");
    EXPECT_EQ(shown(), std::vector<Shown>());
    EXPECT_EQ(survey.read(Folder + QStringLiteral("new.dbs")),
              "3,\"\",\"A \"\"title\"\"\",\"two\nlines\"\r\n0\r\n0\r\n1\r\n\"being typed\"\r\n");
    EXPECT_EQ(survey.read(Folder + QStringLiteral("new.ipt")), "1\r\n\"kind\"\r\n");
    EXPECT_EQ(survey.read(Folder + QStringLiteral("new.srt")), "1\r\n\"being typed\",1\r\n");
    EXPECT_FALSE(form.isWindowModified());
    EXPECT_EQ(form.windowTitle(), QStringLiteral("VARN Input Linguistic Data - Test - new.dbs[*]"));
    EXPECT_EQ(survey.varn.NLocate, 0);
    EXPECT_EQ(survey.varn.LoadState, 0);
}

TEST_F(DataInput, SaveAsksForANameAndBeforeItOverwrites)
{
    const QString rain = Folder + QStringLiteral("rain.dbs");
    const QByteArray before = survey.read(rain);
    type(QStringLiteral("ame"));
    save(" ");
    EXPECT_EQ(shown(), std::vector{NoFileName});
    EXPECT_TRUE(control<QLineEdit>("txtFileName").hasFocus());
    table().setFocus();
    save("rain", {false});
    EXPECT_EQ(shown(), std::vector{FileExists});
    EXPECT_TRUE(control<QLineEdit>("txtFileName").hasFocus());
    EXPECT_EQ(control<QLineEdit>("txtFileName").selectedText(), QStringLiteral("rain")) << "to be replaced";
    EXPECT_EQ(survey.read(rain), before);
    EXPECT_FALSE(fileExists(survey.drive(), Folder + QStringLiteral("rain.ipt")));
    EXPECT_TRUE(form.isWindowModified());
    save("rain", {true});
    EXPECT_NE(survey.read(rain), before);

    type(QStringLiteral("uyu"));
    survey.varn.LingFolder = QStringLiteral("\\VarnData\\Gone\\Ling");
    save("rain");
    EXPECT_EQ(dialogs.errors.size(), 1U);
    EXPECT_TRUE(form.isWindowModified());
    EXPECT_EQ(word(1, 1), QStringLiteral("uyu"));
}

TEST_F(DataInput, OpenWarnsAndReadsTheItemWithItsKinds)
{
    table().goTo(2, 2);
    type(QStringLiteral("a\\Q1"));
    click("cmdCheckCode");
    control<QLineEdit>("txtKind").setText(QStringLiteral("k"));
    shown();
    open("rain.dbs", {true});
    EXPECT_EQ(shown(), (std::vector{OpenWarning, OpenDialog}));
    EXPECT_EQ(word(1, 2), QStringLiteral("ame"));
    EXPECT_EQ(control<QLineEdit>("txtFileName").text(), QStringLiteral("rain"));
    EXPECT_EQ(control<QLineEdit>("txtHanrei").text(), QStringLiteral("Rain"));
    EXPECT_EQ(control<QPlainTextEdit>("txtComment").toPlainText(), QStringLiteral("from 1950"));
    EXPECT_EQ(kinds(), QStringList({"ame", "uyu"}));
    EXPECT_EQ(control<QLineEdit>("txtKind").text(), QString());
    EXPECT_FALSE(control<QFrame>("fraCheck").isVisible());
    EXPECT_EQ(cell(), std::pair(1, 1));
    EXPECT_TRUE(table().hasFocus());
    EXPECT_FALSE(form.isWindowModified());
    EXPECT_EQ(survey.varn.NLocate, 0) << "the item that the other forms have loaded is another one";

    strike(Qt::Key_Delete);
    dialogs.yesNo = {false};
    menu("mnuOpen").trigger();
    EXPECT_EQ(shown(), std::vector{OpenWarning}) << "No keeps what is unsaved";
    open("gone.dbs", {true});
    EXPECT_EQ(dialogs.errors.size(), 1U);
    EXPECT_EQ(word(1, 1), QString());
    EXPECT_EQ(word(1, 2), QStringLiteral("ame"));
    EXPECT_TRUE(form.isWindowModified());
}

TEST_F(DataInput, ItemOfAnotherSizeKeepsItsCount)
{
    for (const int localities : {2, 4}) {
        survey.write(Folder + QStringLiteral("odd.dbs"), QByteArray::number(localities) +
                                                             ",\"\",\"\",\"\"\r\n" +
                                                             QByteArray("0\r\n").repeated(localities));
        open("odd.dbs");
        EXPECT_EQ(table().model()->rowCount(), localities);
        const auto labels = form.findChildren<QLabel*>();
        const QString warning = QStringLiteral("The item has %1 localities, the map has 3.").arg(localities);
        const auto isWarning = [&](const QLabel* label) {
            return label->text() == warning &&
                   label->palette().color(QPalette::WindowText) == warningText(form.palette());
        };
        EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), isWarning));
        table().goTo(localities, 1);
        type(QStringLiteral("x"));
        strike(Qt::Key_Tab);
        save("odd", {true});
        EXPECT_TRUE(
            survey.read(Folder + QStringLiteral("odd.dbs")).startsWith(QByteArray::number(localities) + ','));
    }
    EXPECT_EQ(dialogs.errors, std::vector<Shown>());

    survey.write(Folder + QStringLiteral("odd.ipt"), "?");
    survey.write(Folder + QStringLiteral("odd.dbs"), "1,\"\",\"\",\"\"\r\n1\r\n\"ame\"\r\n");
    shown();
    open("odd.dbs");
    EXPECT_EQ(kinds(), QStringList("ame"));
    EXPECT_TRUE(shown().back().text.contains(QStringLiteral("odd.ipt")));
    menu("mnuAddLocalities").trigger();
    EXPECT_EQ(table().model()->rowCount(), 3);
    EXPECT_FALSE(menu("mnuAddLocalities").isEnabled());
    EXPECT_TRUE(form.isWindowModified());
    menu("mnuUndo").trigger();
    EXPECT_EQ(table().model()->rowCount(), 1);
    EXPECT_FALSE(form.isWindowModified());
}

TEST_F(DataInput, KindsAreSetDeletedAndPutIntoTheData)
{
    for (const char* kind : {"b", "a", "b", "", "\\Q1"}) {
        setKind(QLatin1String(kind));
    }
    EXPECT_EQ(kinds(), QStringList({"b", "a", "\\Q1"}));
    EXPECT_EQ(form.focusWidget(), &control<QLineEdit>("txtKind")) << "for the next kind";
    auto& list = control<QListWidget>("lstKind");
    list.setCurrentRow(1);
    Q_EMIT list.itemDoubleClicked(list.currentItem());
    EXPECT_EQ(word(1, 1), QStringLiteral("a"));
    EXPECT_EQ(cell(), std::pair(2, 1));
    table().goTo(2, 2);
    list.setCurrentRow(0);
    click("cmdKindToData");
    EXPECT_EQ(word(2, 2), QStringLiteral("b"));
    click("cmdDelKind");
    EXPECT_EQ(kinds(), QStringList({"a", "\\Q1"}));
    type(QStringLiteral("new"));
    click("cmdDataToKind");
    EXPECT_EQ(kinds(), QStringList({"a", "\\Q1", "b", "new"}));
    list.setCurrentRow(-1);
    click("cmdDelKind");
    click("cmdKindToData");
    EXPECT_EQ(kinds().size(), 4);
}

TEST_F(DataInput, CheckCodeLeadsToTheFaults)
{
    click("cmdCheckCode");
    ASSERT_EQ(shown().size(), 1U) << "it says that there are none";
    EXPECT_FALSE(control<QFrame>("fraCheck").isVisible());

    table().goTo(2, 3);
    type(QStringLiteral("a\\Q1"));
    strike(Qt::Key_Return);
    type(QStringLiteral("b\\"));
    table().goTo(1, 1);
    click("cmdCheckCode");
    auto& list = control<QListWidget>("lstCheck");
    ASSERT_TRUE(control<QFrame>("fraCheck").isVisible());
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(cell(), std::pair(2, 3));
    EXPECT_EQ(control<QLabel>("lblFault").palette().color(QPalette::WindowText), warningText(form.palette()));
    list.setCurrentRow(1);
    EXPECT_EQ(cell(), std::pair(3, 1));
    strike(Qt::Key_Delete);
    EXPECT_EQ(list.count(), 1) << "a fault that was mended leaves the list";
}

TEST_F(DataInput, InitializeAndLeavingAskForWhatIsUnsaved)
{
    int left = 0;
    QObject::connect(&form, &frmDataInput::toMain, &form, [&left] { ++left; });
    open("rain.dbs");
    menu("mnuToMain").trigger();
    EXPECT_EQ(left, 1);
    shown();

    type(QStringLiteral("x"));
    dialogs.yesNo = {false, true};
    menu("mnuToMain").trigger();
    EXPECT_EQ(left, 1);
    menu("mnuToMain").trigger();
    EXPECT_EQ(left, 2);
    dialogs.yesNo = {false};
    EXPECT_FALSE(form.close());
    EXPECT_EQ(shown().size(), 3U);

    dialogs.yesNo = {false, true};
    menu("mnuInitialize").trigger();
    EXPECT_EQ(word(1, 1), QStringLiteral("x"));
    menu("mnuInitialize").trigger();
    EXPECT_EQ(word(1, 1) + word(1, 2), QString());
    EXPECT_EQ(kinds(), QStringList());
    EXPECT_EQ(control<QLineEdit>("txtHanrei").text(), QString());
    EXPECT_EQ(control<QPlainTextEdit>("txtComment").toPlainText(), QString());
    EXPECT_FALSE(form.isWindowModified());
    EXPECT_TRUE(form.close());
}

TEST_F(DataInput, AnotherMapBringsANewItem)
{
    open("rain.dbs");
    form.Form_Load();
    EXPECT_EQ(word(1, 2), QStringLiteral("ame")) << "the same map keeps it";
    survey.varn.VarnMapName = QStringLiteral("\\Other");
    survey.varn.NLocality = 2;
    form.Form_Load();
    EXPECT_EQ(table().model()->rowCount(), 2);
    EXPECT_EQ(word(1, 2), QString());

    type(QStringLiteral("x"));
    strike(Qt::Key_Tab);
    survey.varn.VarnMapName = QStringLiteral("\\Third");
    dialogs.yesNo = {false, true};
    form.Form_Load();
    EXPECT_EQ(word(1, 1), QStringLiteral("x"));
    form.Form_Load();
    EXPECT_EQ(word(1, 1), QString());
}

TEST_F(DataInput, MapFollowsTheTableAndLeadsIt)
{
    auto& map = control<LocalityView>("picMap");
    const QImage first = map.grab().toImage();
    table().goTo(3, 1);
    const QImage third = map.grab().toImage();
    EXPECT_NE(third, first);

    // The third locality lies in the lower right, the first in the upper left.
    const QPointF corner(map.width() / 3.0, 1);
    QMouseEvent press(QEvent::MouseButtonPress, corner, map.mapToGlobal(corner), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&map, &press);
    EXPECT_EQ(cell(), std::pair(1, 1));
    EXPECT_EQ(map.grab().toImage(), first);
}

TEST_F(DataInput, DeleteEmptiesTheCurrentCellWhereverKeysLead)
{
    open("rain.dbs");
    strike(Qt::Key_End, {}, Qt::ControlModifier);
    EXPECT_EQ(cell(), std::pair(3, 5));
    strike(Qt::Key_Delete);
    EXPECT_EQ(word(1, 1), QStringLiteral("uyu"));
    strike(Qt::Key_Home, {}, Qt::ControlModifier);
    strike(Qt::Key_Delete);
    EXPECT_EQ(words(1), QStringList({"", "ame", "", "", ""}));
    strike(Qt::Key_End, {}, Qt::ControlModifier | Qt::ShiftModifier);
    strike(Qt::Key_Delete);
    EXPECT_EQ(words(1) + words(3), QStringList(10, QString()));
    menu("mnuUndo").trigger();
    EXPECT_EQ(word(1, 2) + word(3, 1), QStringLiteral("ameuyu")) << "one step";
    EXPECT_EQ(cell(), std::pair(1, 2)) << "where something changed";
}

TEST_F(DataInput, EverythingIsUndoneAndTakenAgain)
{
    open("rain.dbs");
    EXPECT_FALSE(menu("mnuUndo").isEnabled());
    type(QStringLiteral("x"));
    strike(Qt::Key_Return);
    setKind(QStringLiteral("k"));
    click("cmdKindToData");
    control<QListWidget>("lstKind").setCurrentRow(0);
    click("cmdDelKind");
    Q_EMIT control<QLineEdit>("txtHanrei").textEdited(QStringLiteral("R"));
    control<QPlainTextEdit>("txtComment").setPlainText(QStringLiteral("c"));
    const auto all = [this] {
        return words(1) + words(2) + kinds() +
               QStringList({control<QLineEdit>("txtHanrei").text(),
                            control<QPlainTextEdit>("txtComment").toPlainText()});
    };
    const QStringList opened = {"uyu", "ame", "", "",    "",    "",     "",
                                "",    "",    "", "ame", "uyu", "Rain", "from 1950"};
    const QStringList entered = {"x", "ame", "", "", "", "k", "", "", "", "", "uyu", "k", "R", "c"};
    const auto stepsWhile = [this](const char* name) {
        int steps = 0;
        for (; steps < 20 && menu(name).isEnabled(); ++steps) {
            menu(name).trigger();
        }
        return steps;
    };
    for (int times = 1; times <= 2; ++times) {
        EXPECT_EQ(stepsWhile("mnuUndo"), 6);
        EXPECT_EQ(all(), opened);
        EXPECT_FALSE(form.isWindowModified());
        EXPECT_EQ(stepsWhile("mnuRedo"), 6);
        EXPECT_EQ(all(), entered);
        EXPECT_TRUE(form.isWindowModified());
    }
    EXPECT_EQ(menu("mnuUndo").shortcuts(), QList({QKeySequence("Ctrl+Z")}));
    EXPECT_EQ(menu("mnuRedo").shortcuts(), QList({QKeySequence("Ctrl+Y"), QKeySequence("Ctrl+Shift+Z")}));
}

TEST_F(DataInput, EmptyWordFormsAreSeenAndEntered)
{
    survey.write(Folder + QStringLiteral("gap.dbs"),
                 "3,\"\",\"\",\"\"\r\n2\r\n\"\"\r\n\" \"\r\n0\r\n1\r\n\"\"\r\n");
    open("gap.dbs");
    EXPECT_EQ(words(1), QStringList({"\"\"", " ", "", "", ""}));
    EXPECT_EQ(kinds(), QStringList({"\"\"", " "}));
    for (const int column : {1, 2}) {
        table().goTo(1, column);
        strike(Qt::Key_F2);
        strike(Qt::Key_Return);
    }
    EXPECT_FALSE(form.isWindowModified()) << "looked at, not changed";
    type(QStringLiteral("\"\""));
    strike(Qt::Key_Return);
    control<QListWidget>("lstKind").setCurrentRow(0);
    table().goTo(3, 3);
    click("cmdKindToData");
    save("gap", {true});
    EXPECT_EQ(survey.read(Folder + QStringLiteral("gap.dbs")),
              "3,\"\",\"\",\"\"\r\n2\r\n\"\"\r\n\" \"\r\n1\r\n\"\"\r\n2\r\n\"\"\r\n\"\"\r\n");
    EXPECT_EQ(survey.read(Folder + QStringLiteral("gap.srt")), "2\r\n\"\",4\r\n\" \",1\r\n");
}

TEST_F(DataInput, KindsAreEnteredByTheirLettersHoweverQuickly)
{
    for (const char* kind : {"b", "l", "lb", "w", "wa", "wl"}) {
        setKind(QLatin1String(kind));
    }
    auto& list = control<QListWidget>("lstKind");
    for (const char* letters : {"w", "l", "b"}) {
        strikeIn(list, Qt::Key_unknown, QLatin1String(letters));
        strikeIn(list, Qt::Key_Return);
    }
    EXPECT_EQ(word(1, 1) + ' ' + word(2, 1) + ' ' + word(3, 1), QStringLiteral("w l b"));
    table().goTo(1, 2);
    for (const char* letters : {"w", "l", "\r", "w", "a"}) {
        strikeIn(list, *letters == '\r' ? Qt::Key_Return : Qt::Key_unknown, QLatin1String(letters));
    }
    EXPECT_EQ(word(1, 2), QStringLiteral("wl"));
    EXPECT_EQ(list.currentItem()->text(), QStringLiteral("wa"));
    strikeIn(list, Qt::Key_Delete);
    EXPECT_FALSE(kinds().contains(QStringLiteral("wa")));
}

TEST_F(DataInput, KindsAreOfferedWhileAWordIsTyped)
{
    for (const char* kind : {"walk", "water", "b"}) {
        setKind(QLatin1String(kind));
    }
    struct Row
    {
        const char* typed;
        std::vector<Qt::Key> keys;
        const char* word;
        std::pair<int, int> cell;
    };
    const std::vector<Row> rows = {
        {"wa", {Qt::Key_Return}, "wa", {2, 1}}, // what is typed, though kinds are listed
        {"wa", {Qt::Key_Down, Qt::Key_Down, Qt::Key_Enter}, "water", {2, 1}},
        {"W", {Qt::Key_Down, Qt::Key_Tab}, "walk", {1, 2}},
        {"wa", {Qt::Key_Down, Qt::Key_Up, Qt::Key_Return}, "wa", {2, 1}},
        {"wax", {Qt::Key_Down}, "wax", {2, 1}}, // no kind: the arrow leaves the cell
        {"wa", {Qt::Key_Escape, Qt::Key_Return}, "wa", {2, 1}},
        {"wa", {Qt::Key_Escape, Qt::Key_Escape}, "", {1, 1}},
    };
    for (const Row& row : rows) {
        table().goTo(1, 1);
        strike(Qt::Key_Delete);
        type(QLatin1String(row.typed));
        EXPECT_EQ(QApplication::activePopupWidget() != nullptr, QString(row.typed) != "wax");
        for (const Qt::Key key : row.keys) {
            strike(key);
        }
        EXPECT_EQ(word(1, 1), QLatin1String(row.word)) << row.typed;
        EXPECT_EQ(cell(), row.cell) << row.typed;
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << row.typed;
    }
}

TEST_F(DataInput, BlocksAreCutCopiedAndPasted)
{
    open("rain.dbs");
    table().goTo(2, 2);
    paste(QStringLiteral("a\tb\n\" c\nd\"\t\"\""));
    EXPECT_EQ(words(2), QStringList({"", "a", "b", "", ""}));
    EXPECT_EQ(words(3), QStringList({"uyu", "c d", "\"\"", "", ""}));
    table().goTo(2, 5);
    shown();
    paste(QStringLiteral("a\tb\nc"));
    EXPECT_EQ(shown().at(0).text,
              QStringLiteral("There is no room for the 2 rows and 2 columns from locality 2, "
                             "word 5 on. Nothing was pasted."));
    EXPECT_EQ(word(2, 5), QString());

    table().goTo(2, 2);
    strike(Qt::Key_End, {}, Qt::ControlModifier | Qt::ShiftModifier);
    menu("mnuCut").trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("a\tb\t\t\nc d\t\"\"\t\t\n"));
    EXPECT_EQ(words(2) + words(3), QStringList({"", "", "", "", "", "uyu", "", "", "", ""}));
    menu("mnuUndo").trigger();
    menu("mnuUndo").trigger();
    EXPECT_FALSE(form.isWindowModified()) << "two steps: paste and cut";
    menu("mnuCopy").trigger();

    auto& caption = control<QLineEdit>("txtHanrei");
    caption.setFocus();
    caption.selectAll();
    menu("mnuCopy").trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Rain"))
        << "of the box that has the focus";
}

TEST_F(DataInput, GoToLeadsToALocality)
{
    const auto goTo = [this](const std::optional<QString>& answer) {
        dialogs.inputs = {answer};
        menu("mnuGoTo").trigger();
        return shown().back().text;
    };
    survey.varn.localityNames.resize(3);
    survey.varn.localityNames[2].name = QStringLiteral("Amele");
    goTo(QStringLiteral(" 3 "));
    EXPECT_EQ(cell(), std::pair(3, 1));
    EXPECT_EQ(control<QLabel>("lblCell").text(), QStringLiteral("Locality 3 Amele, word 1"));
    const QAbstractItemModel& rows = *control<QTableView>("tblWords").model();
    EXPECT_EQ(rows.headerData(2, Qt::Vertical), QStringLiteral("3 Amele"));
    EXPECT_EQ(rows.headerData(1, Qt::Vertical), QStringLiteral("2"));
    for (const char* wrong : {"0", "4", "two", ""}) {
        EXPECT_EQ(goTo(QLatin1String(wrong)), QStringLiteral("Locality No. must be a number from 1 to 3."));
    }
    EXPECT_EQ(goTo(std::nullopt), QStringLiteral("Locality No."));
    EXPECT_EQ(cell(), std::pair(3, 1));
}
