#include "analysis/Accumulation.h"
#include "analysis/ContrastData.h"
#include "analysis/CumulativeFile.h"
#include "analysis/CumulativeTable.h"
#include "analysis/DiffusionSymbols.h"
#include "analysis/Statistics.h"
#include "analysis/StatisticsLines.h"
#include "analysis/TotalCommands.h"
#include "lingdata/LinguisticFile.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestDrive.h"

#include <functional>

namespace {

/// A table of one word form with these counts, `items` items accumulated.
CumulativeTable countsOf(const std::vector<int>& counts, int items)
{
    CumulativeTable table;
    table.NumWordforms = 1;
    table.NumItemsAccumulated = items;
    int j = 0;
    for (const int count : counts) {
        table.Counts(1, ++j) = static_cast<qint16>(count);
    }
    return table;
}

/// What is written of what `read` finds in `text`.
template <typename Read, typename Write>
std::string rewritten(const std::string& text, Read read, Write write)
{
    SequentialReader reader(QString::fromStdString(text));
    SequentialWriter writer;
    write(writer, read(reader));
    return writer.bytes().toStdString();
}

/// The `.ttl` file "C:\all.ttl" and the table that is read from it.
struct TotalFile : TestDrive
{
    std::optional<RunTimeError> load(const QByteArray& text, int localities)
    {
        write(path, text);
        return LoadTotalFile(drive(), path, localities, data);
    }

    const QString path = QStringLiteral("C:\\all.ttl");
    const QString namesPath = QStringLiteral("C:\\all.itm");
    CumulativeData data;
};

} // namespace

TEST(Accumulation, TheFirstAnswerCountsForEachStringItContains)
{
    SequentialReader strings(QStringLiteral("3\r\n2,\"a\",\"am\"\r\n1,\"m\"\r\n1,\"\"\r\n"));
    CumulativeData data;
    readSpecifyChars(strings, data);
    SequentialReader answers(QStringLiteral("4,\"\",\"\",\"\"\r\n2\r\n\"ame\"\r\n\"zzz\"\r\n"
                                            "2\r\n\"zzz\"\r\n\"ame\"\r\n0\r\n1\r\n\"AM\"\r\n"));
    ItemAnswers item = readItem(answers);
    accumulateItem(item, 5, data); // the map has a locality more than the item
    accumulateItem(item, 5, data);
    const int expected[3][5] = {{4, 0, 0, 0, 0}, {2, 0, 0, 0, 0}, {2, 2, 2, 2, 2}};
    for (int k = 1; k <= 3; ++k) {
        for (int j = 1; j <= 5; ++j) {
            EXPECT_EQ(data.Counts(k, j), expected[k - 1][j - 1]) << k << ' ' << j;
        }
    }
    EXPECT_EQ(data.NumItemsAccumulated, 2);

    data.WordformName(2) = QStringLiteral("two");
    data.Counts(2, 4) = 32767;
    item.WordData(4, 1) = QStringLiteral("m");
    const RunTimeError error = errorOf([&] { accumulateItem(item, 5, data); });
    EXPECT_EQ(error.number(), ErrorNumber::Overflow);
    EXPECT_TRUE(error.detail().contains(QStringLiteral("word form 2 (two) at locality 4")));
    EXPECT_EQ(data.Counts(1, 1), 4) << "an item that overflows is not half counted";
    EXPECT_EQ(data.NumItemsAccumulated, 2);

    clearCounts(5, data);
    EXPECT_EQ(data.Counts(3, 5), 0);
    EXPECT_EQ(data.NumItemsAccumulated, 0);
    EXPECT_EQ(data.SpecifyChars(1, 2), QStringLiteral("am"));
}

TEST(CumulativeFile, ItReadsBackWithTheMapsLocalities)
{
    TotalFile file;
    const QByteArray text = "2,7,\"a \"\"caption\"\"\"\r\n\"one\"\r\n12,9\r\n\"kept\",3\r\n"
                            "\"two\"\r\n0,15\r\n2.5,0\r\n1,2\r\n3,4\r\n5,6\r\n";
    file.load(text, 3);
    EXPECT_EQ(file.data.TotalFileName, QStringLiteral("all"));
    EXPECT_EQ(file.data.Counts(2, 3), 6);
    file.data.TotalFileName = QStringLiteral("copy.v2");
    SaveTotalFile(file.drive(), totalFilePath(QStringLiteral("C:"), file.data), 3, file.data);
    EXPECT_EQ(file.read(QStringLiteral("C:\\copy.v2.ttl")), text);

    file.data.MapCaption = QStringLiteral("mine");
    EXPECT_EQ(errorOf([&] { file.load(text, 4); }).number(), ErrorNumber::InputPastEndOfFile)
        << "the map has more localities";
    const QByteArray eleven = "11,0,\"\"\r\n" + QByteArray("\"w\"\r\n0,0\r\n0,0\r\n").repeated(11);
    EXPECT_EQ(errorOf([&] { file.load(eleven, 3); }).number(), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(file.data.MapCaption, QStringLiteral("mine"));
}

TEST(CumulativeFile, TheNamesOfItemsAreThoseThatTheTableCounts)
{
    const std::pair<const char*, QStringList> rows[] = {
        {"2,7\r\n\"a.dbs\"\r\n\"b.dbs\"\r\n", {"a.dbs", "b.dbs"}},
        {"2,8\r\n\"a.dbs\"\r\n\"b.dbs\"\r\n", {"a.dbs"}},          // the save of the table itself broke off
        {"2,6\r\n\"a.dbs\"\r\n\"b.dbs\"\r\n", {"a.dbs", "b.dbs"}}, // others are not known
        {"1,30\r\n\"a.dbs\"\r\n", {}}, // the table was emptied by a program that keeps no names
    };
    TotalFile file;
    const QByteArray text = "1,7,\"\"\r\n\"\"\r\n0,0\r\n0,0\r\n1\r\n";
    for (const auto& [names, known] : rows) {
        file.write(file.namesPath, names);
        EXPECT_FALSE(file.load(text, 1)) << names;
        EXPECT_EQ(file.data.CountedItems, known) << names;
    }
    file.data.CountedItems = {"a.dbs"};
    file.write(file.namesPath, "damaged");
    const auto error = file.load(text, 1);
    ASSERT_TRUE(error) << "the table is loaded all the same";
    EXPECT_EQ(error->place().path, file.namesPath);
    EXPECT_EQ(file.data.CountedItems, QStringList());
    EXPECT_EQ(file.data.NumItemsAccumulated, 7);
    SaveTotalFile(file.drive(), file.path, 1, file.data);
    EXPECT_EQ(file.read(file.namesPath), "damaged");
}

TEST(CumulativeFile, AWordFormWithoutStringsMakesTheStringsUnreadable)
{
    const TestDrive drive;
    const QString path = QStringLiteral("C:\\chars.sum");
    CumulativeData data;
    const auto saved = [&] {
        SaveSetData(drive.drive(), path, data);
        return drive.read(path);
    };
    const auto load = [&] { LoadSetData(drive.drive(), path, data); };
    const QByteArray ten = "10" + QByteArray(",\"a, b\"").repeated(10) + "\r\n";
    drive.write(path, "3\r\n2,\"a\",\"\"\r\n1,\"b, c\"\r\n" + ten);
    load();
    EXPECT_EQ(saved(), "3\r\n2,\"a\",\"\"\r\n1,\"b, c\"\r\n" + ten);
    EXPECT_EQ(data.SpecifyChars(2, 1), QStringLiteral("b, c"));
    data.NumSpecifyChars(1) = 11;
    data.NumSpecifyChars(2) = 0;
    EXPECT_EQ(saved(), "3\r\n" + ten) << "eleven have no line";
    EXPECT_EQ(errorOf(load).number(), ErrorNumber::InputPastEndOfFile);
    EXPECT_EQ(data.NumSpecifyChars(1), 11);
}

TEST(CumulativeTable, NewWordFormsAreEmptyAndHaveColoursOfTheirOwn)
{
    CumulativeData data;
    for (const int j : {1, 1000}) {
        setNumWordforms(data, 10);
        QList<int> colors = {7, 15}; // those that paper swallows
        for (int k = 1; k <= 10; ++k) {
            EXPECT_EQ(hasContents(data, k), data.NumSpecifyChars(1) > 0 && k == 1) << k;
            EXPECT_FALSE(colors.contains(data.WordformSymbolColor(k))) << k;
            EXPECT_EQ(data.WordformSymbolColor(k), data.WordformPaintColor(k));
            colors << data.WordformSymbolColor(k);
        }
        EXPECT_EQ(data.WordformExtraInt(2), 0);
        data.Counts(2, j) = 1;
        EXPECT_TRUE(hasContents(data, 2)) << j;
        data.WordformExtraInt(2) = 7;
        data.NumSpecifyChars(1) = data.NumSpecifyChars(2) = 1;
        data.CurrentWordform = 2;
        setNumWordforms(data, 1);
        EXPECT_EQ(data.CurrentWordform, 1);
    }
    EXPECT_EQ(data.NumSpecifyChars(1), 1);
}

TEST(Statistics, FiguresAreThoseOfTheOccupiedLocalities)
{
    // Median, mode, average, deviation; for each level the localities with at least that, with exactly that.
    const std::tuple<std::vector<int>, int, std::string> rows[] = {
        {{1, 2, 3, 0, 0}, 3, "3,1,2,1\r\n5,2\r\n3,1\r\n2,1\r\n1,1\r\n"}, // the lowest of the frequent levels
        {{1, 1, 1, 1}, 2, "2,1,1,0\r\n4,0\r\n4,4\r\n0,0\r\n"},
        {{1, 5, 5, 5, 0}, 6, "6,5,4,2\r\n5,1\r\n4,1\r\n3,0\r\n3,0\r\n3,0\r\n3,3\r\n0,0\r\n"},
        {{1, 1, 2, 4, 4, 6, 0}, 6, "3,1,3,2\r\n7,1\r\n6,2\r\n4,1\r\n3,0\r\n3,2\r\n1,0\r\n1,1\r\n"},
        {{2, 2, 2, 4, 0, 5}, 4, "3,2,2,1\r\n6,1\r\n5,0\r\n5,3\r\n2,0\r\n2,1\r\n"}, // 5 is at least each
    };
    for (const auto& [counts, items, figures] : rows) {
        const CumulativeTable table = countsOf(counts, items);
        Statistics statistics;
        Stats(table, static_cast<int>(counts.size()), statistics);
        EXPECT_TRUE(areCurrent(statistics, table, static_cast<int>(counts.size())));
        Stats(table, static_cast<int>(counts.size()), statistics); // nothing is counted twice
        const auto write = [&](auto& file, const Statistics& read) { writeStatistics(file, table, read); };
        const std::string file = "1," + std::to_string(items) + "\r\n1\r\n" + figures;
        EXPECT_EQ(rewritten(
                      "", [&](auto&) { return statistics; }, write),
                  file);
        EXPECT_EQ(rewritten(file, readStatistics, write), file);
        const std::string cut = file.substr(0, file.size() - 5);
        EXPECT_EQ(errorOf([&] { rewritten(cut, readStatistics, write); }).number(),
                  ErrorNumber::InputPastEndOfFile);
        EXPECT_EQ(GetNL(0, 1, 9, statistics), 9);
    }
}

TEST(Statistics, EachWordFormHasItsOwn)
{
    CumulativeTable table = countsOf({2, 3, 3, 0}, 3);
    table.NumWordforms = 2;
    table.Counts(2, 1) = table.Counts(2, 2) = 1;
    table.Counts(2, 4) = 2;
    const TestDrive drive;
    const QString path = "C:\\all.stt";
    Statistics statistics;
    Stats(table, 4, statistics);
    SaveStats(drive.drive(), path, table, statistics);
    EXPECT_EQ(drive.read(path),
              "2,3\r\n1\r\n0,3,2.6666666666666665,0.5773502691896258\r\n4,1\r\n3,0\r\n3,1\r\n"
              "2,2\r\n2\r\n2,1,1.3333333333333333,0.5773502691896257\r\n4,1\r\n3,2\r\n1,1\r\n0,0\r\n");
    Statistics loaded;
    loaded.StatsFileName = "before";
    LoadStats(drive.drive(), path, loaded);
    EXPECT_EQ(statistics.StatsFileName + ' ' + loaded.StatsFileName, path + " before");
    EXPECT_TRUE(areCurrent(loaded, table, 4));
    EXPECT_FALSE(areCurrent(loaded, table, 3));
    for (const auto change :
         {+[](CumulativeTable& t) { t.NumWordforms = 1; },
          +[](CumulativeTable& t) { t.NumItemsAccumulated = 4; },
          +[](CumulativeTable& t) { t.Counts(2, 4) = 3; }, +[](CumulativeTable& t) { t.Counts(1, 1) = 0; }}) {
        CumulativeTable other = table;
        change(other);
        EXPECT_FALSE(areCurrent(loaded, other, 4));
    }
    EXPECT_EQ(statisticsLines(table, statistics, 2),
              QStringList({"Kt=2 ", "Median =2", "Mode   =1", "Average=1.33", "Standard Dev. Sigma=0.57",
                           "Av - Sigma=0.75", "Av + SIgma=1.91"}));
}

TEST(TotalCommands, WordFormsAreDroppedAfterAQuestion)
{
    TestSurvey survey;
    VarnModule& varn = survey.varn;
    ScriptedDialogs dialogs;
    setNumWordforms(varn, 4);
    varn.WordformName(2) = "two";
    varn.NumSpecifyChars(4) = 1;
    const TotalState state{varn, 3, varn, varn};
    const auto change = [&](int number) {
        varn.ContrastAnalysed = true;
        const bool changed = changeNumWordforms(number, state, dialogs);
        EXPECT_EQ(varn.ContrastAnalysed, !changed);
        return changed;
    };
    dialogs.yesNo = {false, true};
    EXPECT_FALSE(change(1));
    EXPECT_EQ(varn.NumWordforms, 4);
    EXPECT_TRUE(change(2));
    EXPECT_TRUE(change(3));
    EXPECT_EQ(varn.NumWordforms, 3);
    const QString text = "These word forms are dropped, with their counts and strings: ";
    EXPECT_EQ(dialogs.shown,
              std::vector<ScriptedDialogs::Shown>(
                  {{text + "2 two, 4. O.K.?", "Accumulate Data"}, {text + "4. O.K.?", "Accumulate Data"}}));
}

TEST(Statistics, WhatHasNoFigureIsAnErrorThatNamesTheWordForm)
{
    Statistics statistics;
    statistics.Mode(1) = 7;
    const auto stats = [&](const std::vector<int>& counts, int items) {
        return [&, counts, items] { Stats(countsOf(counts, items), 90, statistics); };
    };
    const auto read = [](const char* text) {
        return [text] {
            SequentialReader file(QString::fromLatin1(text));
            readStatistics(file);
        };
    };
    const std::tuple<std::function<void()>, ErrorNumber, const char*> rows[] = {
        {stats({0, 0}, 3), ErrorNumber::DivisionByZero, "The average of word form 1 ()."},
        {stats({2, 0}, 3), ErrorNumber::DivisionByZero, "The deviation of word form 1 ()."},
        {stats(std::vector<int>(90, 400), 400), ErrorNumber::Overflow, "The average of word form 1 ()."},
        {stats({1, 1}, 401), ErrorNumber::SubscriptOutOfRange, "400 items, not of 401."},
        {read("1,401\r\n"), ErrorNumber::SubscriptOutOfRange, "400 items, not of 401."},
        {read("11,1\r\n"), ErrorNumber::SubscriptOutOfRange, "10 word forms, not of 11."},
    };
    for (const auto& [action, number, detail] : rows) {
        const RunTimeError error = errorOf(action);
        EXPECT_EQ(error.number(), number) << detail;
        EXPECT_TRUE(error.detail().contains(QLatin1String(detail))) << qPrintable(error.detail());
    }
    EXPECT_EQ(statistics.Mode(1), 7) << "the statistics are as they were";
    EXPECT_EQ(statistics.CumCount(1, 1), 0);
}

TEST(Contrast, SidesAreSummedAndSubtracted)
{
    SequentialReader counts("3,10,\"\"\r\n" + QStringLiteral("\"w\"\r\n0,0\r\n0,0\r\n").repeated(3) +
                            "5,1,4\r\n1,1,4\r\n4,1,4\r\n");
    CumulativeTable table = readTotal(counts, 3);
    SequentialReader groups(
        QStringLiteral("\"\",1,1\r\n2\r\n0,0\r\n\"a\",1\r\n\"b\",2\r\n1\r\n0,0\r\n\"c\",3\r\n"));
    ContrastData contrast = readContrast(groups);
    analyseContrast(table, 3, contrast);
    EXPECT_EQ(contrast.ContrastSum(1, 1), 6);
    EXPECT_EQ(contrast.ContrastSum(0, 1), 2);
    EXPECT_EQ(contrast.ContrastSum(0, 2), -2);

    table.Counts(1, 3) = 32767;
    EXPECT_EQ(errorOf([&] { analyseContrast(table, 3, contrast); }).number(), ErrorNumber::Overflow);
    EXPECT_EQ(contrast.ContrastSum(0, 2), -2);
    contrast.ContrastWord(2, 1) = 4;
    EXPECT_EQ(errorOf([&] { analyseContrast(table, 3, contrast); }).number(),
              ErrorNumber::SubscriptOutOfRange);
}

TEST(Contrast, GroupsAndDiffusionSymbolsReadBack)
{
    const std::string rank = "\"West, east\",6,100\r\n2\r\n12,4\r\n\"a\",1\r\n\"b\",3\r\n0\r\n9,1\r\n";
    EXPECT_EQ(rewritten(rank, readContrast, writeContrast), rank);
    const std::string symbols = "\"c\",2\r\n50,1,9,1,1,0,3,\"one, \"\"two\"\"\"\r\n153,4,4,0,2,1,1,\"\"\r\n";
    EXPECT_EQ(rewritten(symbols, readDiffusionSymbols, writeDiffusionSymbols), symbols);
}
