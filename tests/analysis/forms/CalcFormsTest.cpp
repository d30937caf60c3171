#include "analysis/CumulativeFile.h"
#include "analysis/forms/frmCalExec.h"
#include "analysis/forms/frmCalc.h"
#include "shell/MapChoice.h"
#include "tests/support/Controls.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestDrive.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>

#include <functional>

namespace {

using Shown = ScriptedDialogs::Shown;

const QString Analysis = QStringLiteral("Analysis of Linguistic Data.");

/// Both forms of cumulative analysis on the map of a `TestSurvey`, which has an item and the files of a table
/// of two word forms.
class CalcForms : public testing::Test
{
protected:
    CalcForms()
    {
        survey.write(ling("rain.dbs"),
                     "3,\"\",\"Rain\",\"\"\r\n2\r\n\"ame\"\r\n\"uyu\"\r\n1\r\n\"a mu\"\r\n1\r\n\"uyu\"\r\n");
        survey.write(ling("all.ttl"),
                     "2,5,\"the caption\"\r\n\"one\"\r\n12,9\r\n\"kept\",3\r\n\"two\"\r\n0,15\r\n2.5,0\r\n"
                     "1,2\r\n3,2\r\n5,4\r\n");
        survey.write(ling("all.sum"), "2\r\n2,\"a\",\"am\"\r\n1,\"u\"\r\n");
        calc.Form_Load();
        exec.Form_Load();
    }

    static QString ling(const char* file)
    {
        return QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Ling\\") + QLatin1String(file);
    }

    template <typename Control>
    Control& control(const char* name)
    {
        return child<Control>(calc, name);
    }
    QString text(const char* name) { return control<QLineEdit>(name).text(); }
    void type(const char* name, const char* text) { control<QLineEdit>(name).setText(QLatin1String(text)); }
    void click(const char* name)
    {
        auto& button = control<QPushButton>(name);
        ASSERT_TRUE(button.isEnabled()) << name;
        button.click();
    }
    void set(const char* entry) { control<QAction>(entry).trigger(); }
    void execute(const char* entry)
    {
        auto& action = child<QAction>(exec, entry);
        ASSERT_TRUE(action.isEnabled()) << entry;
        action.trigger();
    }
    void open(const char* entry, const char* file)
    {
        dialogs.files = {survey.drive().hostPath(ling(file))};
        set(entry);
    }
    void openAll()
    {
        dialogs.yesNo = {true}; // the strings of the same name
        open("mnuFileOpen", "all.ttl");
        open("mnuGengoOpen", "rain.dbs");
        dialogs.shown.clear();
        calc.Form_Load();
        exec.Form_Load();
    }
    QStringList listed(const char* list) { return rowsOf(control<QListWidget>(list)); }
    /// The last message; its title is not part of what is fixed.
    QString lastMessage() { return dialogs.shown.empty() ? QString() : dialogs.shown.back().text; }
    const Drawing& drawing() const { return exec.surface().drawing(); }
    bool header(const char* text) const { return wasPrinted(drawing(), QLatin1String(text)); }

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
    LoadedCalcForms() { openAll(); }
};

} // namespace

TEST_F(CalcForms, ANewTableIsSetUpAndSavedAndReadAgain)
{
    for (const char* number : {"", "none", "0"}) {
        type("txtTotalNumber", number);
        click("cmdTotalNumber");
        EXPECT_EQ(lastMessage(), QStringLiteral("No. of Specify Data is inadequate.")) << number;
        dialogs.shown.clear();
    }
    type("txtTotalNumber", "2");
    click("cmdTotalNumber");
    type("txtTotalNumber", "11");
    click("cmdTotalNumber");
    ASSERT_EQ(dialogs.errors.size(), 1U);
    EXPECT_EQ(dialogs.errors[0].title, QStringLiteral("Run-time error '9': Subscript out of range"));
    EXPECT_EQ(varn.NumWordforms, 2);

    type("txtTotalName", "one");
    control<QComboBox>("cboForeColor").setCurrentIndex(12);
    control<QComboBox>("cboFillColor").setCurrentIndex(9);
    click("cmdSet");
    click("cmdNext");
    type("txtTotalName", "two");
    click("cmdSet");
    EXPECT_EQ(listed("lstTotal"), QStringList({QStringLiteral("1 one"), QStringLiteral("2 two")}));
    EXPECT_FALSE(control<QPushButton>("cmdNext").isEnabled());
    EXPECT_EQ(dialogs.shown, std::vector<Shown>()) << "registered fields are left without a question";

    type("txtExplain", "a caption");
    set("mnuFileSave");
    EXPECT_EQ(lastMessage(), QStringLiteral("Input Name of Aalysis File."));
    type("txtTotalFileName", "..\\out");
    click("cmdTotalFileSave");
    EXPECT_EQ(dialogs.errors.size(), 2U) << "the name of no file";
    type("txtTotalFileName", "new.ttl");
    type("txtTotalItems", "7");
    click("cmdSetInput");
    EXPECT_TRUE(calc.isWindowModified());
    click("cmdTotalFileSave");
    EXPECT_FALSE(calc.isWindowModified());
    EXPECT_EQ(
        survey.read(ling("new.ttl")),
        "2,7,\"a caption\"\r\n\"one\"\r\n12,9\r\n0,0\r\n\"two\"\r\n9,9\r\n0,0\r\n0,0\r\n0,0\r\n0,0\r\n");

    type("txtTotalFileName", "all");
    dialogs.yesNo = {false};
    set("mnuFileSave");
    EXPECT_TRUE(survey.read(ling("all.ttl")).startsWith("2,5,")) << "another file is kept";
}

TEST_F(LoadedCalcForms, TablesStringsAndItemAreShown)
{
    control<QListWidget>("lstTotal").setCurrentRow(1);
    QApplication::processEvents();
    EXPECT_EQ(text("txtTotalName"), QStringLiteral("two"));
    EXPECT_EQ(listed("LstWord"), QStringList(QStringLiteral("u")));
    EXPECT_EQ(text("txtInputWord"), QStringLiteral("u"));

    survey.write(ling("bad.ttl"), "2,5,\"\"\r\n\"one\"\r\n");
    open("mnuFileOpen", "bad.ttl");
    EXPECT_EQ(dialogs.errors.size(), 1U);
    EXPECT_EQ(text("txtTotalName"), QStringLiteral("two")) << "the table is as it was";
    survey.write(ling("empty.dbs"), "3,\"\",\"\",\"\"\r\n0\r\n0\r\n0\r\n");
    open("mnuGengoOpen", "empty.dbs");
    EXPECT_EQ(dialogs.shown.back(),
              (Shown{QStringLiteral("Specify Linguistic Data."), QStringLiteral("Input Wordform Data.")}));
    EXPECT_EQ(listed("lstDisplay"), QStringList());
}

TEST_F(LoadedCalcForms, StringsAreEditedFromTheKindsAndSaved)
{
    click("cmdSetWord");
    EXPECT_EQ(text("txtInputWord"), QStringLiteral("a mu")) << "the text after the first blank";
    type("txtInputWord", "mu");
    click("cmdWordSelect");
    click("cmdWordBefore");
    EXPECT_EQ(text("txtInputWord"), QStringLiteral("am"));
    type("txtInputWord", "AM");
    click("cmdWordRewrite");
    EXPECT_EQ(listed("LstWord"),
              QStringList({QStringLiteral("a"), QStringLiteral("AM"), QStringLiteral("mu")}));
    type("txtInputWord", "");
    dialogs.yesNo = {false};
    click("cmdWordRewrite");
    EXPECT_EQ(listed("LstWord")[1], QStringLiteral("AM")) << "an empty string is asked about";

    type("txtSetFileName", " ");
    click("cmdWordSave");
    EXPECT_EQ(lastMessage(), QStringLiteral("Input Name of Specify Characters."));
    type("txtSetFileName", "mine");
    click("cmdWordSave");
    EXPECT_EQ(survey.read(ling("mine.sum")), "2\r\n3,\"a\",\"AM\",\"mu\"\r\n1,\"u\"\r\n");
    EXPECT_FALSE(calc.isWindowModified());
    click("cmdWordBefore");
    click("cmdWordDelete");
    EXPECT_EQ(listed("LstWord"), QStringList({QStringLiteral("AM"), QStringLiteral("mu")}));
    EXPECT_EQ(text("txtInputWord"), QStringLiteral("AM"));
    click("cmdWordReset");
    EXPECT_EQ(varn.NumSpecifyChars(1), 0);
    EXPECT_EQ(text("txtInputWord"), QString());
    const std::size_t before = dialogs.shown.size();
    click("cmdWordSave");
    EXPECT_EQ(survey.read(ling("mine.sum")), "2\r\n1,\"u\"\r\n");
    ASSERT_EQ(dialogs.shown.size(), before + 1);
    EXPECT_TRUE(lastMessage().contains(QStringLiteral("1 one (0 strings)")));
    for (int strings = 1; strings <= 11; ++strings) {
        click("cmdSetWord");
        click("cmdWordSelect");
        dialogs.shown.clear();
        click("cmdWordSave");
        EXPECT_EQ(lastMessage().endsWith(QStringLiteral("\n1 one (11 strings)")), strings == 11) << strings;
    }
}

TEST_F(LoadedCalcForms, OnlyUnsavedWorkIsAskedAbout)
{
    EXPECT_TRUE(calc.close());
    EXPECT_EQ(dialogs.shown, std::vector<Shown>());
    type("txtTotalName", "changed");
    dialogs.yesNo = {false};
    click("cmdNext");
    EXPECT_EQ(text("txtTotalName"), QStringLiteral("changed"));
    click("cmdSet");
    click("cmdWordReset");
    dialogs.yesNo = {false};
    EXPECT_FALSE(calc.close());
    dialogs.yesNo = {true, false};
    EXPECT_FALSE(calc.close()) << "the strings are asked about by themselves";
    dialogs.yesNo = {false, false};
    dialogs.files.clear();
    set("mnuFileOpen");
    set("mnuSetFileLoad");
    EXPECT_EQ(varn.WordformName(1), QStringLiteral("changed"));
    dialogs.yesNo = {true};
    open("mnuFileOpen", "all.ttl");
    EXPECT_EQ(text("txtTotalName"), QStringLiteral("one"));

    survey.write(ling("three.sum"), "3\r\n1,\"a\"\r\n1,\"b\"\r\n1,\"c\"\r\n");
    dialogs.yesNo = {true, false};
    open("mnuSetFileLoad", "three.sum");
    EXPECT_EQ(varn.NumWordforms, 2) << "strings of other word forms are not taken unasked";
}

TEST_F(LoadedCalcForms, InitializingEmptiesTheCountsAndTheFile)
{
    dialogs.okCancel = {false, true, true};
    set("mnuInitialize");
    EXPECT_EQ(dialogs.shown,
              std::vector<Shown>({{QStringLiteral("Initialize Analysis File. All Data will be Lost. O.K.?"),
                                   QStringLiteral("Initialize of Analysis File.")}}));
    EXPECT_EQ(varn.NumItemsAccumulated, 5);
    set("mnuInitialize");
    EXPECT_EQ(dialogs.shown.back(), (Shown{QStringLiteral("Analysis File is initialized."),
                                           QStringLiteral("Initialize of Analysis File.")}));
    EXPECT_EQ(text("txtTotalItems"), QStringLiteral("0"));
    EXPECT_EQ(survey.read(ling("all.ttl")),
              "2,0,\"the caption\"\r\n\"one\"\r\n12,9\r\n\"kept\",3\r\n\"two\"\r\n0,15\r\n2.5,0\r\n"
              "0,0\r\n0,0\r\n0,0\r\n");
    EXPECT_EQ(varn.NumSpecifyChars(1), 2);
    type("txtTotalFileName", "");
    set("mnuInitialize");
    EXPECT_EQ(lastMessage(), QStringLiteral("Input Name of Aalysis File."));
}

TEST_F(CalcForms, WithoutAnItemOrATableNothingIsCounted)
{
    execute("mnuExecCalc");
    EXPECT_EQ(dialogs.shown.back(),
              (Shown{QStringLiteral("Specify Linguistic Data."), QStringLiteral("Input Wordform Data.")}));
    open("mnuGengoOpen", "rain.dbs");
    execute("mnuExecCalc");
    EXPECT_EQ(lastMessage(), QStringLiteral("No. of Specify Data is inadequate."));
    execute("mnuExecSave");
    EXPECT_EQ(lastMessage(), QStringLiteral("Input Name of Aalysis File."));
    dialogs.yesNo = {false, false}; // nor the strings of the same name
    open("mnuFileOpen", "all.ttl");
    execute("mnuExecCalc");
    EXPECT_TRUE(lastMessage().contains(QStringLiteral("No word form has an identifying string")));
    EXPECT_EQ(varn.NumItemsAccumulated, 5);
}

TEST_F(LoadedCalcForms, ExecutingCountsTheItemAndSavesTheTable)
{
    execute("mnuDisplay");
    execute("mnuExecCalc");
    EXPECT_EQ(dialogs.shown, std::vector<Shown>({{QStringLiteral("Analyse of Linguistic Data File is "
                                                                 "completed."),
                                                  Analysis}}));
    EXPECT_TRUE(survey.read(ling("all.ttl")).startsWith("2,6,"));
    EXPECT_TRUE(survey.read(ling("all.ttl")).endsWith("\r\n3,2\r\n4,3\r\n5,5\r\n"));
    EXPECT_TRUE(header("Item No.6  Characteristis of Words 1 one")) << "the page shows the new counts";
    EXPECT_TRUE(wasPrinted(drawing(), QStringLiteral("4")));

    varn.Counts(1, 2) = 32767;
    execute("mnuExecSave");
    EXPECT_EQ(dialogs.shown.back(), (Shown{QStringLiteral("Linguistic Data File is saved."),
                                           QStringLiteral("Save of Linguistic Data")}));
    const QByteArray before = survey.read(ling("all.ttl"));
    dialogs.yesNo = {false, true};
    execute("mnuExecCalc");
    EXPECT_EQ(lastMessage(), QStringLiteral("rain.dbs is counted in the table already. Count it once more?"));
    execute("mnuExecCalc");
    ASSERT_EQ(dialogs.errors.size(), 1U);
    EXPECT_EQ(dialogs.errors[0].title, QStringLiteral("Run-time error '6': Overflow"));
    EXPECT_TRUE(dialogs.errors[0].text.contains(QStringLiteral("locality 2")));
    EXPECT_EQ(survey.read(ling("all.ttl")), before);

    varn.Counts(1, 2) = 4;
    varn.TotalFileName = QStringLiteral("blocked");
    dialogs.yesNo = {true};
    QDir().mkpath(survey.drive().hostPath(ling("blocked.ttl\\in the way")));
    execute("mnuExecCalc");
    EXPECT_EQ(dialogs.errors.size(), 2U);
    EXPECT_EQ(varn.NumItemsAccumulated, 6) << "what could not be saved is not counted";
    EXPECT_EQ(varn.Counts(1, 1), 3);
}

TEST_F(LoadedCalcForms, AllItemsOfAFolderAreCountedUntilStop)
{
    survey.write(ling("snow.dbs"), "3,\"\",\"\",\"\"\r\n1\r\n\"am\"\r\n0\r\n0\r\n");
    survey.write(ling("snow.srt"), "no kinds");
    survey.write(ling("bad.dbs"), "no item");
    survey.write(ling("far.dbs"), "1,\"\",\"\",\"\"\r\n1\r\n\"am\"\r\n");
    const QString folder = survey.drive().hostPath(ling("rain.dbs")).chopped(9);
    dialogs.folders = {std::nullopt, folder, folder};
    execute("mnuExecAll");
    EXPECT_EQ(varn.NumItemsAccumulated, 5);
    execute("mnuExecAll");
    EXPECT_EQ(dialogs.shown.back().title, Analysis);
    EXPECT_TRUE(lastMessage().startsWith(QStringLiteral("Analyse of Linguistic Data File is completed.\n"
                                                        "2 of 4 items were counted.")));
    EXPECT_TRUE(lastMessage().endsWith(QStringLiteral("\nbad.dbs\nfar.dbs")));
    EXPECT_TRUE(header("bad.dbs:")) << "why is told on the page";
    EXPECT_TRUE(header("    The item has 1 localities, the map has 3."));
    EXPECT_TRUE(survey.read(ling("all.ttl")).startsWith("2,7,"));
    EXPECT_EQ(varn.Counts(1, 1), 1 + 2 + 2);

    dialogs.folders = {folder, folder, folder};
    dialogs.yesNo = {false, true, true};
    execute("mnuExecAll");
    EXPECT_TRUE(dialogs.shown.end()[-2].text.startsWith(QStringLiteral("2 of the 4 items are counted")));
    EXPECT_TRUE(lastMessage().contains(QStringLiteral("\n0 of 4 items were counted.\n2 had been counted")));
    execute("mnuExecAll");
    EXPECT_TRUE(lastMessage().contains(QStringLiteral("\n2 of 4 items were counted.\n\n")));
    EXPECT_EQ(varn.Counts(1, 1), 1 + 2 * (2 + 2));

    QTimer::singleShot(0, &exec, [this] {
        const auto& progress = *exec.findChild<QProgressDialog*>();
        EXPECT_EQ(progress.windowTitle(), Analysis);
        EXPECT_EQ(progress.windowModality(), Qt::ApplicationModal);
        EXPECT_EQ(progress.labelText(), QStringLiteral("bad.dbs (1 of 4)"));
        EXPECT_EQ(progress.maximum(), 4);
        EXPECT_EQ(progress.findChild<QPushButton*>()->text(), QStringLiteral("Stop"));
        progress.findChild<QPushButton*>()->click();
    });
    execute("mnuExecAll");
    EXPECT_TRUE(lastMessage().contains(QStringLiteral("0 of 4 items were counted.")));
    EXPECT_EQ(varn.NumItemsAccumulated, 9);
}

TEST_F(LoadedCalcForms, AnItemOfAnotherMapIsCountedOnlyIfWanted)
{
    varn.NLocality = 2;
    for (const bool wanted : {false, true}) {
        dialogs.yesNo = {wanted};
        execute("mnuExecCalc");
        EXPECT_EQ(dialogs.shown[0].title, Analysis);
        EXPECT_TRUE(
            dialogs.shown[0].text.startsWith(QStringLiteral("The item has 3 localities, the map has 2.")));
        EXPECT_EQ(varn.NumItemsAccumulated, wanted ? 6 : 5);
    }
}

TEST_F(LoadedCalcForms, FewerWordFormsAreAskedAboutAndLeaveNothing)
{
    type("txtTotalNumber", "1");
    for (const bool wanted : {false, true}) {
        dialogs.yesNo = {wanted};
        click("cmdTotalNumber");
        EXPECT_TRUE(lastMessage().contains(QStringLiteral("counts and strings: 2 two.")));
        EXPECT_EQ(varn.NumWordforms, wanted ? 1 : 2);
        EXPECT_EQ(text("txtTotalNumber"), QString::number(varn.NumWordforms));
        type("txtTotalNumber", "1");
    }
    type("txtTotalNumber", "3");
    click("cmdTotalNumber");
    EXPECT_EQ(varn.Counts(1, 3), 5) << "what the table has stays";
    EXPECT_EQ(varn.WordformPaintColor(1), 9);
    EXPECT_EQ(varn.WordformName(2), QString());
    EXPECT_EQ(varn.NumSpecifyChars(2), 0);
    EXPECT_EQ(varn.Counts(2, 1), 0);
    EXPECT_NE(varn.WordformSymbolColor(2), varn.WordformSymbolColor(3));
    type("txtTotalNumber", "2");
    dialogs.shown.clear();
    click("cmdTotalNumber");
    EXPECT_EQ(dialogs.shown, std::vector<Shown>()) << "there is nothing to lose";
}

TEST_F(LoadedCalcForms, AnotherTableDoesNotCountByTheOldStringsUnasked)
{
    survey.write(ling("new.ttl"), survey.read(ling("all.ttl")));
    const auto openNew = [this](std::initializer_list<bool> answers) {
        dialogs.yesNo = answers;
        open("mnuFileOpen", "new.ttl");
        EXPECT_TRUE(dialogs.yesNo.empty());
    };
    openNew({true});
    EXPECT_EQ(lastMessage(),
              QStringLiteral("The identifying strings are still those of all.sum. Keep them for "
                             "new.ttl?"));
    EXPECT_EQ(varn.NumSpecifyChars(1), 2);
    openNew({}); // it is the same table
    open("mnuFileOpen", "all.ttl");
    openNew({false});
    EXPECT_EQ(varn.NumSpecifyChars(1), 0);
    EXPECT_EQ(text("txtSetFileName"), QString());

    survey.write(ling("new.sum"), "1\r\n1,\"x\"\r\n");
    dialogs.yesNo = {true};
    open("mnuFileOpen", "all.ttl");
    EXPECT_EQ(text("txtSetFileName"), QStringLiteral("all"));
    type("txtInputWord", "z");
    click("cmdWordSelect");
    openNew({true, false, true}); // the file of one word form would drop the other
    EXPECT_TRUE(dialogs.shown.end()[-3].text.contains(QStringLiteral("new.sum")));
    EXPECT_TRUE(dialogs.shown.end()[-3].text.endsWith(QStringLiteral("are not saved.")));
    EXPECT_TRUE(dialogs.shown.end()[-2].text.contains(QStringLiteral("2 two.")));
    EXPECT_EQ(varn.NumSpecifyChars(1), 3);
}

TEST_F(LoadedCalcForms, EveryChangeOfTheCountsOutdatesTheContrast)
{
    survey.write(ling("three.sum"), "3\r\n1,\"a\"\r\n1,\"b\"\r\n1,\"c\"\r\n");
    const auto count = [this] { execute("mnuExecCalc"); };
    const auto countAll = [this] {
        dialogs.folders = {survey.drive().hostPath(ling("rain.dbs")).chopped(9)};
        dialogs.yesNo = {true};
        execute("mnuExecAll");
    };
    const auto initialize = [this] {
        dialogs.okCancel = {true};
        set("mnuInitialize");
    };
    const auto setNumber = [this] { click("cmdTotalNumber"); };
    const auto openSum = [this] {
        dialogs.yesNo = {true};
        open("mnuSetFileLoad", "three.sum");
    };
    const auto openTable = [this] {
        dialogs.yesNo = {true};
        open("mnuFileOpen", "all.ttl");
    };
    const auto chooseMap = [this] { applyMapChoice(currentMapChoice(varn), varn); };
    const std::function<void()> changes[] = {count,   countAll,  initialize, setNumber,
                                             openSum, openTable, chooseMap};
    int change = 0;
    for (const auto& make : changes) {
        varn.ContrastAnalysed = true;
        make();
        EXPECT_FALSE(varn.ContrastAnalysed) << change;
        ++change;
    }
    EXPECT_EQ(dialogs.errors, std::vector<Shown>());
}

TEST_F(LoadedCalcForms, PagesAndItemsGoRound)
{
    varn.NLocality = 320;
    execute("mnuDisplay");
    const std::pair<const char*, const char*> steps[] = {
        {"mnuDisplayPrevious", "Item No.5  Characteristis of Words 1 one"},
        {"mnuDisplayNext", "Item No.5  Characteristis of Words 1 one"},
        {"mnuItemPrevious", "Item No.5  Characteristis of Words 2 two"},
        {"mnuItemNext", "Item No.5  Characteristis of Words 1 one"}};
    const bool firstPage[] = {false, true, true, true};
    int step = 0;
    for (const auto& [entry, text] : steps) {
        execute(entry);
        EXPECT_TRUE(header(text)) << entry;
        EXPECT_EQ(wasPrinted(drawing(), QStringLiteral("160")), firstPage[step++]) << entry;
    }
    execute("mnuDisplayNext");
    EXPECT_TRUE(wasPrinted(drawing(), QStringLiteral("320")));
    execute("mnuItemNext");
    EXPECT_TRUE(wasPrinted(drawing(), QStringLiteral("160"))) << "another item begins with page 1";
    EXPECT_EQ(varn.CurrentWordform, 2);
    calc.Form_Load();
    EXPECT_EQ(text("txtTotalName"), QStringLiteral("two")) << "the set-up form shows the same word form";
}

TEST_F(LoadedCalcForms, StatisticsAreShownSavedAndOpened)
{
    EXPECT_FALSE(child<QAction>(exec, "mnuStatsSave").isEnabled());
    execute("mnuStatsExec");
    EXPECT_TRUE(header("Kt=1"));
    EXPECT_TRUE(header("Average=3"));
    execute("mnuStatsDisplayAll");
    EXPECT_TRUE(header("Kt=2 two"));
    execute("mnuStatsSave");
    const QByteArray file = survey.read(ling("all.stt"));
    EXPECT_TRUE(file.startsWith("2,5\r\n1\r\n4,1,3,2\r\n3,0\r\n3,1\r\n"));
    EXPECT_EQ(varn.StatsFileName, ling("all.stt"));

    varn.TotalFileName.clear();
    execute("mnuStatsSave");
    EXPECT_EQ(lastMessage(), QStringLiteral("Input Name of Aalysis File."));
    EXPECT_EQ(survey.read(ling("all.stt")), file);

    varn.Counts(1, 2) = 0;
    varn.Counts(1, 3) = 0;
    execute("mnuStatsExec");
    ASSERT_EQ(dialogs.errors.size(), 1U);
    EXPECT_EQ(dialogs.errors[0].title, QStringLiteral("Run-time error '11': Division by zero"));
    EXPECT_FALSE(child<QAction>(exec, "mnuStatsSave").isEnabled()) << "they are not of these counts";

    survey.write(ling("other.stt"), "1,1\r\n1\r\n1,1,1.5,0\r\n2,0\r\n2,2\r\n");
    dialogs.files = {survey.drive().hostPath(ling("other.stt"))};
    execute("mnuStatsOpen");
    EXPECT_TRUE(header("Average=1.5"));
    EXPECT_TRUE(lastMessage().startsWith(QStringLiteral("The statistics are of 1 word forms and 1 items")));
    survey.write(ling("many.stt"), "11,1\r\n");
    dialogs.files = {survey.drive().hostPath(ling("many.stt"))};
    execute("mnuStatsOpen");
    EXPECT_EQ(dialogs.errors.back().title, QStringLiteral("Run-time error '9': Subscript out of range"));
    EXPECT_TRUE(header("Average=1.5"));
}
