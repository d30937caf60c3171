#include "dialectometry/Graphemes.h"

#include "dialectometry/GlyphLetters.h"

#include <QChar>
#include <QList>

namespace {

constexpr char32_t Length = U'ː';

/// A character without marks, and of a raised letter the letter itself.
char32_t plainLetter(char32_t character)
{
    if (QChar::decompositionTag(character) == QChar::NoDecomposition) {
        return QChar::toLower(character);
    }
    const QString whole = QString::fromUcs4(&character, 1).normalized(QString::NormalizationForm_KD);
    const char32_t first = whole.toUcs4().constFirst();
    return QChar::toLower(first);
}

bool isOneOf(QStringView letters, char32_t letter)
{
    return letter < 0x10000 && letters.contains(QChar(static_cast<char16_t>(letter)));
}

bool isLetterOfSounds(char32_t letter)
{
    const QChar::Script script = QChar::script(letter);
    return QChar::isLetter(letter) && (script == QChar::Script_Latin || script == QChar::Script_Greek);
}

Sound soundOf(char32_t character)
{
    const char32_t letter = plainLetter(character);
    if (isOneOf(u"əɚ", letter)) {
        return Sound::Schwa;
    }
    if (isOneOf(u"aeiouyæœøɐɑɒɔɘɛɜɝɞɤɨɪɯɵɶʉʊʌʏᵻᵿıɩɷɿʅʮʯᴀᴇᴜαεηιουω", letter)) {
        return Sound::Vowel;
    }
    if (isOneOf(u"jwɥɰʍ", letter)) {
        return Sound::Semivowel;
    }
    if (isOneOf(u"mɱnɳɲŋɴlɫɭʎʟɺrɾɹɻɽʀʙⱱʋ", letter)) {
        return Sound::Sonorant;
    }
    return isLetterOfSounds(letter) ? Sound::Consonant : Sound::Other;
}

bool belongsToNoLetter(char32_t character)
{
    return isOneOf(u"ˈˌ.‿|‖ꜜꜛ↗↘", character) || QChar::category(character) == QChar::Other_Format;
}

bool isTie(char32_t character)
{
    return character == 0x361 || character == 0x35C;
}

bool isVowel(Sound sound)
{
    return sound == Sound::Vowel || sound == Sound::Schwa;
}

bool isMark(char32_t character)
{
    if (QChar::isMark(character)) {
        return true;
    }
    const bool isModifier = QChar::category(character) == QChar::Letter_Modifier ||
                            (character >= 0x2B0 && character <= 0x2FF) ||
                            (character >= 0xA700 && character <= 0xA71F);
    return isModifier && !isVowel(soundOf(character));
}

/// Puts a word form together, character by character.
class Spelling
{
public:
    void add(char32_t character)
    {
        const char32_t sign = character == U':' && isAfterLetter() ? Length : character;
        if (belongsToNoLetter(sign)) {
            return;
        }
        if (isMark(sign)) {
            addMark(sign);
        } else {
            addLetter(sign);
        }
    }

    std::vector<Grapheme> takeLetters()
    {
        if (!m_before.isEmpty()) { // marks that no letter follows
            m_letters.push_back({m_before, Sound::Other});
        }
        return std::move(m_letters);
    }

private:
    bool isAfterLetter() const { return !m_letters.empty() && m_letters.back().text != QLatin1String(" "); }

    void addMark(char32_t mark)
    {
        (isAfterLetter() ? m_letters.back().text : m_before).append(QChar::fromUcs4(mark));
        m_isTied = isAfterLetter() && isTie(mark);
    }

    void addLetter(char32_t letter)
    {
        if (m_isTied) {
            m_letters.back().text.append(QChar::fromUcs4(letter));
        } else {
            m_letters.push_back({m_before, soundOf(letter)});
            m_letters.back().text.append(QChar::fromUcs4(letter));
            m_before.clear();
        }
        m_isTied = false;
    }

    std::vector<Grapheme> m_letters;
    /// Marks that wait for the letter that they begin.
    QString m_before;
    bool m_isTied = false;
};

} // namespace

std::uint32_t soundKinds(Sound sound)
{
    constexpr std::uint32_t Vowel = 1;
    constexpr std::uint32_t Consonant = 2;
    constexpr std::uint32_t SchwaOrSonorant = 4;
    switch (sound) {
    case Sound::Vowel:
        return Vowel;
    case Sound::Schwa:
        return Vowel | SchwaOrSonorant;
    case Sound::Sonorant:
        return Consonant | SchwaOrSonorant;
    case Sound::Consonant:
        return Consonant;
    case Sound::Semivowel:
    case Sound::Other:
        break;
    }
    return Vowel | Consonant | SchwaOrSonorant;
}

std::vector<Grapheme> graphemes(QStringView coded)
{
    Spelling spelling;
    const QString letters = inLetters(coded).normalized(QString::NormalizationForm_D);
    for (const char32_t character : letters.toUcs4()) {
        spelling.add(character);
    }
    return spelling.takeLetters();
}
