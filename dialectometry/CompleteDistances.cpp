#include "dialectometry/CompleteDistances.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

/// How many distances each locality lacks.
std::vector<int> lackingCounts(const DistanceMatrix& distances)
{
    std::vector<int> lacking(static_cast<std::size_t>(distances.size()), 0);
    auto pair = distances.pairs().begin();
    for (std::size_t a = 0; a < lacking.size(); ++a) {
        for (std::size_t b = a + 1; b < lacking.size(); ++b, ++pair) {
            if (std::isnan(*pair)) {
                ++lacking[a];
                ++lacking[b];
            }
        }
    }
    return lacking;
}

} // namespace

std::vector<int> completeLocalities(const DistanceMatrix& distances)
{
    std::vector<int> left(static_cast<std::size_t>(distances.size()));
    std::iota(left.begin(), left.end(), 0);
    std::vector<int> lacking = lackingCounts(distances);
    const auto lack = [&](int locality) { return lacking[static_cast<std::size_t>(locality)]; };
    while (!left.empty()) {
        // From the end, so that of equals it is the last.
        const auto worst =
            std::max_element(left.rbegin(), left.rend(), [&](int a, int b) { return lack(a) < lack(b); });
        const int out = *worst;
        if (lack(out) == 0) {
            break;
        }
        left.erase(std::next(worst).base());
        for (const int other : left) {
            lacking[static_cast<std::size_t>(other)] -= distances.has(out, other) ? 0 : 1;
        }
    }
    return left;
}
