#include "lingdata/ItemLoader.h"
#include "lingdata/KindList.h"
#include "lingdata/LinguisticFile.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestDrive.h"

#include <QFile>

#include <numeric>

namespace {

ItemAnswers itemFrom(const QByteArray& text)
{
    SequentialReader file(QString::fromUtf8(text));
    return readItem(file);
}

LinguisticData dataFrom(const QByteArray& text)
{
    LinguisticData data;
    static_cast<ItemAnswers&>(data) = itemFrom(text);
    return data;
}

/// A `.dbs` file whose localities have `perLocality` forms each, all different where `distinct` is set.
QByteArray itemText(int localities, int perLocality, bool distinct)
{
    QByteArray text = QByteArray::number(localities) + ",\"\",\"caption\",\"\"\r\n";
    int n = 0;
    for (int i = 0; i < localities; ++i) {
        text += QByteArray::number(perLocality) + "\r\n";
        for (int j = 0; j < perLocality; ++j) {
            text += "\"w" + QByteArray::number(distinct ? ++n : 0) + "\"\r\n";
        }
    }
    return text;
}

const QByteArray Small =
    "3,\"old\",\"Rain\",\"a \"\"comment\"\"\"\r\n2\r\n\"b\"\r\n\"a\"\r\n0\r\n2\r\n\"B\"\r\n\"b\"\r\n";

} // namespace

TEST(LinguisticFile, AnItemIsReadInLocalityOrder)
{
    const ItemAnswers item = itemFrom(Small);
    EXPECT_EQ(item.NLocate, 3);
    EXPECT_EQ(item.Komoku, QStringLiteral("old"));
    EXPECT_EQ(item.Comment, QStringLiteral("a \"comment\""));
    EXPECT_EQ(item.WordCount(2), 0);
    EXPECT_EQ(item.WordData(3, 1), QStringLiteral("B"));
    EXPECT_EQ(item.WordTotal, 4);
    EXPECT_EQ(item.WordList(4), QStringLiteral("b"));
    EXPECT_EQ(item.WordLocate(4), 3);
    EXPECT_EQ(item.WordSub(4), 2);
}

TEST(LinguisticFile, ItIsWrittenAsItIsReadButForTheItemField)
{
    SequentialWriter writer;
    writeItem(writer, itemFrom(Small));
    QByteArray expected = Small;
    EXPECT_EQ(writer.bytes(), expected.replace("\"old\"", "\"\""));
}

TEST(LinguisticFile, CapacitiesAreBounds)
{
    EXPECT_EQ(itemFrom(itemText(1000, 5, false)).WordTotal, 5000);
    const QByteArray rows[] = {itemText(1001, 1, false), itemText(1, 6, false), "1,\"\",\"\",\"\"\r\n-1\r\n",
                               "-5,\"\",\"\",\"\"\r\n"};
    for (const QByteArray& text : rows) {
        EXPECT_EQ(errorOf([&] { itemFrom(text); }).number(), ErrorNumber::SubscriptOutOfRange)
            << text.left(40).constData();
    }
    EXPECT_EQ(errorOf([] { itemFrom(Small.chopped(6)); }).number(), ErrorNumber::InputPastEndOfFile);
    LinguisticData data = dataFrom(itemText(67, 3, true)); // 201 kinds
    EXPECT_EQ(errorOf([&] { SearchKindWord(data); }).number(), ErrorNumber::SubscriptOutOfRange);
}

TEST(KindList, KindsAreCountedInOrderOfAppearanceAndThenSorted)
{
    LinguisticData data = dataFrom("3,\"\",\"\",\"\"\r\n1\r\n\"longest\"\r\n3\r\n\"ccc\"\r\n\"\"\r\n\"b\"\r\n"
                                   "2\r\n\"b\"\r\n\"B\"\r\n");
    SearchKindWord(data);
    EXPECT_EQ(data.NKind, 5);
    EXPECT_EQ(data.KindWord(2), QStringLiteral("ccc"));
    EXPECT_EQ(data.KindCount(4), 2);
    EXPECT_EQ(data.KindIndex(3, 1), 4);
    EXPECT_EQ(data.KindIndex(3, 3), 0);
    EXPECT_EQ(data.MaxKindLen, 3) << "the very first word form does not count";

    SortKindWord(data);
    QStringList words;
    int total = 0;
    for (int k = 1; k <= data.NKind; ++k) {
        words << data.KindWord(k);
        total += data.KindCount(k);
    }
    EXPECT_EQ(words, QStringList({QString(), QStringLiteral("B"), QStringLiteral("b"), QStringLiteral("ccc"),
                                  QStringLiteral("longest")}))
        << "binary order";
    EXPECT_EQ(total, data.WordTotal);
    EXPECT_EQ(data.KindIndex(3, 1), 4) << "still the order of appearance";
}

TEST(ItemLoader, TheKindsFileIsWrittenOnceAndReadFromThenOn)
{
    TestSurvey survey;
    VarnModule& varn = survey.varn;
    const QString item = varn.dataFolder() + QStringLiteral("\\rain.v2.dbs");
    const QString kinds = varn.dataFolder() + QStringLiteral("\\rain.v2.srt");
    survey.write(item, Small);
    LoadWordData(varn, item, varn, varn);
    EXPECT_EQ(varn.LoadState, 1);
    EXPECT_EQ(survey.read(kinds), "3\r\n\"B\",1\r\n\"a\",1\r\n\"b\",2\r\n");

    survey.write(kinds, "1\r\n\"edited\",7\r\n");
    LoadWordData(varn, item, varn, varn);
    EXPECT_EQ(varn.NKind, 1);
    EXPECT_EQ(varn.KindWord(1), QStringLiteral("edited"));
    EXPECT_EQ(varn.KindWord(2), QString());
}

TEST(ItemLoader, AKindsFileThatIsNoGoodIsNoObstacle)
{
    TestSurvey survey;
    VarnModule& varn = survey.varn;
    ScriptedDialogs dialogs;
    const QString item = varn.dataFolder() + QStringLiteral("\\rain.dbs");
    const QString kinds = varn.dataFolder() + QStringLiteral("\\rain.srt");
    survey.write(item, Small);
    LoadWordData(varn, item, varn, varn, dialogs);
    EXPECT_EQ(dialogs.shown.size(), 0U);
    for (const char* text : {"9\r\n\"x\",1\r\n", "1\r\n\"x\",y\r\n", "201\r\n", ""}) {
        survey.write(kinds, text);
        varn.NKind = 0;
        LoadWordData(varn, item, varn, varn, dialogs);
        EXPECT_EQ(varn.NKind, 3) << text;
        EXPECT_EQ(varn.KindWord(1), QStringLiteral("B")) << text;
        EXPECT_EQ(survey.read(kinds), text) << "left as it is";
        ASSERT_EQ(dialogs.shown.size(), 1U);
        EXPECT_TRUE(std::exchange(dialogs.shown, {})[0].text.contains(kinds)) << text;
    }
    QFile::remove(survey.drive().hostPath(kinds));
    survey.write(kinds + QStringLiteral("\\in.the.way"), "");
    varn.Hanrei.clear();
    LoadWordData(varn, item, varn, varn, dialogs);
    EXPECT_EQ(varn.Hanrei, QStringLiteral("Rain"));
    EXPECT_EQ(dialogs.shown.size(), 1U) << "it cannot be written";
    EXPECT_EQ(readItemAnswers(varn, item).WordTotal, 4);
}
