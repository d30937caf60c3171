// What the atlas saves, gives up and keeps, and files that change under it.

#include "lingdata/EnteredItem.h"
#include "shell/UnsavedWork.h"
#include "symbols/SymbolFile.h"
#include "tests/atlas/AtlasSurvey.h"

#include <QFile>

namespace {

class AtlasFiles : public AtlasSurvey
{
protected:
    void remove(const QString& path) const { QFile::remove(varn.Drive.hostPath(path)); }
};

} // namespace

TEST_F(AtlasFiles, FilesAreSavedAsTheOtherFormsSaveThem)
{
    document.turnTo(ling("rain.dbs"));
    word(2, {"ka\\N1a", ""});
    caption("Rain \"1\"");
    document.turnTo(ling("snow.dbs"));
    caption("Snow");
    document.setLegendPlace({77.5, 88});
    document.save();
    EXPECT_FALSE(document.isUnsaved());
    EXPECT_EQ(varn.SymbolFilePath, ling("snow.han")) << "the file is there now";
    EXPECT_EQ(survey.read("C:\\Varn62E\\Varn\\VarnData\\Test\\Map\\kanji.map"),
              "2\r\n77.5,88\r\n\"Title\"\r\n400,500\r\n\"Town\"\r\n100,900\r\n\"20 km\",4,200\r\n");

    const QByteArray item = survey.read(ling("rain.dbs"));
    const QByteArray kinds = survey.read(ling("rain.srt"));
    EXPECT_EQ(item, QByteArray(RainItem).replace("\r\n0\r\n", "\r\n2\r\n\"ka\\N1a\"\r\n\"\"\r\n"));
    ItemEditor editor = openItem(varn, ling("rain.dbs")).editor;
    saveItem(varn, ling("rain.dbs"), editor);
    renewKindsFile(varn, ling("rain.dbs"), editor);
    EXPECT_EQ(survey.read(ling("rain.dbs")), item);
    EXPECT_EQ(survey.read(ling("rain.srt")), kinds);
    EXPECT_EQ(survey.read(ling("rain.han")), QByteArray(RainSymbols).replace("AME", "Rain \"\"1\"\""));

    document.steps().undo();
    EXPECT_TRUE(document.isLegendPlaceUnsaved()) << "the file has what was undone";
}

TEST_F(AtlasFiles, DiscardingBringsBackWhatTheFilesHold)
{
    document.turnTo(ling("snow.dbs"));
    word(3, {"x"});
    document.turnTo(ling("rain.dbs"));
    caption("x");
    word(3, {"x"});
    document.setLegendPlace({1, 2});
    document.discard();
    EXPECT_FALSE(document.isUnsaved());
    EXPECT_EQ(captions(), "AME/AME");
    EXPECT_FALSE(isSymbolSetUnsaved(varn)) << "no other form asks for it";
    EXPECT_EQ(varn.WordData(3, 1), "uyu");
    EXPECT_EQ(document.legendPlace(), QPointF(20, 30));
    EXPECT_EQ(document.steps().count(), 0);
    document.turnTo(ling("snow.dbs"));
    EXPECT_EQ(varn.WordCount(3), 0);
}

TEST_F(AtlasFiles, UnsavedPagesComeBackFromWorkThatWasKept)
{
    document.turnTo(ling("snow.dbs"));
    caption("Snow");
    document.turnTo(ling("rain.dbs"));
    word(2, {"kept"});
    document.setLegendPlace({1, 2});
    UnsavedWork work = unsavedWork(varn, std::nullopt);
    document.addTo(work);
    EXPECT_EQ(describe(work), "2 atlas pages, place of the legend");

    document.discard();
    document.restore(work);
    EXPECT_EQ(document.unsavedItems(), QStringList({ling("snow.dbs"), ling("rain.dbs")}));
    EXPECT_EQ(varn.WordData(2, 1), "kept");
    EXPECT_EQ(varn.HanreiX, 1);
    document.turnTo(ling("snow.dbs"));
    EXPECT_EQ(captions(), "Snow/Snow");
    document.save();
    EXPECT_TRUE(survey.read(ling("snow.han")).contains("Snow"));

    caption("Snow!");
    work = unsavedWork(varn, std::nullopt);
    EXPECT_TRUE(work.symbols);
    document.addTo(work);
    EXPECT_EQ(describe(work), "atlas page snow") << "its symbols are not kept twice";
}

TEST_F(AtlasFiles, FilesThatChangeUnderThePagesAreReadOrKept)
{
    const QByteArray changed = QByteArray(RainItem).replace("\"ame\"", "\"yau!\"");
    const auto change = [&] {
        survey.write(ling("rain.dbs"), changed);
        remove(ling("rain.han"));
    };
    document.turnTo(ling("rain.dbs"));
    caption("mine");
    document.turnTo(ling("snow.dbs"));
    EXPECT_EQ(document.changedFiles(), QStringList());
    change();
    EXPECT_EQ(document.changedFiles(), QStringList({"rain.dbs", "rain.han"}));

    document.keepChanged();
    EXPECT_EQ(document.changedFiles(), QStringList()) << "asked once";
    document.steps().undo();
    EXPECT_TRUE(document.isUnsaved()) << "the files hold something else";
    document.save();
    EXPECT_EQ(survey.read(ling("rain.dbs")), RainItem);
    EXPECT_EQ(survey.read(ling("rain.han")), RainSymbols);

    change();
    document.steps().redo();
    document.readChanged();
    EXPECT_FALSE(document.isUnsaved());
    EXPECT_EQ(varn.WordData(1, 1), "yau!");
    EXPECT_EQ(varn.NHanrei, 0);
    EXPECT_EQ(document.steps().count(), 0) << "they led from what was there before";

    remove(ling("rain.dbs"));
    document.readChanged();
    EXPECT_TRUE(document.trouble().contains("File not found"));
    survey.write(ling("rain.dbs"), RainItem);
    document.readChanged();
    EXPECT_EQ(document.trouble(), "");
}
