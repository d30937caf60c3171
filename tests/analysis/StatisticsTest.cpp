#include "analysis/Statistics.h"

#include "analysis/ContrastEditor.h"
#include "analysis/CumulativeFile.h"
#include "analysis/DiffusionSymbols.h"
#include "analysis/StatisticsLines.h"
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

} // namespace

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

TEST(ContrastEditor, BothSidesFollowTheTable)
{
    CumulativeTable table;
    table.NumWordforms = 3;
    for (int k = 1; k <= 3; ++k) {
        table.WordformName(k) = QChar('a' + k - 1);
    }
    SequentialReader file("\"\",1,1\n2\n0,0\n\"a\",1\n\"x\",2\n2\n0,0\n\"b\",2\n\"y\",3\n");
    ContrastData contrast = readContrast(file);
    ContrastEditor editor(table, contrast);
    EXPECT_EQ(differingNames(table, contrast),
              "Word form 2 is \"x\" in the file and \"b\" in the cumulative data.\n"
              "Word form 3 is \"y\" in the file and \"c\" in the cumulative data.");
    const ContrastSettings settings = settingsOf(boxesOf(contrast), contrast);
    EXPECT_EQ(settings.wordforms(1), std::vector<int>({1, 2}));
    EXPECT_EQ(settings.wordforms(2), std::vector<int>({2, 3}));
    for (const int k : {1, 2, 3}) {
        for (const int j : {1, 3}) {
            analyseContrast(table, 3, contrast);
            ++table.Counts(k, j);
            editor.followTable(3);
            EXPECT_FALSE(contrast.ContrastAnalysed) << k << ' ' << j;
        }
    }
    EXPECT_EQ(editor.wordforms(1) + editor.wordforms(2), QStringList({"a", "b", "b", "c"}));
    table.NumWordforms = 2;
    EXPECT_EQ(errorOf([&] { differingNames(table, contrast); }).detail(),
              "The cumulative data has no word form 3 (c); it has 2.");
}

TEST(Contrast, GroupsAndDiffusionSymbolsReadBack)
{
    const std::string rank = "\"West, east\",6,100\r\n2\r\n12,4\r\n\"a\",1\r\n\"b\",3\r\n0\r\n9,1\r\n";
    EXPECT_EQ(rewritten(rank, readContrast, writeContrast), rank);
    const std::string symbols = "\"c\",2\r\n50,1,9,1,1,0,3,\"one, \"\"two\"\"\"\r\n153,4,4,0,2,1,1,\"\"\r\n";
    EXPECT_EQ(rewritten(symbols, readDiffusionSymbols, writeDiffusionSymbols), symbols);

    SequentialReader file(QString::fromStdString(symbols));
    const DiffusionSymbols read = readDiffusionSymbols(file);
    for (const auto change : {+[](DiffusionSymbols& s) { s.DiffusionComment = "d"; },
                              +[](DiffusionSymbols& s) { s.NDiffusion = 1; },
                              +[](DiffusionSymbols& s) { s.DiffusionHanko(1).LineThick = 1; },
                              +[](DiffusionSymbols& s) { s.MinimumPoints(2) = 2; },
                              +[](DiffusionSymbols& s) { s.DiffusionCaption(2) = "two"; }}) {
        DiffusionSymbols other = read;
        EXPECT_EQ(other, read);
        change(other);
        EXPECT_NE(other, read);
    }
}
