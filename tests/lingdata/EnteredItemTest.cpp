#include "lingdata/EnteredItem.h"

#include "lingdata/InputKindsFile.h"
#include "lingdata/LinguisticFile.h"
#include "tests/support/EnteredWords.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestDrive.h"

namespace {

const QString Folder = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Ling\\");

} // namespace

TEST(InputKindsFile, TheCountGovernsUpToTheCapacity)
{
    const QStringList kinds = {"ame", "a \"b\", c", "two\r\nlines", ""};
    SequentialWriter writer;
    writeInputKinds(writer, kinds);
    EXPECT_TRUE(writer.bytes().startsWith("4\r\n\"ame\"\r\n"));
    SequentialReader reader(QString::fromUtf8(writer.bytes()));
    EXPECT_EQ(readInputKinds(reader), kinds);
    SequentialReader full(QStringLiteral("500\r\n") + QStringLiteral("\"a\"\r\n").repeated(500));
    EXPECT_EQ(readInputKinds(full).size(), 500);

    struct Row
    {
        QByteArray text;
        ErrorNumber error;
    };
    const std::vector<Row> rows = {
        {"2\r\n\"a\"\r\n", ErrorNumber::InputPastEndOfFile},
        {"501\r\n" + QByteArray("\"a\"\r\n").repeated(501), ErrorNumber::SubscriptOutOfRange},
        {"-1\r\n", ErrorNumber::SubscriptOutOfRange},
        {"\"a\"\r\n", ErrorNumber::TypeMismatch},
    };
    for (const Row& row : rows) {
        SequentialReader file(QString::fromUtf8(row.text));
        EXPECT_EQ(errorOf([&] { readInputKinds(file); }).number(), row.error) << row.text.left(10).data();
    }
}

TEST(EnteredItem, NamesBecomePathsInTheDataFolder)
{
    const TestSurvey survey;
    const std::vector<std::pair<QString, QString>> rows = {
        {"rain", Folder + "rain.dbs"},
        {" rain.dbs ", Folder + "rain.dbs"},
        {"Rain.DBS", Folder + "Rain.dbs"},
        {"rain.v2", Folder + "rain.v2.dbs"},
        {"rain.dbs.dbs", Folder + "rain.dbs.dbs"},
        {"", ""},
        {"  ", ""},
        {".dbs", ""},
    };
    for (const auto& [name, path] : rows) {
        EXPECT_EQ(enteredItemPath(survey.varn, name), path) << qPrintable(name);
    }
    for (const char* name : {"..\\rain", "a/b", "C:rain", "what?", "a\nb"}) {
        EXPECT_EQ(errorOf([&] { enteredItemPath(survey.varn, QLatin1String(name)); }).number(),
                  ErrorNumber::BadFileName)
            << name;
    }
    EXPECT_EQ(inputKindsPath(survey.varn, QStringLiteral("Z:\\other\\rain.v2.dbs")),
              Folder + QStringLiteral("rain.v2.ipt"));
}

TEST(EnteredItem, WhatIsSavedOpensTheSame)
{
    const TestSurvey survey;
    const QString path = Folder + QStringLiteral("odd.dbs");
    const QStringList odd = {"a \"quoted\" word", "a, b", "two\nlines", "two\r\nlines", "\"", "雨 ɛ", " x"};
    ItemEditor editor = editorWith(odd);
    set(editor, 2, 3, QStringLiteral("moves up"));
    editor.setCaption(QStringLiteral("caption, \"with\"\nall"));
    editor.setComment(QStringLiteral("1\n\n,2"));
    editor.addKind(odd[0]);
    editor.addKind(QStringLiteral("\n"));
    saveItem(survey.varn, path, editor);
    EXPECT_FALSE(editor.isUnsaved());

    const ItemEditor opened = openItem(survey.varn, path).editor;
    EXPECT_FALSE(opened.isUnsaved());
    ASSERT_EQ(opened.localities(), odd.size());
    for (int i = 1; i <= opened.localities(); ++i) {
        EXPECT_EQ(opened.cell({i, 1}), odd[i - 1]);
    }
    EXPECT_EQ(opened.cell({2, 2}), QStringLiteral("moves up"));
    EXPECT_EQ(opened.caption(), editor.caption());
    EXPECT_EQ(opened.comment(), editor.comment());
    EXPECT_EQ(opened.kinds(), editor.kinds());
}

TEST(EnteredItem, EmptyWordFormsKeepTheirPlaces)
{
    const TestSurvey survey;
    const QString path = Folder + QStringLiteral("rain.dbs");
    const QByteArray text =
        "3,\"\",\"\",\"\"\r\n3\r\n\"\"\r\n\"a\"\r\n\"\"\r\n1\r\n\"\"\r\n2\r\n\" \"\r\n\"\"\"\"\"\"\r\n";
    survey.write(path, text);
    ItemEditor editor = openItem(survey.varn, path).editor;
    EXPECT_EQ(editor.answeredLocalities(), 3);
    EXPECT_EQ(editor.wordForms(), 6);
    EXPECT_EQ(editor.kinds(), QStringList({"", " ", "\"\"", "a"}));
    saveItem(survey.varn, path, editor);
    EXPECT_EQ(survey.read(path), text);
    EXPECT_EQ(openItem(survey.varn, path).editor.kinds(), editor.kinds());
}

TEST(EnteredItem, KindsComeFromTheListOrElseFromTheData)
{
    const TestSurvey survey;
    const QString path = Folder + QStringLiteral("rain.dbs");
    const QString list = inputKindsPath(survey.varn, path);
    survey.write(path, "2,\"\",\"\",\"\"\r\n2\r\n\"b\"\r\n\"a\"\r\n1\r\n\"b\"\r\n");
    EXPECT_EQ(openItem(survey.varn, path).editor.kinds(), QStringList({"a", "b"}));
    survey.write(list, "1\r\n\"mine\"\r\n");
    EXPECT_EQ(openItem(survey.varn, path).editor.kinds(), QStringList({"mine"}));
    EXPECT_EQ(openItem(survey.varn, path).trouble, QString());
    survey.write(list, "2\r\n\"mine\"\r\n");
    const OpenedItem opened = openItem(survey.varn, path);
    EXPECT_EQ(opened.editor.kinds(), QStringList({"a", "b"})) << "a damaged list is no obstacle";
    EXPECT_TRUE(opened.trouble.contains(list)) << qPrintable(opened.trouble);
    EXPECT_EQ(survey.read(list), "2\r\n\"mine\"\r\n");

    const QString manyPath = Folder + QStringLiteral("many.dbs");
    survey.write(manyPath, [&] {
        SequentialWriter file;
        writeItem(file, editorWith(numbered(600)).answers());
        return file.bytes();
    }());
    EXPECT_EQ(openItem(survey.varn, manyPath).editor.kinds().size(), MostInputKinds);
}

TEST(EnteredItem, KindsFileOfASavedItemIsMadeAnew)
{
    const TestSurvey survey;
    const QString path = Folder + QStringLiteral("rain.dbs");
    const QString kinds = kindsFilePath(survey.varn, path);
    survey.write(kinds, "1\r\n\"old\",7\r\n");
    ItemEditor editor = editorWith({"b", "a", "b"});
    saveItem(survey.varn, path, editor);
    renewKindsFile(survey.varn, path, editor);
    EXPECT_EQ(survey.read(kinds), "2\r\n\"a\",1\r\n\"b\",2\r\n");

    ItemEditor many = editorWith(numbered(201));
    saveItem(survey.varn, path, many);
    EXPECT_EQ(errorOf([&] { renewKindsFile(survey.varn, path, many); }).number(),
              ErrorNumber::SubscriptOutOfRange);
    EXPECT_FALSE(fileExists(survey.drive(), kinds)) << "no old kinds are taken for those of the item";
    EXPECT_EQ(openItem(survey.varn, path).editor.localities(), 201);

    survey.write(kinds + QStringLiteral("\\in.the.way"), "");
    saveItem(survey.varn, path, editor);
    EXPECT_EQ(errorOf([&] { renewKindsFile(survey.varn, path, editor); }).place().path, kinds);
}

TEST(EnteredItem, ASavedItemIsLoadedAfresh)
{
    TestSurvey survey;
    VarnModule& varn = survey.varn;
    ScriptedDialogs dialogs;
    const QString path = Folder + QStringLiteral("rain.dbs");
    const auto saveAndReload = [&](ItemEditor editor) {
        saveItem(varn, path, editor);
        reloadItem(varn, path, varn, varn, dialogs);
    };
    EXPECT_FALSE(isLoadedItem(path, varn));
    saveAndReload(editorWith({"old", "a"}));
    EXPECT_TRUE(isLoadedItem(path.toLower(), varn));
    varn.LoadState = 2;
    const int reading = varn.ItemReading;
    saveAndReload(editorWith({"new", "a", "a"}));
    EXPECT_EQ(varn.WordData(1, 1), QStringLiteral("new"));
    EXPECT_EQ(varn.KindCount(1), 2);
    EXPECT_EQ(varn.NLocate, 3);
    EXPECT_EQ(varn.LoadState, 2);
    EXPECT_GT(varn.ItemReading, reading);

    EXPECT_EQ(errorOf([&] { saveAndReload(editorWith(numbered(201))); }).number(),
              ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(varn.ItemFileName, QString()) << "nothing rather than what is no longer true";
    EXPECT_EQ(varn.LoadState, 3);
    EXPECT_GT(varn.ItemReading, reading + 1);
    EXPECT_EQ(dialogs.shown.size(), 0U);
}

TEST(EnteredItem, ASaveThatFailsStaysUnsaved)
{
    TestSurvey survey;
    ItemEditor editor = editorWith({"a"});
    survey.varn.LingFolder = QStringLiteral("\\VarnData\\Gone\\Ling");
    const QString path = enteredItemPath(survey.varn, QStringLiteral("rain"));
    EXPECT_EQ(errorOf([&] { saveItem(survey.varn, path, editor); }).number(), ErrorNumber::PathNotFound);
    EXPECT_TRUE(editor.isUnsaved());
}
