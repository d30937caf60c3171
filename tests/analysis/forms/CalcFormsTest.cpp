#include "analysis/forms/frmCalExec.h"
#include "analysis/forms/frmCalc.h"
#include "tests/support/Controls.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestDrive.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>

namespace {

using Shown = ScriptedDialogs::Shown;
using Answers = std::deque<bool>;

const QString Analysis = "Analysis of Linguistic Data.";
const QString Completed = "Analyse of Linguistic Data File is completed.";
const QString NoNumber = "No. of Specify Data is inadequate.";
const QString NoName = "Input Name of Aalysis File.";
const QString OutOfRange = "Run-time error '9': Subscript out of range";

/// Both forms of cumulative analysis on the map of a `TestSurvey`, which has an item and the files of a table
/// of two word forms.
class CalcForms : public testing::Test
{
protected:
    CalcForms()
    {
        write("rain.dbs", "3,\"\",\"Rain\",\"\"\n2\n\"ame\"\n\"uyu\"\n1\n\"a mu\"\n1\n\"uyu\"\n");
        write("all.ttl", "2,5,\"the caption\"\n\"one\"\n12,9\n\"kept\",3\n\"two\"\n0,15\n2.5,0\n"
                         "1,2\n3,2\n5,4\n");
        write("all.sum", "2\n2,\"a\",\"am\"\n1,\"u\"\n");
        calc.Form_Load();
        exec.Form_Load();
    }

    static QString ling(const QString& file) { return "C:\\Varn62E\\Varn\\VarnData\\Test\\Ling\\" + file; }
    void write(const char* file, const QByteArray& text) const { survey.write(ling(file), text); }
    QByteArray saved(const char* file) const { return survey.read(ling(file)); }

    template <typename Control>
    Control& control(const char* name)
    {
        return child<Control>(calc, name);
    }
    QString text(const char* name) { return control<QLineEdit>(name).text(); }
    void type(const char* name, const char* text) { control<QLineEdit>(name).setText(text); }
    QString listed(const char* list) { return rowsOf(control<QListWidget>(list)).join(", "); }
    bool shows(const char* text) const { return wasPrinted(exec.surface().drawing(), text); }

    /// Uses a menu entry or button of either form and gives `answers` to what it asks. What was told last: a
    /// message, a question, or the title of an error. The contrast is analysed before.
    QString use(const char* name, const Answers& answers = {})
    {
        dialogs.shown.clear();
        dialogs.errors.clear();
        dialogs.yesNo = answers;
        varn.ContrastAnalysed = true;
        if (auto* button = calc.findChild<QPushButton*>(name)) {
            EXPECT_TRUE(button->isEnabled()) << name;
            button->click();
        } else {
            auto* entry = calc.findChild<QAction*>(name);
            entry = entry != nullptr ? entry : &child<QAction>(exec, name);
            EXPECT_TRUE(entry->isEnabled()) << name;
            entry->trigger();
        }
        EXPECT_EQ(dialogs.yesNo.size(), 0U) << name << " did not ask all that it should";
        if (!dialogs.errors.empty()) {
            return dialogs.errors.back().title;
        }
        return dialogs.shown.empty() ? QString() : dialogs.shown.back().text;
    }
    QString open(const char* entry, const char* file, const Answers& answers = {})
    {
        dialogs.files = {survey.drive().hostPath(ling(file))};
        return use(entry, answers);
    }
    QString executeAll(const Answers& answers = {})
    {
        dialogs.folders = {survey.drive().hostPath(ling("rain.dbs")).chopped(9)};
        return use("mnuExecAll", answers);
    }
    QString initialize(bool wanted)
    {
        dialogs.okCancel = {wanted};
        return use("mnuInitialize");
    }

    TestSurvey survey;
    VarnModule& varn = survey.varn;
    ScriptedDialogs dialogs;
    frmCalc calc{varn, dialogs};
    frmCalExec exec{varn, dialogs};
};

/// The same with table, strings and item loaded.
class LoadedCalcForms : public CalcForms
{
protected:
    LoadedCalcForms()
    {
        open("mnuFileOpen", "all.ttl", {true}); // and the strings of the same name
        open("mnuGengoOpen", "rain.dbs");
        exec.Form_Load();
    }
};

} // namespace

TEST_F(CalcForms, ANewTableIsSetUpAndSaved)
{
    const std::pair<const char*, QString> numbers[] = {{"none", NoNumber}, {"2", ""}, {"11", OutOfRange}};
    for (const auto& [number, message] : numbers) {
        type("txtTotalNumber", number);
        EXPECT_EQ(use("cmdTotalNumber"), message) << number;
    }
    EXPECT_FALSE(calc.isWindowModified()) << "a number of word forms is nothing to lose";

    type("txtTotalName", "one");
    control<QComboBox>("cboForeColor").setCurrentIndex(12);
    control<QComboBox>("cboFillColor").setCurrentIndex(9);
    use("cmdSet");
    EXPECT_EQ(use("cmdNext"), "") << "registered fields are left without a question";
    type("txtTotalName", "two");
    use("cmdSet");
    EXPECT_EQ(listed("lstTotal"), "1 one, 2 two");
    EXPECT_FALSE(control<QPushButton>("cmdNext").isEnabled());

    type("txtExplain", "a caption");
    type("txtTotalItems", "7");
    use("cmdSetInput");
    const std::pair<const char*, QString> names[] = {
        {"", NoName}, {"..\\out", "Run-time error '52': Bad file name or number"}, {"new.ttl", ""}};
    for (const auto& [name, message] : names) {
        EXPECT_TRUE(calc.isWindowModified());
        type("txtTotalFileName", name);
        EXPECT_EQ(use("cmdTotalFileSave"), message) << name;
    }
    EXPECT_FALSE(calc.isWindowModified());
    EXPECT_EQ(saved("new.ttl"), "2,7,\"a caption\"\r\n\"one\"\r\n12,9\r\n0,0\r\n\"two\"\r\n9,9\r\n0,0\r\n"
                                "0,0\r\n0,0\r\n0,0\r\n");
    type("txtTotalFileName", "all");
    use("mnuFileSave", {false});
    EXPECT_TRUE(saved("all.ttl").startsWith("2,5,")) << "another file is kept";
}

TEST_F(LoadedCalcForms, StringsAreEditedFromTheKindsAndSaved)
{
    const auto after = [this](const char* button) {
        use(button);
        return listed("LstWord") + ": " + text("txtInputWord");
    };
    EXPECT_EQ(after("cmdSetWord"), "a, am: a mu") << "the text after the first blank";
    type("txtInputWord", "mu");
    EXPECT_EQ(after("cmdWordSelect"), "a, am, mu: mu");
    EXPECT_EQ(after("cmdWordBefore"), "a, am, mu: am");
    type("txtSetFileName", " ");
    EXPECT_EQ(use("cmdWordSave"), "Input Name of Specify Characters.");
    type("txtSetFileName", "mine");
    EXPECT_EQ(use("cmdWordSave"), "");
    EXPECT_EQ(saved("mine.sum"), "2\r\n3,\"a\",\"am\",\"mu\"\r\n1,\"u\"\r\n");

    EXPECT_FALSE(calc.isWindowModified());
    type("txtInputWord", "AM");
    EXPECT_EQ(after("cmdWordRewrite"), "a, AM, mu: AM");
    EXPECT_TRUE(calc.isWindowModified());
    type("txtInputWord", "");
    EXPECT_EQ(use("cmdWordRewrite", {false}), "An empty string is found in every answer. Register it?");
    use("cmdWordBefore");
    EXPECT_EQ(after("cmdWordDelete"), "AM, mu: AM") << "the next one";
    use("cmdWordNext");
    EXPECT_EQ(after("cmdWordDelete"), "AM: AM") << "the last one";
    EXPECT_EQ(after("cmdWordReset"), ": ");
    EXPECT_TRUE(use("cmdWordSave").endsWith("\n1 one (0 strings)"));
    for (int strings = 1; strings <= 11; ++strings) {
        use("cmdSetWord");
        use("cmdWordSelect");
        EXPECT_EQ(use("cmdWordSave") == "", strings <= 10) << strings;
    }
    EXPECT_TRUE(dialogs.shown.back().text.endsWith("\n1 one (11 strings)"));
    varn.NumSpecifyChars(1) = 400;
    EXPECT_EQ(use("cmdWordSelect"), OutOfRange);
    EXPECT_EQ(varn.NumSpecifyChars(1), 400);

    control<QListWidget>("lstTotal").setCurrentRow(1);
    QApplication::processEvents();
    EXPECT_EQ(text("txtTotalName") + ": " + listed("LstWord") + ": " + text("txtInputWord"), "two: u: u");
    write("empty.dbs", "3,\"\",\"\",\"\"\n0\n0\n0\n");
    open("mnuGengoOpen", "empty.dbs");
    EXPECT_EQ(dialogs.shown.back(), (Shown{"Specify Linguistic Data.", "Input Wordform Data."}));
    EXPECT_EQ(listed("lstDisplay"), "");
}

TEST_F(LoadedCalcForms, OnlyUnsavedWorkIsAskedAbout)
{
    EXPECT_TRUE(calc.close());
    type("txtTotalName", "changed");
    dialogs.yesNo = {false};
    control<QListWidget>("lstTotal").setCurrentRow(1);
    QApplication::processEvents();
    EXPECT_EQ(control<QListWidget>("lstTotal").currentRow(), 0);
    EXPECT_EQ(text("txtTotalName"), "changed");
    use("cmdSet");
    use("cmdWordReset");
    for (const auto& answers : {Answers{false}, {true, false}}) { // for the table and for the strings
        dialogs.yesNo = answers;
        EXPECT_FALSE(calc.close());
    }
    use("mnuFileOpen", {false});
    use("mnuSetFileLoad", {false});
    EXPECT_EQ(varn.WordformName(1), "changed");
    open("mnuFileOpen", "all.ttl", {true});
    EXPECT_EQ(text("txtTotalName"), "one");
    EXPECT_FALSE(varn.ContrastAnalysed) << "it is of another table";
    write("three.sum", "3\n1,\"a\"\n1,\"b\"\n1,\"c\"\n");
    for (const bool wanted : {false, true}) { // strings of other word forms
        open("mnuSetFileLoad", "three.sum", {true, wanted});
        EXPECT_EQ(varn.NumWordforms, wanted ? 3 : 2);
        EXPECT_EQ(varn.ContrastAnalysed, !wanted);
    }
}

TEST_F(CalcForms, WithoutAnItemOrATableNothingIsCounted)
{
    use("mnuExecCalc");
    EXPECT_EQ(dialogs.shown.back(), (Shown{"Specify Linguistic Data.", "Input Wordform Data."}));
    open("mnuGengoOpen", "rain.dbs");
    EXPECT_EQ(use("mnuExecCalc"), NoNumber);
    EXPECT_EQ(use("mnuExecSave"), NoName);
    open("mnuFileOpen", "all.ttl", {false}); // nor the strings of the same name
    EXPECT_TRUE(use("mnuExecCalc", {false}).startsWith("No word form has an identifying string"));
    EXPECT_EQ(varn.NumItemsAccumulated, 5);
}

TEST_F(LoadedCalcForms, ExecutingCountsTheItemAndSavesTheTable)
{
    use("mnuDisplay");
    use("mnuExecCalc");
    EXPECT_EQ(dialogs.shown, std::vector<Shown>({{Completed, Analysis}}));
    EXPECT_FALSE(varn.ContrastAnalysed) << "it is of other counts";
    EXPECT_TRUE(saved("all.ttl").startsWith("2,6,"));
    EXPECT_TRUE(saved("all.ttl").endsWith("\r\n3,2\r\n4,3\r\n5,5\r\n"));
    EXPECT_TRUE(shows("Item No.6  Characteristis of Words 1 one")) << "the page shows the new counts";
    varn.Counts(1, 2) = 32767;
    use("mnuExecSave");
    EXPECT_EQ(dialogs.shown.back(), (Shown{"Linguistic Data File is saved.", "Save of Linguistic Data"}));

    const QByteArray before = saved("all.ttl");
    const QString again = "rain.dbs is counted in the table already. Count it once more?";
    EXPECT_EQ(use("mnuExecCalc", {false}), again);
    EXPECT_EQ(use("mnuExecCalc", {true}), "Run-time error '6': Overflow");
    varn.NLocality = 1;
    EXPECT_TRUE(use("mnuExecCalc", {false}).startsWith("The item has 3 localities, the map has 1."));
    EXPECT_EQ(saved("all.ttl"), before);
    EXPECT_EQ(use("mnuExecCalc", {true, true}), Completed);
}

TEST_F(LoadedCalcForms, AllItemsOfAFolderAreCountedUntilStop)
{
    write("snow.dbs", "3,\"\",\"\",\"\"\n1\n\"am\"\n0\n0\n");
    write("snow.srt", "no kinds");
    write("bad.dbs", "no item");
    write("far.dbs", "1,\"\",\"\",\"\"\n1\n\"am\"\n");
    EXPECT_EQ(executeAll(), Completed + "\n2 of 4 items were counted.\n\nNot counted:\nbad.dbs\nfar.dbs");
    EXPECT_EQ(dialogs.shown.back().title, Analysis);
    EXPECT_FALSE(varn.ContrastAnalysed) << "it is of other counts";
    EXPECT_TRUE(shows("bad.dbs:")) << "why is told on the page";
    EXPECT_TRUE(shows("    The item has 1 localities, the map has 3."));
    EXPECT_TRUE(saved("all.ttl").startsWith("2,7,"));
    EXPECT_EQ(varn.Counts(1, 1), 1 + 2 + 2);
    EXPECT_TRUE(executeAll({false}).contains("\n0 of 4 items were counted.\n2 had been counted before."));
    EXPECT_TRUE(dialogs.shown.end()[-2].text.startsWith("2 of the 4 items are counted"));
    EXPECT_TRUE(executeAll({true}).contains("\n2 of 4 items were counted.\n\n"));
    EXPECT_EQ(varn.Counts(1, 1), 1 + 2 * (2 + 2));

    QTimer::singleShot(0, &exec, [this] {
        const auto& progress = *exec.findChild<QProgressDialog*>();
        EXPECT_EQ(progress.windowTitle(), Analysis);
        EXPECT_EQ(progress.windowModality(), Qt::ApplicationModal);
        EXPECT_EQ(progress.labelText(), "bad.dbs (1 of 4)");
        EXPECT_EQ(std::tuple(progress.value(), progress.maximum(), progress.minimumWidth()),
                  std::tuple(0, 4, 360));
        EXPECT_EQ(progress.findChild<QPushButton*>()->text(), "Stop");
        progress.findChild<QPushButton*>()->click();
    });
    EXPECT_TRUE(executeAll({true}).startsWith("Analyse of Linguistic Data Files is stopped.\n0 of 4 items"));
    EXPECT_EQ(varn.NumItemsAccumulated, 9);
}

TEST_F(LoadedCalcForms, TheTableIsCutAndEmptiedOnlyIfWanted)
{
    for (const bool wanted : {false, true}) {
        type("txtTotalNumber", "1");
        EXPECT_TRUE(use("cmdTotalNumber", {wanted}).endsWith("counts and strings: 2 two. O.K.?"));
        EXPECT_EQ(text("txtTotalNumber"), wanted ? "1" : "2");
    }
    for (const char* number : {"3", "2"}) {
        type("txtTotalNumber", number);
        EXPECT_EQ(use("cmdTotalNumber"), "") << "there is nothing to lose";
        EXPECT_FALSE(varn.ContrastAnalysed) << "it is of other word forms";
    }
    initialize(false);
    EXPECT_TRUE(varn.ContrastAnalysed);
    EXPECT_EQ(varn.NumItemsAccumulated, 5);
    EXPECT_EQ(varn.Counts(1, 3), 5) << "what the table has stays";
    initialize(true);
    const QString title = "Initialize of Analysis File.";
    const Shown question = {"Initialize Analysis File. All Data will be Lost. O.K.?", title};
    EXPECT_EQ(dialogs.shown, std::vector<Shown>({question, {"Analysis File is initialized.", title}}));
    EXPECT_FALSE(varn.ContrastAnalysed) << "it is of other counts";
    EXPECT_EQ(text("txtTotalItems"), "0");
    EXPECT_EQ(saved("all.ttl"), "2,0,\"the caption\"\r\n\"one\"\r\n12,9\r\n\"kept\",3\r\n\"\"\r\n9,9\r\n"
                                "0,0\r\n0,0\r\n0,0\r\n0,0\r\n");
    EXPECT_EQ(varn.NumSpecifyChars(1), 2);
    type("txtTotalFileName", "");
    EXPECT_EQ(initialize(true), NoName);
}

TEST_F(LoadedCalcForms, AnotherTableDoesNotCountByTheOldStringsUnasked)
{
    write("new.ttl", saved("all.ttl"));
    EXPECT_EQ(open("mnuFileOpen", "new.ttl", {true}),
              "The identifying strings are still those of all.sum. Keep them for new.ttl?");
    EXPECT_EQ(varn.NumSpecifyChars(1), 2);
    open("mnuFileOpen", "new.ttl"); // it is the same table
    open("mnuFileOpen", "all.ttl");
    open("mnuFileOpen", "new.ttl", {false});
    EXPECT_EQ(varn.NumSpecifyChars(1), 0);
    EXPECT_EQ(text("txtSetFileName"), "");

    write("new.sum", "1\n1,\"x\"\n");
    open("mnuFileOpen", "all.ttl", {true});
    EXPECT_EQ(text("txtSetFileName"), "all");
    use("cmdWordSelect");
    open("mnuFileOpen", "new.ttl", {true, false, true}); // the file of one word form would drop the other
    EXPECT_TRUE(dialogs.shown.end()[-3].text.startsWith("Open new.sum, the identifying strings"));
    EXPECT_TRUE(dialogs.shown.end()[-3].text.endsWith("are not saved."));
    EXPECT_TRUE(dialogs.shown.end()[-2].text.contains("2 two."));
    EXPECT_EQ(varn.NumSpecifyChars(1), 3);
}

TEST_F(LoadedCalcForms, AColorThatNoListHasIsShownAsNothingAndStays)
{
    const auto shown = [this] {
        return std::pair(control<QComboBox>("cboForeColor").currentIndex(),
                         control<QComboBox>("cboFillColor").currentIndex());
    };
    EXPECT_EQ(shown(), std::pair(12, 9));
    use("cmdNext");
    EXPECT_EQ(shown(), std::pair(0, 15));
    use("cmdPrevious");
    varn.WordformSymbolColor(2) = 16;
    varn.WordformPaintColor(2) = -1;
    use("cmdNext");
    EXPECT_EQ(shown(), std::pair(-1, -1));
    use("cmdSet");
    EXPECT_EQ(std::pair(int(varn.WordformSymbolColor(2)), int(varn.WordformPaintColor(2))),
              std::pair(16, -1));
}

TEST_F(LoadedCalcForms, PagesAndItemsGoRound)
{
    varn.NLocality = 320;
    varn.NumWordforms = 3;
    varn.WordformName(3) = "three";
    const std::tuple<const char*, const char*, const char*> steps[] = {
        {"mnuDisplay", "1 one", "160"},         {"mnuDisplayPrevious", "1 one", ""},
        {"mnuDisplayPrevious", "1 one", "320"}, {"mnuDisplayNext", "1 one", ""},
        {"mnuDisplayNext", "1 one", "160"},     {"mnuItemPrevious", "3 three", "160"},
        {"mnuItemPrevious", "2 two", "160"},    {"mnuItemNext", "3 three", "160"},
        {"mnuItemNext", "1 one", "160"},        {"mnuDisplayNext", "1 one", "320"},
        {"mnuItemNext", "2 two", "160"}}; // another item begins with page 1
    for (const auto& [entry, wordform, lastLocality] : steps) {
        use(entry);
        const auto& texts = exec.surface().drawing().texts;
        EXPECT_EQ(texts.at(0), QString("Item No.5  Characteristis of Words ") + wordform) << entry;
        EXPECT_EQ(texts.size() > 1 ? texts.end()[-2] : "", lastLocality) << entry;
    }
    calc.Form_Load();
    EXPECT_EQ(text("txtTotalName"), "two") << "the set-up form shows the same word form";
}

TEST_F(LoadedCalcForms, StatisticsAreShownSavedAndOpened)
{
    const auto& save = child<QAction>(exec, "mnuStatsSave");
    EXPECT_FALSE(save.isEnabled());
    use("mnuStatsExec");
    EXPECT_TRUE(shows("Kt=1") && shows("Average=3"));
    use("mnuStatsDisplayAll");
    EXPECT_TRUE(shows("Kt=2 two"));
    use("mnuStatsSave");
    EXPECT_TRUE(saved("all.stt").startsWith("2,5\r\n1\r\n4,1,3,2\r\n3,0\r\n3,1\r\n"));
    EXPECT_EQ(varn.StatsFileName, ling("all.stt"));
    varn.NumItemsAccumulated = 6;
    EXPECT_TRUE(open("mnuStatsOpen", "all.stt")
                    .endsWith("2 word forms and 5 items, the cumulative data has 2 and 6."));
    varn.NumItemsAccumulated = 5;
    open("mnuStatsOpen", "all.stt");
    EXPECT_EQ(dialogs.shown.size(), 1U) << "there is nothing to tell";
    varn.TotalFileName.clear();
    EXPECT_EQ(use("mnuStatsSave"), NoName);

    varn.Counts(1, 2) = 0;
    varn.Counts(1, 3) = 0;
    EXPECT_EQ(use("mnuStatsExec"), "Run-time error '11': Division by zero");
    EXPECT_FALSE(save.isEnabled()) << "they are not of these counts";
    write("other.stt", "1,1\n1\n1,1,1.5,0\n2,0\n2,2\n");
    EXPECT_EQ(open("mnuStatsOpen", "other.stt"),
              "The statistics are of 1 word forms and 1 items, the cumulative data has 2 and 5.");
    write("many.stt", "11,1\n");
    EXPECT_EQ(open("mnuStatsOpen", "many.stt"), OutOfRange);
    EXPECT_TRUE(shows("Average=1.5")) << "what was shown stays";
}
