#include "dialectometry/Reliability.h"

#include "dialectometry/GroupMarks.h"
#include "dialectometry/Kilometres.h"
#include "tests/dialectometry/SmallSurvey.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

std::optional<double> alphaOf(const QStringList& items)
{
    return cronbachAlpha(SurveyComparison(surveyOf(items), {}), goOnAlways);
}

} // namespace

TEST(Reliability, AlphaIsThatByHand)
{
    // The pairs of three localities: items 1 and 2 differ at (1, 1, 0), item 3 at (1, 0, 1).
    // Correlations 1, -1/2, -1/2: mean 0.
    EXPECT_NEAR(*alphaOf({"a | b | b", "c | d | d", "x | y | x"}), 0, 1e-12);
    EXPECT_NEAR(*alphaOf({"a | b | b", "c | d | d"}), 1, 1e-12);
    // Of six pairs of items three agree by 1, three by -1/2: mean 1/4, alpha 4/4 / (1 + 3/4).
    EXPECT_NEAR(*alphaOf({"a | b | b", "a | b | b", "a | b | b", "x | y | x"}), 1 / 1.75, 1e-12);
    // An item with one kind is no item, and a single one says nothing.
    EXPECT_NEAR(*alphaOf({"a | b | b", "c | d | d", "k | k | k"}), 1, 1e-12);
    EXPECT_FALSE(alphaOf({"a | b | b", "k | k | k"}));
    EXPECT_FALSE(alphaOf({"| |"}));
    // Where the fourth locality lacks an item the other pairs decide, as (1, 1, 0) does here.
    EXPECT_NEAR(*alphaOf({"a | b | b |", "c | d | d |"}), 1, 1e-12);
    // All six pairs have the second item, three the first one: standardised (1, 1, -2) / sqrt 2 and (1, 1,
    // -1).
    const double correlation = 4 / (3 * std::sqrt(2));
    EXPECT_NEAR(*alphaOf({"a | b | b |", "c | d | d | d"}), 2 * correlation / (1 + correlation), 1e-12);
    EXPECT_FALSE(alphaOf({"a | b | b", "x/y | x | y"})) << "(1, 1, 0) against (1/2, 1/2, 1)";
    EXPECT_FALSE(
        cronbachAlpha(SurveyComparison(surveyOf({"a | b", "a | b"}), {}), [](int, int) { return false; }));
}

TEST(Reliability, IncoherenceAndCorrelationAreThoseByHand)
{
    const DistanceMatrix lengths = matrixOf(3, {1, 3, 2}); // places 0, 1 and 3 of a line
    EXPECT_NEAR(*localIncoherence(matrixOf(3, {10, 30, 20}), lengths), 0, 1e-12);
    EXPECT_NEAR(*lengthCorrelation(matrixOf(3, {10, 30, 20}), lengths), 1, 1e-12);
    EXPECT_NEAR(*lengthCorrelation(matrixOf(3, {30, 10, 20}), lengths), -1, 1e-12);
    // The middle one is most like the far one, and so on: the first two change places in all three.
    const double u = std::exp2(-0.5);
    const double v = 0.5;
    const double wanted = ((3 * u + 1 * v) / (1 * u + 3 * v) + (2 * u + 1 * v) / (1 * u + 2 * v) +
                           (3 * u + 2 * v) / (2 * u + 3 * v)) /
                              3 -
                          1;
    EXPECT_NEAR(*localIncoherence(matrixOf(3, {30, 10, 20}), lengths), wanted, 1e-12);
    // Of equally alike ones the nearest comes first.
    EXPECT_NEAR(*localIncoherence(matrixOf(3, {5, 5, 5}), lengths), 0, 1e-12);

    EXPECT_FALSE(lengthCorrelation(matrixOf(3, {5, 5, 5}), lengths));
    EXPECT_FALSE(localIncoherence(matrixOf(3, {-1, -1, -1}), lengths));
    EXPECT_FALSE(localIncoherence(matrixOf(2, {1}), matrixOf(2, {0}))); // at one point
    EXPECT_FALSE(localIncoherence(DistanceMatrix(1), DistanceMatrix(1)));
}

TEST(Reliability, IncoherenceAsksForEightNeighbours)
{
    // Eleven localities on a line; only the first and the last have neighbours nine and ten steps away.
    const auto incoherence = [](const std::vector<double>& distanceOfSteps) {
        DistanceMatrix lengths(11);
        DistanceMatrix distances(11);
        for (int a = 0; a < 11; ++a) {
            for (int b = a + 1; b < 11; ++b) {
                lengths.set(a, b, b - a);
                distances.set(a, b, distanceOfSteps[static_cast<std::size_t>(b - a)]);
            }
        }
        return *localIncoherence(distances, lengths);
    };
    EXPECT_EQ(incoherence({0, 1, 2, 3, 4, 5, 6, 7, 8, 10, 9}), 0);
    double nearest = 0;
    for (int j = 1; j <= 8; ++j) {
        nearest += j * std::exp2(-0.5 * j);
    }
    // For two of eleven the eighth is one step farther.
    EXPECT_NEAR(incoherence({0, 1, 2, 3, 4, 5, 6, 7, 9, 8, 10}), 2 * std::exp2(-4) / nearest / 11, 1e-12);
}

TEST(Kilometres, ComeFromDegreesElseFromTheScaleBar)
{
    BaseMap map;
    map.NLocality = 2;
    map.LocXY(2, 0) = 30;
    map.LocXY(2, 1) = 40;
    map.ScaleLength = 200;
    struct Row
    {
        QString label;
        double length;
        LengthUnit unit;
    };
    const Row rows[] = {
        {QStringLiteral("20 km"), 5, LengthUnit::Kilometres},
        {QStringLiteral("0,5 km"), 0.125, LengthUnit::Kilometres},
        {QStringLiteral("500 m"), 0.125, LengthUnit::Kilometres},
        {QStringLiteral("20 miles"), 50, LengthUnit::MapUnits},
        {QString(), 50, LengthUnit::MapUnits},
    };
    for (const Row& row : rows) {
        map.ScaleLabel = row.label;
        const Lengths lengths = localityLengths(map, map, map);
        EXPECT_NEAR(lengths.lengths(0, 1), row.length, 1e-9) << row.label.toStdString();
        EXPECT_EQ(lengths.unit, row.unit);
    }
    // A quarter of the equator, and over the date line.
    map.localityNames = {{{}, {}, 170, 0}, {{}, {}, -100, 0}};
    EXPECT_NEAR(localityLengths(map, map, map).lengths(0, 1), 6371.0088 * std::acos(0), 1e-6);
    // Amsterdam and Groningen, by their degrees.
    map.localityNames = {{{}, {}, 4.9, 52.37}, {{}, {}, 6.57, 53.22}};
    EXPECT_NEAR(localityLengths(map, map, map).lengths(0, 1), 146.8, 1);
    map.plane = true;
    EXPECT_EQ(localityLengths(map, map, map).unit, LengthUnit::MapUnits);
}

TEST(GroupMarks, FormsAndItemsOfAGroupAreInOrder)
{
    // Localities 0 and 1 are the group, 2 and 3 the others; 4 does not count.
    const SurveyAnswers survey =
        surveyOf({"a | a | b | b | a", "x | y | x | x | y", "m | m | m | m | m", "p |  | p | q | q"});
    const std::vector<int> groups = {1, 1, 2, 2, 0};
    const std::vector<FormOfGroup> forms = formsOfGroup(survey, groups, 1);
    struct Row
    {
        int item;
        QString form;
        double representativeness;
        double distinctiveness;
    };
    const Row rows[] = {
        {0, QStringLiteral("a"), 1, 1},
        {1, QStringLiteral("y"), 0.5, 1},
        {3, QStringLiteral("p"), 1, (1. / 2 - 1. / 3) / (2. / 3)}, // one of three answered
        {2, QStringLiteral("m"), 1, 0},
        {1, QStringLiteral("x"), 0.5, (1. / 3 - 1. / 2) / (1. / 2)},
    };
    ASSERT_EQ(forms.size(), std::size(rows));
    for (std::size_t i = 0; i < forms.size(); ++i) {
        const ComparedItem& item = survey.items[static_cast<std::size_t>(forms[i].item)];
        EXPECT_EQ(forms[i].item, rows[i].item);
        EXPECT_TRUE(item.forms[forms[i].form] == rows[i].form);
        EXPECT_DOUBLE_EQ(forms[i].representativeness, rows[i].representativeness);
        EXPECT_DOUBLE_EQ(forms[i].distinctiveness, rows[i].distinctiveness);
    }
    const auto ofGroups = *itemsOfGroups(SurveyComparison(survey, {}), groups, goOnAlways);
    const std::vector<ItemOfGroup>& items = ofGroups.front();
    ASSERT_EQ(items.size(), 2U); // one has one kind, one no distance within
    EXPECT_EQ(items[0].item, 0);
    EXPECT_DOUBLE_EQ(items[0].score, 1 / std::sqrt(2. / 9)); // 4 of 6 pairs differ
    EXPECT_EQ(items[1].item, 1);
    EXPECT_DOUBLE_EQ(items[1].within, 1);
    EXPECT_DOUBLE_EQ(items[1].between, 0.5);

    ASSERT_EQ(ofGroups.size(), 2U);
    EXPECT_EQ(ofGroups[1].front().item, 0);
    EXPECT_DOUBLE_EQ(ofGroups[1].front().between, 1);

    // The better item comes first, wherever it stands in the survey.
    const SurveyComparison turned(surveyOf({"x | y | x | x", "a | a | b | b"}), {});
    EXPECT_EQ(itemsOfGroups(turned, {1, 1, 2, 2}, goOnAlways)->front().front().item, 1);
    EXPECT_FALSE(itemsOfGroups(turned, {1, 1, 2, 2}, [](int done, int) { return done != 1; }));

    // All in one group, and a group of one.
    EXPECT_EQ(formsOfGroup(survey, {1, 1, 1, 1, 1}, 1).front().distinctiveness, 0);
    EXPECT_TRUE(itemsOfGroups(SurveyComparison(survey, {}), {1, 2, 2, 2, 2}, goOnAlways)->front().empty());
}
