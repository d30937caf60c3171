#include "lingdata/PhoneticCode.h"

#include <algorithm>
#include <array>

namespace {

struct Code
{
    const char* code;
    GlyphSeries series;
    int number;
};

constexpr GlyphSeries M = GlyphSeries::Main;
constexpr GlyphSeries S = GlyphSeries::Second;

/// The codes without their backslash.
constexpr std::array<Code, 54> Codes = {{
    {":", M, 28},  {";", M, 29},  {"'", M, 26},  {"!", S, 16},  {"?", S, 15},  {"B", M, 19},  {"F", M, 18},
    {"G1", M, 21}, {"G2", M, 20}, {"H1", M, 17}, {"H2", M, 25}, {"I1", M, 3},  {"I2", M, 6},  {"I3", M, 31},
    {"I4", M, 11}, {"I5", M, 13}, {"I6", S, 3},  {"I7", S, 10}, {"A1", M, 10}, {"A2", M, 34}, {"A3", M, 37},
    {"A4", M, 38}, {"A5", S, 1},  {"A6", S, 8},  {"E1", M, 9},  {"E2", M, 2},  {"E3", M, 8},  {"E4", M, 32},
    {"E5", S, 2},  {"E6", S, 9},  {"U1", M, 1},  {"U2", M, 7},  {"U3", M, 14}, {"U4", M, 12}, {"U5", S, 5},
    {"U6", S, 12}, {"U7", S, 6},  {"U8", S, 13}, {"N1", M, 22}, {"N2", M, 33}, {"N3", S, 7},  {"N4", S, 14},
    {"O1", M, 4},  {"O2", M, 5},  {"O3", S, 4},  {"O4", S, 11}, {"R1", M, 23}, {"R2", M, 30}, {"S1", M, 15},
    {"S2", M, 24}, {"T1", M, 35}, {"T2", M, 36}, {"Z1", M, 16}, {"Z2", M, 27},
}};

const Code* findCode(QStringView code)
{
    const auto* known = std::find_if(Codes.begin(), Codes.end(),
                                     [code](const Code& entry) { return code == QLatin1String(entry.code); });
    return known == Codes.end() ? nullptr : known;
}

} // namespace

PhoneticUnit decodePhonetic(QStringView text)
{
    if (text.front() != QLatin1Char('\\')) {
        return {};
    }
    if (text.size() >= 2) {
        if (const Code* mark = findCode(text.mid(1, 1))) {
            return {PhoneticUnit::Kind::Glyph, mark->series, mark->number, 2};
        }
    }
    if (text.size() >= 3) {
        if (const Code* letter = findCode(text.mid(1, 2))) {
            return {PhoneticUnit::Kind::Glyph, letter->series, letter->number, 3};
        }
    }
    // Generous on purpose: an illegal escape takes characters after it along.
    return {PhoneticUnit::Kind::Illegal, GlyphSeries::None, 0, text.size() == 2 ? 3 : 4};
}
