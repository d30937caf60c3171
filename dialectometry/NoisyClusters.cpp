#include "dialectometry/NoisyClusters.h"

#include "dialectometry/Moments.h"
#include "platform/Parallel.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace {

/// Numbers from 0 to 1 that are the same on every machine, as those of the standard's distributions are not.
class Noise
{
public:
    Noise(std::uint64_t seed, int run)
    {
        std::seed_seq numbers{static_cast<std::uint32_t>(seed), static_cast<std::uint32_t>(seed >> 32),
                              static_cast<std::uint32_t>(run)};
        m_engine.seed(numbers);
    }

    double next()
    {
        constexpr int Unused = 64 - 53; // the rest fills the digits of a double
        return std::ldexp(static_cast<double>(m_engine() >> Unused), Unused - 64);
    }

private:
    std::mt19937_64 m_engine;
};

/// Counts, for each pair of localities, the runs in which a border is between them.
void countBorders(const std::vector<int>& groups, DistanceMatrix& borders)
{
    auto pair = borders.pairs().begin();
    for (std::size_t a = 0; a < groups.size(); ++a) {
        for (std::size_t b = a + 1; b < groups.size(); ++b) {
            *pair++ += groups[a] == groups[b] ? 0 : 1;
        }
    }
}

/// The shares of the runs; none for localities of no group.
void divideBorders(const std::vector<int>& groups, int runs, DistanceMatrix& borders)
{
    auto pair = borders.pairs().begin();
    for (std::size_t a = 0; a < groups.size(); ++a) {
        for (std::size_t b = a + 1; b < groups.size(); ++b, ++pair) {
            const bool inTree = groups[a] != 0 && groups[b] != 0;
            *pair = inTree ? *pair / runs : std::numeric_limits<double>::quiet_NaN();
        }
    }
}

} // namespace

std::optional<DistanceMatrix> noisyBorders(const DistanceMatrix& distances, LinkageMethod method, int groups,
                                           const NoiseSettings& settings, const DistanceProgress& goOn)
{
    const double most = settings.noise * momentsOf(distances.pairs()).deviation();
    const auto groupsOfRun = [&](int run) {
        DistanceMatrix noisy = distances;
        Noise noise(settings.seed, run);
        for (double& distance : noisy.pairs()) {
            distance += most * noise.next();
        }
        return groupNumbers(linkage(noisy, method), groups, noisy.size());
    };
    DistanceMatrix borders(distances.size());
    std::ranges::fill(borders.pairs(), 0);
    std::vector<std::vector<int>> found(2 * static_cast<std::size_t>(workers()));
    for (int run = 0; run < settings.runs;) {
        if (!goOn(run, settings.runs)) {
            return std::nullopt;
        }
        const int end = std::min(settings.runs, run + static_cast<int>(found.size()));
        inParallel(end - run, [&](int i) { found[static_cast<std::size_t>(i)] = groupsOfRun(run + i); });
        for (int i = 0; run < end; ++run, ++i) {
            countBorders(found[static_cast<std::size_t>(i)], borders);
        }
    }
    divideBorders(groupNumbers(linkage(distances, method), groups, distances.size()), settings.runs, borders);
    return goOn(settings.runs, settings.runs) ? std::optional(std::move(borders)) : std::nullopt;
}
