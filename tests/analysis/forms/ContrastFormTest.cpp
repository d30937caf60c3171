#include "analysis/forms/ContrastPages.h"
#include "analysis/forms/frmRankData.h"
#include "platform/StandardColors.h"
#include "tests/analysis/forms/AnalysisForm.h"
#include "tests/support/Transcript.h"

#include <QComboBox>
#include <QMenu>

#include <functional>
#include <vector>

namespace {

using AddResult = ContrastEditor::AddResult;

const QString Folder = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Ling\\");
const QString Finished = QStringLiteral("Contrast Analysis is finished.");

/// The contrast form on the map of a `TestSurvey` with four word forms.
class RankData : public AnalysisForm<frmRankData>
{
protected:
    RankData() : AnalysisForm(4) {}

    int color(const char* name) { return control<QComboBox>(name).currentIndex(); }

    void take(int wordform, const char* button)
    {
        control<QListWidget>("lstWordList").setCurrentRow(wordform - 1);
        click(button);
    }

    void open(const char* file) { AnalysisForm::open("mnuRankOpen", file); }

    bool canDraw() { return menu("mnuRankMap").isEnabled() && control<QMenu>("mnuDisplay").isEnabled(); }
};

} // namespace

TEST(ContrastEditor, ASideHasTenWordFormsAtMostAndEveryChangeOutdatesTheSums)
{
    CumulativeTable table;
    fillTable(table, 10);
    ContrastData contrast;
    ContrastEditor editor(table, contrast);
    for (int k = 10; k >= 1; --k) {
        analyseContrast(table, 3, contrast);
        EXPECT_EQ(editor.addWordform(2, k), AddResult::Added);
        EXPECT_FALSE(contrast.ContrastAnalysed) << k;
    }
    contrast.ContrastWord(2, 4) = 1; // as a file may have it
    EXPECT_EQ(editor.addWordform(2, 7), AddResult::Full);
    analyseContrast(table, 3, contrast);
    editor.removeWordform(2, 1);
    EXPECT_FALSE(contrast.ContrastAnalysed);
    EXPECT_EQ(editor.wordforms(2).join(' '), "w9 w8 w7 w6 w5 w4 w3 w2 w1");
    EXPECT_EQ(contrast.ContrastWord(2, 9), 1);
    EXPECT_EQ(errorOf([&] { editor.addWordform(1, 11); }).number(), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { editor.removeWordform(2, 10); }).number(), ErrorNumber::SubscriptOutOfRange);

    const std::pair<const char*, std::function<void()>> changes[] = {
        {"a count", [&] { table.Counts(2, 3) = 0; }}, {"fewer word forms", [&] { table.NumWordforms = 1; }}};
    for (const auto& [name, change] : changes) {
        analyseContrast(table, 3, contrast);
        editor.followTable(3);
        EXPECT_TRUE(contrast.ContrastAnalysed) << name;
        change();
        editor.followTable(3);
        EXPECT_FALSE(contrast.ContrastAnalysed) << name;
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
    boxes.size = "32768";
    boxes.title.clear();
    EXPECT_EQ(errorOf([&] { SetRankData(boxes, contrast); }).number(), ErrorNumber::Overflow);
    SequentialWriter file;
    writeContrast(file, contrast);
    EXPECT_EQ(file.bytes(), "\"t\",6,100\r\n0\r\n12,0\r\n0\r\n9,9\r\n");
    EXPECT_EQ(boxes.setColor(1), 12) << "the empty box is filled";

    const std::tuple<double, qint16, int> rows[] = {
        {0.1, -1, -1}, {0.0, 0, 0}, {6.3, 15, 15}, {1e17, 16, -1}, {7.0, 1, 1}};
    for (const auto& [steps, color, box] : rows) {
        contrast.ContrastSteps = steps;
        contrast.ContrastSymbolColor(2) = color;
        boxes = boxesOf(contrast);
        EXPECT_EQ(boxes.setColor(2), box);
        SetRankData(boxes, contrast);
        EXPECT_EQ(contrast.ContrastSteps, steps);
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
    survey.varn.ContrastSum(1, 41) = 417;
    survey.varn.ContrastSum(2, 41) = 418;
    const std::tuple<int, const char*, double, double> places[] = {
        {1, "Loc.", 480, 900},           {1, "Diff.", 3000, 900},       {1, "-2001", 3000, 1180},
        {1, "41", 3480 + 480, 1180},     {1, "417", 3480 + 1320, 1180}, {1, "418", 3480 + 2160, 1180},
        {1, "-2041", 3480 + 3000, 1180}, {1, "-2081", 9960, 1180},      {9, "-2961", 3000, 1180},
        {9, "-3000", 3000, 10540}};
    for (const auto& [number, text, end, y] : places) {
        DrawSurface page;
        ContrastPages(survey.varn, QString(300, 'm')).draw(number, page);
        EXPECT_NEAR(printedAt(page.drawing(), text).x() + page.TextWidth(text), end, 1) << text;
        EXPECT_NEAR(printedAt(page.drawing(), text).y(), y, 1) << text;
        for (const TextOperation& any : operationsOf<TextOperation>(page.drawing())) {
            EXPECT_LE(any.x + page.TextWidth(page.drawing().texts[any.text]), ContrastPages::area().width());
        }
        EXPECT_TRUE(page.drawing().texts.at(0).startsWith("Contrast Analysis File Name mmm"));
        EXPECT_EQ(wasPrinted(page.drawing(), "-2120"), number == 1);
        EXPECT_FALSE(wasPrinted(page.drawing(), "-2960")) << "it is on page 8";
    }
}

TEST(ContrastPages, APageTellsTheGroupsAndTheSums)
{
    TestSurvey survey;
    VarnModule& varn = survey.varn;
    varn.NLocality = 122;
    varn.ContrastCount(1) = 2;
    varn.ContrastCount(2) = 1;
    varn.ContrastWordName(1, 1) = "east";
    varn.ContrastWordName(1, 2) = "north";
    varn.ContrastWordName(2, 1) = "west";
    for (int sum = 0; sum <= 2; ++sum) {
        varn.ContrastSum(sum, 121) = static_cast<qint16>(sum + 5);
        varn.ContrastSum(sum, 122) = static_cast<qint16>(-sum);
    }
    DrawSurface page;
    page.ForeColor = QBColor(4);
    ContrastPages(varn, "mine").draw(2, page);
    const char* const drawn = R"(
"Contrast Analysis File Name mine" 0,0 10pt
"PAGE = 2 / 2" >10200,0 10pt
"Item 1" 0,300 10pt color 8
"east + north" 750,300 10pt
"Item 2" 0,540 10pt color 8
"west" 750,540 10pt
line 0,840 10200,840 pen 1/0/8
"Loc." >480,900 10pt color 8
"Item 1" >1320,900 10pt color 8
"Item 2" >2160,900 10pt color 8
"Diff." >3000,900 10pt color 8
"121" >480,1180 10pt color 8
"6" >1320,1180 10pt
"7" >2160,1180 10pt
"5" >3000,1180 10pt
"122" >480,1420 10pt color 8
"-1" >1320,1420 10pt
"-2" >2160,1420 10pt
"0" >3000,1420 10pt
)";
    EXPECT_EQ(transcriptLike(drawn, page.drawing()), drawn);
    EXPECT_EQ(page.ForeColor, QBColor(4));
}

TEST_F(RankData, GroupsAreBuiltAnalysedAndShown)
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

    varn.NLocality = 130;
    type("txtStep", "3");
    click("cmdCalc");
    EXPECT_EQ(dialogs.shown.back().text, Finished);
    EXPECT_EQ(varn.ContrastSum(0, 3), 12 - 3);
    EXPECT_EQ(varn.ContrastSteps, 4);
    EXPECT_EQ(color("txtSetColor1"), 12) << "the default is shown";
    EXPECT_TRUE(canDraw() && !menu("mnuDisplayNext").isEnabled());
    for (const char* entry : {"mnuDisplayRank", "mnuDisplayNext", "mnuDisplayPrevious"}) {
        menu(entry).trigger();
        const bool isLast = entry == std::string("mnuDisplayNext");
        EXPECT_EQ(menu("mnuDisplayNext").isEnabled(), !isLast) << entry;
        EXPECT_EQ(menu("mnuDisplayPrevious").isEnabled(), isLast) << entry;
    }
    int drawn = 0;
    QObject::connect(&form, &frmRankData::toDrawMap, &form, [&drawn] { ++drawn; });
    for (const char* size : {"40000", "77"}) {
        type("txtSize", size);
        menu("mnuRankMap").trigger();
    }
    EXPECT_EQ(drawn, 1);
    EXPECT_EQ(varn.ContrastMaxSize, 77) << "the map has what the boxes hold";
    ASSERT_EQ(dialogs.errors.size(), 1U);
    EXPECT_EQ(dialogs.errors[0].title, "Run-time error '6': Overflow");

    varn.Counts(4, 2) = 32767; // another form accumulated an item
    form.Form_Load();
    EXPECT_FALSE(canDraw() || menu("mnuDisplayNext").isEnabled());
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

    for (const char* name : {"cmdDel1", "cmdData1"}) {
        take(2, name);
        EXPECT_EQ(form.isWindowModified(), varn.ContrastCount(1) == 0) << "taken back";
    }
    type("txtRankTitle", "another");
    dialogs.yesNo = {false};
    menu("mnuRankSave").trigger();
    EXPECT_EQ(survey.read(file), saved) << "it is not replaced unasked";
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
    survey.write(Folder + "name.rnk", "\"f\",1,1\n1\n1,1\n\"old\",2\n0\n1,1\n");
    take(1, "cmdData1");
    const std::tuple<const char*, std::deque<bool>, bool> rows[] = {
        {"five.rnk", {true}, false}, {"name.rnk", {true, false}, false}, {"name.rnk", {true, true}, true}};
    for (const auto& [file, answers, taken] : rows) {
        dialogs.yesNo = answers;
        open(file);
        EXPECT_EQ(listed("lstData1"), QStringList(taken ? "w2" : "w1")) << file;
        EXPECT_EQ(text("txtRankFileName"), taken ? "name" : "") << file;
    }
    ASSERT_EQ(dialogs.errors.size(), 1U);
    EXPECT_TRUE(dialogs.errors[0].text.contains("five.rnk"));
    EXPECT_TRUE(dialogs.shown.back().text.contains("\"old\" in the file and \"w2\""));
    EXPECT_TRUE(form.isWindowModified()) << "the file has another name";
}
