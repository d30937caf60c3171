#include "analysis/Accumulation.h"
#include "analysis/ContrastData.h"
#include "analysis/CumulativeFile.h"
#include "analysis/CumulativeTable.h"
#include "analysis/DiffusionSymbols.h"
#include "analysis/Statistics.h"
#include "tests/support/TestDrive.h"

namespace {

const QString Folder = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Ling");

/// A table of word forms named "w1", "w2", ... with their identifying strings.
CumulativeData tableOf(const std::vector<QStringList>& strings)
{
    CumulativeData data;
    data.NumWordforms = static_cast<int>(strings.size());
    for (int k = 1; k <= data.NumWordforms; ++k) {
        data.WordformName(k) = QStringLiteral("w%1").arg(k);
        const QStringList& own = strings[static_cast<std::size_t>(k - 1)];
        data.NumSpecifyChars(k) = static_cast<qint16>(own.size());
        for (int c = 1; c <= own.size(); ++c) {
            data.SpecifyChars(k, c) = own[c - 1];
        }
    }
    return data;
}

/// An item whose localities have these answers; the first of each counts.
ItemAnswers itemOf(const std::vector<QStringList>& answers)
{
    ItemAnswers item;
    item.NLocate = static_cast<qint16>(answers.size());
    for (int j = 1; j <= item.NLocate; ++j) {
        const QStringList& own = answers[static_cast<std::size_t>(j - 1)];
        item.WordCount(j) = static_cast<qint16>(own.size());
        for (int n = 1; n <= own.size(); ++n) {
            item.WordData(j, n) = own[n - 1];
        }
    }
    return item;
}

/// A table of one word form with these counts, `items` items accumulated.
CumulativeTable countsOf(const std::vector<int>& counts, int items)
{
    CumulativeTable table;
    table.NumWordforms = 1;
    table.NumItemsAccumulated = items;
    for (int j = 1; j <= static_cast<int>(counts.size()); ++j) {
        table.Counts(1, j) = static_cast<qint16>(counts[static_cast<std::size_t>(j - 1)]);
    }
    return table;
}

ErrorNumber errorOfStats(const std::vector<int>& counts, int items)
{
    Statistics statistics;
    return errorOf([&] { Stats(countsOf(counts, items), static_cast<int>(counts.size()), statistics); })
        .number();
}

} // namespace

TEST(Accumulation, TheFirstAnswerCountsForEachStringItContains)
{
    CumulativeData data =
        tableOf({{QStringLiteral("a"), QStringLiteral("am")}, {QStringLiteral("m")}, {QString()}});
    const ItemAnswers item = itemOf({{QStringLiteral("ame"), QStringLiteral("zzz")},
                                     {QStringLiteral("zzz"), QStringLiteral("ame")},
                                     {},
                                     {QStringLiteral("AM")}});
    accumulateItem(item, 5, data); // the map has a locality more than the item
    accumulateItem(item, 5, data);
    const int expected[3][5] = {{4, 0, 0, 0, 0}, {2, 0, 0, 0, 0}, {2, 2, 2, 2, 2}};
    for (int k = 1; k <= 3; ++k) {
        for (int j = 1; j <= 5; ++j) {
            EXPECT_EQ(data.Counts(k, j), expected[k - 1][j - 1]) << k << ' ' << j;
        }
    }
    EXPECT_EQ(data.NumItemsAccumulated, 2);

    clearCounts(5, data);
    EXPECT_EQ(data.Counts(1, 1), 0);
    EXPECT_EQ(data.NumItemsAccumulated, 0);
    EXPECT_EQ(data.SpecifyChars(1, 2), QStringLiteral("am"));
}

TEST(Accumulation, AnItemThatOverflowsIsNotHalfCounted)
{
    CumulativeData data = tableOf({{QStringLiteral("a")}});
    data.Counts(1, 2) = 32767;
    const RunTimeError error = errorOf([&] {
        accumulateItem(itemOf({{QStringLiteral("a")}, {QStringLiteral("a")}}), 2, data);
    });
    EXPECT_EQ(error.number(), ErrorNumber::Overflow);
    EXPECT_TRUE(error.detail().contains(QStringLiteral("word form 1 (w1) at locality 2")));
    EXPECT_EQ(data.Counts(1, 1), 0);
    EXPECT_EQ(data.NumItemsAccumulated, 0);
}

TEST(CumulativeFile, ItReadsBackWithTheMapsLocalities)
{
    const TestSurvey survey;
    const QByteArray text =
        "2,7,\"a \"\"caption\"\"\"\r\n\"one\"\r\n12,9\r\n\"kept\",3\r\n\"two\"\r\n0,15\r\n2.5,0\r\n"
        "1,2\r\n3,4\r\n5,6\r\n";
    survey.write(Folder + QStringLiteral("\\all.v2.ttl"), text);
    CumulativeData data;
    LoadTotalFile(survey.drive(), Folder + QStringLiteral("\\all.v2.ttl"), 3, data);
    EXPECT_EQ(data.TotalFileName, QStringLiteral("all.v2"));
    EXPECT_EQ(data.Counts(2, 3), 6);
    EXPECT_EQ(data.WordformPaintColor(2), 15);
    data.TotalFileName = QStringLiteral("copy");
    SaveTotalFile(survey.drive(), totalFilePath(Folder, data), 3, data);
    EXPECT_EQ(survey.read(Folder + QStringLiteral("\\copy.ttl")), text);

    data.MapCaption = QStringLiteral("mine");
    const RunTimeError error =
        errorOf([&] { LoadTotalFile(survey.drive(), Folder + QStringLiteral("\\copy.ttl"), 4, data); });
    EXPECT_EQ(error.number(), ErrorNumber::InputPastEndOfFile) << "the map has more localities";
    EXPECT_EQ(data.MapCaption, QStringLiteral("mine"));
    survey.write(Folder + QStringLiteral("\\many.ttl"),
                 "11,0,\"\"\r\n" + QByteArray("\"w\"\r\n0,0\r\n0,0\r\n").repeated(11));
    EXPECT_EQ(errorOf([&] {
                  LoadTotalFile(survey.drive(), Folder + QStringLiteral("\\many.ttl"), 3, data);
              }).number(),
              ErrorNumber::SubscriptOutOfRange);
}

TEST(CumulativeFile, TheNamesOfItemsAreThoseThatTheTableCounts)
{
    struct Row
    {
        const char* names;
        QStringList known;
    };
    const QString a = QStringLiteral("a.dbs");
    const Row rows[] = {
        {"2,7\r\n\"a.dbs\"\r\n\"b.dbs\"\r\n", {a, QStringLiteral("b.dbs")}},
        {"2,8\r\n\"a.dbs\"\r\n\"b.dbs\"\r\n", {a}}, // the save of the table itself broke off
        {"2,6\r\n\"a.dbs\"\r\n\"b.dbs\"\r\n", {a, QStringLiteral("b.dbs")}}, // others are not known
        {"1,30\r\n\"a.dbs\"\r\n", {}}, // the table was emptied by a program that keeps no names
    };
    const TestSurvey survey;
    const QString path = Folder + QStringLiteral("\\all.ttl");
    survey.write(path, "1,7,\"\"\r\n\"\"\r\n0,0\r\n0,0\r\n1\r\n");
    CumulativeData data;
    for (const Row& row : rows) {
        survey.write(Folder + QStringLiteral("\\all.itm"), row.names);
        EXPECT_FALSE(LoadTotalFile(survey.drive(), path, 1, data)) << row.names;
        EXPECT_EQ(data.CountedItems, row.known) << row.names;
    }
    data.CountedItems = {a};
    survey.write(Folder + QStringLiteral("\\all.itm"), "damaged");
    const auto error = LoadTotalFile(survey.drive(), path, 1, data);
    ASSERT_TRUE(error) << "the table is loaded all the same";
    EXPECT_TRUE(error->place().path.endsWith(QStringLiteral("all.itm")));
    EXPECT_EQ(data.CountedItems, QStringList());
    EXPECT_EQ(data.NumItemsAccumulated, 7);
    SaveTotalFile(survey.drive(), totalFilePath(Folder, data), 1, data);
    EXPECT_EQ(survey.read(Folder + QStringLiteral("\\all.itm")), "damaged");
}

TEST(CumulativeTable, NewWordFormsHaveColoursOfTheirOwn)
{
    CumulativeData data;
    setNumWordforms(data, 10);
    QList<int> colors = {7, 15}; // those that paper swallows
    for (int k = 1; k <= 10; ++k) {
        EXPECT_FALSE(colors.contains(data.WordformSymbolColor(k))) << k;
        EXPECT_EQ(data.WordformSymbolColor(k), data.WordformPaintColor(k));
        colors << data.WordformSymbolColor(k);
    }
}

TEST(CumulativeTable, ADroppedWordFormComesBackEmpty)
{
    CumulativeData data = tableOf({{QStringLiteral("a")}, {}});
    for (const int j : {1, 1000}) {
        setNumWordforms(data, 2);
        data.WordformName(2).clear();
        EXPECT_FALSE(hasContents(data, 2)) << j;
        data.Counts(2, j) = 1;
        EXPECT_TRUE(hasContents(data, 2)) << j;
        data.WordformExtraInt(2) = 7;
        data.NumSpecifyChars(2) = 1;
        setNumWordforms(data, 1);
        setNumWordforms(data, 2);
        EXPECT_FALSE(hasContents(data, 2)) << j;
        EXPECT_EQ(data.WordformExtraInt(2), 0);
        EXPECT_EQ(data.CurrentWordform, 1);
    }
    EXPECT_EQ(data.NumSpecifyChars(1), 1);
}

TEST(CumulativeFile, AWordFormWithoutStringsMakesTheStringsUnreadable)
{
    const TestSurvey survey;
    const QString path = Folder + QStringLiteral("\\chars.sum");
    CumulativeData data = tableOf({{QStringLiteral("a"), QString()}, {QStringLiteral("b, c")}});
    SaveSetData(survey.drive(), path, data);
    EXPECT_EQ(survey.read(path), "2\r\n2,\"a\",\"\"\r\n1,\"b, c\"\r\n");
    CumulativeData loaded;
    LoadSetData(survey.drive(), path, loaded);
    EXPECT_EQ(loaded.NumWordforms, 2);
    EXPECT_EQ(loaded.SpecifyChars(2, 1), QStringLiteral("b, c"));

    data = tableOf({{QStringLiteral("a")}, {}, {QStringLiteral("c")}});
    SaveSetData(survey.drive(), path, data);
    EXPECT_EQ(survey.read(path), "3\r\n1,\"a\"\r\n1,\"c\"\r\n");
    EXPECT_EQ(errorOf([&] { LoadSetData(survey.drive(), path, loaded); }).number(),
              ErrorNumber::InputPastEndOfFile);
    EXPECT_EQ(loaded.NumWordforms, 2);

    const QStringList ten = QStringLiteral("a b c d e f g h i j").split(QLatin1Char(' '));
    SaveSetData(survey.drive(), path, data = tableOf({ten, ten + ten.first(1)}));
    EXPECT_TRUE(
        survey.read(path).endsWith("2\r\n10,\"a\",\"b\",\"c\",\"d\",\"e\",\"f\",\"g\",\"h\",\"i\",\"j\"\r\n"))
        << "eleven have no line";
}

TEST(Statistics, FiguresAreThoseOfTheOccupiedLocalities)
{
    struct Row
    {
        std::vector<int> counts;
        int items;
        double median;
        float mode;
        double average;
        double sigma;
    };
    const Row rows[] = {
        {{1, 2, 3, 0, 0}, 3, 3, 1, 2, 1},
        {{1, 1, 1, 1}, 2, 2, 1, 1, 0},
        {{2, 2, 4, 4, 0}, 5, 3, 2, 3, std::sqrt(4.0 / 3)}, // among equal frequencies the lowest level
    };
    for (const Row& row : rows) {
        Statistics statistics;
        Stats(countsOf(row.counts, row.items), static_cast<int>(row.counts.size()), statistics);
        EXPECT_EQ(statistics.Median(1), row.median);
        EXPECT_EQ(statistics.Mode(1), row.mode);
        EXPECT_DOUBLE_EQ(statistics.Average(1), row.average);
        EXPECT_DOUBLE_EQ(statistics.Sigma(1), row.sigma);
    }
    Statistics statistics;
    Stats(countsOf({1, 2, 3, 0, 5}, 3), 5, statistics);
    const int cumulative[] = {5, 4, 3, 2}; // the count beyond the items is at least every level
    const int frequency[] = {1, 1, 1, 1};
    for (int v = 0; v <= 3; ++v) {
        EXPECT_EQ(statistics.CumCount(v, 1), cumulative[v]);
        EXPECT_EQ(statistics.FreqCount(v, 1), frequency[v]);
    }
    EXPECT_EQ(GetNL(1, 1, 5, statistics), 4);
    EXPECT_EQ(GetNL(0, 1, 5, statistics), 5);
}

TEST(Statistics, WhatHasNoFigureIsAnErrorThatNamesTheWordForm)
{
    EXPECT_EQ(errorOfStats({0, 0}, 3), ErrorNumber::DivisionByZero);
    EXPECT_EQ(errorOfStats({2, 0}, 3), ErrorNumber::DivisionByZero);
    EXPECT_EQ(errorOfStats(std::vector<int>(90, 400), 400), ErrorNumber::Overflow);
    Statistics statistics;
    statistics.Mode(1) = 7;
    const auto readFile = [](const char* text) {
        SequentialReader file(QString::fromLatin1(text));
        readStatistics(file);
    };
    const RunTimeError tooMany[] = {errorOf([&] {
                                        Stats(countsOf({1, 1}, 401), 2, statistics);
                                    }),
                                    errorOf([&] { readFile("1,401\r\n"); }),
                                    errorOf([&] { readFile("11,1\r\n"); })};
    const char* details[] = {"400 items, not of 401.", "400 items, not of 401.", "10 word forms, not of 11."};
    for (std::size_t i = 0; i < std::size(tooMany); ++i) {
        EXPECT_EQ(tooMany[i].number(), ErrorNumber::SubscriptOutOfRange);
        EXPECT_TRUE(tooMany[i].detail().endsWith(QLatin1String(details[i]))) << i;
    }
    const RunTimeError error = errorOf([&] { Stats(countsOf({1, 0}, 1), 2, statistics); });
    EXPECT_TRUE(error.detail().contains(QStringLiteral("word form 1")));
    EXPECT_EQ(statistics.Mode(1), 7) << "the statistics are as they were";
    EXPECT_EQ(statistics.CumCount(1, 1), 0);
}

TEST(Statistics, FiguresAreCutNotRounded)
{
    EXPECT_DOUBLE_EQ(Rnd(2.999, 2), 2.99);
    EXPECT_DOUBLE_EQ(Rnd(-0.001, 2), -0.01);
    EXPECT_DOUBLE_EQ(Rnd(3, 2), 3);
}

TEST(Statistics, TheyReadBack)
{
    const CumulativeTable table = countsOf({1, 2, 2, 0}, 2);
    Statistics statistics;
    Stats(table, 4, statistics);
    SequentialWriter writer;
    writeStatistics(writer, table, statistics);
    EXPECT_TRUE(writer.bytes().startsWith("1,2\r\n1\r\n"));
    SequentialReader reader(QString::fromUtf8(writer.bytes()));
    const Statistics file = readStatistics(reader);
    EXPECT_EQ(file.StatsItems, 2);
    EXPECT_EQ(file.Sigma(1), statistics.Sigma(1));
    EXPECT_EQ(file.CumCount(2, 1), 2);
    SequentialReader cut(QString::fromUtf8(writer.bytes().chopped(5)));
    EXPECT_EQ(errorOf([&] { readStatistics(cut); }).number(), ErrorNumber::InputPastEndOfFile);
}

TEST(Contrast, SidesAreSummedAndSubtracted)
{
    CumulativeTable table = countsOf({5, 1, 4}, 10);
    table.NumWordforms = 3;
    for (int j = 1; j <= 3; ++j) {
        table.Counts(2, j) = 1;
        table.Counts(3, j) = 4;
    }
    ContrastData contrast;
    contrast.ContrastCount(1) = 2;
    contrast.ContrastWord(1, 1) = 1;
    contrast.ContrastWord(1, 2) = 2;
    contrast.ContrastCount(2) = 1;
    contrast.ContrastWord(2, 1) = 3;
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
    const QByteArray rank = "\"West, east\",6,100\r\n2\r\n12,4\r\n\"a\",1\r\n\"b\",3\r\n0\r\n9,1\r\n";
    SequentialReader rankReader(QString::fromUtf8(rank));
    SequentialWriter rankWriter;
    writeContrast(rankWriter, readContrast(rankReader));
    EXPECT_EQ(rankWriter.bytes(), rank);

    const QByteArray symbols = "\"c\",2\r\n50,1,9,1,1,0,3,\"one, \"\"two\"\"\"\r\n153,4,4,0,2,1,1,\"\"\r\n";
    SequentialReader symbolReader(QString::fromUtf8(symbols));
    SequentialWriter symbolWriter;
    writeDiffusionSymbols(symbolWriter, readDiffusionSymbols(symbolReader));
    EXPECT_EQ(symbolWriter.bytes(), symbols);
}
