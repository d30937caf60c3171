#include "analysis/forms/CountPages.h"

#include "analysis/AccumulateItems.h"
#include "analysis/Accumulation.h"
#include "analysis/CumulativeFile.h"
#include "analysis/SpecifyCharsEditor.h"
#include "analysis/forms/StatisticsPages.h"
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

/// A table of word forms "w1", "w2", ... and the statistics of their counts.
struct CountedSurvey
{
    CumulativeTable table;
    Statistics statistics;

    CountedSurvey(int wordforms, int items, const std::vector<qint16>& counts)
    {
        table.NumWordforms = wordforms;
        table.NumItemsAccumulated = items;
        for (int k = 1; k <= wordforms; ++k) {
            table.WordformName(k) = QString("w%1").arg(k);
            int j = 0;
            for (const qint16 count : counts) {
                table.Counts(k, ++j) = count;
            }
        }
        Stats(table, static_cast<int>(counts.size()), statistics);
    }
};

/// How far `text` goes to the right and down.
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
        write("3.dbs", "2,\"\",\"\",\"\"\n1\n\"la\"\n1\n\"a\"\n");
        write("1.DBS", "2,\"\",\"\",\"\"\n1\n\"a\"\n1\n\"b\"\n");
        write("2.dbs", "3,\"\",\"cut\",\"\"\n1\n\"a\"\n");
        write("4.txt", "2,\"\",\"\",\"\"\n1\n\"a\"\n1\n\"a\"\n");
        varn.NLocality = 2;
        varn.TotalFileName = "all";
        setNumWordforms(varn, 1);
        countByA();
    }

    void write(const QString& file, const QByteArray& text) const
    {
        survey.write(Folder + '\\' + file, text);
    }
    void countByA()
    {
        varn.NumSpecifyChars(1) = 1;
        varn.SpecifyChars(1, 1) = "a";
    }
    AccumulationResult countAll(bool countAgain = false, const AccumulationProgress& mayProceed = all)
    {
        return accumulateItems({varn.Drive, Table}, {itemFiles(varn.Drive, Folder), countAgain}, 2, varn,
                               mayProceed);
    }
    static bool all(int, int, const QString&) { return true; }
    static bool onlyFirst(int item, int, const QString&) { return item < 1; }

    void load(CumulativeData& data) const { LoadTotalFile(survey.drive(), Table, 2, data); }
    void save(CumulativeData& data) const { SaveTotalFile(survey.drive(), Table, 2, data); }
    QByteArray saved() const { return survey.read(Table); }

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

TEST(StatisticsPages, FiguresStandInTheirPlaces)
{
    const CountedSurvey survey(10, 3, {1, 2, 3, 0, 0});
    DrawSurface surface;
    StatisticsPages pages(survey.table, survey.statistics, surface);
    EXPECT_EQ(StatisticsPages::overviewArea(), QSizeF(6000, 4800));
    EXPECT_EQ(StatisticsPages::tableArea(139), QSizeF(7000, 4600));
    EXPECT_EQ(StatisticsPages::tableArea(140), QSizeF(8000, 4600));
    for (int k = 1; k <= 10; ++k) {
        pages.DisplayStats(k);
    }
    const std::pair<int, QPointF> blocks[] = {
        {1, {0, 0}}, {3, {0, 3200}}, {4, {2000, 0}}, {9, {4000, 3200}}, {10, {0, 0}}};
    for (const auto& [k, place] : blocks) {
        EXPECT_EQ(printedAt(surface.drawing(), QString("Kt=%1 w%1").arg(k)), place);
    }

    pages.DisplayStatsTable(4);
    const Drawing& drawing = surface.drawing();
    double x = -1;
    for (const char* text : {"Kt=4", "Median =3", "Mode   =1", "Average=2"}) {
        const QPointF place = printedAt(drawing, text);
        EXPECT_EQ(place.y(), 0) << text;
        EXPECT_GT(place.x(), x) << text;
        x = place.x();
    }
    EXPECT_EQ(printedAt(drawing, "Standard Deviation Sigma=1"), QPointF(400, 200));
    for (const char* text : {"Av - Sigma=1", "Av + SIgma=3"}) {
        EXPECT_EQ(printedAt(drawing, text).y(), 200);
    }
    const std::string lines = transcript(drawing);
    EXPECT_EQ(lines.substr(lines.find("\n\"0\"")), R"(
"0" 0,600 8pt color 8
"5" 280,600 8pt
"2" 620,600 8pt
"1" 0,800 8pt color 8
"3" 280,800 8pt
"1" 620,800 8pt
"2" 0,1000 8pt color 8
"2" 280,1000 8pt
"1" 620,1000 8pt
"3" 0,1200 8pt color 8
"1" 280,1200 8pt
"1" 620,1200 8pt
)") << "level, localities with at least that, with exactly that";
}

TEST(StatisticsPages, ABlockWithALongNameKeepsToItsColumn)
{
    if (!anyFont()) {
        GTEST_SKIP() << "needs a font";
    }
    CountedSurvey survey(1, 3, {1, 2, 3});
    survey.table.WordformName(1) = "voiced fricative of the west";
    DrawSurface surface;
    StatisticsPages(survey.table, survey.statistics, surface).DisplayStats(1);
    for (const TextOperation& line : operationsOf<TextOperation>(surface.drawing())) {
        EXPECT_LT(endOf(line, surface.drawing()).x(), 2000);
        EXPECT_LT(endOf(line, surface.drawing()).y(), 1600);
    }
}

TEST(StatisticsPages, LargeNumbersKeepClearOfEachOtherInColumnsOfTwenty)
{
    CountedSurvey survey(1, 399, {1, 2, 398, 399});
    survey.statistics.CumCount(0, 1) = 1000;
    for (const int level : {0, 100, 399}) {
        survey.statistics.FreqCount(level, 1) = 1000;
        DrawSurface surface;
        StatisticsPages(survey.table, survey.statistics, surface).DisplayStatsTable(1);
        std::map<float, double> ends; // of the text before on each line
        for (const TextOperation& text : operationsOf<TextOperation>(surface.drawing())) {
            EXPECT_TRUE(text.y < 600 || text.x == 0 || text.x > ends[text.y]) << text.x << ' ' << text.y;
            ends[text.y] = endOf(text, surface.drawing()).x();
        }
        EXPECT_EQ(ends.size(), 2U + 20);
        EXPECT_EQ(printedAt(surface.drawing(), "19"), QPointF(0, 4400));
        EXPECT_EQ(printedAt(surface.drawing(), "40"), QPointF(2000, 600));
        EXPECT_EQ(surface.drawing().fonts.back().size < 8, anyFont()) << "level " << level;
        survey.statistics.FreqCount(level, 1) = 1;
    }
}

TEST(SpecifyCharsEditor, ItStandsOnAStringOfTheWordFormIfThereIsOne)
{
    CumulativeData data;
    setNumWordforms(data, 2);
    data.CurrentWordform = 2;
    SpecifyCharsEditor editor(data);
    editor.start();
    editor.previous();
    editor.remove();
    EXPECT_EQ(editor.current(), 0);
    EXPECT_EQ(editor.text(), "");
    editor.rewrite("a");
    editor.add("b");
    editor.next();
    EXPECT_EQ(editor.text(), "b") << "the last has none behind it";
    editor.remove();
    EXPECT_EQ(editor.text(), "a") << "the last now";
    EXPECT_EQ(editor.strings(), QStringList("a"));
    EXPECT_EQ(data.NumSpecifyChars(1), 0);
    data.NumSpecifyChars(2) = 400;
    EXPECT_EQ(errorOf([&] { editor.add("d"); }).number(), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(data.NumSpecifyChars(2), 400);
}

TEST_F(ItemFolder, ItemsAreCountedInTheOrderOfTheirNamesAndTheBadOneIsNamed)
{
    QStringList steps;
    const AccumulationResult done = countAll(false, [&](int item, int items, const QString& name) {
        const QByteArray file = item == 0 ? "-" : saved();
        steps << QString("%1/%2 %3 ").arg(item).arg(items).arg(name) + file.left(file.indexOf('"'));
        return true;
    });
    EXPECT_EQ(steps, QStringList({"0/3 1.DBS ", "1/3 2.dbs 1,1,", "2/3 3.dbs 1,1,"}))
        << "saved after each item";
    EXPECT_EQ(saved(), "1,2,\"\"\r\n\"\"\r\n12,12\r\n0,0\r\n2\r\n1\r\n");
    EXPECT_EQ(done.counted, 2);
    EXPECT_FALSE(done.stopped);
    ASSERT_EQ(done.uncounted.size(), 1U);
    EXPECT_EQ(done.uncounted[0].name, "2.dbs");
    EXPECT_TRUE(done.uncounted[0].reason.contains("Input past end of file"));
    EXPECT_EQ(errorOf([&] { itemFiles(varn.Drive, Folder + "\\gone"); }).number(), ErrorNumber::PathNotFound);
}

TEST_F(ItemFolder, AStoppedRunIsResumedWithTheTableReadAgain)
{
    AccumulationResult done = countAll(false, onlyFirst);
    EXPECT_TRUE(done.stopped);
    EXPECT_EQ(done.counted, 1);
    static_cast<CumulativeData&>(varn) = {};
    load(varn);
    countByA();
    done = countAll();
    EXPECT_EQ(done.countedBefore, QStringList("1.DBS"));
    EXPECT_EQ(done.counted, 1);
    EXPECT_EQ(varn.Counts(1, 1), 2) << "as in one run";
    EXPECT_EQ(survey.read(Folder + "\\all.itm"), "2,2\r\n\"1.DBS\"\r\n\"3.dbs\"\r\n");

    clearCounts(2, varn);
    save(varn);
    varn.Counts(1, 2) = 32767;
    done = countAll();
    EXPECT_EQ(done.counted, 1) << "an emptied table knows no items; 1.DBS has no \"a\" at locality 2";
    ASSERT_EQ(done.uncounted.size(), 2U);
    EXPECT_TRUE(done.uncounted[1].reason.contains("Overflow"));
    EXPECT_EQ(varn.Counts(1, 1), 1);
}

TEST_F(ItemFolder, ASaveThatFailsLeavesTheTableOfTheFile)
{
    QDir().mkpath(survey.drive().hostPath(Table + "\\in the way"));
    LinguisticData item;
    item.ItemFileName = "1.DBS";
    const std::function<void()> ways[] = {[&] { countAll(); },
                                          [&] {
                                              executeItem({varn.Drive, Table}, item, 2, varn);
                                          }};
    for (const auto& count : ways) {
        const RunTimeError error = errorOf(count);
        EXPECT_TRUE(error.place().path.endsWith("all.ttl"));
        EXPECT_EQ(error.detail().contains("0 of 3 items"), &count == &ways[0]);
        EXPECT_EQ(varn.NumItemsAccumulated, 0);
        EXPECT_EQ(varn.Counts(1, 1), 0);
        EXPECT_EQ(varn.CountedItems, QStringList());
        EXPECT_FALSE(isTableUnsaved(varn, 2));
    }
}

TEST_F(ItemFolder, ATableThatAnotherProgramSavedIsNotSavedOver)
{
    countAll();
    CumulativeData other;
    load(other);
    other.MapCaption = "theirs";
    save(other);
    const RunTimeError error = errorOf([&] { countAll(true); });
    EXPECT_EQ(error.number(), ErrorNumber::PermissionDenied);
    EXPECT_TRUE(error.message().contains("changed by another program"));
    EXPECT_EQ(varn.CountedItems.size(), 2) << "memory holds what it held";

    load(varn);
    QFile::remove(survey.drive().hostPath(Table));
    save(varn); // there is nothing to save over
    save(varn); // and now its own
    EXPECT_TRUE(saved().contains("theirs"));
    QLockFile theirs(survey.drive().hostPath(Table) + ".lock");
    ASSERT_TRUE(theirs.tryLock());
    EXPECT_EQ(errorOf([&] { save(varn); }).number(), ErrorNumber::PermissionDenied);
}

TEST_F(ItemFolder, UnsavedIsWhatDiffersFromTheFile)
{
    const QString chars = Folder + "\\all.sum";
    const auto unsaved = [&] { return std::pair(isTableUnsaved(varn, 2), areCharsUnsaved(varn)); };
    EXPECT_EQ(unsaved(), std::pair(false, true)) << "a number of word forms is nothing to lose";
    varn.WordformName(1) = "w";
    EXPECT_EQ(unsaved(), std::pair(true, true));
    save(varn);
    SaveSetData(survey.drive(), chars, varn);
    EXPECT_EQ(unsaved(), std::pair(false, false));
    varn.Counts(1, 2) = 1;
    varn.SpecifyChars(1, 1) = "A";
    EXPECT_EQ(unsaved(), std::pair(true, true));
    load(varn);
    LoadSetData(survey.drive(), chars, varn);
    EXPECT_EQ(unsaved(), std::pair(false, false));
}
