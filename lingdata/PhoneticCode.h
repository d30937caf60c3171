#pragma once

#include <QString>
#include <QStringView>

#include <cstdint>

/// The two series of phonetic glyphs.
enum class GlyphSeries : std::uint8_t {
    None,   ///< not a glyph
    Main,   ///< `Symbol1.bmp` to `Symbol38.bmp`
    Second, ///< `SymbolS1.bmp` to `SymbolS16.bmp`
};

/// The first unit of a coded text: one plain character, one glyph, or an escape that is in no code.
struct PhoneticUnit
{
    enum class Kind : std::uint8_t { Plain, Glyph, Illegal };

    Kind kind = Kind::Plain;
    GlyphSeries series = GlyphSeries::None;
    /// Number of the glyph in its series.
    int number = 0;
    /// How many characters the unit takes: 1 for a plain character, 2 for a mark, 3 for a letter with a
    /// digit, 3 or 4 for an illegal escape, also where the text is shorter.
    int consumed = 1;
};

/// Decodes the first unit of `text`, which is not empty. A backslash and a mark, or a backslash, a capital
/// letter and a digit, stand for one glyph.
PhoneticUnit decodePhonetic(QStringView text);
