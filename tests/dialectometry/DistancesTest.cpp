#include "tests/dialectometry/SmallSurvey.h"
#include "tests/support/TestDrive.h"

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

TEST(Distances, OfASurveyAreTheMeansOfThoseOfItsItems)
{
    const SurveyAnswers survey =
        surveyOf({"hus/hys | hʊs | | hœys | hus", "mɛlk | mɔlək/mylk | mɛlk | | mɪlk",
                  " | kɪnt | kint/kɪnər | blaɣ | kint", "a | a | a | a | a"});
    for (const auto measure : {DistanceMeasure::RelativeIdentity, DistanceMeasure::Levenshtein}) {
        const SurveyComparison comparison(survey, {measure, true});
        const DistanceMatrix all = *comparison.matrix(goOnAlways);
        for (int a = 0; a < 5; ++a) {
            for (int b = a + 1; b < 5; ++b) {
                double sum = 0;
                int items = 0;
                for (int k = 0; k < comparison.items(); ++k) {
                    const DistanceMatrix ofItem = comparison.ofItem(k);
                    sum += ofItem.has(a, b) ? ofItem(a, b) : 0;
                    items += ofItem.has(a, b) ? 1 : 0;
                }
                EXPECT_DOUBLE_EQ(all(a, b), sum / items) << a << ' ' << b;
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

TEST(SurveyAnswers, HaveEachWordFormOnceAndNoEmptyOne)
{
    ItemAnswers item;
    item.NLocate = 2;
    item.WordCount(1) = 4;
    item.WordData(1, 2) = item.WordData(1, 4) = QStringLiteral("ame");
    item.WordData(1, 3) = QStringLiteral("yuki");
    item.WordCount(2) = 1;
    item.WordData(2, 1) = QStringLiteral("yuki");
    const ComparedItem compared = comparedItem(item, QStringLiteral("rain"));
    EXPECT_EQ(compared.forms, QStringList({"ame", "yuki"}));
    EXPECT_EQ(compared.answers, std::vector<std::vector<int>>({{0, 1}, {1}}));
    EXPECT_EQ(compared.caption, QStringLiteral("rain")) << "for want of its own";
    item.Hanrei = QStringLiteral("Rain");
    EXPECT_EQ(comparedItem(item, QStringLiteral("rain")).caption, QStringLiteral("Rain"));
}

TEST(SurveyAnswers, AreKindsByTheRuleOfTheMapOrOfTheSymbols)
{
    const TestDrive drive;
    const QString item = QStringLiteral("C:\\rain.dbs");
    drive.write(item, "2,\"\",\"Rain\",\"\"\n1\n\"ame\"\n1\n\"amefuri\"\n");
    const auto write = [&](const QByteArray& comment) {
        drive.write(QStringLiteral("C:\\rain.han"),
                    '"' + comment + "\"\n1\n\"ame\",\"the word\"\n50\n4\n12\n1\n1\n0\n");
    };
    const auto kinds = [&](bool wholeWordForms) {
        return readComparedItem(drive.drive(), item, {AnswersBy::Kinds, wholeWordForms}, 2).answers;
    };
    using Answers = std::vector<std::vector<int>>;
    write("");
    EXPECT_EQ(kinds(false), Answers({{0}, {0}}));
    EXPECT_EQ(kinds(true), Answers({{0}, {}}));
    write("Made for whole word forms: choose \"\"Whole Word Forms\"\" before drawing.");
    EXPECT_EQ(kinds(false), Answers({{0}, {}}));
    const RunTimeError error = errorOf([&] { readComparedItem(drive.drive(), item, {}, 3); });
    EXPECT_EQ(error.number(), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(error.place().path, item);
}
