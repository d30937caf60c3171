#include "dialectometry/GlyphLetters.h"
#include "dialectometry/Levenshtein.h"
#include "platform/SequentialFile.h"
#include "tests/support/TestDrive.h"

#include <QDir>

#include <random>

namespace {

constexpr auto LettersOf = [](QStringView word) {
    QStringList letters;
    for (const Grapheme& grapheme : graphemes(word)) {
        letters << grapheme.text.normalized(QString::NormalizationForm_C);
    }
    return letters.join(u'-');
};

/// The best of all alignments of what is left of two words, found by trying them all: fewest steps, then
/// greatest length.
Alignment bestByTrying(std::span<const std::uint32_t> a, std::span<const std::uint32_t> b,
                       const auto& mayReplace)
{
    if (a.empty() || b.empty()) {
        const auto rest = static_cast<int>(a.size() + b.size());
        return {rest, rest};
    }
    const auto longer = [](Alignment rest, int steps) {
        return Alignment{rest.steps + steps, rest.length + 1};
    };
    std::vector<Alignment> found{longer(bestByTrying(a.subspan(1), b, mayReplace), 1),
                                 longer(bestByTrying(a, b.subspan(1), mayReplace), 1)};
    if (mayReplace(a[0], b[0])) {
        found.push_back(longer(bestByTrying(a.subspan(1), b.subspan(1), mayReplace), a[0] == b[0] ? 0 : 1));
    }
    return *std::ranges::min_element(found, {},
                                     [](const Alignment& x) { return std::pair(x.steps, -x.length); });
}

} // namespace

TEST(Graphemes, ALetterWithItsMarksIsOne)
{
    struct Row
    {
        QString word;
        QString letters;
    };
    const Row rows[] = {
        {QStringLiteral("hɪn̩ː"), QStringLiteral("h-ɪ-n̩ː")},
        {QStringLiteral("kɑ̟mərɑ̟ːt"), QStringLiteral("k-ɑ̟-m-ə-r-ɑ̟ː-t")},
        {QStringLiteral("h̆ɔˑŭnər̆"), QStringLiteral("h̆-ɔˑ-ŭ-n-ə-r̆")},
        {QStringLiteral("t͡sa͜ide"), QStringLiteral("t͡s-a͜i-d-e")},            // ties
        {QStringLiteral("hoĭsʲtʰ"), QStringLiteral("h-o-ĭ-sʲ-tʰ")},         // raised consonants
        {QStringLiteral("ⁿda ᵐba"), QStringLiteral("ⁿd-a- -ᵐb-a")},         // before the first letter
        {QStringLiteral("kᵃpᵊ"), QStringLiteral("k-ᵃ-p-ᵊ")},                // raised vowels
        {QStringLiteral("ˈʋɔr.də"), QStringLiteral("ʋ-ɔ-r-d-ə")},           // stress, syllables
        {QStringLiteral("ma˥˩"), QStringLiteral("m-a˥˩")},                  // tones
        {QStringLiteral("vosel\\A5\\N3"), QStringLiteral("v-o-s-e-l-ᵃⁿ")},  // codes
        {QStringLiteral("\\'\\E4\\:\\X9t"), QStringLiteral("ẽː-\\-X-9-t")}, // an illegal one
        {QStringLiteral("ʔo: :a"), QStringLiteral("ʔ-oː- -:-a")},
        {QStringLiteral("岡\U00020BB7"), QStringLiteral("岡-\U00020BB7")},
        {QStringLiteral("ˈ"), QString()},
        {QStringLiteral("ː"), QStringLiteral("ː")},
        {QStringLiteral("\u0361ts"), QStringLiteral("\u0361t-s")}, // a tie that ties nothing
    };
    for (const Row& row : rows) {
        EXPECT_EQ(LettersOf(row.word), row.letters.normalized(QString::NormalizationForm_C))
            << row.word.toStdString();
    }
    EXPECT_EQ(graphemes(u"e\u0303"), graphemes(u"\u1EBD"));
    EXPECT_EQ(graphemes(u"\\E4\\I1"), graphemes(u"ẽɪ"));
}

TEST(Graphemes, TheLettersOfTheCodesAreThoseOfTheInstalledList)
{
    const DriveC drive(QDir::rootPath());
    const QString list = QStringLiteral("Z:") + QStringLiteral(INSTALLATION_FOLDER "/VarnData/ExpSymbol.txt");
    readSequentialFile(drive, QString(list).replace(u'/', u'\\'), [](SequentialReader& file) {
        const int count = file.readCount();
        EXPECT_EQ(count, 54);
        for (int i = 0; i < count; ++i) {
            const QString code = file.readString();
            EXPECT_EQ(inLetters(code).normalized(QString::NormalizationForm_C),
                      file.readString().normalized(QString::NormalizationForm_C));
            file.readString();
        }
        return count;
    });
}

TEST(Levenshtein, StepsAndLengthAreThoseOfTheBestOfAllAlignments)
{
    std::mt19937 random(7);
    const QString letters = QStringLiteral("aeptəj");
    const auto word = [&] {
        QString text;
        for (auto length = random() % 6; length > 0; --length) {
            text += letters[static_cast<int>(random() % 6)];
        }
        return text;
    };
    for (const bool vowelsApart : {false, true}) {
        Speller speller(vowelsApart);
        Aligner aligner;
        const auto mayReplace = [](std::uint32_t a, std::uint32_t b) { return (a & b & 7U) != 0; };
        for (int i = 0; i < 300; ++i) {
            const SpelledForm a = speller.spell(word());
            const SpelledForm b = speller.spell(word());
            EXPECT_EQ(aligner.align(a, b), bestByTrying(a, b, mayReplace));
        }
    }
}

TEST(Levenshtein, IsDividedByTheLengthOfTheLongestAlignment)
{
    struct Row
    {
        QString a;
        QString b;
        double distance;
        double vowelsApart;
    };
    const Row rows[] = {
        {QStringLiteral("mɛlk"), QStringLiteral("mɛlk"), 0, 0},
        {QStringLiteral("mɛlk"), QStringLiteral("mɔlək"), 2. / 5, 2. / 5},
        {QStringLiteral("ɛrt"), QStringLiteral("ta"), 3. / 4, 3. / 4}, // t is kept: longer than two replaced
        {QStringLiteral("ap"), QStringLiteral("pa"), 2. / 3, 2. / 3},
        {QStringLiteral("a"), QStringLiteral("t"), 1, 2. / 2},
        {QStringLiteral("ja"), QStringLiteral("ia"), 1. / 2, 1. / 2},   // semivowel against vowel
        {QStringLiteral("jak"), QStringLiteral("tak"), 1. / 3, 1. / 3}, // and against consonant
        {QStringLiteral("bən"), QStringLiteral("brn"), 1. / 3, 1. / 3}, // schwa against sonorant
        {QStringLiteral("bət"), QStringLiteral("bpt"), 1. / 3, 2. / 4}, // not against another
        {QStringLiteral("bɚn"), QStringLiteral("bɺn"), 1. / 3, 1. / 3},
        {QStringLiteral("bɚn"), QStringLiteral("ban"), 1. / 3, 1. / 3},
        {QStringLiteral("Ab"), QStringLiteral("eb"), 1. / 2, 1. / 2},          // a capital is a vowel too
        {QStringLiteral("\U00010061b"), QStringLiteral("tb"), 1. / 2, 1. / 2}, // another script
        {QString(70, u'a'), QString(70, u't'), 1, 1},
        {QStringLiteral("nãːt"), QStringLiteral("nat"), 1. / 3, 1. / 3},
        {QStringLiteral("t͡sa"), QStringLiteral("ã"), 2. / 2, 2. / 2},
        {QString(), QStringLiteral("ab"), 1, 1},
        {QStringLiteral("ˈ"), QString(), 0, 0},
    };
    for (const Row& row : rows) {
        for (const bool vowelsApart : {false, true}) {
            Speller speller(vowelsApart);
            Aligner aligner;
            EXPECT_DOUBLE_EQ(aligner.distance(speller.spell(row.a), speller.spell(row.b)),
                             vowelsApart ? row.vowelsApart : row.distance)
                << row.a.toStdString() << ' ' << row.b.toStdString() << ' ' << vowelsApart;
        }
    }
}
