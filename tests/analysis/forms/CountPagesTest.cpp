#include "analysis/forms/CountPages.h"

#include "analysis/AccumulateItems.h"
#include "analysis/Accumulation.h"
#include "analysis/CumulativeFile.h"
#include "analysis/SpecifyCharsEditor.h"
#include "analysis/forms/StatisticsPages.h"
#include "lingdata/ItemFolder.h"
#include "tests/support/TestDrive.h"
#include "tests/support/Transcript.h"

#include <QDir>
#include <QFile>
#include <QLockFile>

#include <functional>
#include <map>

namespace {

const QString Folder = "C:\\Varn62E\\Varn\\VarnData\\Test\\Ling";
const QString Table = Folder + "\\all.ttl";

/// Word forms with the same counts and no names, and their statistics.
struct Counted : CumulativeTable, Statistics
{
    Counted(int wordforms, int items, const std::vector<qint16>& counts)
    {
        NumWordforms = wordforms;
        NumItemsAccumulated = items;
        for (int k = 1; k <= wordforms; ++k) {
            int j = 0;
            for (const qint16 count : counts) {
                Counts(k, ++j) = count;
            }
        }
        Stats(*this, static_cast<int>(counts.size()), *this);
    }
};

/// The right lower corner of `text`.
QPointF endOf(const TextOperation& text, const Drawing& drawing)
{
    const QFontMetricsF metrics(twipFont(drawing.fonts[static_cast<std::size_t>(text.font)]));
    return {text.x + metrics.horizontalAdvance(drawing.texts[text.text]), text.y + metrics.height()};
}

/// A survey with the table "all" of one word form that is known by "a", and three items; the second of them
/// is no item.
class ItemFolder : public testing::Test
{
protected:
    ItemFolder()
    {
        survey.write(Folder + "\\3.dbs", "2,\"\",\"\",\"\"\n1\n\"la\"\n1\n\"a\"\n");
        survey.write(Folder + "\\1.DBS", "2,\"\",\"\",\"\"\n1\n\"a\"\n1\n\"b\"\n");
        survey.write(Folder + "\\2.dbs", "3,\"\",\"cut\",\"\"\n1\n\"a\"\n");
        setNumWordforms(varn, 1);
        countByA();
    }

    void countByA()
    {
        varn.NumSpecifyChars(1) = 1;
        varn.SpecifyChars(1, 1) = "a";
    }
    AccumulationResult countAll(int stopAt = 3, bool countAgain = false)
    {
        return accumulateItems({varn.Drive, Table}, {itemFiles(varn.Drive, Folder), countAgain}, 2, varn,
                               [stopAt](int item, int, const QString&) { return item < stopAt; });
    }
    void load(CumulativeData& data) const { LoadTotalFile(survey.drive(), Table, 2, data); }
    void save(CumulativeData& data) const { SaveTotalFile(survey.drive(), Table, 2, data); }

    TestSurvey survey;
    VarnModule& varn = survey.varn;
};

} // namespace

TEST(CountPages, EachPageShowsItsLocalitiesInTenColumns)
{
    CumulativeTable table;
    table.NumItemsAccumulated = 7;
    table.WordformName(2) = "two";
    for (int j = 1; j <= 1000; ++j) {
        table.Counts(2, j) = static_cast<qint16>(2000 + j);
    }
    DrawSurface surface;
    CountPages(table, 1000).DisplaySum(2, 2, surface);
    const std::pair<int, QPointF> places[] = {{170, {7200, 600}}, {171, {0, 800}}, {320, {7200, 3600}}};
    for (const auto& [j, place] : places) {
        EXPECT_EQ(printedAt(surface.drawing(), QString::number(j)), place);
    }
    EXPECT_EQ(surface.drawing().texts.size(), 1U + 2 * 160);
    CountPages(table, 321).DisplaySum(2, 3, surface);
    EXPECT_EQ(transcript(surface.drawing()), R"(
"Item No.7  Characteristis of Words 2 two" 0,0 8pt
"321" 0,600 8pt color 8
"2321" 370,600 8pt
)");
}

TEST(StatisticsPages, BlocksOfFiguresStandInColumnsOfThreeAndKeepToThem)
{
    Counted survey(10, 3, {1, 2, 3, 0, 0});
    survey.WordformName(10) = "voiced fricative of the west";
    DrawSurface surface;
    StatisticsPages pages(survey, survey, surface);
    EXPECT_EQ(StatisticsPages::overviewArea(), QSizeF(6000, 4800));
    for (int k = 1; k <= 9; ++k) {
        pages.DisplayStats(k);
    }
    const std::pair<const char*, QPointF> blocks[] = {
        {"Kt=1 ", {0, 0}}, {"Kt=3 ", {0, 3200}}, {"Kt=4 ", {2000, 0}}, {"Kt=9 ", {4000, 3200}}};
    for (const auto& [text, place] : blocks) {
        EXPECT_EQ(printedAt(surface.drawing(), text), place);
    }
    surface.Cls();
    pages.DisplayStats(10);
    for (const TextOperation& line : operationsOf<TextOperation>(surface.drawing())) {
        const QPointF end = endOf(line, surface.drawing());
        EXPECT_TRUE((end.x() < 2000 && end.y() < 1600) || !anyFont()) << end.x() << ' ' << end.y();
    }
}

TEST(StatisticsPages, FiguresOfAWordFormStandOverItsDistribution)
{
    const Counted survey(4, 2, {1, 1, 2, 0});
    DrawSurface surface;
    StatisticsPages(survey, survey, surface).DisplayStatsTable(4);
    const char* const page = R"(
"Kt=4" 0,0 8pt
"Median =2" +300,0 8pt
"Mode   =1" +300,0 8pt
"Average=1.33" +300,0 8pt
"Standard Deviation Sigma=0.57" 400,200 8pt
"Av - Sigma=0.75" +300,200 8pt
"Av + SIgma=1.91" +300,200 8pt
"0" 0,600 8pt color 8
"4" 280,600 8pt
"1" 620,600 8pt
"1" 0,800 8pt color 8
"3" 280,800 8pt
"2" 620,800 8pt
"2" 0,1000 8pt color 8
"1" 280,1000 8pt
"1" 620,1000 8pt
)"; // level, localities with at least that, with exactly that
    EXPECT_EQ(transcriptLike(page, surface.drawing()), page);
    surface.Cls();
    StatisticsPages(survey, survey, surface).DisplayStats(2);
    const char* const block = R"(
"Kt=2 " 0,1600 8pt
"Median =2" 0,+0 8pt
"Mode   =1" 0,+0 8pt
"Average=1.33" 0,+0 8pt
)"; // longer lines may be smaller
    EXPECT_EQ(transcriptLike(block, surface.drawing()).substr(0, std::string_view(block).size()), block);
}

TEST(StatisticsPages, LargeNumbersKeepClearOfEachOtherInColumnsOfTwenty)
{
    EXPECT_EQ(StatisticsPages::tableArea(139), QSizeF(7000, 4600));
    EXPECT_EQ(StatisticsPages::tableArea(140), QSizeF(8000, 4600));
    Counted survey(1, 399, {1, 2, 398, 399});
    survey.CumCount(0, 1) = 1000;
    for (const int level : {0, 100, 399}) {
        survey.FreqCount(level, 1) = 1000;
        DrawSurface surface;
        StatisticsPages(survey, survey, surface).DisplayStatsTable(1);
        std::map<float, double> ends; // of the text before on each line
        for (const TextOperation& text : operationsOf<TextOperation>(surface.drawing())) {
            EXPECT_TRUE(text.y < 600 || text.x == 0 || text.x > ends[text.y]) << text.x << ' ' << text.y;
            ends[text.y] = endOf(text, surface.drawing()).x();
        }
        EXPECT_EQ(ends.size(), 2U + 20);
        EXPECT_EQ(printedAt(surface.drawing(), "19"), QPointF(0, 4400));
        EXPECT_EQ(printedAt(surface.drawing(), "40"), QPointF(2000, 600));
        EXPECT_EQ(surface.drawing().fonts.back().size < 8, anyFont()) << "level " << level;
        survey.FreqCount(level, 1) = 1;
    }
}

TEST(SpecifyCharsEditor, WithoutAStringOnlyAddingDoesSomething)
{
    CumulativeData data;
    setNumWordforms(data, 1);
    SpecifyCharsEditor editor(data);
    editor.start();
    editor.previous();
    editor.next();
    editor.remove();
    EXPECT_EQ(editor.text(), "");
    editor.rewrite("a");
    editor.previous();
    EXPECT_EQ(editor.text(), "a") << "the first has none before it";
}

TEST_F(ItemFolder, AStoppedRunIsResumedWithTheTableReadAgain)
{
    AccumulationResult done = countAll(1);
    EXPECT_TRUE(done.stopped);
    EXPECT_EQ(done.counted, 1);
    static_cast<CumulativeData&>(varn) = {};
    load(varn);
    countByA();
    done = countAll();
    EXPECT_FALSE(done.stopped);
    EXPECT_EQ(done.countedBefore, QStringList("1.DBS"));
    EXPECT_EQ(survey.read(Folder + "\\all.itm"), "2,2\r\n\"1.DBS\"\r\n\"3.dbs\"\r\n");
    EXPECT_EQ(survey.read(Table), "1,2,\"\"\r\n\"\"\r\n12,12\r\n0,0\r\n2\r\n1\r\n") << "as in one run";

    clearCounts(2, varn);
    save(varn);
    varn.Counts(1, 2) = 32767;
    done = countAll();
    EXPECT_EQ(done.counted, 1) << "an emptied table knows no items; 1.DBS has no \"a\" at locality 2";
    ASSERT_EQ(done.uncounted.size(), 2U);
    EXPECT_TRUE(done.uncounted[0].reason.contains("Input past end of file"));
    EXPECT_TRUE(done.uncounted[1].reason.contains("Overflow"));
    EXPECT_EQ(varn.Counts(1, 1), 1);
    EXPECT_EQ(errorOf([&] { itemFiles(varn.Drive, Folder + "\\gone"); }).number(), ErrorNumber::PathNotFound);
}

TEST_F(ItemFolder, ASaveThatFailsLeavesTheTableOfTheFile)
{
    QDir().mkpath(survey.drive().hostPath(Table + "\\in the way"));
    const std::function<void()> ways[] = {[&] { countAll(); },
                                          [&] {
                                              executeItem({varn.Drive, Table}, varn, 2, varn);
                                          }};
    for (const auto& count : ways) {
        const RunTimeError error = errorOf(count);
        EXPECT_TRUE(error.place().path.endsWith("all.ttl"));
        EXPECT_EQ(error.detail().contains("0 of 3 items"), &count == &ways[0]);
        EXPECT_EQ(varn.CountedItems, QStringList());
        EXPECT_FALSE(isTableUnsaved(varn)) << "nothing is counted";
    }
}

TEST_F(ItemFolder, ATableThatAnotherProgramSavedIsNotSavedOver)
{
    countAll();
    CumulativeData other;
    load(other);
    other.MapCaption = "theirs";
    save(other);
    const RunTimeError error = errorOf([&] { countAll(3, true); });
    EXPECT_EQ(error.number(), ErrorNumber::PermissionDenied);
    EXPECT_TRUE(error.message().contains("changed by another program"));
    EXPECT_EQ(varn.CountedItems.size(), 2) << "memory holds what it held";
    load(varn);
    EXPECT_EQ(varn.MapCaption, "theirs");
    QFile::remove(survey.drive().hostPath(Table));
    save(varn); // there is nothing to save over
    QLockFile theirs(survey.drive().hostPath(Table) + ".lock");
    ASSERT_TRUE(theirs.tryLock());
    EXPECT_EQ(errorOf([&] { save(varn); }).number(), ErrorNumber::PermissionDenied);
}
