#include "dialectometry/Levenshtein.h"

#include <algorithm>

namespace {

constexpr unsigned KindBits = 3;
constexpr std::uint32_t AllKinds = (1U << KindBits) - 1;

// Steps and length of an alignment in one number, of which the least is wanted: Step for each step, less 1
// for each place of the alignment.
constexpr int StepBits = 24;
constexpr std::int64_t Step = std::int64_t{1} << StepBits;
constexpr std::int64_t Match = -1;
constexpr std::int64_t Change = Step - 1;
/// More than leaving out one letter and putting in the other, so that it is never chosen.
constexpr std::int64_t NoReplacement = 2 * Step;

std::int64_t replacement(std::uint32_t a, std::uint32_t b)
{
    if (a == b) {
        return Match;
    }
    return (a & b & AllKinds) == 0 ? NoReplacement : Change;
}

/// Cuts off the letters that two forms begin or end with alike: some alignment of least cost matches them. Of
/// alignments with as many steps the longest has the most matches, and whatever another one does with two
/// equal letters at the same end, matching them instead takes no step more and no match less.
void cutCommonEnds(std::span<const std::uint32_t>& a, std::span<const std::uint32_t>& b)
{
    const auto start = std::ranges::mismatch(a, b).in1 - a.begin();
    a = a.subspan(static_cast<std::size_t>(start));
    b = b.subspan(static_cast<std::size_t>(start));
    const auto end = std::mismatch(a.rbegin(), a.rend(), b.rbegin(), b.rend()).first - a.rbegin();
    a = a.first(a.size() - static_cast<std::size_t>(end));
    b = b.first(b.size() - static_cast<std::size_t>(end));
}

} // namespace

SpelledForm Speller::spell(QStringView coded)
{
    SpelledForm form;
    for (const Grapheme& letter : graphemes(coded)) {
        const auto known = m_numbers.constFind(letter.text);
        if (known != m_numbers.cend()) {
            form.push_back(*known);
            continue;
        }
        const std::uint32_t kinds = m_vowelsApart ? soundKinds(letter.sound) : AllKinds;
        form.push_back((static_cast<std::uint32_t>(m_numbers.size()) << KindBits) | kinds);
        m_numbers.insert(letter.text, form.back());
    }
    return form;
}

Alignment Aligner::align(std::span<const std::uint32_t> a, std::span<const std::uint32_t> b)
{
    const std::size_t all = a.size();
    cutCommonEnds(a, b);
    const auto same = static_cast<int>(all - a.size());
    const std::int64_t best = leastCost(a, b);
    const std::int64_t steps = (best + Step - 1) >> StepBits;
    return {static_cast<int>(steps), static_cast<int>(steps * Step - best) + same};
}

std::int64_t Aligner::leastCost(std::span<const std::uint32_t> a, std::span<const std::uint32_t> b)
{
    m_row.resize(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j) {
        m_row[j] = static_cast<std::int64_t>(j) * Change;
    }
    for (const std::uint32_t letter : a) {
        std::int64_t diagonal = m_row.front();
        std::int64_t left = m_row.front() += Change;
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::int64_t above = m_row[j + 1];
            const std::int64_t here = std::min(above + Change, diagonal + replacement(letter, b[j]));
            left = std::min(here, left + Change);
            m_row[j + 1] = left;
            diagonal = above;
        }
    }
    return m_row.back();
}

double Aligner::distance(std::span<const std::uint32_t> a, std::span<const std::uint32_t> b)
{
    const Alignment alignment = align(a, b);
    return alignment.length == 0 ? 0 : static_cast<double>(alignment.steps) / alignment.length;
}
