#include "analysis/Accumulation.h"
#include "analysis/CumulativeFile.h"
#include "analysis/CumulativeTable.h"
#include "analysis/ExecuteCommands.h"
#include "analysis/TotalCommands.h"
#include "lingdata/LinguisticFile.h"
#include "tests/support/EnteredWords.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestDrive.h"

namespace {

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
    EXPECT_EQ(data.Counts(1, 1) + data.Counts(3, 1) + data.Counts(3, 5), 0);
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

TEST(Accumulation, ItsEndNamesFifteenItemsAtMostThatAreNotCounted)
{
    AccumulationResult done;
    done.items = 20;
    done.counted = 2;
    QString text = "Analyse of Linguistic Data File is completed.\n2 of 20 items were counted.";
    EXPECT_EQ(accumulationText(done), text);
    text += "\n\nNot counted:";
    for (const QString& name : numbered(15)) {
        done.uncounted.push_back({name, "reason"});
        text += '\n' + name;
    }
    EXPECT_EQ(accumulationText(done), text);
    done.uncounted.push_back({"w16", "reason"});
    done.uncounted.push_back({"w17", "reason"});
    EXPECT_EQ(accumulationText(done), text + "\nand 2 more, as the form shows");
}

TEST(CumulativeTable, StringsThatDifferAnywhereAreOthers)
{
    CumulativeData data;
    setNumWordforms(data, 10);
    for (const int k : {1, 10}) {
        data.NumSpecifyChars(k) = 2;
        data.SpecifyChars(k, 1) = data.SpecifyChars(k, 2) = "a";
    }
    data.SavedChars.keep(data);
    EXPECT_FALSE(areCharsUnsaved(data));
    for (const int k : {1, 10}) {
        for (const int c : {1, 2}) {
            data.SpecifyChars(k, c) = "b";
            EXPECT_TRUE(areCharsUnsaved(data)) << k << ' ' << c;
            data.SpecifyChars(k, c) = "a";
        }
        data.SpecifyChars(k, 3) = "beyond those that count";
    }
    EXPECT_FALSE(areCharsUnsaved(data));
    data.NumSpecifyChars(10) = 1;
    EXPECT_TRUE(areCharsUnsaved(data));
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
