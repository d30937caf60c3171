#pragma once

#include "dialectometry/Graphemes.h"

#include <QHash>

#include <cstdint>
#include <span>
#include <vector>

/// A word form as numbers: equal letters have equal ones. Their lowest bits say what a letter may stand
/// against.
using SpelledForm = std::vector<std::uint32_t>;

/// Spells word forms. Only forms of one speller can be compared.
class Speller
{
public:
    /// `vowelsApart`: whether vowels never stand against consonants.
    explicit Speller(bool vowelsApart) : m_vowelsApart(vowelsApart) {}

    SpelledForm spell(QStringView coded);

private:
    bool m_vowelsApart;
    QHash<QString, std::uint32_t> m_numbers;
};

/// How one word form becomes another in the fewest steps: letters put in, left out or replaced, 1 each.
struct Alignment
{
    int steps = 0;
    /// The length of the longest alignment with so few steps: pairs of letters and single letters.
    int length = 0;

    bool operator==(const Alignment&) const = default;
};

/// Aligns word forms by dynamic programming: Levenshtein (1965), Wagner & Fischer (1974). It keeps its row
/// between calls; each thread has its own.
class Aligner
{
public:
    Alignment align(std::span<const std::uint32_t> a, std::span<const std::uint32_t> b);

    /// The steps divided by the length of the alignment, 0 to 1: Heeringa (2004), Measuring dialect
    /// pronunciation differences using Levenshtein distance, 5.1.10. 0 for two forms without letters.
    double distance(std::span<const std::uint32_t> a, std::span<const std::uint32_t> b);

private:
    std::int64_t leastCost(std::span<const std::uint32_t> a, std::span<const std::uint32_t> b);

    std::vector<std::int64_t> m_row;
};
