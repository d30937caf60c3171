#pragma once

#include <QString>
#include <QStringView>

#include <cstdint>
#include <vector>

/// What a letter stands for, as far as alignments ask: a vowel never stands against a consonant. A semivowel
/// stands against both, schwa against vowels and sonorants, and what is neither (a blank, a digit, a letter
/// of another script than the Latin and the Greek) against all: Heeringa, Kleiweg, Gooskens & Nerbonne
/// (2006), Evaluation of string distance algorithms for dialectology.
enum class Sound : std::uint8_t { Vowel, Schwa, Semivowel, Sonorant, Consonant, Other };

/// The kinds of sounds that a letter goes with, as three bits: two letters may stand against each other where
/// they share one.
std::uint32_t soundKinds(Sound sound);

/// A letter with its marks.
struct Grapheme
{
    /// In canonical decomposition, so that a letter is the same however it was typed.
    QString text;
    Sound sound = Sound::Other;

    bool operator==(const Grapheme&) const = default;
};

/// The letters of a coded word form. Combining marks, length, tone and raised consonants are marks of the
/// letter before them, at the beginning of a word of the letter after; a tie bar joins two letters. A colon
/// after a letter is a mark of length. A raised vowel is a letter of its own, a short vowel. Left out is what
/// belongs to no letter: stress, the dot between syllables, the signs of downstep and upstep.
std::vector<Grapheme> graphemes(QStringView coded);
