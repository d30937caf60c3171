#include "lingdata/ItemEditor.h"

#include "lingdata/InputKindsFile.h"
#include "render/LocalityMap.h"
#include "tests/support/EnteredWords.h"
#include "tests/support/TestDrive.h"
#include "tests/support/Transcript.h"

namespace {

QStringList words(const ItemAnswers& item, int locality)
{
    QStringList found;
    for (int j = 1; j <= item.WordCount(locality); ++j) {
        found << item.WordData(locality, j);
    }
    return found;
}

/// All that is entered.
QStringList stateOf(const ItemEditor& editor)
{
    QStringList state = {editor.caption(), editor.comment(), editor.kinds().join('|')};
    for (const auto& row : editor.block({1, 1}, {editor.localities(), ItemEditor::MostWords})) {
        for (const WordCell& cell : row) {
            state << cellText(cell);
        }
    }
    return state;
}

} // namespace

TEST(ItemEditor, CellsThatHoldNothingAreNoWordForms)
{
    struct Row
    {
        QStringList typed;
        QStringList expected;
    };
    const QString empty = QStringLiteral("\"\"");
    const std::vector<Row> rows = {
        {{"a", "  ", "\t", "a", ""}, {"a", "a"}},
        {{"", "", "", "", ""}, {}},
        {{"a", "", "b", "", ""}, {"a", "b"}},
        {{"", "", "", "", "e"}, {"e"}},
        {{empty, "a", "", empty, ""}, {"", "a", ""}},
        {{"1", "2", "3", "4", " 5 "}, {"1", "2", "3", "4", " 5 "}},
    };
    ItemEditor editor(static_cast<qint16>(rows.size()));
    int total = 0;
    for (int i = 1; i <= editor.localities(); ++i) {
        const Row& row = rows[static_cast<std::size_t>(i - 1)];
        for (int j = 1; j <= ItemEditor::MostWords; ++j) {
            set(editor, i, j, row.typed[j - 1]);
            EXPECT_EQ(typedCell(cellText(editor.cell({i, j}))), editor.cell({i, j}));
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
    EXPECT_EQ(item.WordList(6), QString());
    EXPECT_EQ(item.WordLocate(6), 5);
    EXPECT_EQ(item.WordSub(6), 1);
    EXPECT_EQ(editor.wordsMissingInKinds().first(), QString())
        << "an empty word form is a kind like any other";
}

TEST(ItemEditor, CellsOutsideTheItemRaise)
{
    ItemEditor editor(3);
    for (const auto& [locality, column] :
         {std::pair(0, 1), std::pair(4, 1), std::pair(1, 0), std::pair(1, 6)}) {
        const auto fill = [&, i = locality, j = column] { set(editor, i, j, QStringLiteral("a")); };
        EXPECT_EQ(errorOf(fill).number(), ErrorNumber::SubscriptOutOfRange) << locality << ' ' << column;
    }
    EXPECT_EQ(errorOf([] { ItemEditor(1001); }).number(), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { editor.addLocalities(1001); }).number(), ErrorNumber::SubscriptOutOfRange);
    EXPECT_FALSE(editor.isUnsaved());
}

TEST(ItemEditor, EveryRealChangeIsAStepThatCanBeUndone)
{
    const QString a = QStringLiteral("a");
    struct Row
    {
        const char* what;
        std::function<void(ItemEditor&)> change;
        bool unsaved;
        std::optional<CellPlace> place;
    };
    const std::vector<Row> rows = {
        {"the same word", [&](ItemEditor& e) { set(e, 1, 1, a); }, false, {}},
        {"another word", [](ItemEditor& e) { set(e, 1, 1, QStringLiteral("A")); }, true, CellPlace{1, 1}},
        {"an empty word form",
         [](ItemEditor& e) {
             e.setCell({2, 3}, QString());
         },
         true, CellPlace{2, 3}},
        {"an empty cell emptied", [](ItemEditor& e) { set(e, 1, 2, QStringLiteral(" ")); }, false, {}},
        {"a block",
         [&](ItemEditor& e) {
             e.paste({{a, std::nullopt, a}, {a}}, {2, 3});
         },
         true, CellPlace{2, 3}},
        {"the same caption", [](ItemEditor& e) { e.setCaption(QString()); }, false, {}},
        {"a comment", [](ItemEditor& e) { e.setComment(QStringLiteral("c")); }, true, {}},
        {"a caption typed and taken back",
         [&](ItemEditor& e) {
             e.setCaption(a);
             e.setCaption({});
         },
         false,
         {}},
        {"a kind that is there", [&](ItemEditor& e) { e.addKind(a); }, false, {}},
        {"a new kind", [](ItemEditor& e) { e.addKind(QStringLiteral("A")); }, true, {}},
        {"nothing collected", [](ItemEditor& e) { e.collectKinds(); }, false, {}},
        {"a kind removed", [](ItemEditor& e) { e.removeKind(0); }, true, {}},
        {"more localities", [](ItemEditor& e) { e.addLocalities(7); }, true, {}},
        {"fewer localities", [](ItemEditor& e) { e.addLocalities(2); }, false, {}},
    };
    for (const Row& row : rows) {
        ItemEditor editor(editorWith({a, {}, {}}).answers(), {a});
        const QStringList before = stateOf(editor);
        row.change(editor);
        const QStringList after = stateOf(editor);
        EXPECT_EQ(editor.isUnsaved(), row.unsaved) << row.what;
        EXPECT_EQ(editor.canUndo(), row.unsaved) << row.what;
        EXPECT_EQ(after != before, row.unsaved) << row.what;
        EXPECT_EQ(editor.undo(), row.place) << row.what;
        EXPECT_EQ(stateOf(editor), before) << row.what;
        EXPECT_FALSE(editor.isUnsaved() || editor.canUndo()) << row.what;
        EXPECT_EQ(editor.redo(), row.place) << row.what;
        EXPECT_EQ(stateOf(editor), after) << row.what;
    }
}

TEST(ItemEditor, StepsGoBackBeyondWhatIsSaved)
{
    ItemEditor editor(2);
    for (const char* typed : {"r", "ra", "rain"}) {
        editor.setCaption(QLatin1String(typed));
    }
    editor.markSaved();
    editor.setCaption(QStringLiteral("rainy"));
    editor.setComment(QStringLiteral("c"));
    editor.undo();
    EXPECT_EQ(editor.caption(), QStringLiteral("rainy"));
    editor.undo();
    EXPECT_EQ(editor.caption(), QStringLiteral("rain"));
    EXPECT_FALSE(editor.isUnsaved());
    editor.undo();
    EXPECT_EQ(editor.caption(), QString()) << "typing is one step";
    EXPECT_TRUE(editor.isUnsaved());
    editor.redo();
    EXPECT_FALSE(editor.isUnsaved());
    for (const WordCell& word : {WordCell(QString()), WordCell()}) {
        editor.setCell({2, 1}, word);
        EXPECT_EQ(editor.isUnsaved(), word.has_value()) << "an edit taken back by hand";
    }
    EXPECT_TRUE(editor.canUndo());
    editor.markUnsaved();
    EXPECT_TRUE(editor.isUnsaved()) << "whatever it holds";
}

TEST(ItemEditor, BlocksArePastedWhereThereIsRoomForAllTheyHold)
{
    const WordCell a = QStringLiteral("a");
    struct Row
    {
        WordBlock block;
        CellPlace first;
        bool fits;
    };
    const std::vector<Row> rows = {
        {{{a, a}, {a, a}}, {2, 4}, true},
        {{{a, a, a}}, {2, 4}, false},
        {{{a}, {a}, {a}}, {2, 1}, false},
        {{{a, a, {}}, {a}, {}, {{}, {}, {}}}, {2, 4}, true}, // blank cells beyond need no room
        {{{a}, {}, {{}, QString()}}, {2, 1}, false},
    };
    for (const Row& row : rows) {
        ItemEditor editor = editorWith({"1", "2", "3"});
        set(editor, 3, 5, QStringLiteral("old"));
        const QStringList before = stateOf(editor);
        EXPECT_EQ(editor.hasRoomFor(row.block, row.first), row.fits);
        if (row.fits) {
            editor.paste(row.block, row.first);
            EXPECT_EQ(editor.cell({2, 5}), a);
            EXPECT_EQ(editor.cell({3, 5}), row.block[1].size() > 1 ? a : WordCell(QStringLiteral("old")));
        } else {
            EXPECT_EQ(errorOf([&] { editor.paste(row.block, row.first); }).number(),
                      ErrorNumber::SubscriptOutOfRange);
            EXPECT_EQ(stateOf(editor), before);
        }
    }
}

TEST(WordBlock, BlocksAreReadAsSpreadsheetsCopyThem)
{
    const auto shown = [](const WordBlock& block) {
        QStringList rows;
        for (const auto& row : block) {
            QStringList cells;
            for (const WordCell& cell : row) {
                cells << (cell ? '<' + *cell + '>' : QStringLiteral("-"));
            }
            rows << cells.join(' ');
        }
        return rows.join('/');
    };
    const std::pair<QString, QString> rows[] = {
        {"a\tb\r\nc\td\r\n", "<a> <b>/<c> <d>"},
        {"a", "<a>"},
        {"", ""},
        {"a\t\n\t\n\n\tb", "<a> -/- -/-/- <b>"},
        {" a b \t\u00a0 \t  c", "<a b> - <c>"},
        {"\"two\r\nlines\"\t\"a\tb \"\n\" \n \"\r\n", "<two lines> <a b>/-"},
        {"\"say \"\"a\"\"\"\t\"\"\tb", "<say \"a\"> <> <b>"},
        {"\"a\" b\t\"c\n\"\"\"\"\"\"", "<\"a\" b> <\"c>/<>"}, // quotes that enclose no cell stay
    };
    for (const auto& [text, expected] : rows) {
        const WordBlock block = readBlock(text);
        EXPECT_EQ(shown(block), expected) << qPrintable(text);
        EXPECT_EQ(shown(readBlock(blockText(block))), expected) << "what is copied";
    }
    EXPECT_EQ(blockText({{QStringLiteral("a\nb"), std::nullopt}, {QString(), QStringLiteral("c")}}),
              QStringLiteral("\"a\nb\"\t\n\"\"\tc\n"));
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
    set(editor, 1, 2, QStringLiteral("x"));
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
        set(editor, i, column, row.word);
        if (!row.code.isEmpty()) {
            expected.push_back({{i, column}, row.word, {row.code, row.cutShort}});
        }
    }
    EXPECT_EQ(editor.checkCodes(), expected);
}

TEST(LocalityMap, LocalitiesAreFoundOnPaperThatHoldsThemAll)
{
    TestSurvey survey;
    survey.varn.LocXY(3, 0) = -300; // left of all lines
    LocalityMap map;
    map.draw(survey.varn);
    ASSERT_EQ(map.localities(), 3);
    const auto dots = operationsOf<EllipseOperation>(map.surface().drawing());
    for (int i = 1; i <= 3; ++i) {
        const EllipseOperation& dot = dots.at(static_cast<std::size_t>(i - 1));
        EXPECT_EQ(map.position(i), QPointF(dot.x, dot.y)) << i;
        EXPECT_EQ(map.nearest(map.position(i) + QPointF(20, -20)), i);
    }
    EXPECT_FLOAT_EQ(map.surface().Width, 5883 + 150);
    EXPECT_FLOAT_EQ(map.surface().Height, 4560 + 150);
    EXPECT_EQ(transcript(map.surface().drawing()), R"(
line 1473,150 5883,150 5883,4560 1473,4560 1473,150 pen 1/0/1
ellipse 1914,1032 18,18 filled 0 pen 1/0/0
ellipse 2796,1914 18,18 filled 0 pen 1/0/0
ellipse 150,2798.2 18,18 filled 0 pen 1/0/0
)");

    survey.varn.NLine = 0;
    map.draw(survey.varn);
    EXPECT_EQ(map.nearest(map.position(2)), 2) << "a map without lines";
    survey.varn.NLocality = 0;
    map.draw(survey.varn);
    EXPECT_EQ(map.nearest({0, 0}), 0) << "a map without anything";
}
