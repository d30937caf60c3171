#include "platform/TextEncoding.h"

#include "platform/RunTimeError.h"

#include <QStringDecoder>

#include <vector>

namespace {

/// A character of a text taken for Shift-JIS.
struct Character
{
    enum class Kind { Latin, Digit, OtherAscii, HalfWidthKana, DoubleByte };

    Kind kind;
    unsigned char lead;
    unsigned char trail; ///< 0 where it has one byte only
};

using Kind = Character::Kind;

bool isLetter(unsigned char byte)
{
    return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
}

Kind kindOf(unsigned char byte)
{
    if (byte >= 0x80) {
        return byte >= 0xA0 && byte <= 0xDF ? Kind::HalfWidthKana : Kind::DoubleByte;
    }
    if (isLetter(byte)) {
        return Kind::Latin;
    }
    return byte >= '0' && byte <= '9' ? Kind::Digit : Kind::OtherAscii;
}

std::vector<Character> shiftJisCharacters(const QByteArray& bytes)
{
    std::vector<Character> characters;
    characters.reserve(static_cast<std::size_t>(bytes.size()));
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const auto lead = static_cast<unsigned char>(bytes[i]);
        const Kind kind = kindOf(lead);
        Character character{kind, lead, 0};
        if (kind == Kind::DoubleByte && i + 1 < bytes.size()) {
            character.trail = static_cast<unsigned char>(bytes[++i]);
        }
        characters.push_back(character);
    }
    return characters;
}

/// The kinds of the characters beside one.
struct Neighbours
{
    Kind before = Kind::OtherAscii;
    Kind after = Kind::OtherAscii;

    int count(Kind kind) const { return (before == kind ? 1 : 0) + (after == kind ? 1 : 0); }
    bool areJapanese() const { return count(Kind::HalfWidthKana) + count(Kind::DoubleByte) > 0; }
};

Neighbours neighboursOf(const std::vector<Character>& characters, std::size_t i)
{
    Neighbours neighbours;
    if (i > 0) {
        neighbours.before = characters[i - 1].kind;
    }
    if (i + 1 < characters.size()) {
        neighbours.after = characters[i + 1].kind;
    }
    return neighbours;
}

/// Accented letters are single bytes of this range between Latin letters; a word of half-width kana has more
/// than one of them and no Latin letters.
int halfWidthScore(const Neighbours& neighbours)
{
    const bool besideAscii = neighbours.count(Kind::Latin) + neighbours.count(Kind::Digit) > 0;
    if (neighbours.areJapanese()) {
        return besideAscii ? -1 : 1;
    }
    return besideAscii ? -3 : 0;
}

/// Lead bytes below 0xA0 are kana and common kanji, but also the curly quotes and ligatures of Western words
/// such as "l'eau" and "coeur", which then stand between letters.
int lowLeadScore(const Character& character, const Neighbours& neighbours)
{
    const bool isKana = character.lead == 0x82 || character.lead == 0x83;
    if (isKana) {
        return 4;
    }
    const int latin = neighbours.count(Kind::Latin);
    const bool isLowerTrail = isLetter(character.trail) && character.trail >= 'a';
    const bool isWestern = isLowerTrail ? latin > 0 : isLetter(character.trail) && latin == 2;
    return isWestern ? -2 : 2;
}

/// Lead bytes from 0xE0 are rare kanji and characters for private use, but the common accented small letters.
int highLeadScore(const Character& character, const Neighbours& neighbours)
{
    const bool isPrivate = character.lead >= 0xF0 && character.lead <= 0xF9;
    if (isPrivate) {
        return -3;
    }
    if (neighbours.count(Kind::Latin) > 0) {
        return -2;
    }
    const bool isLowerTrail = isLetter(character.trail) && character.trail >= 'a';
    return isLowerTrail && !neighbours.areJapanese() ? -1 : 1;
}

/// How much more bytes that are valid in both encodings speak for Shift-JIS than for Windows-1252.
long long shiftJisScore(const QByteArray& bytes)
{
    const std::vector<Character> characters = shiftJisCharacters(bytes);
    long long score = 0;
    for (std::size_t i = 0; i < characters.size(); ++i) {
        const Character& character = characters[i];
        if (character.kind == Kind::HalfWidthKana) {
            score += halfWidthScore(neighboursOf(characters, i));
        } else if (character.kind == Kind::DoubleByte) {
            const Neighbours neighbours = neighboursOf(characters, i);
            score += character.lead < 0xA0 ? lowLeadScore(character, neighbours)
                                           : highLeadScore(character, neighbours);
        }
    }
    return score;
}

/// Whether all of `bytes` is valid in the encoding, down to the last byte; the text goes to `text`. Not every
/// system has every decoder.
bool decodeWhole(const char* encoding, const QByteArray& bytes, QString& text)
{
    QStringDecoder decoder(encoding, QStringDecoder::Flag::Stateless);
    if (!decoder.isValid()) {
        return false;
    }
    text = decoder(bytes);
    return !decoder.hasError();
}

bool hasUtf16Mark(const QByteArray& bytes)
{
    return bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF");
}

} // namespace

QString decodeText(const QByteArray& bytes)
{
    QString text;
    if (hasUtf16Mark(bytes) && decodeWhole("UTF-16", bytes, text)) {
        return text;
    }
    if (bytes.contains('\0')) {
        throw RunTimeError(ErrorNumber::TypeMismatch, QStringLiteral("The file does not hold text."));
    }
    if (decodeWhole("UTF-8", bytes, text) ||
        (decodeWhole("Shift_JIS", bytes, text) && shiftJisScore(bytes) >= 0) ||
        decodeWhole("windows-1252", bytes, text)) {
        return text;
    }
    return QString::fromLatin1(bytes);
}
