#include "analysis/forms/CountPages.h"

#include "analysis/AccumulateItems.h"
#include "analysis/Accumulation.h"
#include "analysis/CumulativeFile.h"
#include "analysis/SpecifyCharsEditor.h"
#include "analysis/forms/StatisticsPages.h"
#include "lingdata/ItemLoader.h"
#include "tests/support/TestDrive.h"
#include "tests/support/Transcript.h"

#include <QDir>
#include <QFile>
#include <QLockFile>

#include <initializer_list>
#include <map>

namespace {

const QString Folder = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Ling");

/// A table of word forms "w1", "w2", ... and the statistics of their counts.
struct CountedSurvey
{
    CumulativeTable table;
    Statistics statistics;
    int localities = 0;

    CountedSurvey(int wordforms, int items, std::initializer_list<int> counts)
    {
        table.NumWordforms = wordforms;
        table.NumItemsAccumulated = items;
        for (const int count : counts) {
            ++localities;
            for (int k = 1; k <= wordforms; ++k) {
                table.Counts(k, localities) = static_cast<qint16>(count);
            }
        }
        for (int k = 1; k <= wordforms; ++k) {
            table.WordformName(k) = QStringLiteral("w%1").arg(k);
        }
        Stats(table, localities, statistics);
    }
};

/// A survey with the table "all" of one word form that is known by "a", and three items; the second of them
/// is no item.
class ItemFolder : public testing::Test
{
protected:
    ItemFolder()
    {
        survey.write(Folder + QStringLiteral("\\3.dbs"), item("\"la\"", "\"a\""));
        survey.write(Folder + QStringLiteral("\\1.DBS"), item("\"a\"", "\"b\""));
        survey.write(Folder + QStringLiteral("\\2.dbs"), "3,\"\",\"cut\",\"\"\r\n1\r\n\"a\"\r\n");
        survey.write(Folder + QStringLiteral("\\4.txt"), item("\"a\"", "\"a\""));
        varn.NLocality = 2;
        setNumWordforms(varn, 1);
        varn.NumSpecifyChars(1) = 1;
        varn.SpecifyChars(1, 1) = QStringLiteral("a");
        varn.TotalFileName = QStringLiteral("all");
    }

    static QByteArray item(const QByteArray& first, const QByteArray& second)
    {
        return "2,\"\",\"\",\"\"\r\n1\r\n" + first + "\r\n1\r\n" + second + "\r\n";
    }

    AccumulationResult countAll(bool countAgain, const AccumulationProgress& mayProceed)
    {
        return accumulateItems({varn.Drive, totalFilePath(varn.dataFolder(), varn)},
                               {itemFiles(varn.Drive, Folder), countAgain}, 2, varn, mayProceed);
    }
    AccumulationResult countAll()
    {
        return countAll(false, [](int, int, const QString&) { return true; });
    }

    QByteArray saved() { return survey.read(Folder + QStringLiteral("\\all.ttl")); }

    TestSurvey survey;
    VarnModule& varn = survey.varn;
};

} // namespace

TEST(CountPages, EachPageShowsItsLocalitiesInTenColumns)
{
    CumulativeTable table;
    table.NumItemsAccumulated = 7;
    table.WordformName(2) = QStringLiteral("two");
    for (int j = 1; j <= 1000; ++j) {
        table.Counts(2, j) = static_cast<qint16>(2000 + j);
    }
    const CountPages pages(table, 321);
    EXPECT_EQ(pages.count(), 3);
    EXPECT_EQ(pages.next(3), 1);
    EXPECT_EQ(pages.previous(1), 3);
    DrawSurface surface;
    pages.DisplaySum(2, 2, surface);
    const Drawing& drawing = surface.drawing();
    const std::pair<int, QPointF> places[] = {
        {161, {0, 600}}, {170, {7200, 600}}, {171, {0, 800}}, {320, {7200, 3600}}};
    for (const auto& [j, place] : places) {
        EXPECT_EQ(printedAt(drawing, QString::number(j)), place);
    }
    EXPECT_EQ(drawing.texts.size(), 1U + 2 * 160);

    pages.DisplaySum(2, 3, surface);
    EXPECT_EQ(transcript(surface.drawing()), R"(
"Item No.7  Characteristis of Words 2 two" 0,0 8pt
"321" 0,600 8pt color 8
"2321" 370,600 8pt
)");
    const CountPages full(table, 160);
    EXPECT_EQ(full.count(), 2);
    full.DisplaySum(2, 2, surface);
    EXPECT_EQ(surface.drawing().texts.size(), 1U) << "the page behind a full one is empty";
}

TEST(StatisticsPages, FiguresStandInTheirPlaces)
{
    const CountedSurvey survey(10, 3, {1, 2, 3, 0, 0});
    DrawSurface surface;
    StatisticsPages pages(survey.table, survey.statistics, surface);
    EXPECT_EQ(StatisticsPages::overviewArea(), QSizeF(6000, 4800));
    EXPECT_EQ(StatisticsPages::tableArea(139), QSizeF(7000, 4600));
    EXPECT_EQ(StatisticsPages::tableArea(140), QSizeF(8000, 4600));
    const std::pair<int, QPointF> blocks[] = {
        {1, {0, 0}}, {3, {0, 3200}}, {4, {2000, 0}}, {9, {4000, 3200}}, {10, {0, 0}}};
    for (int k = 1; k <= 10; ++k) {
        pages.DisplayStats(k);
    }
    for (const auto& [k, place] : blocks) {
        EXPECT_EQ(printedAt(surface.drawing(), QStringLiteral("Kt=%1 w%1").arg(k)), place);
    }

    pages.DisplayStatsTable(4);
    const Drawing& drawing = surface.drawing();
    float x = -1;
    for (const char* text : {"Kt=4", "Median =3", "Mode   =1", "Average=2"}) {
        const QPointF place = printedAt(drawing, QLatin1String(text));
        EXPECT_EQ(place.y(), 0) << text;
        EXPECT_GT(place.x(), x) << text;
        x = static_cast<float>(place.x());
    }
    EXPECT_EQ(printedAt(drawing, QStringLiteral("Standard Deviation Sigma=1")), QPointF(400, 200));
    EXPECT_EQ(printedAt(drawing, QStringLiteral("Av - Sigma=1")).y(), 200);
    EXPECT_EQ(printedAt(drawing, QStringLiteral("Av + SIgma=3")).y(), 200);
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
    survey.table.WordformName(1) = QStringLiteral("voiced fricative of the west");
    DrawSurface surface;
    StatisticsPages(survey.table, survey.statistics, surface).DisplayStats(1);
    for (const TextOperation& line : operationsOf<TextOperation>(surface.drawing())) {
        const TextFont& font = surface.drawing().fonts[static_cast<std::size_t>(line.font)];
        const QFontMetricsF metrics(twipFont(font));
        EXPECT_LT(line.x + metrics.horizontalAdvance(surface.drawing().texts[line.text]), 2000);
        EXPECT_LT(line.y + metrics.height(), 1600);
    }
}

TEST(StatisticsPages, TwentyLevelsMakeAColumn)
{
    const CountedSurvey survey(1, 40, {1, 2, 39, 40});
    DrawSurface surface;
    StatisticsPages(survey.table, survey.statistics, surface).DisplayStatsTable(1);
    const std::pair<int, QPointF> places[] = {
        {19, {0, 4400}}, {20, {1000, 600}}, {39, {1000, 4400}}, {40, {2000, 600}}};
    for (const auto& [level, place] : places) {
        EXPECT_EQ(printedAt(surface.drawing(), QString::number(level)), place);
    }
}

TEST(StatisticsPages, LargeNumbersKeepClearOfEachOther)
{
    CountedSurvey survey(1, 399, {1, 2, 398, 399});
    survey.statistics.CumCount(0, 1) = 1000;
    for (const int level : {0, 100, 399}) {
        survey.statistics.FreqCount(level, 1) = 1000;
        DrawSurface surface;
        StatisticsPages(survey.table, survey.statistics, surface).DisplayStatsTable(1);
        std::map<float, float> ends; // of the text before on each line
        for (const TextOperation& text : operationsOf<TextOperation>(surface.drawing())) {
            const TextFont& font = surface.drawing().fonts[static_cast<std::size_t>(text.font)];
            const double width =
                QFontMetricsF(twipFont(font)).horizontalAdvance(surface.drawing().texts[text.text]);
            EXPECT_TRUE(text.y < 600 || text.x == 0 || text.x > ends[text.y]) << text.x << ' ' << text.y;
            ends[text.y] = text.x + static_cast<float>(width);
        }
        EXPECT_EQ(ends.size(), 2U + 20);
        EXPECT_EQ(surface.drawing().fonts.back().size < 8, anyFont()) << "level " << level;
        survey.statistics.FreqCount(level, 1) = 1;
    }
}

TEST(SpecifyCharsEditor, StringsAreAddedReplacedAndSteppedThrough)
{
    CumulativeData data;
    setNumWordforms(data, 2);
    data.CurrentWordform = 2;
    SpecifyCharsEditor editor(data);
    editor.start();
    EXPECT_EQ(editor.current(), 0);
    EXPECT_EQ(editor.text(), QString());
    editor.previous();
    for (const char* text : {"a", "b", "c"}) {
        editor.add(QLatin1String(text));
    }
    EXPECT_EQ(editor.current(), 3);
    editor.next();
    EXPECT_EQ(editor.text(), QStringLiteral("c")) << "the last has none behind it";
    editor.previous();
    editor.rewrite(QStringLiteral("B"));
    EXPECT_EQ(editor.strings(), QStringList({QStringLiteral("a"), QStringLiteral("B"), QStringLiteral("c")}));
    EXPECT_EQ(data.NumSpecifyChars(1), 0);
    editor.previous();
    editor.remove();
    EXPECT_EQ(editor.text(), QStringLiteral("B")) << "the next one";
    editor.next();
    editor.remove();
    EXPECT_EQ(editor.strings(), QStringList(QStringLiteral("B")));
    EXPECT_EQ(editor.current(), 1);
    editor.remove();
    editor.remove();
    EXPECT_EQ(editor.current(), 0);
    editor.add(QStringLiteral("a"));
    editor.reset();
    EXPECT_EQ(editor.current(), 0);
    EXPECT_EQ(data.NumSpecifyChars(2), 0);

    data.NumSpecifyChars(2) = 400;
    EXPECT_EQ(errorOf([&] { editor.add(QStringLiteral("d")); }).number(), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(data.NumSpecifyChars(2), 400);
}

TEST_F(ItemFolder, ItemsAreCountedInTheOrderOfTheirNamesAndTheBadOneIsNamed)
{
    QStringList names;
    std::vector<QByteArray> files;
    const AccumulationResult done = countAll(false, [&](int item, int items, const QString& name) {
        EXPECT_EQ(item, names.size());
        EXPECT_EQ(items, 3);
        if (item > 0) {
            files.push_back(saved());
        }
        names << name;
        return true;
    });
    EXPECT_EQ(names,
              QStringList({QStringLiteral("1.DBS"), QStringLiteral("2.dbs"), QStringLiteral("3.dbs")}));
    EXPECT_EQ(done.counted, 2);
    EXPECT_FALSE(done.stopped);
    ASSERT_EQ(done.uncounted.size(), 1U);
    EXPECT_EQ(done.uncounted[0].name, QStringLiteral("2.dbs"));
    EXPECT_TRUE(done.uncounted[0].reason.contains(QStringLiteral("Input past end of file")));
    const QByteArray ofFirst = "1,1,\"\"\r\n\"\"\r\n12,12\r\n";
    ASSERT_EQ(files.size(), 2U);
    EXPECT_TRUE(files[0].startsWith(ofFirst)) << "saved after each item";
    EXPECT_EQ(files[1], files[0]) << "a bad one adds nothing";
    EXPECT_TRUE(saved().startsWith("1,2,"));
    EXPECT_TRUE(saved().endsWith("2\r\n1\r\n"));

    CumulativeData alone = varn;
    clearCounts(2, alone);
    for (const char* name : {"\\1.DBS", "\\3.dbs"}) {
        LinguisticData item;
        static_cast<ItemAnswers&>(item) = readItemAnswers(varn, Folder + QLatin1String(name));
        executeItem({varn.Drive, totalFilePath(varn.dataFolder(), alone)}, item, 2, alone);
    }
    for (int j = 1; j <= 2; ++j) {
        EXPECT_EQ(alone.Counts(1, j), varn.Counts(1, j));
    }
}

TEST_F(ItemFolder, StoppingKeepsWhatIsCountedAndAnOverflowIsPassedOver)
{
    AccumulationResult done = countAll(false, [](int item, int, const QString&) { return item < 1; });
    EXPECT_TRUE(done.stopped);
    EXPECT_EQ(done.counted, 1);
    EXPECT_EQ(varn.NumItemsAccumulated, 1);

    varn.Counts(1, 2) = 32767;
    done = countAll(true, [](int, int, const QString&) { return true; });
    EXPECT_EQ(done.counted, 1) << "1.DBS has no \"a\" at locality 2";
    ASSERT_EQ(done.uncounted.size(), 2U);
    EXPECT_TRUE(done.uncounted[1].reason.contains(QStringLiteral("Overflow")));
    EXPECT_EQ(varn.Counts(1, 1), 2);

    EXPECT_EQ(errorOf([&] { itemFiles(varn.Drive, Folder + QStringLiteral("\\gone")); }).number(),
              ErrorNumber::PathNotFound);
}

TEST_F(ItemFolder, ASaveThatFailsLeavesTheTableOfTheFile)
{
    QDir().mkpath(survey.drive().hostPath(Folder + QStringLiteral("\\all.ttl\\in the way")));
    const RunTimeError error = errorOf([&] { countAll(); });
    EXPECT_TRUE(error.place().path.endsWith(QStringLiteral("all.ttl")));
    EXPECT_TRUE(error.detail().contains(QStringLiteral("0 of 3 items")));
    EXPECT_EQ(varn.NumItemsAccumulated, 0);
    EXPECT_EQ(varn.Counts(1, 1), 0);
    EXPECT_EQ(varn.CountedItems, QStringList());
    EXPECT_FALSE(isTableUnsaved(varn));
}

TEST_F(ItemFolder, AStoppedRunIsResumedWithTheTableReadAgain)
{
    countAll(false, [](int item, int, const QString&) { return item < 1; });
    CumulativeData& data = varn;
    data = {};
    LoadTotalFile(survey.drive(), Folder + QStringLiteral("\\all.ttl"), 2, varn);
    varn.NumSpecifyChars(1) = 1;
    varn.SpecifyChars(1, 1) = QStringLiteral("a");
    const AccumulationResult done = countAll();
    EXPECT_EQ(done.countedBefore, QStringList(QStringLiteral("1.DBS")));
    EXPECT_EQ(done.counted, 1);
    EXPECT_EQ(varn.Counts(1, 1), 2) << "as in one run";
    EXPECT_EQ(survey.read(Folder + QStringLiteral("\\all.itm")), "2,2\r\n\"1.DBS\"\r\n\"3.dbs\"\r\n");

    clearCounts(2, varn);
    SaveTotalFile(survey.drive(), totalFilePath(Folder, varn), 2, varn);
    EXPECT_EQ(countAll().counted, 2) << "an emptied table knows no items";
}

TEST_F(ItemFolder, ATableThatAnotherProgramSavedIsNotSavedOver)
{
    countAll();
    CumulativeData other;
    const QString path = Folder + QStringLiteral("\\all.ttl");
    LoadTotalFile(survey.drive(), path, 2, other);
    other.MapCaption = QStringLiteral("theirs");
    SaveTotalFile(survey.drive(), totalFilePath(Folder, other), 2, other);
    const RunTimeError error =
        errorOf([&] { countAll(true, [](int, int, const QString&) { return true; }); });
    EXPECT_EQ(error.number(), ErrorNumber::PermissionDenied);
    EXPECT_TRUE(error.message().contains(QStringLiteral("changed by another program")));
    EXPECT_TRUE(saved().contains("theirs"));
    EXPECT_EQ(varn.CountedItems.size(), 2) << "memory holds what it held";

    LoadTotalFile(survey.drive(), path, 2, varn);
    SaveTotalFile(survey.drive(), totalFilePath(Folder, varn), 2, varn);
    QFile::remove(survey.drive().hostPath(path));
    SaveTotalFile(survey.drive(), totalFilePath(Folder, varn), 2, varn); // there is nothing to save over
    EXPECT_TRUE(saved().contains("theirs"));
    QFile::remove(survey.drive().hostPath(path + QStringLiteral(".lock")));
    QLockFile theirs(survey.drive().hostPath(path) + QStringLiteral(".lock"));
    ASSERT_TRUE(theirs.tryLock());
    EXPECT_EQ(errorOf([&] { SaveTotalFile(survey.drive(), totalFilePath(Folder, varn), 2, varn); }).number(),
              ErrorNumber::PermissionDenied);
}

TEST_F(ItemFolder, UnsavedIsWhatDiffersFromTheFile)
{
    EXPECT_FALSE(isTableUnsaved(varn)) << "a number of word forms is nothing to lose";
    EXPECT_TRUE(areCharsUnsaved(varn));
    varn.WordformName(1) = QStringLiteral("w");
    EXPECT_TRUE(isTableUnsaved(varn));
    SaveTotalFile(survey.drive(), totalFilePath(Folder, varn), 2, varn);
    SaveSetData(survey.drive(), Folder + QStringLiteral("\\all.sum"), varn);
    EXPECT_FALSE(isTableUnsaved(varn));
    EXPECT_FALSE(areCharsUnsaved(varn));
    varn.Counts(1, 2) = 1;
    varn.SpecifyChars(1, 1) = QStringLiteral("A");
    EXPECT_TRUE(isTableUnsaved(varn));
    EXPECT_TRUE(areCharsUnsaved(varn));
    LoadTotalFile(survey.drive(), Folder + QStringLiteral("\\all.ttl"), 2, varn);
    LoadSetData(survey.drive(), Folder + QStringLiteral("\\all.sum"), varn);
    EXPECT_FALSE(isTableUnsaved(varn));
    EXPECT_FALSE(areCharsUnsaved(varn));

    EXPECT_EQ(errorOf([&] { setNumWordforms(varn, 11); }).number(), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(varn.NumWordforms, 1);
}
