#include "analysis/ContrastMap.h"
#include "analysis/DiffusionGraphs.h"
#include "platform/StandardColors.h"
#include "shell/MapParts.h"
#include "tests/TestDrive.h"

namespace {

/// A survey with two word forms counted over ten items at its three localities.
struct CountedSurvey : TestSurvey
{
    CountedSurvey()
    {
        varn.NumWordforms = 2;
        varn.NumItemsAccumulated = 10;
        varn.MapCaption = QStringLiteral("All items");
        for (int k = 1; k <= 2; ++k) {
            varn.WordformName(k) = QStringLiteral("form %1").arg(k);
            varn.WordformSymbolColor(k) = k;
            varn.WordformPaintColor(k) = static_cast<qint16>(8 + k);
        }
        varn.Counts(1, 1) = 10;
        varn.Counts(1, 3) = 4;
        varn.Counts(2, 2) = 5;
        varn.Scale = FindMinMax(varn, frmMap, varn);
    }

    const Drawing& drawing() const { return frmMap.drawing(); }
};

} // namespace

TEST(DiffusionGraphs, BarsRiseByTheShareOfItems)
{
    CountedSurvey survey;
    DrawBarGraph(countMapParts(survey.varn), 1, 0, survey.surfaces);
    const auto boxes = operationsOf<BoxOperation>(survey.drawing());
    ASSERT_EQ(boxes.size(), 3U) << "two bars and the erased title line";
    EXPECT_FLOAT_EQ(boxes[0].x, 100 * 8.82F + 50);
    EXPECT_FLOAT_EQ(boxes[0].width, 50);
    EXPECT_FLOAT_EQ(boxes[0].y + boxes[0].height, 200 * 8.82F + 50);
    EXPECT_FLOAT_EQ(boxes[0].height, 200);
    EXPECT_FLOAT_EQ(boxes[1].height, 80);
    EXPECT_EQ(boxes[0].fill, QBColor(1)) << "filled with the outline's colour";
    const QPointF name = printedAt(survey.drawing(), QStringLiteral("form 1"));
    EXPECT_NEAR(name.x(), 20 * 8.82 + 250, 0.01);
    EXPECT_NEAR(name.y(), 30 * 8.82 + 50, 0.01);
    EXPECT_NEAR(printedAt(survey.drawing(), QStringLiteral("No. of Items =10")).y(), 8050, 0.01);
}

TEST(DiffusionGraphs, LayersHaveALegendLineEach)
{
    CountedSurvey survey;
    drawLayeredGraph(countMapParts(survey.varn), DiffusionGraph::Bar, survey.surfaces);
    const double y0 = 30 * 8.82 + 50;
    EXPECT_NEAR(printedAt(survey.drawing(), QStringLiteral("All items")).y(), y0, 0.01);
    EXPECT_NEAR(printedAt(survey.drawing(), QStringLiteral("form 2")).y(), y0 + 600 + 400, 0.01);
    EXPECT_EQ(survey.varn.CurrentWordform, 1);
}

TEST(DiffusionGraphs, CirclesGrowByTheShareAndTheScaleSaysHow)
{
    CountedSurvey survey;
    DrawCircleGraph(countMapParts(survey.varn), 2, 1, survey.surfaces);
    const auto circles = operationsOf<EllipseOperation>(survey.drawing());
    ASSERT_EQ(circles.size(), 3 + 1 + 4U);
    EXPECT_FLOAT_EQ(circles[0].halfWidth, 0);
    EXPECT_FLOAT_EQ(circles[1].halfWidth, 50);
    EXPECT_EQ(circles[1].fill, QBColor(10));
    EXPECT_FLOAT_EQ(circles[3].halfWidth, 100) << "the legend's sample";
    for (const char* share : {"25 %", "50 %", "75 %", "100 %"}) {
        EXPECT_TRUE(wasPrinted(survey.drawing(), QLatin1String(share))) << share;
    }
}

TEST(DiffusionGraphs, TheLegendOfTenWordFormsDoesNotCollide)
{
    CountedSurvey survey;
    survey.varn.NumWordforms = 10;
    for (int k = 1; k <= 10; ++k) {
        survey.varn.WordformName(k) = QStringLiteral("form %1").arg(k);
    }
    drawLayeredGraph(countMapParts(survey.varn), DiffusionGraph::Circle, survey.surfaces);
    std::vector<float> rows;
    for (const TextOperation& text : operationsOf<TextOperation>(survey.drawing())) {
        const QString& words = survey.drawing().texts[text.text];
        if (words.startsWith(QStringLiteral("form")) || words.startsWith(QStringLiteral("No. of"))) {
            rows.push_back(text.y);
        }
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    ASSERT_EQ(rows.size(), 11U);
    for (std::size_t i = 1; i < rows.size(); ++i) {
        EXPECT_GT(rows[i] - rows[i - 1], survey.frmMap.TextHeight());
    }
    const auto circles = operationsOf<EllipseOperation>(survey.drawing());
    ASSERT_EQ(circles.size(), 3 * 10 + 10 + 4U);
    float above = rows[9] + survey.frmMap.TextHeight();
    std::size_t scale = 3 + 1; // drawn with the first word form
    for (const char* share : {"25 %", "50 %", "75 %", "100 %"}) {
        const EllipseOperation& circle = circles[scale++];
        EXPECT_FLOAT_EQ(circle.halfHeight, QByteArray(share).chopped(2).toFloat());
        const QPointF label = printedAt(survey.drawing(), QLatin1String(share));
        EXPECT_GT(std::min<double>(circle.y - circle.halfHeight, label.y()), above) << share;
        EXPECT_GT(label.x(), circle.x + circle.halfWidth);
        above = circle.y + circle.halfHeight;
    }
    EXPECT_LT(above, rows.back());
}

TEST(DiffusionGraphs, TheNextCommandDrawsTheNextWordForm)
{
    CountedSurvey survey;
    for (const int expected : {1, 2, 1}) {
        EXPECT_EQ(survey.varn.CurrentWordform, expected);
        drawSingleGraph(countMapParts(survey.varn), DiffusionGraph::Circle, survey.varn.CurrentWordform,
                        survey.surfaces);
    }
    survey.varn.CurrentWordform = 3;
    EXPECT_EQ(errorOf([&] {
                  drawSingleGraph(countMapParts(survey.varn), DiffusionGraph::Bar,
                                  survey.varn.CurrentWordform, survey.surfaces);
              }).number(),
              ErrorNumber::SubscriptOutOfRange);
    survey.varn.NumItemsAccumulated = 0;
    for (const DiffusionGraph graph : {DiffusionGraph::Bar, DiffusionGraph::Circle}) {
        survey.varn.CurrentWordform = 1;
        EXPECT_EQ(errorOf([&] {
                      drawSingleGraph(countMapParts(survey.varn), graph, survey.varn.CurrentWordform,
                                      survey.surfaces);
                  }).number(),
                  ErrorNumber::DivisionByZero);
    }
}

TEST(DiffusionGraphs, SymbolsMarkTheLocalitiesThatReachTheMinimum)
{
    CountedSurvey survey;
    survey.varn.DiffusionHanko(1) = {49, 0, 0, 0, 1, 0};
    survey.varn.DiffusionCaption(1) = QStringLiteral("often");
    survey.varn.MinimumPoints(1) = 10; // as many as the first locality has
    DrawHankoMap(countMapParts(survey.varn), 1, 2, survey.surfaces);
    const auto circles = operationsOf<EllipseOperation>(survey.drawing());
    ASSERT_EQ(circles.size(), 2U);
    EXPECT_FLOAT_EQ(circles[0].x, 100 * 8.82F + 50);
    EXPECT_FLOAT_EQ(circles[1].y, 30 * 8.82F + 600 + 80 + 400);
    EXPECT_NEAR(printedAt(survey.drawing(), QStringLiteral("often")).y(), 30 * 8.82 + 600 + 400, 0.01);
}

TEST(ContrastMap, CirclesSayWhichSidePrevailsAndByHowMuch)
{
    CountedSurvey survey;
    VarnModule& varn = survey.varn;
    varn.ContrastTitle = QStringLiteral("1 against 2");
    varn.ContrastMaxSize = 150;
    varn.ContrastSteps = 6;
    varn.ContrastSymbolColor(1) = 12;
    varn.ContrastSymbolColor(2) = 9;
    varn.ContrastPaintColor(1) = 4;
    varn.ContrastPaintColor(2) = 1;
    varn.ContrastSum(0, 1) = 10;
    varn.ContrastSum(0, 2) = -5;
    DrawRankGraph(countMapParts(varn), survey.surfaces);
    const auto circles = operationsOf<EllipseOperation>(survey.drawing());
    ASSERT_EQ(circles.size(), 3 + 5U) << "five steps: 5 / 2 rounds to 2 on either side";
    EXPECT_FLOAT_EQ(circles[0].x, 100 * 8.82F) << "without the base map's margin";
    EXPECT_FLOAT_EQ(circles[0].halfWidth, 150);
    EXPECT_EQ(circles[0].fill, QBColor(4));
    EXPECT_FLOAT_EQ(circles[1].halfWidth, 75);
    EXPECT_EQ(circles[1].fill, QBColor(1));
    EXPECT_EQ(circles[2].fill, QBColor(1)) << "no difference";
    EXPECT_FLOAT_EQ(circles[3].halfWidth, 150);
    EXPECT_FLOAT_EQ(circles[6].halfWidth, 75);
    const double x = 20 * 8.82 + 500;
    const double y = 30 * 8.82 + 800;
    const std::pair<const char*, int> rows[] = {
        {"-100%", -1 + 0}, {"-50%", 0}, {"0%", 1}, {"50%", 2}, {"100%", 3}};
    for (const auto& [label, row] : rows) {
        const QPointF at = printedAt(survey.drawing(), QLatin1String(label));
        EXPECT_NEAR(at.x(), x, 0.01) << label;
        EXPECT_NEAR(at.y(), y + 400 * row, 0.01) << label;
    }
}

TEST(ContrastMap, LargeCirclesStandClearOfTheLabels)
{
    CountedSurvey survey;
    survey.varn.ContrastSteps = 3;
    survey.varn.ContrastMaxSize = 400;
    DrawRankGraph(countMapParts(survey.varn), survey.surfaces);
    const auto circles = operationsOf<EllipseOperation>(survey.drawing());
    const QString label = QStringLiteral("-100%");
    ASSERT_EQ(circles.size(), 3 + 3U);
    EXPECT_GT(circles[3].x - 400, printedAt(survey.drawing(), label).x() + survey.frmMap.TextWidth(label));
}

TEST(ContrastMap, HalfTheStepsRoundToTheEvenNeighbour)
{
    const std::pair<double, std::size_t> rows[] = {{0, 0}, {1, 0}, {2, 3}, {3, 5}, {5, 5}, {6, 7}};
    for (const auto& [typed, labels] : rows) {
        CountedSurvey survey;
        survey.varn.ContrastTitle = QStringLiteral("title");
        survey.varn.ContrastSteps = typed + 1;
        DrawRankGraph(countMapParts(survey.varn), survey.surfaces);
        EXPECT_TRUE(wasPrinted(survey.drawing(), QStringLiteral("title")));
        EXPECT_EQ(survey.drawing().texts.size(), 1 + labels) << typed;
    }
    CountedSurvey survey;
    survey.varn.ContrastMaxSize = 10000;
    survey.varn.ContrastSum(0, 2) = 4;
    EXPECT_EQ(errorOf([&] { DrawRankGraph(countMapParts(survey.varn), survey.surfaces); }).number(),
              ErrorNumber::Overflow);
    survey.varn.NumItemsAccumulated = 0;
    survey.varn.ContrastMaxSize = 1;
    EXPECT_EQ(errorOf([&] { DrawRankGraph(countMapParts(survey.varn), survey.surfaces); }).number(),
              ErrorNumber::DivisionByZero);
}
