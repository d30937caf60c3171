#include "lingdata/EnteredItem.h"

#include "lingdata/InputKindsFile.h"
#include "tests/support/EnteredWords.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestDrive.h"

namespace {

const QString Folder = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Ling\\");
const QString Rain = Folder + QStringLiteral("rain.dbs");
constexpr auto Subscript = ErrorNumber::SubscriptOutOfRange;

/// A survey on which an item is saved and opened.
class EnteredItem : public testing::Test, protected TestSurvey
{
protected:
    QString opened() const { return enteredText(openItem(varn, Rain).editor); }
};

} // namespace

TEST_F(EnteredItem, NamesBecomePathsInTheDataFolder)
{
    for (const char* name : {"rain", " rain.dbs ", "rain.DBS"}) {
        EXPECT_EQ(enteredItemPath(varn, name), Rain) << name;
    }
    EXPECT_EQ(enteredItemPath(varn, "Rain.v2.dbs.dbs"), Folder + "Rain.v2.dbs.dbs");
    EXPECT_EQ(enteredItemPath(varn, "  ") + enteredItemPath(varn, ".dbs"), "");
    for (const char* name : {"..\\rain", "a/b", "C:rain", "what?", "a\nb"}) {
        EXPECT_EQ(errorOf([&] { enteredItemPath(varn, name); }).number(), ErrorNumber::BadFileName) << name;
    }
    EXPECT_EQ(inputKindsPath(varn, "Z:\\other\\rain.v2.dbs"), Folder + "rain.v2.ipt");
}

TEST_F(EnteredItem, WhatIsSavedOpensTheSame)
{
    ItemEditor editor =
        editorWith({"a \"quoted\" word", "a, b", "two\nlines", "two\r\nlines", "\"", "雨 ɛ", " x", "\"\""});
    set(editor, 2, 2, "moves up");
    editor.setCaption("caption, \"with\"\nall");
    editor.setComment("1\n\n,2");
    editor.addKind("\"");
    editor.addKind("\n");
    saveItem(varn, Rain, editor);
    EXPECT_FALSE(editor.isUnsaved());
    EXPECT_EQ(opened(), enteredText(editor));

    varn.LingFolder = "\\VarnData\\Gone\\Ling";
    editor.setCaption("");
    EXPECT_EQ(errorOf([&] { saveItem(varn, enteredItemPath(varn, "rain"), editor); }).number(),
              ErrorNumber::PathNotFound);
    EXPECT_TRUE(editor.isUnsaved());
}

TEST_F(EnteredItem, KindsComeFromTheListOrElseFromTheData)
{
    const QString list = Folder + "rain.ipt";
    const QByteArray text =
        "3,\"\",\"\",\"\"\r\n3\r\n\"\"\r\n\"b\"\r\n\"\"\r\n1\r\n\"a\"\r\n2\r\n\" \"\r\n\"\"\"\"\"\"\r\n";
    const QString words = "\"\",b,\"\"/a/ ,\"\"";
    write(Rain, text);
    EXPECT_EQ(opened(), words + "|, ,\"\",a,b||") << "empty word forms keep their places";
    write(list, "1\r\n\"mine\"\r\n");
    EXPECT_EQ(opened(), words + "|mine||");
    EXPECT_EQ(openItem(varn, Rain).trouble, "");
    for (const QByteArray& damaged :
         {QByteArray("2\r\n\"mine\"\r\n"), "501\r\n" + QByteArray("\"a\"\r\n").repeated(501)}) {
        write(list, damaged);
        EXPECT_TRUE(openItem(varn, Rain).trouble.contains(list));
        EXPECT_EQ(opened(), words + "|, ,\"\",a,b||") << "a damaged list is no obstacle";
        EXPECT_EQ(read(list), damaged);
    }
    ItemEditor editor = openItem(varn, Rain).editor;
    saveItem(varn, Rain, editor);
    EXPECT_EQ(read(Rain), text);
    EXPECT_EQ(read(list), "5\r\n\"\"\r\n\" \"\r\n\"\"\"\"\"\"\r\n\"a\"\r\n\"b\"\r\n");
}

TEST_F(EnteredItem, MoreWordFormsThanKindsAreSavedAndLeaveNoOldKinds)
{
    const QString kinds = kindsFilePath(varn, Rain);
    write(kinds, "1\r\n\"old\",7\r\n");
    ItemEditor many = editorWith(numbered(600));
    saveItem(varn, Rain, many);
    EXPECT_FALSE(fileExists(varn.Drive, kinds));
    EXPECT_EQ(errorOf([&] { renewKindsFile(varn, Rain, many); }).number(), Subscript);
    write(kinds + "\\in.the.way", "");
    EXPECT_EQ(errorOf([&] { renewKindsFile(varn, Rain, many); }).place().path, kinds);
    QFile::remove(varn.Drive.hostPath(Folder + "rain.ipt"));
    ItemEditor full = openItem(varn, Rain).editor;
    EXPECT_EQ(full.kinds().size(), MostInputKinds);
    saveItem(varn, Rain, full);
    EXPECT_EQ(openItem(varn, Rain).trouble, "");
}

TEST_F(EnteredItem, ASavedItemIsLoadedAfresh)
{
    ScriptedDialogs dialogs;
    const auto saveAndReload = [&](ItemEditor editor) {
        saveItem(varn, Rain, editor);
        reloadItem(varn, Rain, varn, varn, dialogs);
    };
    saveAndReload(editorWith({"old", "a"}));
    EXPECT_TRUE(isLoadedItem(Rain.toLower(), varn));
    varn.LoadState = 2;
    saveAndReload(editorWith({"new", "a", "a"}));
    EXPECT_EQ(varn.WordData(1, 1), "new");
    EXPECT_EQ(varn.LoadState, 2);
    EXPECT_EQ(varn.ItemReading, 2);

    EXPECT_EQ(errorOf([&] { saveAndReload(editorWith(numbered(201))); }).number(), Subscript);
    EXPECT_EQ(varn.ItemFileName, "") << "nothing rather than what is no longer true";
    EXPECT_EQ(varn.LoadState, 3);
    EXPECT_EQ(varn.ItemReading, 3);
    EXPECT_EQ(dialogs.shown.size(), 0U);
}
