#include "symbols/SymbolEditor.h"

#include "platform/StandardColors.h"
#include "render/SymbolSample.h"
#include "symbols/SymbolFile.h"
#include "symbols/forms/SymbolPreview.h"
#include "tests/support/TestDrive.h"

namespace {

/// Fields of a record with the kind `word` and the symbol `number`, all else as for a new record.
HankoFields fieldsOf(const QString& word, const QString& number)
{
    HankoFields fields = SymbolEditor::NewData(QString());
    fields.word = word;
    fields.number = number;
    return fields;
}

/// Registers `count` records "k1", "k2", ... with symbols 1, 2, ... and ends at the last one.
void fill(SymbolEditor& editor, int count)
{
    HankoFields fields = editor.start();
    for (int k = 1; k <= count; ++k) {
        if (k > 1) {
            editor.next(fields);
        }
        fields = editor.registerRecord(fieldsOf(QStringLiteral("k%1").arg(k), QString::number(k)));
    }
}

/// "k1 k2 ...", the kinds of the set.
QString kinds(const SymbolSet& set)
{
    QStringList words;
    for (int k = 1; k <= set.NHanrei; ++k) {
        words << set.HankoWord(k);
    }
    return words.join(QLatin1Char(' '));
}

/// A set of three records and its editor at the last one.
class ThreeRecords : public testing::Test
{
protected:
    ThreeRecords()
    {
        fill(editor, 3);
        fields = editor.GetData();
    }

    SymbolSet set;
    SymbolEditor editor{set};
    HankoFields fields;
};

} // namespace

TEST(SymbolEditor, BlanksAreTakenFromTheRightEndOnly)
{
    const std::pair<QString, QString> rows[] = {{QStringLiteral("  a b  "), QStringLiteral("  a b")},
                                                {QStringLiteral("   "), QString()},
                                                {QString(), QString()},
                                                {QStringLiteral("a\t "), QStringLiteral("a\t")}};
    for (const auto& [text, stripped] : rows) {
        EXPECT_EQ(DelBlankChar(text), stripped);
    }
}

TEST(SymbolEditor, RecordsAreEnteredOneAfterTheOther)
{
    SymbolSet set;
    SymbolEditor editor(set);
    HankoFields fields = editor.start();
    EXPECT_EQ(editor.counter(), QStringLiteral("1/New"));
    editor.next(fields);
    editor.registerRecord(fields);
    EXPECT_EQ(editor.counter(), QStringLiteral("1/New")) << "a record without a kind does not count";

    fields.word = QStringLiteral(" ame  ");
    fields.caption = QStringLiteral("Ame ");
    fields.number = QStringLiteral("2.5");
    fields.Explain = QStringLiteral("a comment");
    editor.registerRecord(fields);
    EXPECT_EQ(editor.counter(), QStringLiteral("1/1"));
    EXPECT_EQ(set.HankoWord(1), QStringLiteral(" ame"));
    EXPECT_EQ(set.HankoCaption(1), QStringLiteral("Ame"));
    EXPECT_EQ(set.Hanko(1), (HankoStyle{2, 0, 0, 0, 1, 1}));
    EXPECT_EQ(set.Explain, QStringLiteral("a comment"));
    EXPECT_TRUE(isSymbolSetUnsaved(set));

    fields = editor.next(fields).value();
    EXPECT_EQ(editor.counter(), QStringLiteral("2/New"));
    HankoFields blank = fieldsOf(QString(), QString());
    blank.Explain = QStringLiteral("a comment");
    EXPECT_EQ(fields, blank);
    fields.word = QStringLiteral("lost");
    editor.next(fields);
    EXPECT_EQ(editor.counter(), QStringLiteral("2/New")) << "a new record must be registered first";
    fields = editor.previous(fields);
    EXPECT_EQ(fields.word, QStringLiteral(" ame"));
    editor.previous(fields);
    EXPECT_EQ(editor.counter(), QStringLiteral("1/1"));
}

TEST(SymbolEditor, ASymbolNumberCarriesOneStyle)
{
    SymbolSet set;
    SymbolEditor editor(set);
    fill(editor, 4);
    const HankoStyle first{7, 1, 2, 1, 0, 2};
    const HankoStyle last{7, 3, 99, 5, 2, -1};
    set.Hanko(1) = first;
    set.Hanko(2) = last; // two styles of one number, as a file may have them
    HankoFields fields = fieldsOf(QStringLiteral("k3"), QStringLiteral("7"));
    fields.style.LineColor = 12;
    set.CurrentHanko = 3;
    fields = editor.registerRecord(fields);
    EXPECT_EQ(set.Hanko(3), (HankoStyle{7, 3, 0, 1, 2, 0})) << "the last earlier one, as the lists show it";
    EXPECT_EQ(fields.style, set.Hanko(3));

    const HankoStyle own{7, 14, 13, 0, 2, 0};
    fields.style = own;
    set.CurrentHanko = 1;
    editor.registerRecord(fields);
    EXPECT_EQ(set.Hanko(1), own) << "later records do not count";
}

TEST_F(ThreeRecords, ANumberTooLargeStoresNothing)
{
    fields.word = QStringLiteral("other");
    fields.number = QStringLiteral("40000");
    EXPECT_EQ(errorOf([&] { editor.registerRecord(fields); }).number(), ErrorNumber::Overflow);
    EXPECT_EQ(kinds(set), QStringLiteral("k1 k2 k3"));
}

TEST_F(ThreeRecords, InsertingShiftsTheRecordsBehind)
{
    set.HankoCaption(3) = QStringLiteral("caption 3");
    set.SavedRecords.keep(set);
    EXPECT_EQ(editor.insertRecord(4, QString()), std::nullopt);
    EXPECT_FALSE(isSymbolSetUnsaved(set));
    editor.insertRecord(2, QString());
    EXPECT_EQ(kinds(set), QStringLiteral("k1  k2 k3"));
    EXPECT_EQ(editor.counter(), QStringLiteral("2/4"));
    EXPECT_EQ(set.Hanko(2), (HankoStyle{0, 0, 0, 0, 1, 1}));
    EXPECT_EQ(set.Hanko(3).HankoNo, 2);
    EXPECT_EQ(set.HankoCaption(4), QStringLiteral("caption 3"));
    EXPECT_EQ(editor.lastShown(), 4);
    EXPECT_TRUE(isSymbolSetUnsaved(set));
    editor.deleteRecord(2);
    EXPECT_FALSE(isSymbolSetUnsaved(set)) << "taken back; what stands behind the set is no work";
}

TEST_F(ThreeRecords, InsertingAtZeroMakesTheScratchRecordCurrent)
{
    set.HankoWord(0) = QStringLiteral("scratch");
    fields = editor.insertRecord(0, QString()).value();
    EXPECT_EQ(editor.counter(), QStringLiteral("0/3"));
    EXPECT_EQ(set.HankoWord(0), QString());
    EXPECT_EQ(kinds(set), QStringLiteral("k1 k2 k3"));
    EXPECT_EQ(errorOf([&] { editor.previous(fields); }).number(), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(editor.counter(), QStringLiteral("0/3"));
    fields.word = QStringLiteral("on");
    fields = editor.next(fields).value();
    EXPECT_EQ(fields.word, QStringLiteral("k1"));
}

TEST_F(ThreeRecords, DeletingClosesTheGapAndLeavesTheLastBehind)
{
    editor.deleteRecord(0);
    editor.deleteRecord(4);
    EXPECT_EQ(kinds(set), QStringLiteral("k1 k2 k3"));
    editor.deleteRecord(1);
    EXPECT_EQ(kinds(set), QStringLiteral("k2 k3"));
    EXPECT_EQ(set.Hanko(1).HankoNo, 2);
    EXPECT_EQ(set.HankoWord(3), QStringLiteral("k3"));
    EXPECT_EQ(editor.counter(), QStringLiteral("3/New"));
    EXPECT_EQ(editor.lastShown(), 2);
    editor.deleteRecord(2);
    editor.deleteRecord(1);
    EXPECT_EQ(set.NHanrei, 0);
    EXPECT_LT(editor.lastShown(), editor.firstShown());

    fields = fieldsOf(QStringLiteral("new"), QStringLiteral("9"));
    editor.registerRecord(fields);
    EXPECT_EQ(kinds(set), QStringLiteral("k2")) << "stored as record 3; what was left at 1 counts again";
}

TEST_F(ThreeRecords, NegativeNumbersAreErrorsThatChangeNothing)
{
    for (const int n : {-1, -32768}) {
        EXPECT_EQ(errorOf([&] { editor.insertRecord(n, QString()); }).number(),
                  ErrorNumber::SubscriptOutOfRange);
        EXPECT_EQ(errorOf([&] { editor.deleteRecord(n); }).number(), ErrorNumber::SubscriptOutOfRange);
    }
    EXPECT_EQ(kinds(set), QStringLiteral("k1 k2 k3"));
    EXPECT_EQ(editor.counter(), QStringLiteral("3/3"));
}

TEST_F(ThreeRecords, InitializingEmptiesTheSetDownToRecordZero)
{
    set.Explain = QStringLiteral("a comment");
    set.HankoWord(0) = QStringLiteral("scratch");
    fields = editor.initialize();
    EXPECT_EQ(editor.counter(), QStringLiteral("0/0"));
    EXPECT_EQ(fields.word, QStringLiteral("scratch"));
    EXPECT_EQ(fields.Explain, QString());
    EXPECT_EQ(set.HankoWord(2), QString());
    EXPECT_EQ(set.Hanko(3), HankoStyle{});

    fields.word = QStringLiteral("ame");
    editor.registerRecord(fields);
    EXPECT_EQ(set.NHanrei, 0) << "record 0 does not count";
    editor.next(fields);
    EXPECT_EQ(editor.counter(), QStringLiteral("1/New"));
}

TEST(SymbolEditor, AHundredRecordsAreTheMost)
{
    SymbolSet set;
    SymbolEditor editor(set);
    fill(editor, 100);
    EXPECT_EQ(editor.counter(), QStringLiteral("100/100"));
    HankoFields fields = editor.GetData();
    EXPECT_EQ(editor.next(fields), std::nullopt);
    EXPECT_EQ(errorOf([&] { editor.insertRecord(50, QString()); }).number(),
              ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(set.NHanrei, 100);
    EXPECT_EQ(set.HankoWord(50), QStringLiteral("k50"));
    EXPECT_EQ(set.CurrentHanko, 100);
    fields.word.clear();
    EXPECT_EQ(editor.next(fields), std::nullopt) << "told whatever the kind is";
}

TEST(SymbolEditor, PreviewShowsTheLastTwentyAndScrolls)
{
    SymbolSet set;
    SymbolEditor editor(set);
    using Range = std::pair<int, int>;
    const auto shown = [&editor] { return Range(editor.firstShown(), editor.lastShown()); };
    fill(editor, 19);
    EXPECT_EQ(shown(), Range(1, 19));
    editor.scrollUp();
    editor.scrollDown();
    EXPECT_EQ(shown(), Range(1, 19));
    fill(editor, 25);
    EXPECT_EQ(shown(), Range(6, 25));
    for (int i = 0; i < 4; ++i) {
        editor.scrollUp();
    }
    EXPECT_EQ(shown(), Range(2, 21));
    editor.scrollUp();
    editor.scrollUp();
    EXPECT_EQ(shown(), Range(1, 20));
    for (int i = 0; i < 9; ++i) {
        editor.scrollDown();
    }
    EXPECT_EQ(shown(), Range(6, 25));
}

TEST(SymbolFileNames, EndingIsNotDoubledAndFoldersAreNotLeft)
{
    Folders folders;
    folders.LingFolder = QStringLiteral("\\Ling");
    const QString path = folders.VarnPath + QStringLiteral("\\Ling\\a.b.han");
    for (const char* name : {"a.b", "a.b.han", "a.b.HAN"}) {
        EXPECT_EQ(symbolFilePath(folders, QLatin1String(name)), path) << name;
    }
    for (const char* name : {"..\\a", "a/b", "c:a", "a?"}) {
        EXPECT_EQ(errorOf([&] { symbolFilePath(folders, QLatin1String(name)); }).number(),
                  ErrorNumber::BadFileName)
            << name;
    }
}

namespace {

/// A preview of the records of a map.
class SymbolPreview : public testing::Test
{
protected:
    SymbolPreview()
    {
        surface.Width = 6000;
        surface.Height = smallestPreviewHeight();
    }

    void add(const QString& word, const QString& caption, const HankoStyle& hanko)
    {
        const int k = ++survey.varn.NHanrei;
        survey.varn.HankoWord(k) = word;
        survey.varn.HankoCaption(k) = caption;
        survey.varn.Hanko(k) = hanko;
    }

    TestSurvey survey;
    DrawSurface surface;
};

} // namespace

TEST_F(SymbolPreview, RowsAndColumnsDoNotCollide)
{
    const QString longKind = QString(60, QLatin1Char('w'));
    for (int k = 1; k <= 20; ++k) {
        add(k == 7 ? longKind : QStringLiteral("kind %1").arg(k), QStringLiteral("caption %1").arg(k),
            {49, 4, 0, 0, 1, 1});
    }
    surface.FontSize = 30;
    const float end = DisplayHanrei(survey.varn, 1, 20, surface);
    const std::vector<EllipseOperation> symbols = operationsOf<EllipseOperation>(surface.drawing());
    ASSERT_EQ(symbols.size(), 20U);
    for (std::size_t k = 1; k < symbols.size(); ++k) {
        EXPECT_GE(symbols[k].y, symbols[k - 1].y + surface.TextHeight()) << k;
        EXPECT_EQ(symbols[k].x, symbols[0].x);
    }
    EXPECT_LE(symbols.back().y + surface.TextHeight() / 2, surface.Height);
    const QPointF kind = printedAt(surface.drawing(), longKind);
    const QPointF caption = printedAt(surface.drawing(), QStringLiteral("caption 7"));
    EXPECT_LT(symbols[0].x + 150, kind.x()) << "the largest circle";
    EXPECT_EQ(kind.y(), caption.y());
    EXPECT_GT(caption.x(), kind.x() + surface.TextWidth(longKind));
    EXPECT_GT(end, caption.x() + surface.TextWidth(QStringLiteral("caption 7")));
    EXPECT_EQ(printedAt(surface.drawing(), QStringLiteral("caption 20")).x(), caption.x());

    DisplayHanrei(survey.varn, 5, 5, surface);
    EXPECT_EQ(operationsOf<EllipseOperation>(surface.drawing()).size(), 1U) << "cleared first";
    EXPECT_TRUE(wasPrinted(surface.drawing(), QStringLiteral("5")));
    DisplayHanrei(survey.varn, 1, 0, surface);
    EXPECT_TRUE(surface.drawing().operations.empty());
}

TEST_F(SymbolPreview, CodedWordsAreLettersAndFaultyOnesStayAsWritten)
{
    const QString glyph = QStringLiteral("C:\\Varn62E\\Varn\\VarnSymbol\\Standard16\\Symbol1.bmp");
    QImage picture(8, 16, QImage::Format_RGB32);
    picture.fill(Qt::black);
    for (int number = 1; number <= 38; ++number) {
        QString path = survey.drive().hostPath(glyph).replace(QStringLiteral("Symbol1."),
                                                              QStringLiteral("Symbol%1.").arg(number));
        QDir().mkpath(QFileInfo(path).path());
        ASSERT_TRUE(picture.save(path));
    }
    add(QStringLiteral("a\\E1b"), QStringLiteral("plain"), {1, 0, 0, 0, 1, 1});
    add(QStringLiteral("a\\Zxb"), QString(), {1, 0, 0, 0, 1, 1});
    DisplayHanrei(survey.varn, 1, 2, surface);
    EXPECT_EQ(operationsOf<PictureOperation>(surface.drawing()).size(), 1U);
    EXPECT_TRUE(wasPrinted(surface.drawing(), QStringLiteral("b")));
    EXPECT_TRUE(wasPrinted(surface.drawing(), QStringLiteral("a\\Zxb")));
}

TEST_F(SymbolPreview, SymbolsThatCannotBeDrawnAreMarked)
{
    const HankoStyle rows[] = {
        {161, 0, 0, 0, 1, 1}, {-1, 0, 0, 0, 1, 1}, {49, 16, 0, 0, 1, 1}, {49, 0, -1, 0, 1, 1}};
    for (const HankoStyle& hanko : rows) {
        EXPECT_FALSE(canDraw(hanko, survey.varn));
        survey.varn.NHanrei = 0;
        add(QStringLiteral("k"), QString(), hanko);
        DisplayHanrei(survey.varn, 1, 1, surface);
        EXPECT_TRUE(wasPrinted(surface.drawing(), QStringLiteral("?")));
    }
    for (const HankoStyle& hanko : {HankoStyle{160, 0, 0, 0, 1, 1}, HankoStyle{49, 15, 15, 7, 9, -4}}) {
        EXPECT_TRUE(canDraw(hanko, survey.varn));
    }
}
