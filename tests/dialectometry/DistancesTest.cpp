#include "tests/dialectometry/SmallSurvey.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

/// Two items, and what each measure makes of localities 0 and 1.
struct MeasureRow
{
    const char* what;
    QStringList items;
    double relative;
    double weighted;
    double levenshtein;
};

double distanceOf(const SurveyAnswers& survey, DistanceMeasure measure)
{
    return (*distances(survey, {measure}, goOnAlways))(0, 1);
}

} // namespace

TEST(Distances, OfTwoLocalitiesAreThoseByHand)
{
    const double none = std::nan("");
    const MeasureRow rows[] = {
        {"identical", {"a | a | b", "cd | cd | cd"}, 0, 0, 0},
        {"different", {"ab | ac | ab", "xyz | xy | xyz"}, 1, 1, (1. / 2 + 1. / 3) / 2},
        // x: 2 of 3 have it, so it counts 2/3; of q and r each counts 1
        {"one of two", {"x | x | y", "qq | qr | qq"}, 1. / 2, 1 / (2. / 3 + 1), 1. / 4},
        // p: 2 of 2 have it; it is half of what is there
        {"several", {"x | x | y", "p/q | p |"}, 1. / 4, 0.5 / (2. / 3 + 0.25 + 0.5), 1. / 6},
        // aa and ab: nearest at 1/2; ab and cb at 1/2; ab to aa and to cb 1/2
        {"several on both sides",
         {"aa/cc | ac/aa/cd |"},
         3. / 4,
         0.75 / (0.75 + 0.125),
         (0. + 0.5 + 0.5 + 0 + 0.5) / 5},
        {"an item that one lacks", {"a | b | a", "a | | a", " | a | a"}, 1, 1, 1},
        {"no common item", {"a | | a", " | a | a"}, none, none, none},
        {"one kind, rare or not", {"a | a | a"}, 0, 0, 0},
        {"no item", {"| |"}, none, none, none},
    };
    for (const MeasureRow& row : rows) {
        SCOPED_TRACE(row.what);
        const SurveyAnswers survey = surveyOf(row.items);
        const std::pair<DistanceMeasure, double> wanted[] = {
            {DistanceMeasure::RelativeIdentity, row.relative},
            {DistanceMeasure::WeightedIdentity, row.weighted},
            {DistanceMeasure::Levenshtein, row.levenshtein}};
        for (const auto& [measure, distance] : wanted) {
            const double found = distanceOf(survey, measure);
            EXPECT_EQ(std::isnan(found), std::isnan(distance));
            if (!std::isnan(distance)) {
                EXPECT_DOUBLE_EQ(found, distance) << static_cast<int>(measure);
            }
        }
    }
}

TEST(Distances, ARowHoldsTheVeryDistancesOfTheMatrix)
{
    const SurveyAnswers survey =
        surveyOf({"hus/hys | hʊs | | hœys | hus", "mɛlk | mɔlək/mylk | mɛlk | | mɪlk",
                  " | kɪnt | kint/kɪnər | blaɣ | kint", "a | a | a | a | a"});
    for (const auto measure : {DistanceMeasure::RelativeIdentity, DistanceMeasure::WeightedIdentity,
                               DistanceMeasure::Levenshtein}) {
        const SurveyComparison comparison(survey, {measure, true});
        const DistanceMatrix all = *comparison.matrix(goOnAlways);
        for (int a = 0; a < 5; ++a) {
            const std::vector<double> row = comparison.row(a);
            for (int b = 0; b < 5; ++b) {
                EXPECT_EQ(row[static_cast<std::size_t>(b)], all(a, b)) << a << ' ' << b;
            }
        }
        EXPECT_EQ(comparison.ofItem(3)(1, 2), 0);
        EXPECT_FALSE(comparison.ofItem(2).has(0, 1));
    }
}

TEST(Distances, StopWhenAskedTo)
{
    const SurveyAnswers survey = surveyOf(QStringList(100, "a | b"));
    int last = -1;
    const auto matrix = distances(survey, {}, [&](int done, int of) {
        EXPECT_GT(done, last);
        EXPECT_EQ(of, 100);
        last = done;
        return done == 0;
    });
    EXPECT_FALSE(matrix.has_value());
    EXPECT_LT(last, 100);
    EXPECT_EQ(distances(surveyOf({"a"}), {}, goOnAlways)->size(), 1);
}
