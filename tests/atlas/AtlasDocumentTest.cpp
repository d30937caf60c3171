#include "lingdata/ItemLoader.h"
#include "symbols/SymbolFile.h"
#include "tests/atlas/AtlasSurvey.h"

#include <QFile>

namespace {

/// A document that follows what other forms do to the shared state.
class FollowingDocument : public AtlasSurvey
{
protected:
    void load(const char* item)
    {
        LoadWordData(varn, ling(item), varn, varn);
        document.followSharedState();
    }
    void loadSymbols(const char* file)
    {
        LoadHankoData(varn.Drive, ling(file), varn);
        document.followSharedState();
    }
};

QByteArray itemOf(int localities, int kinds)
{
    QByteArray item = QByteArray::number(localities) + ",\"\",\"Many\",\"\"\r\n";
    for (int i = 1; i <= localities; ++i) {
        item += "1\r\n\"w" + QByteArray::number(i % kinds) + "\"\r\n";
    }
    return item;
}

} // namespace

TEST_F(AtlasSurvey, EditsOfTwoItemsAreUndoneOverPages)
{
    document.turnTo(ling("rain.dbs"));
    caption("Rain!");
    word(2, {"ame", ""});
    document.turnTo(ling("snow.dbs"));
    word(3, {"yuki", "ame"});
    EXPECT_EQ(document.unsavedItems(), QStringList({ling("rain.dbs"), ling("snow.dbs")}));
    EXPECT_EQ(varn.WordData(3, 2), "ame") << "the other forms see it";
    EXPECT_EQ(varn.NKind, 2);

    document.steps().undo();
    EXPECT_FALSE(page().isUnsaved());
    document.steps().undo();
    EXPECT_EQ(page().item.ItemFileName, "rain.dbs") << "the page of the step is turned to";
    EXPECT_EQ(page().item.WordCount(2), 0);
    document.steps().undo();
    EXPECT_EQ(captions(), "AME/AME");
    EXPECT_FALSE(document.isUnsaved());
    for (int step = 0; step < 3; ++step) {
        document.steps().redo();
    }
    EXPECT_EQ(page().item.ItemFileName, "snow.dbs");
    EXPECT_EQ(document.unsavedItems().size(), 2);

    EXPECT_EQ(errorOf([&] { word(4, {"x"}); }).number(), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] {
                  word(1, {"1", "2", "3", "4", "5", "6"});
              }).number(),
              ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(page().item.WordData(1, 1), "yuki");
}

TEST_F(AtlasSurvey, ThePageTurnedToIsTheSharedItemWithItsSymbols)
{
    document.turnTo(ling("rain.dbs"));
    EXPECT_EQ(varn.ItemPath + varn.SymbolFileName, ling("rain.dbs") + "rain.han");
    EXPECT_EQ(varn.LoadState, 2);
    document.turnTo(ling("snow.dbs"));
    EXPECT_EQ(varn.Hanrei, "Snow");
    EXPECT_EQ(varn.NHanrei, 0);
    EXPECT_EQ(varn.SymbolFilePath, "") << "there is no such file";
    document.turnTo(ling("RAIN.DBS"));
    EXPECT_EQ(varn.NHanrei, 2);
}

TEST_F(AtlasSurvey, ItemsThatCannotBeReadOrDoNotFitSaySo)
{
    const QByteArray many = itemOf(5, 5);
    const QByteArray kinds = itemOf(201, 201);
    survey.write(ling("short.dbs"), "3,\"\",\"Short\",\"\"\r\n1\r\n");
    survey.write(ling("many.dbs"), many);
    survey.write(ling("kinds.dbs"), kinds);
    survey.write(ling("snow.han"), "\"\"\r\n2\r\n\"yuki\"\r\n");

    document.turnTo(ling("rain.dbs"));
    EXPECT_EQ(document.warnings(), QStringList());
    document.turnTo(ling("short.dbs"));
    EXPECT_TRUE(document.trouble().contains("short.dbs")) << qPrintable(document.trouble());
    EXPECT_EQ(varn.ItemPath, "") << "the item of the page before is not shown under its name";
    EXPECT_FALSE(document.isUnsaved());
    document.turnTo(ling("gone.dbs"));
    EXPECT_TRUE(document.trouble().contains("File not found"));

    document.turnTo(ling("many.dbs"));
    EXPECT_EQ(document.trouble(), "");
    EXPECT_EQ(document.warnings(), QStringList("The item has 5 localities, the map has 3."));
    document.turnTo(ling("kinds.dbs"));
    EXPECT_TRUE(document.warnings().join(' ').contains("more than 200 kinds"));
    EXPECT_EQ(varn.NLocate, 201) << "the map shows it all the same";
    word(1, {"w0"});
    document.save();
    EXPECT_EQ(survey.read(ling("kinds.dbs")), QByteArray(kinds).replace("\"w1\"", "\"w0\""));

    document.turnTo(ling("snow.dbs"));
    EXPECT_TRUE(document.warnings().join(' ').contains("snow.han"));
    caption("lost?");
    EXPECT_FALSE(document.isUnsaved()) << "the broken file is not replaced";
}

TEST_F(AtlasSurvey, PagesAreKeptOnlyForTheirWorkAndTheirSteps)
{
    // A page that is not kept is read again and shows what its file holds by then.
    const auto rereads = [&](const char* item, const QByteArray& text) {
        survey.write(ling(item), QByteArray(text).replace("\"uyu\"", "\"UYU\""));
        document.turnTo(ling(item));
        const bool read = page().item.WordData(1, 2) == "UYU";
        survey.write(ling(item), text);
        return read;
    };
    document.turnTo(ling("rain.dbs"));
    document.turnTo(ling("snow.dbs"));
    word(3, {"x"});
    EXPECT_TRUE(rereads("rain.dbs", RainItem)) << "the step is on another page";
    document.turnTo(ling("snow.dbs"));
    document.turnTo(ling("rain.dbs"));
    caption("kept");
    document.save();
    document.turnTo(ling("snow.dbs"));
    EXPECT_FALSE(rereads("rain.dbs", RainItem)) << "undoing needs it";
    document.steps().clear();
    document.turnTo(ling("snow.dbs"));
    EXPECT_TRUE(rereads("rain.dbs", RainItem));
}

TEST_F(FollowingDocument, ItemsAndSymbolsThatOtherFormsLoadAreTurnedTo)
{
    load("snow.dbs");
    loadSymbols("rain.han");
    EXPECT_EQ(page().item.Hanrei + captions(), "SnowAME/AME") << "loaded for it";
    load("rain.dbs");
    EXPECT_EQ(page().item.Hanrei + captions(), "RainAME/AME");
    load("snow.dbs");
    EXPECT_EQ(page().symbols.SymbolFileName, "rain.han") << "they were its symbols before";

    document.turnTo(ling("rain.dbs"));
    varn.HankoCaption(1) = "edited";
    load("snow.dbs");
    EXPECT_EQ(document.unsavedItems(), QStringList(ling("rain.dbs")))
        << "the work in the symbol form is not lost";

    dropItem(varn, varn);
    varn.VarnMapName = "\\Other";
    document.followSharedState();
    EXPECT_FALSE(document.hasPage());
    EXPECT_FALSE(document.isUnsaved());
}

TEST_F(FollowingDocument, AnUnsavedSetOfAnotherFormBecomesAChangeOfTheFirstPage)
{
    varn.NHanrei = 1;
    varn.HankoCaption(1) = "mine";
    document.turnTo(ling("rain.dbs"));
    EXPECT_EQ(captions(), "mine/mine");
    EXPECT_TRUE(document.isUnsaved());
    document.steps().undo();
    EXPECT_EQ(captions(), "AME/AME");
}

TEST_F(FollowingDocument, WhatOtherFormsSaveIsSaved)
{
    load("rain.dbs");
    loadSymbols("rain.han");
    varn.HankoCaption(1) = "Rain!";
    document.followSharedState();
    EXPECT_TRUE(document.isUnsaved());
    SaveHankoData(varn.Drive, varn.SymbolFilePath, varn);
    loadSymbols("rain.han");
    EXPECT_FALSE(document.isUnsaved());
    EXPECT_EQ(document.changedFiles(), QStringList());

    word(2, {"mine"});
    survey.write(ling("rain.dbs"), QByteArray(RainItem).replace("ame", "yau"));
    QFile::remove(varn.Drive.hostPath(ling("..\\Ling\\rain.srt")));
    load("rain.dbs");
    EXPECT_EQ(page().item.WordData(1, 1), "yau");
    EXPECT_FALSE(document.isUnsaved());
    EXPECT_EQ(document.changedFiles(), QStringList());
    document.steps().undo();
    EXPECT_EQ(page().item.WordData(2, 1), "mine") << "what was unsaved here comes back";

    varn.NHanrei = 0;
    document.followSharedState();
    EXPECT_EQ(page().symbols.NHanrei, 0) << "emptied in the symbol form";
}
