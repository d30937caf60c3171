// What the atlas window and the whole program do for work that is not saved, and for files that change.

#include "atlas/forms/frmAtlas.h"
#include "tests/atlas/AtlasItemFiles.h"
#include "tests/support/TestProgram.h"

#include <QFile>
#include <QTimer>

namespace {

class AtlasSafety : public Forms
{
protected:
    AtlasSafety() { writeAtlasItems(survey); }

    static AtlasDocument& document() { return form<frmAtlas>().document(); }
    void openAtlas(Program& program) const
    {
        start(program);
        program.click("cmdAtlas");
    }
    /// Leaves unsaved work on both pages and on the map.
    static void work()
    {
        document().turnTo(ling("snow.dbs"));
        document().setWords({{3, {"kept"}}}, "Words");
        document().turnTo(ling("rain.dbs"));
        SymbolRecords records = document().page().symbols;
        records.HankoCaption(1) = "Rain!";
        document().setSymbols(records, "Caption");
        document().setLegendPlace({1, 2});
    }
    static void bringToFront()
    {
        QEvent activated(QEvent::WindowActivate);
        QApplication::sendEvent(&form<frmAtlas>(), &activated);
    }
    static void keepWork(const Program& program)
    {
        program.main.findChild<QTimer*>()->setInterval(0);
        QApplication::processEvents();
    }
};

} // namespace

TEST_F(AtlasSafety, ClosingAsksOnceForTheWholeProgram)
{
    Program program(survey);
    openAtlas(program);
    program.main.show();
    work();
    auto& atlas = form<frmAtlas>();
    EXPECT_TRUE(atlas.isWindowModified());
    program.dialogs.saves = {SaveChoice::Cancel, SaveChoice::Cancel, SaveChoice::Discard};
    EXPECT_FALSE(atlas.close());
    EXPECT_EQ(program.dialogs.shown.back().text,
              "Save the changes to snow, rain and the place of the legend?");
    EXPECT_FALSE(program.main.close());
    EXPECT_TRUE(document().isUnsaved());
    EXPECT_TRUE(atlas.close());
    EXPECT_EQ(program.varn.HankoCaption(1) + QString::number(program.varn.HanreiX), "AME20");
    EXPECT_EQ(survey.read(ling("rain.han")), RainSymbols);

    program.click("cmdAtlas");
    work();
    program.dialogs.saves = {SaveChoice::Save};
    EXPECT_TRUE(program.main.close()) << "no other form asks for the same symbols";
    EXPECT_TRUE(survey.read(ling("rain.han")).contains("Rain!"));
    EXPECT_TRUE(survey.read(ling("snow.dbs")).contains("kept"));
    EXPECT_EQ(program.dialogs.errors, std::vector<Shown>());
}

TEST_F(AtlasSafety, ASaveThatFailsKeepsTheWindowOpen)
{
    Program program(survey);
    openAtlas(program);
    work();
    QFile::rename(survey.hostPath("Varn62E/Varn/VarnData/Test/Ling"), survey.hostPath("elsewhere"));
    program.dialogs.yesNo = {false}; // the files are gone: keep what is here
    program.dialogs.saves = {SaveChoice::Save};
    EXPECT_FALSE(form<frmAtlas>().close());
    EXPECT_EQ(program.dialogs.errors.size(), 1U);
    EXPECT_TRUE(document().isUnsaved());
    program.dialogs.saves = {SaveChoice::Discard};
    EXPECT_TRUE(form<frmAtlas>().close());
}

TEST_F(AtlasSafety, UnsavedPagesAreOfferedWhenTheProgramStartsAgain)
{
    for (const bool byExit : {true, false}) {
        {
            Program program(survey);
            openAtlas(program);
            work();
            if (byExit) {
                QTimer::singleShot(0, [&program] { program.click("cmdExit"); });
                QTimer::singleShot(5000, &program.main, [] { QCoreApplication::exit(1); });
                EXPECT_EQ(QApplication::exec(), 0) << "the program goes on";
            } else {
                keepWork(program);
            }
        }
        Program program(survey);
        program.dialogs.yesNo = {true, true};
        program.start(nothing.path());
        EXPECT_TRUE(program.dialogs.shown.back().text.contains("2 atlas pages, place of the legend"))
            << qPrintable(program.dialogs.shown.back().text);
        EXPECT_TRUE(form<frmAtlas>().isVisible());
        EXPECT_EQ(document().unsavedItems().size(), 2);
        EXPECT_EQ(program.varn.HankoCaption(1) + QString::number(program.varn.HanreiX), "Rain!1");
        document().turnTo(ling("snow.dbs"));
        EXPECT_EQ(program.varn.WordData(3, 1), "kept");
        document().discard();
        keepWork(program);
    }
}

TEST_F(AtlasSafety, AnotherMapIsChosenOnlyAfterUnsavedPagesWereGivenUp)
{
    for (const char* part : {"Line", "Loc", "kanji"}) {
        const QString file = QStringLiteral("\\Map\\%1.map").arg(QLatin1String(part));
        survey.write(VarnPath + "\\VarnData\\Other" + file,
                     survey.read(VarnPath + "\\VarnData\\Test" + file));
    }
    survey.write(VarnPath + "\\VarnData\\Other\\Ling\\fog.dbs", SnowItem);
    Program program(survey);
    openAtlas(program);
    work();
    program.click("cmdRegMap");
    const auto choose = [&](std::deque<bool> answers) {
        program.dialogs.files = {survey.hostPath("Varn62E/Varn/VarnData/Other/Map/Loc.map")};
        program.dialogs.yesNo = std::move(answers);
        press<frmChizu>("cmdRegMapName");
    };
    choose({false});
    EXPECT_EQ(program.varn.VarnMapName, "\\Test");
    EXPECT_TRUE(program.dialogs.shown.back().text.contains("2 atlas pages"));
    EXPECT_EQ(document().unsavedItems().size(), 2);
    choose({true, false});
    EXPECT_EQ(program.varn.VarnMapName, "\\Other");
    EXPECT_EQ(document().page().item.ItemFileName, "fog.dbs") << "the window is open and shows the new map";
}

TEST_F(AtlasSafety, FilesThatAnotherProgramChangesAreReadOrKeptAndAskedForOnce)
{
    Program program(survey);
    openAtlas(program);
    work();
    const auto change = [&] { survey.write(ling("rain.dbs"), QByteArray(RainItem).replace("ame", "other")); };
    change();
    program.dialogs.yesNo = {false};
    bringToFront();
    bringToFront();
    EXPECT_TRUE(program.dialogs.shown.back().text.startsWith("rain.dbs: changed or deleted"));
    EXPECT_EQ(program.varn.WordData(1, 1), "ame");
    form<frmAtlas>().save();
    EXPECT_EQ(survey.read(ling("rain.dbs")), RainItem);

    change();
    program.dialogs.yesNo = {true};
    form<frmAtlas>().save();
    EXPECT_EQ(program.varn.WordData(1, 1), "other");
    EXPECT_FALSE(document().isUnsaved());
}

TEST_F(AtlasSafety, WhatTheOtherFormsSaveIsSeenAtOnceAndTheOtherWayRound)
{
    Program program(survey);
    openAtlas(program);
    document().turnTo(ling("rain.dbs"));
    program.click("cmdInputData");
    program.dialogs.files = {survey.drive().hostPath(ling("rain.dbs"))};
    trigger<frmDataInput>("mnuOpen");
    enterWord(1, 0, "entered");
    program.dialogs.yesNo = {true};
    trigger<frmDataInput>("mnuSave");
    EXPECT_EQ(document().page().item.WordData(2, 1), "entered");
    EXPECT_FALSE(document().isUnsaved());

    document().setWords({{2, {"edited"}}}, "Words");
    form<frmAtlas>().save();
    program.load("mnuInputWord", "rain.dbs");
    EXPECT_EQ(program.varn.WordData(2, 1), "edited");
    EXPECT_EQ(program.dialogs.errors, std::vector<Shown>());

    EXPECT_TRUE(form<frmAtlas>().close());
    program.load("mnuInputWord", "snow.dbs");
    program.load("mnuHankoInput", "rain.han");
    program.varn.HankoCaption(1) = "edited elsewhere";
    keepWork(program);
    EXPECT_EQ(program.varn.Hanrei + program.varn.SymbolFileName + program.varn.HankoCaption(1),
              "Snowrain.hanedited elsewhere")
        << "a window that is closed changes nothing";
}
