#include "lingdata/ItemEditor.h"

#include "lingdata/EnteredItem.h"
#include "lingdata/InputKindsFile.h"
#include "lingdata/ItemLoader.h"
#include "lingdata/LinguisticFile.h"
#include "render/LocalityMap.h"
#include "tests/TestDrive.h"

#include <QFileInfo>

namespace {

const QString Folder = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Ling\\");

QStringList words(const ItemAnswers& item, int locality)
{
    QStringList found;
    for (int j = 1; j <= item.WordCount(locality); ++j) {
        found << item.WordData(locality, j);
    }
    return found;
}

/// An item of one locality for each of `first`, its only word form.
ItemEditor editorWith(const QStringList& first)
{
    ItemEditor editor(static_cast<qint16>(first.size()));
    for (int i = 1; i <= editor.localities(); ++i) {
        editor.setWord(i, 1, first[i - 1]);
    }
    return editor;
}

QStringList numbered(int count)
{
    QStringList words;
    for (int i = 1; i <= count; ++i) {
        words << QStringLiteral("w%1").arg(i);
    }
    return words;
}

} // namespace

TEST(ItemEditor, EmptyCellsAreNoWordForms)
{
    struct Row
    {
        QStringList cells;
        QStringList expected;
    };
    const std::vector<Row> rows = {
        {{"a", "", "", "", ""}, {"a"}},           {{"", "", "", "", ""}, {}},
        {{"a", "", "b", "", ""}, {"a", "b"}},     {{"", "", "", "", "e"}, {"e"}},
        {{"a", "  ", "\t", "a", ""}, {"a", "a"}}, {{"1", "2", "3", "4", " 5 "}, {"1", "2", "3", "4", " 5 "}},
    };
    ItemEditor editor(static_cast<qint16>(rows.size()));
    int total = 0;
    for (int i = 1; i <= editor.localities(); ++i) {
        const Row& row = rows[static_cast<std::size_t>(i - 1)];
        for (int j = 1; j <= ItemEditor::MostWords; ++j) {
            editor.setWord(i, j, row.cells[j - 1]);
        }
        total += static_cast<int>(row.expected.size());
    }
    const ItemAnswers item = editor.answers();
    for (int i = 1; i <= item.NLocate; ++i) {
        EXPECT_EQ(words(item, i), rows[static_cast<std::size_t>(i - 1)].expected) << i;
    }
    EXPECT_EQ(item.WordTotal, total);
    EXPECT_EQ(editor.wordForms(), total);
    EXPECT_EQ(editor.answeredLocalities(), 5);
    EXPECT_EQ(item.WordList(3), QStringLiteral("b"));
    EXPECT_EQ(item.WordLocate(3), 3);
    EXPECT_EQ(item.WordSub(3), 2);
}

TEST(ItemEditor, CellsOutsideTheItemRaise)
{
    ItemEditor editor(3);
    for (const auto& [locality, column] :
         {std::pair(0, 1), std::pair(4, 1), std::pair(1, 0), std::pair(1, 6)}) {
        const auto set = [&, i = locality, j = column] { editor.setWord(i, j, QStringLiteral("a")); };
        EXPECT_EQ(errorOf(set).number(), ErrorNumber::SubscriptOutOfRange) << locality << ' ' << column;
    }
    EXPECT_EQ(errorOf([] { ItemEditor(1001); }).number(), ErrorNumber::SubscriptOutOfRange);
    EXPECT_FALSE(editor.isUnsaved());
}

TEST(ItemEditor, OnlyRealChangesAreUnsaved)
{
    const QString a = QStringLiteral("a");
    struct Row
    {
        const char* what;
        std::function<void(ItemEditor&)> change;
        bool unsaved;
    };
    const std::vector<Row> rows = {
        {"the same word", [&](ItemEditor& e) { e.setWord(1, 1, a); }, false},
        {"another word", [](ItemEditor& e) { e.setWord(1, 1, QStringLiteral("A")); }, true},
        {"an empty cell emptied", [](ItemEditor& e) { e.setWord(1, 2, QStringLiteral(" ")); }, false},
        {"the same caption", [](ItemEditor& e) { e.setCaption(QString()); }, false},
        {"a comment", [](ItemEditor& e) { e.setComment(QStringLiteral("c")); }, true},
        {"a kind that is there", [&](ItemEditor& e) { e.addKind(a); }, false},
        {"a new kind", [](ItemEditor& e) { e.addKind(QStringLiteral("A")); }, true},
        {"nothing collected", [](ItemEditor& e) { e.collectKinds(); }, false},
        {"a kind removed", [](ItemEditor& e) { e.removeKind(0); }, true},
    };
    for (const Row& row : rows) {
        ItemEditor editor(editorWith({a}).answers(), {a});
        row.change(editor);
        EXPECT_EQ(editor.isUnsaved(), row.unsaved) << row.what;
    }
}

TEST(ItemEditor, KindsAreCollectedBehindThoseThatAreThere)
{
    ItemEditor editor = editorWith({"c", "b", "", "c", "B", "z"});
    editor.addKind(QStringLiteral("z"));
    editor.addKind(QStringLiteral("not in the data"));
    editor.collectKinds();
    const QStringList all = {"z", "not in the data", "B", "b", "c"};
    EXPECT_EQ(editor.kinds(), all);
    editor.removeKind(1);
    EXPECT_EQ(editor.kinds(), QStringList({"z", "B", "b", "c"}));
    EXPECT_EQ(editor.wordForms(), 5);
}

TEST(ItemEditor, AFullListOfKindsStaysAsItIs)
{
    ItemEditor editor = editorWith(numbered(MostInputKinds));
    editor.collectKinds();
    EXPECT_EQ(editor.kinds().size(), MostInputKinds);
    editor.addKind(QStringLiteral("w1"));
    EXPECT_EQ(errorOf([&] { editor.addKind(QStringLiteral("x")); }).number(),
              ErrorNumber::SubscriptOutOfRange);
    editor.setWord(1, 2, QStringLiteral("x"));
    EXPECT_EQ(errorOf([&] { editor.collectKinds(); }).number(), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(editor.kinds().size(), MostInputKinds);
}

TEST(ItemEditor, IllegalCodesAreFoundWhereTheyStand)
{
    struct Row
    {
        QString word;
        QString code;
        bool cutShort;
    };
    const std::vector<Row> rows = {
        {"plain", "", false},          {R"(a\A1b\:\Z2)", "", false},   {R"(\B9)", "", false},
        {R"(a\Q1x)", R"(\Q1)", false}, {R"(a\a1)", R"(\a1)", false},   {R"(\A7)", R"(\A7)", false},
        {R"(a\)", R"(\)", true},       {R"(a\A)", R"(\A)", true},      {R"(\A\A1)", R"(\A)", true},
        {R"(\\A1)", R"(\)", true},     {R"(\A1\A1\E)", R"(\E)", true}, {R"(\1A1)", R"(\1A)", false},
    };
    ItemEditor editor(static_cast<qint16>(rows.size()));
    std::vector<FaultyWord> expected;
    for (int i = 1; i <= editor.localities(); ++i) {
        const Row& row = rows[static_cast<std::size_t>(i - 1)];
        const int column = i % ItemEditor::MostWords + 1;
        editor.setWord(i, column, row.word);
        if (!row.code.isEmpty()) {
            expected.push_back({i, column, row.word, {row.code, row.cutShort}});
        }
    }
    EXPECT_EQ(editor.checkCodes(), expected);
}

TEST(InputKindsFile, TheCountGovernsUpToTheCapacity)
{
    const QStringList kinds = {"ame", "a \"b\", c", "two\r\nlines", ""};
    SequentialWriter writer;
    writeInputKinds(writer, kinds);
    EXPECT_TRUE(writer.bytes().startsWith("4\r\n\"ame\"\r\n"));
    SequentialReader reader(QString::fromUtf8(writer.bytes()));
    EXPECT_EQ(readInputKinds(reader), kinds);

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
    editor.setWord(2, 3, QStringLiteral("moves up"));
    editor.setCaption(QStringLiteral("caption, \"with\"\nall"));
    editor.setComment(QStringLiteral("1\n\n,2"));
    editor.addKind(odd[0]);
    editor.addKind(QStringLiteral("\n"));
    saveItem(survey.varn, path, editor);
    EXPECT_FALSE(editor.isUnsaved());

    const ItemEditor opened = openItem(survey.varn, path);
    EXPECT_FALSE(opened.isUnsaved());
    ASSERT_EQ(opened.localities(), odd.size());
    for (int i = 1; i <= opened.localities(); ++i) {
        EXPECT_EQ(opened.word(i, 1), odd[i - 1]);
    }
    EXPECT_EQ(opened.word(2, 2), QStringLiteral("moves up"));
    EXPECT_EQ(opened.caption(), editor.caption());
    EXPECT_EQ(opened.comment(), editor.comment());
    EXPECT_EQ(opened.kinds(), editor.kinds());
}

TEST(EnteredItem, KindsComeFromTheListOrElseFromTheData)
{
    const TestSurvey survey;
    const QString path = Folder + QStringLiteral("rain.dbs");
    survey.write(path, "2,\"\",\"\",\"\"\r\n2\r\n\"b\"\r\n\"a\"\r\n1\r\n\"b\"\r\n");
    EXPECT_EQ(openItem(survey.varn, path).kinds(), QStringList({"a", "b"}));
    survey.write(inputKindsPath(survey.varn, path), "1\r\n\"mine\"\r\n");
    EXPECT_EQ(openItem(survey.varn, path).kinds(), QStringList({"mine"}));
    survey.write(inputKindsPath(survey.varn, path), "2\r\n\"mine\"\r\n");
    EXPECT_EQ(errorOf([&] { openItem(survey.varn, path); }).place().path, inputKindsPath(survey.varn, path));

    ItemEditor many = editorWith(numbered(600));
    const QString manyPath = Folder + QStringLiteral("many.dbs");
    survey.write(manyPath, [&] {
        SequentialWriter file;
        writeItem(file, many.answers());
        return file.bytes();
    }());
    EXPECT_EQ(openItem(survey.varn, manyPath).kinds().size(), MostInputKinds);
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
    EXPECT_EQ(openItem(survey.varn, path).localities(), 201);
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

TEST(LocalityMap, LocalitiesAreFoundOnPaperThatHoldsThemAll)
{
    TestSurvey survey;
    survey.varn.LocXY(3, 0) = -300; // left of all lines
    LocalityMap map;
    map.draw(survey.varn);
    ASSERT_EQ(map.localities(), 3);
    const QRectF paper(0, 0, map.surface().Width, map.surface().Height);
    for (int i = 1; i <= 3; ++i) {
        EXPECT_TRUE(paper.contains(map.position(i))) << i;
        EXPECT_EQ(map.nearest(map.position(i) + QPointF(20, -20)), i);
    }
    const double scale = (map.position(2).x() - map.position(1).x()) / 200;
    EXPECT_NEAR(map.position(2).y() - map.position(1).y(), 200 * scale, 0.1);
    EXPECT_NEAR(map.position(1).x() - map.position(3).x(), 400 * scale, 0.1);
    EXPECT_EQ(operationsOf<PolylineOperation>(map.surface().drawing()).size(), 1U);

    survey.varn.NLine = 0;
    map.draw(survey.varn);
    EXPECT_EQ(map.nearest(map.position(2)), 2) << "a map without lines";
    survey.varn.NLocality = 0;
    map.draw(survey.varn);
    EXPECT_EQ(map.nearest({0, 0}), 0) << "a map without anything";
}
