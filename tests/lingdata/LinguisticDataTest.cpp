#include "lingdata/ItemLoader.h"
#include "lingdata/KindList.h"
#include "lingdata/LinguisticFile.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestDrive.h"

#include <QFile>

namespace {

ItemAnswers itemFrom(const QByteArray& text)
{
    SequentialReader file(QString::fromUtf8(text));
    return readItem(file);
}

QByteArray kindsText(const WordKinds& kinds)
{
    SequentialWriter writer;
    writeKinds(writer, kinds);
    return writer.bytes();
}

const QByteArray Small =
    "3,\"old\",\"Rain\",\"a \"\"comment\"\"\"\r\n2\r\n\"b\"\r\n\"a\"\r\n0\r\n2\r\n\"B\"\r\n\"b\"\r\n";

} // namespace

TEST(LinguisticFile, AnItemIsReadInLocalityOrderAndWrittenTheSameButForItsNumber)
{
    const ItemAnswers item = itemFrom(Small);
    EXPECT_EQ(item.Komoku, "old");
    EXPECT_EQ(item.WordTotal, 4);
    SequentialWriter writer;
    writeItem(writer, item);
    EXPECT_EQ(writer.bytes(), QByteArray(Small).replace("\"old\"", "\"\""));
}

TEST(LinguisticFile, CapacitiesAreBounds)
{
    const auto itemText = [](int localities, int perLocality) {
        const QByteArray words =
            QByteArray::number(perLocality) + "\r\n" + QByteArray("\"w\"\r\n").repeated(perLocality);
        return QByteArray::number(localities) + ",\"\",\"\",\"\"\r\n" + words.repeated(localities);
    };
    EXPECT_EQ(itemFrom(itemText(1000, 5)).WordTotal, 5000);
    for (const QByteArray& text : {itemText(1001, 1), itemText(1, 6), itemText(1, -1)}) {
        EXPECT_EQ(errorOf([&] { itemFrom(text); }).number(), ErrorNumber::SubscriptOutOfRange)
            << text.left(40).data();
    }
}

TEST(KindList, KindsAreCountedInOrderOfAppearanceAndThenSorted)
{
    LinguisticData data;
    static_cast<ItemAnswers&>(data) =
        itemFrom("3,\"\",\"\",\"\"\r\n1\r\n\"longest\"\r\n3\r\n\"ccc\"\r\n\"\"\r\n\"b\"\r\n"
                 "2\r\n\"b\"\r\n\"B\"\r\n");
    SearchKindWord(data);
    EXPECT_EQ(kindsText(data), "5\r\n\"longest\",1\r\n\"ccc\",1\r\n\"\",1\r\n\"b\",2\r\n\"B\",1\r\n");
    EXPECT_EQ(data.MaxKindLen, 3) << "the very first word form does not count";
    SortKindWord(data);
    EXPECT_EQ(kindsText(data), "5\r\n\"\",1\r\n\"B\",1\r\n\"b\",2\r\n\"ccc\",1\r\n\"longest\",1\r\n")
        << "binary order";
    EXPECT_EQ(data.KindIndex(3, 1), 4) << "still the order of appearance";
    EXPECT_EQ(data.KindIndex(3, 3), 0);
}

TEST(ItemLoader, TheKindsFileIsWrittenOnceAndIsNoObstacleWhereItIsNoGood)
{
    TestSurvey survey;
    VarnModule& varn = survey.varn;
    ScriptedDialogs dialogs;
    const QString item = varn.dataFolder() + "\\rain.v2.dbs";
    const QString kinds = varn.dataFolder() + "\\rain.v2.srt";
    const QByteArray derived = "3\r\n\"B\",1\r\n\"a\",1\r\n\"b\",2\r\n";
    const auto load = [&] {
        varn.NKind = 0;
        LoadWordData(varn, item, varn, varn, dialogs);
        return kindsText(varn);
    };
    survey.write(item, Small);
    EXPECT_EQ(load(), derived);
    EXPECT_EQ(varn.LoadState, 1);
    EXPECT_EQ(survey.read(kinds), derived);
    survey.write(kinds, "1\r\n\"edited\",7\r\n");
    EXPECT_EQ(load(), survey.read(kinds));
    EXPECT_EQ(dialogs.shown.size(), 0U);

    for (const char* text : {"9\r\n\"x\",1\r\n", "201\r\n", ""}) {
        survey.write(kinds, text);
        EXPECT_EQ(load(), derived) << text;
        EXPECT_EQ(survey.read(kinds), text) << "left as it is";
        ASSERT_EQ(dialogs.shown.size(), 1U);
        EXPECT_TRUE(std::exchange(dialogs.shown, {})[0].text.contains(kinds)) << text;
    }
    QFile::remove(survey.drive().hostPath(kinds));
    survey.write(kinds + "\\in.the.way", "");
    varn.Hanrei.clear();
    EXPECT_EQ(load(), derived);
    EXPECT_EQ(varn.Hanrei, "Rain");
    EXPECT_EQ(dialogs.shown.size(), 1U) << "it cannot be written";
}
