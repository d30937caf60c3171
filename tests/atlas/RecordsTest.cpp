// What symbol records mark, and how they are edited.

#include "atlas/AtlasDocument.h"
#include "atlas/RecordCounts.h"
#include "atlas/RecordEdits.h"
#include "tests/support/TestDrive.h"

namespace {

/// The answers "a,b" of locality 1, "b" of locality 2 and so on.
ItemAnswers answers(const QStringList& localities)
{
    ItemAnswers item;
    item.NLocate = static_cast<qint16>(localities.size());
    for (int i = 1; i <= item.NLocate; ++i) {
        setLocalityWords(item, i, localities[i - 1].split(',', Qt::SkipEmptyParts));
    }
    return item;
}

/// Records of these kinds with captions in capitals; the symbol of each has its number.
SymbolRecords recordsOf(const QStringList& kinds)
{
    SymbolRecords records;
    for (const QString& kind : kinds) {
        const int k = ++records.NHanrei;
        records.HankoWord(k) = kind;
        records.HankoCaption(k) = kind.toUpper();
        records.Hanko(k) = {static_cast<qint16>(k), 1, 2, 0, 1, 1};
    }
    return records;
}

QString kindsOf(const SymbolRecords& records)
{
    QStringList kinds;
    for (int k = 1; k <= records.NHanrei; ++k) {
        kinds << records.HankoWord(k);
    }
    return kinds.join(',');
}

/// "word forms/localities" of each record, and of each word form the numbers of the records that mark it.
QString text(const RecordCounts& counts)
{
    QStringList parts;
    for (const RecordCount& record : counts.records) {
        parts << QStringLiteral("%1/%2").arg(record.words.size()).arg(record.localities.size());
    }
    for (const std::vector<int>& numbers : counts.marks) {
        QString marks;
        for (const int k : numbers) {
            marks += QString::number(k);
        }
        parts << marks;
    }
    return parts.join(' ');
}

class TurnedAtlas : public testing::Test, protected TestSurvey
{
protected:
    TurnedAtlas()
    {
        write(ling("made.dbs"), "1,\"\",\"Made\",\"\"\r\n2\r\n\"ame\"\r\n\"ame no\"\r\n");
        write(ling("own.dbs"), "1,\"\",\"Own\",\"\"\r\n1\r\n\"ame\"\r\n");
        write(ling("made.han"),
              "\"Made for whole word forms: choose \"\"Whole Word Forms\"\" before drawing.\""
              "\r\n1\r\n\"ame\",\"AME\"\r\n1\r\n1\r\n2\r\n1\r\n0\r\n2\r\n");
        write(ling("own.han"), "\"\"\r\n1\r\n\"ame\",\"AME\"\r\n1\r\n1\r\n2\r\n1\r\n0\r\n2\r\n");
    }

    static QString ling(const char* file)
    {
        return QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Ling\\") + QLatin1String(file);
    }

    AtlasDocument document{varn};
};

} // namespace

TEST(RecordCounts, WordFormsComeByTheirLocalities)
{
    const std::vector<AnsweredWord> words = answeredWords(answers({"a,b,b", "", "c,b", "c,a"}));
    QStringList rows;
    for (const AnsweredWord& word : words) {
        rows << word.word;
        for (const int i : word.localities) {
            rows.last() += QString::number(i);
        }
    }
    EXPECT_EQ(rows.join(' '), "a14 b13 c34");
    EXPECT_TRUE(answeredWords({}).empty());
}

TEST(RecordCounts, RecordsMarkWhatContainsTheirKindOrEqualsIt)
{
    RecordCounter counter(answeredWords(answers({"ame,ame no", "ame", "uyu", "yuki,uyu"})));
    // the word forms: ame, uyu, ame no, yuki
    struct
    {
        QStringList kinds;
        bool whole;
        const char* counts;
        std::size_t unmarked;
        std::size_t twice;
    } const rows[] = {
        {{"ame", "no", "yu"}, false, "2/2 1/1 2/2 1 3 12 3", 0, 1},
        {{"ame", "no", "uyu"}, true, "1/2 0/0 1/2 1 3  ", 2, 0},
        {{"", "ame"}, true, "3/3 1/2 2 1 1 1", 0, 0},
        {{"", "uyu"}, true, "3/3 1/2 1 2 1 1", 0, 0},
        {{"", "ame"}, false, "4/4 2/2 12 1 12 1", 0, 2},
        {{}, false, "   ", 4, 0},
    };
    for (const auto& row : rows) {
        const RecordCounts counts = counter.count(recordsOf(row.kinds), row.whole);
        EXPECT_EQ(text(counts), row.counts) << qPrintable(row.kinds.join(','));
        EXPECT_EQ(counts.unmarked().size(), row.unmarked);
        EXPECT_EQ(counts.markedTwice().size(), row.twice);
    }
}

TEST(RecordEdits, RecordsMoveTogetherAndKeepTheirOrder)
{
    const SymbolRecords records = recordsOf({"a", "b", "c", "d", "e"});
    const std::tuple<RecordNumbers, int, const char*, RecordNumbers> rows[] = {
        {{1}, 3, "b,a,c,d,e", {2}},       {{5}, 1, "e,a,b,c,d", {1}},
        {{2, 4}, 6, "a,c,e,b,d", {4, 5}}, {{2, 4}, 1, "b,d,a,c,e", {1, 2}},
        {{1, 5}, 3, "b,a,e,c,d", {2, 3}}, {{2}, 2, "a,b,c,d,e", {2}},
        {{2}, 3, "a,b,c,d,e", {2}},       {{1, 2, 3, 4, 5}, 4, "a,b,c,d,e", {1, 2, 3, 4, 5}}};
    for (const auto& [numbers, before, order, moved] : rows) {
        const SymbolRecords result = withRecordsMoved(records, numbers, before);
        EXPECT_EQ(kindsOf(result), order);
        EXPECT_EQ(numbersMoved(numbers, before), moved) << order;
        const int k = *moved.begin();
        EXPECT_EQ(result.HankoCaption(k), result.HankoWord(k).toUpper());
        EXPECT_EQ(result.Hanko(k).HankoNo, *numbers.begin());
    }
    EXPECT_EQ(kindsOf(withoutRecords(records, {1, 4})), "b,c,e");
}

TEST(RecordEdits, OneSymbolForSeveralIsOneRowOfTheLegend)
{
    SymbolRecords records = recordsOf({"a", "b", "c", "d"});
    records = withSameSymbol(records, {2, 4});
    EXPECT_EQ(records.HankoCaption(2), "B");
    EXPECT_EQ(records.HankoCaption(4), "-B");
    EXPECT_EQ(records.Hanko(4), records.Hanko(2));
    records = withSameSymbol(records, {3, 4}); // d joins another one
    EXPECT_EQ(records.HankoCaption(4), "-C");
    records = withSameSymbol(records, {1, 4});
    records = withSameSymbol(records, {3, 4});
    EXPECT_EQ(records.HankoCaption(4), "-C") << "one hyphen";
    EXPECT_EQ(records.HankoCaption(1), "A");
}

TEST(RecordEdits, ANewRecordHasASymbolOfItsOwnAndARowInTheLegend)
{
    SymbolRecords records;
    std::set<std::tuple<qint16, qint16, qint16, qint16, qint16, qint16>> symbols;
    for (int k = 1; k <= MostRecords; ++k) {
        records = withRecord(records, "a-" + QString::number(k) + ' ', 2);
        const HankoStyle& style = records.Hanko(k);
        symbols.insert({style.HankoNo, style.LineColor, style.PaintColor, style.PaintOn, style.SymbolSize,
                        style.LineThick});
    }
    EXPECT_EQ(records.HankoWord(100), "a-100");
    EXPECT_EQ(records.HankoCaption(100), QStringLiteral("a\u2010100"));
    EXPECT_EQ(symbols.size(), 100U);
    EXPECT_EQ(errorOf([&] { withRecord(records, "b", 2); }).number(), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(records.NHanrei, 100);
}

TEST_F(TurnedAtlas, MadeSymbolsAreForWholeWordFormsAndOthersAreNot)
{
    document.turnTo(ling("made.dbs"));
    EXPECT_TRUE(varn.WholeWordForms);
    document.turnTo(ling("own.dbs"));
    EXPECT_FALSE(varn.WholeWordForms);
    document.setSymbols(madeRecords(document.page().item, varn.Nsquare), "Make Symbols");
    EXPECT_TRUE(varn.WholeWordForms);
    document.steps().undo();
    EXPECT_FALSE(varn.WholeWordForms);
}

TEST_F(TurnedAtlas, AMadeSetOfAnotherFormIsForWholeWordFormsToo)
{
    document.turnTo(ling("own.dbs"));
    AtlasDocument other(varn);
    other.turnTo(ling("made.dbs"));
    varn.WholeWordForms = false;
    document.followSharedState();
    EXPECT_TRUE(varn.WholeWordForms);
    other.turnTo(ling("own.dbs"));
    varn.WholeWordForms = true;
    document.followSharedState();
    EXPECT_TRUE(varn.WholeWordForms) << "as the other form has it";
}

TEST_F(TurnedAtlas, AChoiceOfWholeWordFormsHoldsUntilAnotherPageIsShown)
{
    int shown = 0;
    document.turnTo(ling("own.dbs"));
    QObject::connect(&document, &AtlasDocument::symbolsChanged, &document, [&shown] { ++shown; });
    MapStyle whole = varn;
    whole.WholeWordForms = true;
    document.setMapStyle(whole);
    EXPECT_EQ(shown, 1);
    varn.WholeWordForms = false; // by the map form
    document.followSharedState();
    EXPECT_EQ(shown, 2);
    document.setMapStyle(whole);
    document.setSymbols(withCaption(document.page().symbols, 1, "Rain"), "Change Caption");
    EXPECT_TRUE(varn.WholeWordForms);
    document.turnTo(ling("made.dbs"));
    document.turnTo(ling("own.dbs"));
    EXPECT_FALSE(varn.WholeWordForms);
}
