#include "dialectometry/GlyphLetters.h"

#include "lingdata/PhoneticCode.h"

#include <array>

namespace {

/// The letters of the glyphs of both series, from number 1 on.
constexpr std::array MainLetters = {u"ɯ", u"ə", u"ɪ", u"ɔ", u"ɵ", u"ɨ", u"ʉ", u"ɜ", u"ɛ", u"ɑ",
                                    u"ᵻ", u"ü", u"ĩ", u"ʊ", u"ʃ", u"ʒ", u"ɦ", u"ɸ", u"β", u"ɢ",
                                    u"ɣ", u"ŋ", u"ɾ", u"ɕ", u"ħ", u"ˈ", u"ʑ", u"ː", u"ˑ", u"ʀ",
                                    u"ï", u"ẽ", u"ɲ", u"æ", u"θ", u"ʈ", u"ɐ", u"ɒ"};
constexpr std::array SecondLetters = {u"ᵃ",       u"ᵉ",       u"ⁱ",       u"ᵒ",       u"ᵘ",       u"ᵚ",
                                      u"ⁿ",       u"ᵃ\u0303", u"ᵉ\u0303", u"ⁱ\u0303", u"ᵒ\u0303", u"ᵘ\u0303",
                                      u"ᵚ\u0303", u"ⁿ\u0303", u"ʔ",       u"ꜜ"};

QStringView letterOf(const PhoneticUnit& unit)
{
    const auto place = static_cast<std::size_t>(unit.number - 1);
    return unit.series == GlyphSeries::Main ? MainLetters[place] : SecondLetters[place];
}

} // namespace

QString inLetters(QStringView coded)
{
    if (!coded.contains(u'\\')) {
        return coded.toString();
    }
    QString letters;
    while (!coded.isEmpty()) {
        const PhoneticUnit unit = decodePhonetic(coded);
        const bool isGlyph = unit.kind == PhoneticUnit::Kind::Glyph;
        letters.append(isGlyph ? letterOf(unit) : coded.left(unit.consumed));
        coded = coded.mid(std::min<qsizetype>(unit.consumed, coded.size()));
    }
    return letters;
}
