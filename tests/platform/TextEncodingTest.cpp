#include "platform/TextEncoding.h"

#include "tests/support/TestDrive.h"

#include <QStringDecoder>
#include <QStringEncoder>

#include <cstdlib>

namespace {

/// Everyday words of French, German, Spanish, Portuguese, Danish and Italian.
const char* const WesternWords = R"(
père mère été être élève âge forêt château île noël garçon français cœur œuf l’eau aujourd’hui là où hôtel
ça crème créée ÉTÉ Mädchen Straße Haus über für Käse Öl öl Äpfel Fuß Übung Löffel Größe ÜBER niño señor
mañana año corazón café árbol lápiz inglés él único ¿Qué? ¡Hola! 25° coração não mãe maçã avó você ações
água às âncora pêssego København smørrebrød øl ål år æg æble rød gård ø å blåbær Århus Øst città perché
più è caffè virtù lunedì)";

/// Words of kana, kanji and half-width katakana; the second byte of `ソ`, `表` and `能` is a backslash.
const char* const JapaneseWords = R"(
あめ かえる カタツムリ ソ ソラ ミソ ソース 表 能 表現 能力 雨 方言 目 蛙 とんぼ 蜻蛉 蚯蚓 蝸牛 霰 霙 噂 ア ー
雪。 １２ ｱﾒ ｶｴﾙ ﾄﾝﾎﾞ ｶﾀﾂﾑﾘ Tシャツ A型 髙橋 ①)";

QStringList words(const char* list)
{
    return QString::fromUtf8(list).simplified().split(QLatin1Char(' '));
}

/// Expects that `text` comes back from a file in `encoding`.
void expectRead(const QString& text, const char* encoding)
{
    QStringEncoder encode(encoding);
    const QByteArray bytes = encode(text);
    ASSERT_FALSE(encode.hasError()) << qPrintable(text);
    EXPECT_EQ(decodeText(bytes), text) << encoding;
}

/// How much `text` speaks for Shift-JIS: how many kanji that speak against it, each by 1, it outweighs.
int shiftJisScore(const QByteArray& text)
{
    QStringDecoder western("windows-1252");
    int score = 9;
    while (score > -9) {
        const QByteArray kanji = score < 0 ? "-%E9A" : "-%E9a"; // by 1 for, by 1 against
        const QByteArray balanced = text + QByteArray::fromPercentEncoding(kanji).repeated(std::abs(score));
        if (decodeText(balanced) != QString(western(balanced))) {
            return score;
        }
        --score;
    }
    return score;
}

} // namespace

TEST(TextEncoding, EachCharacterSpeaksForOneByItsNeighbours)
{
    if (!QStringDecoder("Shift_JIS").isValid()) {
        GTEST_SKIP() << "This system's Qt has no Shift-JIS.";
    }
    // Neighbours that are just within or just beyond the letters and the digits.
    const std::pair<int, QByteArray> rows[] = {
        {5, "%82%A0%B1"},
        {4, "%82%A0 %83A"},
        {3, "a%B1%82%A0"},
        {2, "%81A %84A %9FA %9Cu a%9CU %9CUa 1%9Cu1 a%9C@b a%9C[b a%9C`b a%9C{b %B1%B1 %B1%E9a %E9A%E9a"},
        {1, "%E0A %E9A %E9` %E9{ %FA@"},
        {0, "@%B1 [%B1 `%B1 {%B1 /%B1 :%B1 a%B1%B1"},
        {-1, "%E9a"},
        {-2, "a%9CAb a%9CZb a%9Cab a%9Czb a%9Cu %9Cua a%E9A %E9Aa"},
        {-3, "A%B1 Z%B1 a%B1 z%B1 0%B1 9%B1 %B1a a%B1a a%A1 a%DF %F0@ %F9@"}};
    for (const auto& [score, texts] : rows) {
        for (const QByteArray& text : texts.split(' ')) {
            EXPECT_EQ(shiftJisScore(QByteArray::fromPercentEncoding(text)), score) << text.constData();
        }
    }
}

TEST(TextEncoding, TextsAreReadInTheEncodingThatTheySpeakFor)
{
    if (!QStringDecoder("Shift_JIS").isValid()) {
        GTEST_SKIP() << "This system's Qt has no Shift-JIS.";
    }
    for (const auto& [list, encoding] :
         {std::pair(WesternWords, "windows-1252"), std::pair(JapaneseWords, "Shift_JIS")}) {
        for (const QString& word : words(list)) {
            expectRead(word, encoding);
            expectRead(QStringLiteral("1,\"\",\"%1\",\"\"\r\n1\r\n\"%1\"\r\n").arg(word), encoding);
        }
        expectRead(words(list).join(QStringLiteral("\r\n")), encoding);
        expectRead(words(list).join(QStringLiteral(", ")).repeated(100), encoding);
    }
}

TEST(TextEncoding, Utf8ComesFirst)
{
    for (const char* list : {WesternWords, JapaneseWords}) {
        for (const QString& word : words(list)) {
            EXPECT_EQ(decodeText(word.toUtf8()), word);
            EXPECT_EQ(decodeText("\xEF\xBB\xBF" + word.toUtf8()), word) << "with a byte order mark";
        }
    }
    EXPECT_EQ(decodeText("plain"), QStringLiteral("plain"));
    EXPECT_EQ(decodeText({}), QString());
    EXPECT_EQ(errorOf([] { decodeText(QByteArray("MZ\0\1", 4)); }).number(), ErrorNumber::TypeMismatch);
}
