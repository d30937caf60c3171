#include "dialectometry/NoisyClusters.h"
#include "tests/dialectometry/SmallSurvey.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numeric>
#include <random>

namespace {

constexpr LinkageMethod AllMethods[] = {LinkageMethod::Single, LinkageMethod::Complete,
                                        LinkageMethod::Average, LinkageMethod::Weighted, LinkageMethod::Ward};

const std::vector<double> SixPairs = {2, 6, 10, 9, 14, 5, 9, 8, 13, 4, 5.5, 8.5, 3, 7, 11};

DistanceMatrix randomMatrix(int size)
{
    std::mt19937 random(11);
    DistanceMatrix matrix(size);
    for (double& distance : matrix.pairs()) {
        distance = static_cast<double>(random()) / 1e9;
    }
    return matrix;
}

/// The distance of two clusters by what the method means, not by its formula.
double distanceByMembers(LinkageMethod method, const DistanceMatrix& distances, const std::vector<int>& first,
                         const std::vector<int>& second)
{
    double least = 1e9;
    double most = 0;
    double sum = 0;
    for (const int a : first) {
        for (const int b : second) {
            least = std::min(least, distances(a, b));
            most = std::max(most, distances(a, b));
            sum += distances(a, b);
        }
    }
    return method == LinkageMethod::Single     ? least
           : method == LinkageMethod::Complete ? most
                                               : sum / static_cast<double>(first.size() * second.size());
}

std::vector<std::vector<int>> membersOf(const Linkage& tree)
{
    std::vector<std::vector<int>> members;
    for (const int locality : tree.localities) {
        members.push_back({locality});
    }
    for (const Merge& merge : tree.merges) {
        std::vector<int> both = members[static_cast<std::size_t>(merge.first)];
        const auto& second = members[static_cast<std::size_t>(merge.second)];
        both.insert(both.end(), second.begin(), second.end());
        EXPECT_EQ(static_cast<int>(both.size()), merge.size);
        EXPECT_LT(merge.first, merge.second);
        members.push_back(both);
    }
    return members;
}

} // namespace

TEST(Linkage, HeightsAndMergesAreThoseOfSciPy)
{
    struct Row
    {
        LinkageMethod method;
        std::vector<double> heights;
        /// The clusters of the last two merges; the first three are the same by all methods.
        std::pair<int, int> fourth;
        std::pair<int, int> fifth;
    };
    const Row rows[] = {
        {LinkageMethod::Single, {2, 3, 4, 5, 7}, {6, 8}, {5, 9}},
        {LinkageMethod::Complete, {2, 3, 5.5, 10, 14}, {6, 8}, {5, 9}},
        {LinkageMethod::Average, {2, 3, 4.75, 7.833333333333333, 10.7}, {6, 8}, {5, 9}},
        {LinkageMethod::Weighted, {2, 3, 4.75, 7.25, 11.125}, {6, 8}, {5, 9}},
        {LinkageMethod::Ward,
         {2, 3, 5.275730597114804, 10.579067381705565, 14.086045103813442},
         {5, 8},
         {6, 9}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(static_cast<int>(row.method));
        const Linkage tree = linkage(matrixOf(6, SixPairs), row.method);
        ASSERT_EQ(tree.merges.size(), 5U);
        for (std::size_t k = 0; k < 5; ++k) {
            EXPECT_NEAR(tree.merges[k].height, row.heights[k], 1e-12);
        }
        EXPECT_EQ(std::pair(tree.merges[0].first, tree.merges[0].second), std::pair(0, 1));
        EXPECT_EQ(std::pair(tree.merges[1].first, tree.merges[1].second), std::pair(3, 4));
        EXPECT_EQ(std::pair(tree.merges[2].first, tree.merges[2].second), std::pair(2, 7));
        EXPECT_EQ(std::pair(tree.merges[3].first, tree.merges[3].second), row.fourth);
        EXPECT_EQ(std::pair(tree.merges[4].first, tree.merges[4].second), row.fifth);
    }
}

TEST(Linkage, EveryHeightIsTheDistanceOfTheJoinedClusters)
{
    const DistanceMatrix distances = randomMatrix(60);
    for (const auto method : {LinkageMethod::Single, LinkageMethod::Complete, LinkageMethod::Average}) {
        const Linkage tree = linkage(distances, method);
        const std::vector<std::vector<int>> members = membersOf(tree);
        double last = 0;
        for (const Merge& merge : tree.merges) {
            EXPECT_NEAR(merge.height,
                        distanceByMembers(method, distances, members[static_cast<std::size_t>(merge.first)],
                                          members[static_cast<std::size_t>(merge.second)]),
                        1e-9);
            EXPECT_GE(merge.height, last);
            last = merge.height;
        }
        EXPECT_EQ(members.back().size(), 60U);
    }
}

TEST(Linkage, LocalitiesWithoutADistanceAreLeftOutOneByOne)
{
    struct Row
    {
        int size;
        std::vector<double> pairs;
        std::vector<int> groups; // of two; 0 for one that is left out
    };
    const Row rows[] = {
        {4, {-1, 1, 5, -1, -1, 5}, {1, 0, 1, 2}}, // one that lacks all
        {4, {-1, 1, 5, 1, 5, 5}, {1, 0, 1, 2}},   // of two that lack each other the last
        {3, {-1, -1, -1}, {1, 0, 0}},
        {3, {-1, -1, 5}, {0, 1, 2}},           // the first one lacks most
        {4, {9, 9, 1, 2, 9, 9}, {1, 2, 2, 1}}, // of two halves that of the first
        {4, {2, 9, 9, 9, 9, 1}, {1, 1, 2, 2}}, // locality keeps its number
        {3, {0, 0, 0}, {1, 1, 2}},             // all alike
        {2, {3}, {1, 2}},
        {1, {}, {1}},
        {0, {}, {}},
    };
    for (const Row& row : rows) {
        for (const LinkageMethod method : AllMethods) {
            const Linkage tree = linkage(matrixOf(row.size, row.pairs), method);
            EXPECT_EQ(groupNumbers(tree, 2, row.size), row.groups);
        }
    }
}

TEST(Linkage, NoClusterIsJoinedTwiceWhereRoundingTellsDistancesApart)
{
    struct Row
    {
        std::uint32_t seed;
        LinkageMethod method;
    };
    for (const Row& row : {Row{1291, LinkageMethod::Average}, Row{2818, LinkageMethod::Ward},
                           Row{4262, LinkageMethod::Average}}) {
        std::mt19937 random(row.seed);
        const double common = static_cast<double>(1 + random() % 1000) / 1000;
        const double other = common * (1 + 2e-16 * static_cast<double>(1 + random() % 3));
        DistanceMatrix distances(60);
        for (double& distance : distances.pairs()) {
            distance = random() % 9 > 0 ? common : other;
        }
        std::vector<int> joined;
        for (const Merge& merge : linkage(distances, row.method).merges) {
            joined.push_back(merge.first);
            joined.push_back(merge.second);
        }
        std::ranges::sort(joined);
        std::vector<int> all(2 * 60 - 2);
        std::iota(all.begin(), all.end(), 0);
        EXPECT_EQ(joined, all) << row.seed;
    }
}

TEST(Linkage, OfManyAlikeTheLastIsParted)
{
    const DistanceMatrix alike = matrixOf(40, std::vector<double>(40 * 39 / 2, 0.5));
    std::vector<int> groups(40, 1);
    groups.back() = 2;
    for (const LinkageMethod method : {LinkageMethod::Single, LinkageMethod::Complete}) {
        EXPECT_EQ(groupNumbers(linkage(alike, method), 2, 40), groups);
        EXPECT_EQ(std::ranges::max(groupNumbers(linkage(alike, method), 99, 40)), 40);
    }
}

TEST(NoisyClusters, NoiseIsAPartOfTheStandardDeviation)
{
    // Noise of up to 4, and distances of 10 and 12 from the middle one: the farther one is the nearer one
    // where its noise is less by 2, in one of eight runs.
    const double deviation = std::sqrt(728.) / 3;
    const NoiseSettings settings{4 / deviation, 2000, 1};
    const auto borders =
        noisyBorders(matrixOf(3, {10, 30, 12}), LinkageMethod::Single, 2, settings, goOnAlways);
    EXPECT_NEAR((*borders)(0, 1), 1. / 8, 0.025);
    EXPECT_NEAR((*borders)(1, 2), 7. / 8, 0.025);
}

TEST(NoisyClusters, OnlyFirmBordersComeInEveryRun)
{
    // Two pairs of near localities far apart, and one about between them; the sixth has no distances.
    const DistanceMatrix distances =
        matrixOf(6, {1, 20, 20.5, 10, -1, 20, 20.2, 10.1, -1, 1, 10.2, -1, 10, -1, -1});
    const NoiseSettings settings{1, 200, 42};
    const DistanceMatrix borders = *noisyBorders(distances, LinkageMethod::Average, 2, settings, goOnAlways);
    EXPECT_EQ(borders(0, 1), 0);
    EXPECT_EQ(borders(0, 2), 1);
    EXPECT_GT(borders(0, 4), 0.2);
    EXPECT_LT(borders(0, 4), 0.8);
    EXPECT_DOUBLE_EQ(borders(0, 4) + borders(2, 4), 1);
    EXPECT_FALSE(borders.has(0, 5));

    const DistanceMatrix again = *noisyBorders(distances, LinkageMethod::Average, 2, settings, goOnAlways);
    EXPECT_EQ(again(0, 4), borders(0, 4));
    const auto other = noisyBorders(distances, LinkageMethod::Average, 2, {1, 200, 43}, goOnAlways);
    EXPECT_NE((*other)(0, 4), borders(0, 4));
    const auto silent = noisyBorders(distances, LinkageMethod::Average, 2, {0, 10, 1}, goOnAlways);
    EXPECT_EQ((*silent)(0, 4), 0);
    EXPECT_FALSE(
        noisyBorders(distances, LinkageMethod::Ward, 2, settings, [](int done, int) { return done < 50; }));
}
