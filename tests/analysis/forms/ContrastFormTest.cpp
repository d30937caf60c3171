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
    EXPECT_EQ(errorOf([&] { editor.addWordform(1, 11); }).number(), ErrorNumber::SubscriptOutOfRange);

    editor.removeWordform(2, 1);
    EXPECT_EQ(contrast.ContrastCount(2), 9);
    EXPECT_EQ(editor.wordforms(2).first(), QStringLiteral("w9"));
    EXPECT_EQ(contrast.ContrastWord(2, 9), 1);
    EXPECT_EQ(errorOf([&] { editor.removeWordform(2, 10); }).number(), ErrorNumber::SubscriptOutOfRange);
}

TEST(ContrastEditor, SumsAreOutdatedByEditsAndByOtherCounts)
{
    CumulativeTable table;
    fillTable(table, 3);
    ContrastData contrast;
    ContrastEditor editor(table, contrast);
    const auto analyse = [&] { analyseContrast(table, 3, contrast); };
    editor.addWordform(1, 1);
    editor.addWordform(2, 2);
    const std::vector<std::function<void()>> outdating = {
        [&] { editor.addWordform(1, 3); },
        [&] { editor.removeWordform(1, 2); },
        [&] {
            table.Counts(2, 3) = 0;
            editor.followTable(3);
        },
        [&] {
            table.NumWordforms = 1;
            editor.followTable(3);
        },
    };
    for (const auto& change : outdating) {
        analyse();
        editor.followTable(3);
        EXPECT_TRUE(contrast.ContrastAnalysed);
        change();
        EXPECT_FALSE(contrast.ContrastAnalysed);
    }
}

TEST(ContrastEditor, BoxesBecomeTheSharedValues)
{
    ContrastBoxes boxes = newContrastBoxes();
    boxes.title = QStringLiteral("t");
    boxes.steps = QStringLiteral(" 5 steps");
    boxes.size = QStringLiteral("99.5");
    boxes.fillColor(1) = 0;
    ContrastData contrast;
    SetRankData(boxes, contrast);
    EXPECT_EQ(contrast.ContrastTitle, QStringLiteral("t"));
    EXPECT_EQ(contrast.ContrastSteps, 6);
    EXPECT_EQ(contrast.ContrastMaxSize, 100) << "halves go to the even neighbour";
    EXPECT_EQ(contrast.ContrastSymbolColor(1), 12);
    EXPECT_EQ(contrast.ContrastPaintColor(1), 0);
    EXPECT_EQ(contrast.ContrastSymbolColor(2), 9);
    EXPECT_EQ(contrast.ContrastPaintColor(2), 9);
    EXPECT_EQ(boxes.setColor(1), 12) << "the empty box is filled";

    boxes.size = QStringLiteral("32768");
    boxes.title.clear();
    EXPECT_EQ(errorOf([&] { SetRankData(boxes, contrast); }).number(), ErrorNumber::Overflow);
    EXPECT_EQ(contrast.ContrastTitle, QStringLiteral("t"));

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
        survey.varn.ContrastSum(1, j) = 31000;
        survey.varn.ContrastSum(2, j) = 31999;
        survey.varn.ContrastSum(0, j) = static_cast<qint16>(-j - 2000);
    }
    DrawSurface page;
    ContrastPages(survey.varn, QStringLiteral("west")).draw(9, page);
    EXPECT_TRUE(wasPrinted(page.drawing(), QStringLiteral("Contrast Analysis File Name west")));
    EXPECT_FALSE(wasPrinted(page.drawing(), QStringLiteral("-2960")));
    const QPointF first = printedAt(page.drawing(), QStringLiteral("-2961"));
    const QPointF last = printedAt(page.drawing(), QStringLiteral("-3000"));
    EXPECT_NEAR(first.x(), last.x(), 1) << "the forty of the last page are one column";
    EXPECT_LT(last.y() + page.TextHeight() / 2, ContrastPages::area().height()) << "in whatever font";

    page.Cls();
    survey.varn.ContrastSum(1, 41) = 417;
    survey.varn.ContrastSum(2, 41) = 418;
    ContrastPages(survey.varn, QString()).draw(1, page);
    const std::pair<const char*, double> ends[] = {
        {"Loc.", 480},        {"Diff.", 3000},      {"-2001", 3000},        {"41", 3480 + 480},
        {"417", 3480 + 1320}, {"418", 3480 + 2160}, {"-2041", 3480 + 3000}, {"-2081", 2 * 3480 + 3000}};
    for (const auto& [text, end] : ends) {
        const QPointF place = printedAt(page.drawing(), QLatin1String(text));
        EXPECT_NEAR(place.x() + page.TextWidth(QLatin1String(text)), end, 1) << text;
        EXPECT_NEAR(place.y(), QLatin1String(text).endsWith(QLatin1Char('.')) ? 900 : 1180, 1) << text;
    }

    page.Cls();
    ContrastPages(survey.varn, QString(300, QLatin1Char('m'))).draw(1, page);
    for (const TextOperation& text : operationsOf<TextOperation>(page.drawing())) {
        EXPECT_LE(text.x + page.TextWidth(page.drawing().texts[text.text]), ContrastPages::area().width());
    }
}

TEST_F(RankData, GroupsAreBuiltAndAnalysed)
{
    EXPECT_EQ(listed("lstWordList").size(), 4);
    EXPECT_FALSE(control<QPushButton>("cmdCalc").isEnabled());
    take(4, "cmdData1");
    take(2, "cmdData2");
    take(1, "cmdData2");
    take(1, "cmdData2");
    EXPECT_EQ(dialogs.shown.size(), 1U) << "the word form that is there already";
    control<QListWidget>("lstData2").setCurrentRow(0);
    click("cmdDel2");
    EXPECT_EQ(listed("lstData1"), QStringList(QStringLiteral("w4")));
    EXPECT_EQ(listed("lstData2"), QStringList(QStringLiteral("w1")));
    EXPECT_FALSE(canDraw());

    dialogs.shown.clear();
    type("txtStep", "3");
    click("cmdCalc");
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].text, Finished);
    EXPECT_EQ(varn.ContrastSum(0, 3), 12 - 3);
    EXPECT_EQ(varn.ContrastSteps, 4);
    EXPECT_EQ(color("txtSetColor1"), 12) << "the default is shown";
    EXPECT_TRUE(canDraw());

    int drawn = 0;
    QObject::connect(&form, &frmRankData::toDrawMap, &form, [&drawn] { ++drawn; });
    type("txtSize", "77");
    menu("mnuRankMap").trigger();
    EXPECT_EQ(drawn, 1);
    EXPECT_EQ(varn.ContrastMaxSize, 77) << "the map has what the boxes hold";

    type("txtSize", "40000");
    menu("mnuRankMap").trigger();
    EXPECT_EQ(drawn, 1);
    ASSERT_EQ(dialogs.errors.size(), 1U);
    EXPECT_EQ(dialogs.errors[0].title, QStringLiteral("Run-time error '6': Overflow"));

    take(3, "cmdData1");
    EXPECT_FALSE(canDraw());
}

TEST_F(RankData, AnAnalysisThatOverflowsIsNotFinished)
{
    varn.Counts(1, 2) = 32767;
    take(1, "cmdData1");
    take(2, "cmdData1");
    click("cmdCalc");
    ASSERT_EQ(dialogs.errors.size(), 1U);
    EXPECT_TRUE(dialogs.errors[0].text.contains(QStringLiteral("locality 2")));
    EXPECT_TRUE(dialogs.shown.empty());
    EXPECT_FALSE(canDraw());
}

TEST_F(RankData, AContrastIsSavedAndReadBack)
{
    menu("mnuRankSave").trigger();
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].text, QStringLiteral("Input File Name for Analysis Data."));

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
    EXPECT_EQ(text("txtRankFileName"), QStringLiteral("mine"));
    const QByteArray saved = "\"one, \"\"two\"\"\",7,150\r\n1\r\n12,12\r\n\"w2\",2\r\n2\r\n9,1\r\n"
                             "\"w3\",3\r\n\"w2\",2\r\n";
    EXPECT_EQ(survey.read(Folder + QStringLiteral("mine.rnk")), saved);

    for (const char* name : {"cmdDel1", "cmdData1"}) {
        take(2, name);
        EXPECT_EQ(form.isWindowModified(), varn.ContrastCount(1) == 0) << "taken back";
    }
    type("txtRankTitle", "another");
    for (const bool overwrite : {false, true}) {
        dialogs.yesNo = {overwrite};
        menu("mnuRankSave").trigger();
        EXPECT_EQ(survey.read(Folder + QStringLiteral("mine.rnk")) == saved, !overwrite);
    }

    survey.write(Folder + QStringLiteral("mine.rnk"), saved);
    click("cmdDel1");
    dialogs.yesNo = {false};
    open("mine.rnk");
    EXPECT_EQ(text("txtRankTitle"), QStringLiteral("another")) << "the changes were kept";
    dialogs.yesNo = {true};
    open("mine.rnk");
    EXPECT_EQ(text("txtRankTitle"), QStringLiteral("one, \"two\""));
    EXPECT_EQ(text("txtStep"), QStringLiteral("6"));
    EXPECT_EQ(color("txtFillColor2"), 1);
    EXPECT_EQ(listed("lstData1"), QStringList(QStringLiteral("w2")));
    EXPECT_FALSE(canDraw());
    dialogs.yesNo = {true};
    menu("mnuRankSave").trigger();
    EXPECT_EQ(survey.read(Folder + QStringLiteral("mine.rnk")), saved);

    for (const char* name : {"..\\up", "a:b", "what?"}) {
        type("txtRankFileName", name);
        dialogs.errors.clear();
        menu("mnuRankSave").trigger();
        ASSERT_EQ(dialogs.errors.size(), 1U) << name;
        EXPECT_TRUE(dialogs.errors[0].title.contains(QStringLiteral("'52'"))) << name;
    }
}

TEST_F(RankData, AFileOfOtherWordFormsIsNotTakenUnseen)
{
    survey.write(Folder + QStringLiteral("five.rnk"), "\"f\",1,1\r\n1\r\n1,1\r\n\"w5\",5\r\n0\r\n1,1\r\n");
    survey.write(Folder + QStringLiteral("short.rnk"), "\"f\",1,1\r\n2\r\n1,1\r\n\"w1\",1\r\n");
    survey.write(Folder + QStringLiteral("name.rnk"), "\"f\",1,1\r\n1\r\n1,1\r\n\"old\",2\r\n0\r\n1,1\r\n");
    take(1, "cmdData1");
    for (const char* file : {"five.rnk", "short.rnk"}) {
        dialogs.errors.clear();
        dialogs.yesNo = {true};
        open(file);
        ASSERT_EQ(dialogs.errors.size(), 1U);
        EXPECT_TRUE(dialogs.errors[0].text.contains(QLatin1String(file))) << file;
        EXPECT_EQ(listed("lstData1"), QStringList(QStringLiteral("w1")));
        EXPECT_TRUE(text("txtRankFileName").isEmpty());
    }
    dialogs.yesNo = {true, false};
    open("name.rnk");
    EXPECT_EQ(listed("lstData1"), QStringList(QStringLiteral("w1")));
    dialogs.yesNo = {true, true};
    open("name.rnk");
    EXPECT_TRUE(dialogs.shown.back().text.contains(QStringLiteral("\"old\" in the file and \"w2\"")));
    EXPECT_EQ(listed("lstData1"), QStringList(QStringLiteral("w2")));
}

TEST_F(RankData, TheResultTableIsPagedAndHiddenWhenOutdated)
{
    varn.NLocality = 130;
    take(1, "cmdData1");
    click("cmdCalc");
    EXPECT_FALSE(menu("mnuDisplayNext").isEnabled());
    menu("mnuDisplayRank").trigger();
    EXPECT_TRUE(menu("mnuDisplayNext").isEnabled());
    EXPECT_FALSE(menu("mnuDisplayPrevious").isEnabled());
    menu("mnuDisplayNext").trigger();
    EXPECT_FALSE(menu("mnuDisplayNext").isEnabled());
    menu("mnuDisplayPrevious").trigger();
    EXPECT_TRUE(menu("mnuDisplayNext").isEnabled());

    varn.Counts(1, 1) = 9; // another form accumulated an item
    form.Form_Load();
    EXPECT_FALSE(canDraw());
    EXPECT_FALSE(menu("mnuDisplayNext").isEnabled());
}
