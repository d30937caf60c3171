#include "dialectometry/Scaling.h"

#include "tests/dialectometry/SmallSurvey.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <random>

TEST(Scaling, PlacesAreTheEigenvectorsOfNumPy)
{
    const Scaling scaling =
        classicalScaling(matrixOf(6, {2, 6, 10, 9, 14, 5, 9, 8, 13, 4, 5.5, 8.5, 3, 7, 11}));
    const double places[6][3] = {{-6.066765191735052, -1.6875189445041014, -0.6649926181512059},
                                 {-5.024458152969862, -1.3569769254129065, 0.9594327253779408},
                                 {-0.2018606728564676, -0.6632699911810392, -0.4479658030437548},
                                 {3.2093206525274183, 2.2710775752633947, -0.2206326425092138},
                                 {0.26293986520446166, 4.725455761960947, 0.2014183692332402},
                                 {7.820823499829502, -3.2887674761262944, 0.17273996909299572}};
    for (std::size_t i = 0; i < 6; ++i) {
        for (std::size_t k = 0; k < 3; ++k) {
            EXPECT_NEAR(scaling.places[i][k], places[i][k], 1e-9);
        }
    }
    const double variance[] = {0.8422517332844535, 0.989364598116884, 0.9956928248702964};
    const double stress[] = {0.21485656047532406, 0.04171301781999634, 0.030688063939837123};
    for (std::size_t k = 0; k < 3; ++k) {
        EXPECT_NEAR(scaling.variance[k], variance[k], 1e-9);
        EXPECT_NEAR(scaling.stress[k], stress[k], 1e-9);
    }
}

TEST(Scaling, ShowsWhatItCanOfFewLocalities)
{
    struct Row
    {
        const char* what;
        int size;
        std::vector<double> pairs;
        std::vector<std::vector<double>> places;
        double variance; // of one dimension
        double stress;
    };
    const double half = std::sqrt(0.75);
    const Row rows[] = {
        {"none", 0, {}, {}, 0, 0},
        {"one", 1, {}, {{0, 0, 0}}, 0, 0},
        {"two", 2, {4}, {{2, 0, 0}, {-2, 0, 0}}, 1, 0},
        {"at one point", 3, {0, 0, 0}, {{0, 0, 0}, {0, 0, 0}, {0, 0, 0}}, 1, 0},
        {"on a line", 3, {1, 3, 2}, {{-4. / 3, 0, 0}, {-1. / 3, 0, 0}, {5. / 3, 0, 0}}, 1, 0},
        {"one left out", 3, {-1, 4, -1}, {{2, 0, 0}, {}, {-2, 0, 0}}, 1, 0},
        {"a triangle",
         3,
         {1, half * 2, 1},
         {{half, -1. / 6, 0}, {0, 1. / 3, 0}, {-half, -1. / 6, 0}},
         1,
         std::sqrt(1 - std::pow(2 * half + 3, 2) / 22.5)},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const Scaling scaling = classicalScaling(matrixOf(row.size, row.pairs));
        ASSERT_EQ(scaling.places.size(), row.places.size());
        for (std::size_t i = 0; i < row.places.size(); ++i) {
            ASSERT_EQ(scaling.places[i].size(), row.places[i].size());
            for (std::size_t k = 0; k < row.places[i].size(); ++k) {
                EXPECT_NEAR(scaling.places[i][k], row.places[i][k], 1e-7) << i << ' ' << k;
            }
        }
        EXPECT_NEAR(scaling.variance[0], row.variance, 1e-9);
        EXPECT_NEAR(scaling.stress[0], row.stress, 1e-7);
        EXPECT_NEAR(scaling.stress[2], 0, 1e-7);
    }
}

TEST(Scaling, OfStepsOnALineIsCosines)
{
    // Squares of distances that grow by 1 a step are resistances of a path, whose products are the inverse of
    // its Laplacian: their vectors are cosines, their values 1 / (4 sin^2).
    for (const int size : {30, 400}) {
        DistanceMatrix distances(size);
        for (int a = 0; a < size; ++a) {
            for (int b = a + 1; b < size; ++b) {
                distances.set(a, b, std::sqrt(b - a));
            }
        }
        const Scaling scaling = classicalScaling(distances);
        for (int k = 1; k <= Scaling::Dimensions; ++k) {
            const double angle = std::numbers::pi * k / size;
            const auto dimension = static_cast<std::size_t>(k - 1);
            const double sign = scaling.places[0][dimension] < 0 ? -1 : 1;
            for (int i = 0; i < size; ++i) {
                const double place =
                    std::sqrt(2. / size) * std::cos(angle * (i + 0.5)) / (2 * std::sin(angle / 2));
                EXPECT_NEAR(sign * scaling.places[static_cast<std::size_t>(i)][dimension], place, 1e-9)
                    << size << ' ' << i;
            }
        }
    }
}

TEST(Scaling, OfASquareFindsBothOfItsEqualDimensions)
{
    constexpr int Side = 15;
    constexpr int Size = Side * Side;
    DistanceMatrix distances(Size);
    for (int a = 0; a < Size; ++a) {
        for (int b = a + 1; b < Size; ++b) {
            distances.set(a, b, std::hypot(a % Side - b % Side, a / Side - b / Side));
        }
    }
    const Scaling scaling = classicalScaling(distances);
    EXPECT_NEAR(scaling.variance[1], 1, 1e-9);
    for (int a = 0; a < Size; ++a) {
        const std::vector<double>& place = scaling.places[static_cast<std::size_t>(a)];
        const std::vector<double>& first = scaling.places.front();
        EXPECT_NEAR(std::hypot(place[0] - first[0], place[1] - first[1]), distances(0, a), 1e-9);
        EXPECT_EQ(place[2], 0);
    }
}

TEST(Scaling, OfDistancesWithoutAPatternIsExactToo)
{
    constexpr int Size = 230;
    std::mt19937 random(3);
    DistanceMatrix distances(Size);
    std::vector<double> mean(Size, 0);
    for (int a = 0; a < Size; ++a) {
        for (int b = a + 1; b < Size; ++b) {
            distances.set(a, b, 0.5 + static_cast<double>(random()) / 1e10);
            mean[static_cast<std::size_t>(a)] += std::pow(distances(a, b), 2) / Size;
            mean[static_cast<std::size_t>(b)] += std::pow(distances(a, b), 2) / Size;
        }
    }
    // Each dimension is a vector of the centred products: multiplied, it only gets longer.
    const Scaling scaling = classicalScaling(distances);
    for (std::size_t k = 0; k < Scaling::Dimensions; ++k) {
        double squares = 0;
        for (const std::vector<double>& place : scaling.places) {
            squares += place[k] * place[k]; // the value of the dimension
        }
        for (int a = 0; a < Size; ++a) {
            double product = 0;
            for (int b = 0; b < Size; ++b) {
                const double ofBoth = std::pow(distances(a, b), 2) - mean[static_cast<std::size_t>(b)];
                product -= ofBoth / 2 * scaling.places[static_cast<std::size_t>(b)][k];
            }
            EXPECT_NEAR(product, squares * scaling.places[static_cast<std::size_t>(a)][k], 1e-9) << a;
        }
    }
}
