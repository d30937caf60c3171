#include "analysis/forms/ContrastPages.h"
#include "analysis/forms/frmRankData.h"
#include "platform/WholeFile.h"
#include "tests/support/Controls.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestDrive.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>

#include <functional>
#include <vector>

namespace {

using Shown = ScriptedDialogs::Shown;
using AddResult = ContrastEditor::AddResult;

const QString Folder = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Ling\\");
const QString Finished = QStringLiteral("Contrast Analysis is finished.");

/// Makes `table` one of the word forms w1, w2, ..., with count k * j at locality j.
void fillTable(CumulativeTable& table, int wordforms)
{
    table.NumWordforms = wordforms;
    table.NumItemsAccumulated = 10;
    for (int k = 1; k <= wordforms; ++k) {
        table.WordformName(k) = QStringLiteral("w%1").arg(k);
        for (int j = 1; j <= 3; ++j) {
            table.Counts(k, j) = static_cast<qint16>(k * j);
        }
    }
}

/// The contrast form on the map of a `TestSurvey` with four word forms.
class RankData : public testing::Test
{
protected:
    RankData()
    {
        fillTable(survey.varn, 4);
        form.Form_Load();
    }

    template <typename Control>
    Control& control(const char* name)
    {
        return child<Control>(form, name);
    }
    QAction& menu(const char* name) { return control<QAction>(name); }
    void click(const char* name) { control<QPushButton>(name).click(); }
    void type(const char* name, const char* text) { control<QLineEdit>(name).setText(QLatin1String(text)); }
    QString text(const char* name) { return control<QLineEdit>(name).text(); }
    int color(const char* name) { return control<QComboBox>(name).currentIndex(); }

    void take(int wordform, const char* button)
    {
        control<QListWidget>("lstWordList").setCurrentRow(wordform - 1);
        click(button);
    }

    QStringList listed(const char* name) { return rowsOf(control<QListWidget>(name)); }

    void open(const char* file)
    {
        dialogs.files = {survey.drive().hostPath(Folder + QLatin1String(file))};
        menu("mnuRankOpen").trigger();
    }

    bool canDraw() { return menu("mnuRankMap").isEnabled() && control<QMenu>("mnuDisplay").isEnabled(); }

    TestSurvey survey;
    VarnModule& varn = survey.varn;
    ScriptedDialogs dialogs;
    frmRankData form{varn, dialogs};
};

} // namespace

TEST(ContrastEditor, ASideHasEachWordFormOnceAndTenAtMost)
{
    CumulativeTable table;
    fillTable(table, 10);
    ContrastData contrast;
    ContrastEditor editor(table, contrast);
    for (int k = 10; k >= 1; --k) {
        EXPECT_EQ(editor.addWordform(2, k), AddResult::Added);
    }
    EXPECT_EQ(editor.addWordform(2, 3), AddResult::Present);
    EXPECT_EQ(editor.addWordform(1, 3), AddResult::Added);
    contrast.ContrastWord(2, 4) = 1; // as a file may have it
    EXPECT_EQ(editor.addWordform(2, 7), AddResult::Full);
    editor.removeWordform(2, 1);
    EXPECT_EQ(editor.wordforms(2).join(' '), "w9 w8 w7 w6 w5 w4 w3 w2 w1");
    EXPECT_EQ(contrast.ContrastWord(2, 9), 1);
    for (const auto& outside : {std::function([&] { editor.addWordform(1, 11); }),
                                std::function([&] { editor.removeWordform(2, 10); })}) {
        EXPECT_EQ(errorOf(outside).number(), ErrorNumber::SubscriptOutOfRange);
    }
}

TEST(ContrastEditor, SumsAreOutdatedByEditsAndByOtherCounts)
{
    CumulativeTable table;
    fillTable(table, 3);
    ContrastData contrast;
    ContrastEditor editor(table, contrast);
    editor.addWordform(1, 1);
    editor.addWordform(2, 2);
    const std::pair<const char*, std::function<void()>> changes[] = {
        {"nothing", [] {}},
        {"one more", [&] { editor.addWordform(1, 3); }},
        {"one less", [&] { editor.removeWordform(1, 2); }},
        {"a count", [&] { table.Counts(2, 3) = 0; }},
        {"a word form that is gone", [&] { table.NumWordforms = 1; }}};
    for (const auto& [name, change] : changes) {
        analyseContrast(table, 3, contrast);
        change();
        const bool edited = !contrast.ContrastAnalysed;
        editor.followTable(3);
        EXPECT_EQ(contrast.ContrastAnalysed, name == std::string("nothing")) << name;
        EXPECT_EQ(edited, QByteArray(name).startsWith("one")) << name;
    }
}

TEST(ContrastEditor, BoxesBecomeTheSharedValues)
{
    ContrastBoxes boxes = newContrastBoxes();
    boxes.title = "t";
    boxes.steps = " 5 steps";
    boxes.size = "99.5"; // halves go to the even neighbour
    boxes.fillColor(1) = 0;
    ContrastData contrast;
    SetRankData(boxes, contrast);
    SequentialWriter file;
    writeContrast(file, contrast);
    EXPECT_EQ(file.bytes(), "\"t\",6,100\r\n0\r\n12,0\r\n0\r\n9,9\r\n");
    EXPECT_EQ(boxes.setColor(1), 12) << "the empty box is filled";

    boxes.size = "32768";
    boxes.title.clear();
    EXPECT_EQ(errorOf([&] { SetRankData(boxes, contrast); }).number(), ErrorNumber::Overflow);
    EXPECT_EQ(contrast.ContrastTitle, "t");

    for (const double steps : {0.1, 0.0, 6.3, 1e17, 7.0}) {
        contrast.ContrastSteps = steps;
        boxes = boxesOf(contrast);
        SetRankData(boxes, contrast);
        EXPECT_EQ(contrast.ContrastSteps, steps);
    }
    for (const auto& [number, box] : {std::pair(-1, -1), {0, 0}, {15, 15}, {16, -1}}) {
        contrast.ContrastSymbolColor(2) = static_cast<qint16>(number);
        EXPECT_EQ(boxesOf(contrast).setColor(2), box);
    }
}

TEST(ContrastPages, LocalitiesFillColumnsAndPages)
{
    TestSurvey survey;
    for (const auto& [localities, pages] : {std::pair(0, 1), {120, 1}, {121, 2}, {1000, 9}}) {
        survey.varn.NLocality = static_cast<qint16>(localities);
        EXPECT_EQ(ContrastPages(survey.varn, QString()).count(), pages) << localities;
    }
    for (int j = 1; j <= 1000; ++j) {
        survey.varn.ContrastSum(0, j) = static_cast<qint16>(-j - 2000);
    }
    DrawSurface page;
    ContrastPages(survey.varn, "west").draw(9, page);
    EXPECT_TRUE(wasPrinted(page.drawing(), "Contrast Analysis File Name west"));
    EXPECT_FALSE(wasPrinted(page.drawing(), "-2960"));
    const QPointF first = printedAt(page.drawing(), "-2961");
    const QPointF last = printedAt(page.drawing(), "-3000");
    EXPECT_NEAR(first.x(), last.x(), 1) << "the forty of the last page are one column";
    EXPECT_LT(last.y() + page.TextHeight() / 2, ContrastPages::area().height()) << "in whatever font";

    page.Cls();
    survey.varn.ContrastSum(1, 41) = 417;
    survey.varn.ContrastSum(2, 41) = 418;
    ContrastPages(survey.varn, QString(300, 'm')).draw(1, page);
    const std::pair<const char*, double> ends[] = {
        {"Loc.", 480},        {"Diff.", 3000},      {"-2001", 3000},        {"41", 3480 + 480},
        {"417", 3480 + 1320}, {"418", 3480 + 2160}, {"-2041", 3480 + 3000}, {"-2081", 2 * 3480 + 3000}};
    for (const auto& [text, end] : ends) {
        const QPointF place = printedAt(page.drawing(), text);
        EXPECT_NEAR(place.x() + page.TextWidth(text), end, 1) << text;
        EXPECT_NEAR(place.y(), QByteArray(text).endsWith('.') ? 900 : 1180, 1) << text;
    }
    for (const TextOperation& text : operationsOf<TextOperation>(page.drawing())) {
        EXPECT_LE(text.x + page.TextWidth(page.drawing().texts[text.text]), ContrastPages::area().width());
    }
}

TEST_F(RankData, GroupsAreBuiltAndAnalysed)
{
    EXPECT_FALSE(control<QPushButton>("cmdCalc").isEnabled());
    take(4, "cmdData1");
    take(2, "cmdData2");
    take(1, "cmdData2");
    take(1, "cmdData2");
    EXPECT_EQ(dialogs.shown.size(), 1U) << "the word form that is there already";
    control<QListWidget>("lstData2").setCurrentRow(0);
    click("cmdDel2");
    EXPECT_EQ(listed("lstData1") + listed("lstData2"), QStringList({"w4", "w1"}));
    EXPECT_FALSE(canDraw());

    type("txtStep", "3");
    click("cmdCalc");
    EXPECT_EQ(dialogs.shown.back().text, Finished);
    EXPECT_EQ(varn.ContrastSum(0, 3), 12 - 3);
    EXPECT_EQ(varn.ContrastSteps, 4);
    EXPECT_EQ(color("txtSetColor1"), 12) << "the default is shown";
    EXPECT_TRUE(canDraw());
    int drawn = 0;
    QObject::connect(&form, &frmRankData::toDrawMap, &form, [&drawn] { ++drawn; });
    for (const char* size : {"77", "40000"}) {
        type("txtSize", size);
        menu("mnuRankMap").trigger();
    }
    EXPECT_EQ(drawn, 1);
    EXPECT_EQ(varn.ContrastMaxSize, 77) << "the map has what the boxes hold";
    ASSERT_EQ(dialogs.errors.size(), 1U);
    EXPECT_EQ(dialogs.errors[0].title, "Run-time error '6': Overflow");

    type("txtSize", "77");
    varn.Counts(3, 2) = 32767;
    take(3, "cmdData1");
    dialogs.shown.clear();
    click("cmdCalc");
    EXPECT_TRUE(dialogs.errors.back().text.contains("locality 2"));
    EXPECT_TRUE(dialogs.shown.empty() && !canDraw()) << "an analysis that overflows is not finished";
}

TEST_F(RankData, AContrastIsSavedAndReadBack)
{
    take(2, "cmdData1");
    take(3, "cmdData2");
    take(2, "cmdData2");
    type("txtRankTitle", "one, \"two\"");
    type("txtStep", "6");
    type("txtSize", "150");
    control<QComboBox>("txtFillColor2").setCurrentIndex(1);
    type("txtRankFileName", "mine.RNK");
    EXPECT_TRUE(form.isWindowModified());
    menu("mnuRankSave").trigger();
    EXPECT_FALSE(form.isWindowModified());
    EXPECT_EQ(text("txtRankFileName"), "mine");
    const QString file = Folder + "mine.rnk";
    const QByteArray saved = "\"one, \"\"two\"\"\",7,150\r\n1\r\n12,12\r\n\"w2\",2\r\n2\r\n9,1\r\n"
                             "\"w3\",3\r\n\"w2\",2\r\n";
    EXPECT_EQ(survey.read(file), saved);

    type("txtRankTitle", "another");
    for (const bool overwrite : {false, true}) {
        dialogs.yesNo = {overwrite};
        menu("mnuRankSave").trigger();
        EXPECT_EQ(survey.read(file) == saved, !overwrite);
    }
    survey.write(file, saved);
    click("cmdDel1");
    for (const bool giveUp : {false, true}) {
        dialogs.yesNo = {giveUp};
        open("mine.rnk");
        EXPECT_EQ(text("txtRankTitle"), giveUp ? "one, \"two\"" : "another");
    }
    EXPECT_EQ(text("txtStep"), "6");
    EXPECT_EQ(color("txtFillColor2"), 1);
    EXPECT_EQ(listed("lstData1"), QStringList("w2"));
    EXPECT_FALSE(canDraw() || form.isWindowModified());
    type("txtRankFileName", "..\\up");
    menu("mnuRankSave").trigger();
    ASSERT_EQ(dialogs.errors.size(), 1U);
    EXPECT_TRUE(dialogs.errors[0].title.contains("'52'"));
}

TEST_F(RankData, AFileOfOtherWordFormsIsNotTakenUnseen)
{
    survey.write(Folder + "five.rnk", "\"f\",1,1\n1\n1,1\n\"w5\",5\n0\n1,1\n");
    survey.write(Folder + "short.rnk", "\"f\",1,1\n2\n1,1\n\"w1\",1\n");
    survey.write(Folder + "name.rnk", "\"f\",1,1\n1\n1,1\n\"old\",2\n0\n1,1\n");
    take(1, "cmdData1");
    const std::tuple<const char*, std::deque<bool>, const char*> rows[] = {{"five.rnk", {true}, "w1"},
                                                                           {"short.rnk", {true}, "w1"},
                                                                           {"name.rnk", {true, false}, "w1"},
                                                                           {"name.rnk", {true, true}, "w2"}};
    for (const auto& [file, answers, wordform] : rows) {
        dialogs.yesNo = answers;
        dialogs.errors.clear();
        open(file);
        EXPECT_EQ(dialogs.errors.size(), answers.size() == 1 ? 1U : 0U) << file;
        EXPECT_TRUE(dialogs.errors.empty() || dialogs.errors[0].text.contains(file)) << file;
        EXPECT_EQ(listed("lstData1"), QStringList(wordform)) << file;
        EXPECT_EQ(text("txtRankFileName").isEmpty(), listed("lstData1") == QStringList("w1")) << file;
    }
    EXPECT_TRUE(dialogs.shown.back().text.contains("\"old\" in the file and \"w2\""));
}

TEST_F(RankData, TheResultTableIsPagedAndHiddenWhenOutdated)
{
    varn.NLocality = 130;
    take(1, "cmdData1");
    click("cmdCalc");
    const auto ways = [this] {
        return std::pair(menu("mnuDisplayPrevious").isEnabled(), menu("mnuDisplayNext").isEnabled());
    };
    EXPECT_EQ(ways(), std::pair(false, false));
    const std::tuple<const char*, bool, bool> steps[] = {{"mnuDisplayRank", false, true},
                                                         {"mnuDisplayNext", true, false},
                                                         {"mnuDisplayPrevious", false, true}};
    for (const auto& [entry, previous, next] : steps) {
        menu(entry).trigger();
        EXPECT_EQ(ways(), std::pair(previous, next)) << entry;
    }
    varn.Counts(1, 1) = 9; // another form accumulated an item
    form.Form_Load();
    EXPECT_FALSE(canDraw());
    EXPECT_EQ(ways(), std::pair(false, false));
}
