#include "analysis/ContrastMap.h"
#include "analysis/DiffusionGraphs.h"
#include "platform/StandardColors.h"
#include "shell/MapParts.h"
#include "tests/support/TestDrive.h"
#include "tests/support/Transcript.h"

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
        varn.Scale = FindMinMax(varn, surfaces.area, varn);
    }

    const Drawing& drawing() const { return frmMap.drawing(); }
};

} // namespace

TEST(DiffusionGraphs, BarsRiseByTheShareOfItems)
{
    CountedSurvey survey;
    DrawBarGraph(countMapParts(survey.varn), 1, 0, survey.surfaces);
    EXPECT_EQ(transcript(survey.drawing()), R"(
box 932,1614 982,1814 filled 1 pen 1/0/1
box 4464.4,5266.4 4514.4,5346.4 filled 1 pen 1/0/1
white box
"form 1" 426.4,314.6 10pt
"No. of Items =10" 226.4,8050 10pt
)");
    survey.frmMap.Cls();
    DrawBarGraph(countMapParts(survey.varn), 1, 1, survey.surfaces);
    DrawBarGraph(countMapParts(survey.varn), 2, 2, survey.surfaces);
    EXPECT_EQ(transcript(survey.drawing()), R"(
box 932,1614 982,1814 filled 1 pen 1/0/1
box 4464.4,5266.4 4514.4,5346.4 filled 1 pen 1/0/1
white box
"All items" 226.4,314.6 10pt
"form 1" 426.4,914.6 10pt
box 226.4,914.6 276.4,1114.6 filled 1 pen 1/0/1
"No. of Items =10" 226.4,8050 10pt
box 2696,3478 2746,3578 filled 2 pen 1/0/2
white box
"All items" 226.4,314.6 10pt
"form 2" 426.4,1314.6 10pt
box 226.4,1314.6 276.4,1514.6 filled 2 pen 1/0/2
)");
}

TEST(DiffusionGraphs, CirclesGrowByTheShareAndTheScaleSaysHow)
{
    CountedSurvey survey;
    DrawCircleGraph(countMapParts(survey.varn), 2, 0, survey.surfaces);
    EXPECT_EQ(transcript(survey.drawing()), R"(
ellipse 932,1814 0,0 filled 10 pen 1/0/2
ellipse 2696,3578 50,50 filled 10 pen 1/0/2
ellipse 4464.4,5346.4 0,0 filled 10 pen 1/0/2
white box
ellipse 326.4,1234.6 100,100 filled 10 pen 1/0/2
"form 2" 526.4,1114.6 10pt
ellipse 326.4,1684.6 25,25 pen 1/0/0
"25 %" 526.4,1564.6 10pt
ellipse 326.4,1984.6 50,50 pen 1/0/0
"50 %" 526.4,1864.6 10pt
ellipse 326.4,2284.6 75,75 pen 1/0/0
"75 %" 526.4,2164.6 10pt
ellipse 326.4,2584.6 100,100 pen 1/0/0
"100 %" 526.4,2464.6 10pt
"No. of Items =10" 226.4,8050 10pt
)");
    survey.frmMap.Cls();
    survey.varn.NumWordforms = 10;
    survey.varn.WordformName(10) = QStringLiteral("last");
    DrawCircleGraph(countMapParts(survey.varn), 1, 1, survey.surfaces);
    DrawCircleGraph(countMapParts(survey.varn), 10, 10, survey.surfaces);
    EXPECT_EQ(transcript(survey.drawing()), R"(
ellipse 932,1814 100,100 filled 9 pen 1/0/1
ellipse 2696,3578 0,0 filled 9 pen 1/0/1
ellipse 4464.4,5346.4 40,40 filled 9 pen 1/0/1
white box
"All items" 226.4,314.6 10pt
ellipse 326.4,1234.6 100,100 filled 9 pen 1/0/1
"form 1" 526.4,1114.6 10pt
ellipse 326.4,4384.6 25,25 pen 1/0/0
"25 %" 526.4,4264.6 10pt
ellipse 326.4,4684.6 50,50 pen 1/0/0
"50 %" 526.4,4564.6 10pt
ellipse 326.4,4984.6 75,75 pen 1/0/0
"75 %" 526.4,4864.6 10pt
ellipse 326.4,5284.6 100,100 pen 1/0/0
"100 %" 526.4,5164.6 10pt
"No. of Items =10" 226.4,8050 10pt
ellipse 932,1814 0,0 filled 0 pen 1/0/0
ellipse 2696,3578 0,0 filled 0 pen 1/0/0
ellipse 4464.4,5346.4 0,0 filled 0 pen 1/0/0
white box
"All items" 226.4,314.6 10pt
ellipse 326.4,3934.6 100,100 filled 0 pen 1/0/0
"last" 526.4,3814.6 10pt
)") << "the scale stands under ten rows";
}

TEST(DiffusionGraphs, TheNextCommandDrawsTheNextWordForm)
{
    CountedSurvey survey;
    drawLayeredGraph(countMapParts(survey.varn), DiffusionGraph::Circle, survey.surfaces);
    EXPECT_TRUE(wasPrinted(survey.drawing(), QStringLiteral("form 1")));
    EXPECT_TRUE(wasPrinted(survey.drawing(), QStringLiteral("form 2")));
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
    survey.varn.DiffusionHanko(1).LineThick = 1;
    DrawHankoMap(countMapParts(survey.varn), 1, 2, survey.surfaces);
    EXPECT_EQ(transcript(survey.drawing()), R"(
ellipse 932,1814 100,100 pen 3/0/0
white box
"often" 376.4,1264.6 10pt
ellipse 176.4,1344.6 100,100 pen 3/0/0
)");
    EXPECT_EQ(survey.frmMap.DrawWidth, 1);
    survey.frmMap.Cls();
    DrawHankoMap(countMapParts(survey.varn), 1, 0, survey.surfaces);
    EXPECT_EQ(transcript(survey.drawing()), R"(
ellipse 932,1814 100,100 pen 3/0/0
white box
)");
    EXPECT_EQ(survey.frmMap.DrawWidth, 1);
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
    EXPECT_EQ(transcript(survey.drawing()), R"(
ellipse 882,1764 150,150 filled 4 pen 1/0/12
ellipse 2646,3528 75,75 filled 1 pen 1/0/9
ellipse 4414.4,5296.4 0,0 filled 1 pen 1/0/9
white box
"1 against 2" 176.4,264.6 10pt
"-100%" 676.4,664.6 10pt
ellipse 426.4,784.6 150,150 filled 1 pen 1/0/9
"-50%" 676.4,1064.6 10pt
ellipse 426.4,1184.6 75,75 filled 1 pen 1/0/9
"0%" 676.4,1464.6 10pt
ellipse 426.4,1584.6 0,0 filled 1 pen 1/0/9
"50%" 676.4,1864.6 10pt
ellipse 426.4,1984.6 75,75 filled 4 pen 1/0/12
"100%" 676.4,2264.6 10pt
ellipse 426.4,2384.6 150,150 filled 4 pen 1/0/12
)");
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
