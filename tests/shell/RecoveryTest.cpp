#include "shell/Recovery.h"

#include "analysis/CumulativeFile.h"
#include "platform/Folder.h"
#include "platform/WholeFile.h"
#include "tests/support/TestDrive.h"

namespace {

/// Unsaved work of every kind on the map of a `TestSurvey`.
class RecoveryOf : public testing::Test
{
protected:
    RecoveryOf()
    {
        varn.NHanrei = 1;
        varn.HankoWord(1) = "ka\\N1a";
        varn.Hanko(1) = {12, 3, 4, 1, 2, 0};
        varn.SymbolFileName = "rain.han";
        varn.SavedRecords.forget();
        setNumWordforms(varn, 2);
        varn.WordformName(2) = "two";
        varn.NumSpecifyChars(1) = 11;
        varn.SpecifyChars(1, 11) = "eleventh";
        varn.Counts(2, 3) = 7;
        varn.NumItemsAccumulated = 2;
        varn.CountedItems = {"rain.dbs", "snow.dbs"};
        varn.TotalFileName = "sum";
    }

    static UnsavedItem item()
    {
        UnsavedItem item{"new.dbs", {}, {"mi"}};
        item.answers.NLocate = 3;
        item.answers.WordCount(2) = 1;
        item.answers.WordData(2, 1) = "mi";
        return item;
    }

    /// With the word forms of one page of the atlas, and the symbols of another.
    UnsavedWork work() const
    {
        UnsavedWork work = unsavedWork(varn, item());
        work.pages = {{"C:\\snow.dbs", item().answers, {}}, {"C:\\fog.dbs", {}, varn}};
        work.pages[1].symbols->SymbolFilePath = "C:\\fog.han";
        work.legendPlace = QPointF(1.5, 2);
        return work;
    }

    TestSurvey survey;
    VarnModule& varn = survey.varn;
};

} // namespace

TEST_F(RecoveryOf, AllKindsOfWorkComeBackAsUnsaved)
{
    {
        Recovery recovery(varn.Drive);
        recovery.keep({});
        recovery.keep(work());
        EXPECT_EQ(foldersLeftBehind(varn.Drive), QStringList()) << "a program that runs keeps its own";
    }
    const QStringList folders = foldersLeftBehind(varn.Drive);
    ASSERT_EQ(folders.size(), 1);
    const UnsavedWork work = readWork(varn.Drive, folders[0]);
    EXPECT_EQ(describe(work),
              "item new.dbs, symbol set rain.han, cumulative data sum, 2 atlas pages, place of the legend");
    EXPECT_EQ(work.pages[0].itemPath + work.pages[0].answers->WordData(2, 1), "C:\\snow.dbsmi");
    EXPECT_FALSE(work.pages[0].symbols);
    EXPECT_FALSE(work.pages[1].answers);
    EXPECT_EQ(work.pages[1].symbols->SymbolFilePath, "C:\\fog.han");
    EXPECT_EQ(work.pages[1].symbols->HankoWord(1), varn.HankoWord(1));
    EXPECT_EQ(work.legendPlace, QPointF(1.5, 2));
    EXPECT_EQ(work.item->answers.WordData(2, 1), "mi");
    EXPECT_EQ(work.item->kinds, QStringList("mi"));

    TestSurvey other;
    VarnModule& opened = other.varn;
    opened.Drive = varn.Drive;
    opened.VarnMapName = "\\Other";
    opened.LoadState = 1;
    opened.ItemFileName = "other.dbs";
    restoreWork(work, opened);
    EXPECT_EQ(opened.VarnMapName + opened.ItemFileName, varn.VarnMapName)
        << "the item of the other map is gone";
    EXPECT_EQ(opened.LoadState, 3);
    EXPECT_EQ(opened.HankoWord(1), varn.HankoWord(1));
    EXPECT_EQ(opened.Hanko(1), varn.Hanko(1));
    EXPECT_EQ(opened.CurrentHanko, 1);
    EXPECT_EQ(opened.HankoReading, 1) << "the symbol form shows the set";
    EXPECT_EQ(opened.WordformName(2) + opened.SpecifyChars(1, 11), "twoeleventh");
    EXPECT_EQ(opened.Counts(2, 3), 7);
    EXPECT_EQ(opened.CountedItems, varn.CountedItems) << "or an item could be counted twice";
    EXPECT_EQ(describe(unsavedWork(opened, std::nullopt)), "symbol set rain.han, cumulative data sum");

    removeLeftBehind(varn.Drive, folders[0]);
    EXPECT_EQ(foldersLeftBehind(varn.Drive), QStringList());
}

TEST_F(RecoveryOf, ATableIsUnsavedAgainstItsFile)
{
    SaveTotalFile(varn.Drive, totalFilePath(varn.dataFolder(), varn), varn.NLocality, varn);
    LoadTotalFile(varn.Drive, varn.TotalFilePath, varn.NLocality, varn);
    varn.Counts(2, 3) = 8;
    varn.SavedRecords.keep(varn);
    const UnsavedWork work = unsavedWork(varn, std::nullopt);
    EXPECT_EQ(describe(work), "cumulative data sum");
    static_cast<CumulativeData&>(varn) = {};
    varn.ContrastAnalysed = true;
    restoreWork(work, varn);
    EXPECT_FALSE(varn.ContrastAnalysed) << "it was of other counts";
    EXPECT_EQ(varn.TotalFilePath, varn.dataFolder() + "\\sum.ttl");
    EXPECT_EQ(varn.Counts(2, 3), 8);
    EXPECT_TRUE(isTableUnsaved(varn));
    varn.Counts(2, 3) = 7;
    EXPECT_FALSE(isTableUnsaved(varn)) << "as the file holds it";
}

TEST_F(RecoveryOf, NothingUnsavedLeavesNothingBehind)
{
    Recovery recovery(varn.Drive);
    recovery.keep(unsavedWork(varn, item()));
    recovery.keep({});
    EXPECT_FALSE(folderExists(varn.Drive, "C:\\Varn62E\\Varn\\Recovery"));
    EXPECT_EQ(describe(unsavedWork(TestSurvey().varn, std::nullopt)), QString());
}

TEST_F(RecoveryOf, WhatCannotBeReadIsSetAside)
{
    Recovery(varn.Drive).keep(unsavedWork(varn, item()));
    const QString folder = foldersLeftBehind(varn.Drive).value(0);
    survey.write(folder + "\\symbols.han", "\"\"\r\n3\r\n");
    EXPECT_EQ(errorOf([&] { readWork(varn.Drive, folder); }).number(), ErrorNumber::InputPastEndOfFile);
    EXPECT_TRUE(fileExists(varn.Drive, setAside(varn.Drive, folder) + "\\item.dbs"));
    EXPECT_EQ(foldersLeftBehind(varn.Drive), QStringList());
}
