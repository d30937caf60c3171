#include "lingdata/ItemEditor.h"

#include "lingdata/InputKindsFile.h"
#include "tests/support/EnteredWords.h"
#include "tests/support/TestDrive.h"

namespace {

constexpr auto Subscript = ErrorNumber::SubscriptOutOfRange;

} // namespace

TEST(ItemEditor, CellsThatHoldNothingAreNoWordForms)
{
    const QStringList rows[] = {{"a", "  ", "\t", "a", ""}, {"", "", "", "", ""},
                                {"a", "", "b", "", ""},     {"", "", "", "", "e"},
                                {"\"\"", "a", "", "\"\""},  {"1", "2", "3", "4", " 5 "}};
    ItemEditor editor(6);
    for (int i = 1; i <= editor.localities(); ++i) {
        for (int j = 1; j <= rows[i - 1].size(); ++j) {
            set(editor, i, j, rows[i - 1][j - 1]);
            EXPECT_EQ(typedCell(cellText(editor.cell({i, j}))), editor.cell({i, j})) << i << ' ' << j;
        }
    }
    const ItemAnswers item = editor.answers();
    EXPECT_EQ(wordsText(6, [&](int i, int j) { return item.WordData(i, j); }), "a,a//a,b/e/,a/1,2,3,4, 5 ");
    QStringList list;
    for (int n = 1; n <= item.WordTotal; ++n) {
        list << QString("%1.%2=%3").arg(item.WordLocate(n)).arg(item.WordSub(n)).arg(item.WordList(n));
    }
    EXPECT_EQ(list.join(' '),
              "1.1=a 1.2=a 3.1=a 3.2=b 4.1=e 5.1= 5.2=a 5.3= 6.1=1 6.2=2 6.3=3 6.4=4 6.5= 5 ");
    EXPECT_EQ(item.WordCount(5), 3);
    EXPECT_EQ(editor.wordForms(), 13);
    EXPECT_EQ(editor.answeredLocalities(), 5);
    EXPECT_EQ(editor.wordsMissingInKinds().first(), "") << "an empty word form is a kind like any other";
}

TEST(ItemEditor, CellsOutsideTheItemRaise)
{
    ItemEditor editor(3);
    for (const CellPlace& place : {CellPlace{0, 1}, CellPlace{4, 1}, CellPlace{1, 0}, CellPlace{1, 6}}) {
        EXPECT_EQ(errorOf([&] { editor.setCell(place, "a"); }).number(), Subscript) << place.locality;
    }
    EXPECT_EQ(errorOf([] { ItemEditor(1001); }).number(), Subscript);
    EXPECT_EQ(errorOf([&] { editor.addLocalities(1001); }).number(), Subscript);
    EXPECT_FALSE(editor.isUnsaved());
}

TEST(ItemEditor, EveryRealChangeIsAStepThatCanBeUndone)
{
    const std::tuple<const char*, void (*)(ItemEditor&), const char*, std::optional<CellPlace>> rows[] = {
        {"the same word", [](ItemEditor& e) { set(e, 1, 1, "a"); }, "a//|a||", {}},
        {"another word", [](ItemEditor& e) { set(e, 1, 1, "A"); }, "A//|a||", {{1, 1}}},
        {"an empty word form", [](ItemEditor& e) { set(e, 2, 3, "\"\""); }, "a/,,\"\"/|a||", {{2, 3}}},
        {"an empty cell emptied", [](ItemEditor& e) { set(e, 1, 2, " "); }, "a//|a||", {}},
        {"a block",
         [](ItemEditor& e) {
             e.paste(readBlock("b\t\tc\nd"), CellPlace{2, 3});
         },
         "a/,,b,,c/,,d|a||",
         {{2, 3}}},
        {"the same caption", [](ItemEditor& e) { e.setCaption(""); }, "a//|a||", {}},
        {"a comment", [](ItemEditor& e) { e.setComment("c"); }, "a//|a||c", {}},
        {"a kind that is there", [](ItemEditor& e) { e.addKind("a"); }, "a//|a||", {}},
        {"a new kind", [](ItemEditor& e) { e.addKind("A"); }, "a//|a,A||", {}},
        {"nothing collected", [](ItemEditor& e) { e.collectKinds(); }, "a//|a||", {}},
        {"a kind removed", [](ItemEditor& e) { e.removeKind(0); }, "a//|||", {}},
        {"more localities", [](ItemEditor& e) { e.addLocalities(5); }, "a////|a||", {}},
        {"fewer localities", [](ItemEditor& e) { e.addLocalities(2); }, "a//|a||", {}}};
    for (const auto& [what, change, entered, place] : rows) {
        SCOPED_TRACE(what);
        ItemEditor editor(editorWith({"a", {}, {}}).answers(), {"a"});
        const QString before = enteredText(editor);
        change(editor);
        const bool changed = entered != before;
        EXPECT_EQ(enteredText(editor), entered);
        EXPECT_EQ(editor.isUnsaved(), changed);
        EXPECT_EQ(editor.canUndo(), changed);
        EXPECT_EQ(editor.undo(), place);
        EXPECT_EQ(enteredText(editor), before);
        EXPECT_FALSE(editor.isUnsaved() || editor.canUndo());
        EXPECT_EQ(editor.redo(), place);
        EXPECT_EQ(enteredText(editor), entered);
    }
}

TEST(ItemEditor, StepsGoBackBeyondWhatIsSaved)
{
    ItemEditor editor(2);
    for (const char* typed : {"r", "", "r", "ra", "rain"}) {
        editor.setCaption(typed);
        EXPECT_EQ(editor.canUndo(), editor.caption() != "");
    }
    editor.markSaved();
    editor.setCaption("rainy");
    editor.setComment("c");
    const std::pair<const char*, bool> undone[] = {{"/||rainy|", true}, {"/||rain|", false}, {"/|||", true}};
    for (const auto& [entered, unsaved] : undone) {
        editor.undo();
        EXPECT_EQ(enteredText(editor), entered) << "typing is one step";
        EXPECT_EQ(editor.isUnsaved(), unsaved) << entered;
    }
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
    const std::tuple<const char*, CellPlace, const char*> rows[] = {
        {"a\ta\na\ta", {2, 4}, "1/2,,,a,a/3,,,a,a|||"},
        {"a\t\n\t", {2, 4}, "1/2,,,a/3|||"},
        {"a\ta\ta", {2, 4}, nullptr},
        {"a\na\na", {2, 1}, nullptr},
        {"a\ta\t\na\n\n\t\t", {2, 4}, "1/2,,,a,a/3,,,a,old|||"}, // blank cells beyond need no room
        {"a\n\n\t\"\"", {2, 1}, nullptr}};
    for (const auto& [text, first, after] : rows) {
        ItemEditor editor = editorWith({"1", "2", "3"});
        set(editor, 3, 5, "old");
        const WordBlock block = readBlock(text);
        EXPECT_EQ(editor.hasRoomFor(block, first), after != nullptr) << text;
        if (after != nullptr) {
            editor.paste(block, first);
        } else {
            const auto paste = [&, place = first] { editor.paste(block, place); };
            EXPECT_EQ(errorOf(paste).number(), Subscript) << text;
        }
        EXPECT_EQ(enteredText(editor), after != nullptr ? after : "1/2/3,,,,old|||") << text;
    }
}

TEST(WordBlock, BlocksAreReadAsSpreadsheetsCopyThem)
{
    const auto shown = [](const WordBlock& block) {
        QString text;
        for (const auto& row : block) {
            for (const WordCell& cell : row) {
                text += cell ? '<' + *cell + '>' : QString('-');
            }
            text += '/';
        }
        return text;
    };
    const std::pair<QString, const char*> rows[] = {
        {"a\tb\r\nc\td\r\n", "<a><b>/<c><d>/"},
        {"", ""},
        {"a\t\n\t\n\n\tb", "<a>-/--/-/-<b>/"},
        {" a b \t\u00a0 \t  c", "<a b>-<c>/"},
        {"\"two\r\nlines\"\t\"a\tb \"\n\" \n \"\r\n", "<two lines><a b>/-/"},
        {"\"say \"\"a\"\"\"\t\"\"\tb", "<say \"a\"><><b>/"},
        {"\"a\" b\t\"c\n\"\"\"\"\"\"", "<\"a\" b><\"c>/<>/"}, // quotes that enclose no cell stay
    };
    for (const auto& [text, expected] : rows) {
        const WordBlock block = readBlock(text);
        EXPECT_EQ(shown(block), expected) << qPrintable(text);
        EXPECT_EQ(shown(readBlock(blockText(block))), expected) << "what is copied";
    }
    EXPECT_EQ(blockText({{"a\nb", std::nullopt}, {QString(), "c"}}), "\"a\nb\"\t\n\"\"\tc\n");
}

TEST(ItemEditor, KindsAreCollectedBehindThoseThatAreThereUpToTheCapacity)
{
    ItemEditor editor = editorWith({"c", "b", "", "c", "B", "z"});
    editor.addKind("z");
    editor.addKind("not in the data");
    editor.collectKinds();
    editor.removeKind(0);
    EXPECT_EQ(enteredText(editor), "c/b//c/B/z|not in the data,B,b,c||");

    ItemEditor full = editorWith(numbered(MostInputKinds));
    full.collectKinds();
    full.addKind("w1");
    EXPECT_EQ(errorOf([&] { full.addKind("x"); }).number(), Subscript);
    set(full, 1, 2, "x");
    EXPECT_EQ(errorOf([&] { full.collectKinds(); }).number(), Subscript);
    EXPECT_EQ(full.kinds().size(), MostInputKinds);
}

TEST(ItemEditor, IllegalCodesAreFoundWhereTheyStand)
{
    const QStringList words = {"plain", R"(a\A1b\:\Z2)", R"(\B9)",   R"(a\Q1x)", R"(a\a1)",     R"(\A7)",
                               R"(a\)", R"(a\A)",        R"(\A\A1)", R"(\\A1)",  R"(\A1\A1\E)", R"(\1A1)"};
    QStringList found;
    for (const FaultyWord& faulty : editorWith(words).checkCodes()) {
        EXPECT_EQ(faulty.word, words[faulty.place.locality - 1]);
        found << faulty.word + ": " + faultText(faulty.fault);
    }
    EXPECT_EQ(found,
              QStringList({R"(a\Q1x: \Q1 is in no code)", R"(a\a1: \a1 is in no code)",
                           R"(\A7: \A7 is in no code)", R"(a\: \ is cut short)", R"(a\A: \A is cut short)",
                           R"(\A\A1: \A is cut short)", R"(\\A1: \ is cut short)",
                           R"(\A1\A1\E: \E is cut short)", R"(\1A1: \1A is in no code)"}));
}
