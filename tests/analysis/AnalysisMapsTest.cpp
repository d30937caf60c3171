#include "analysis/ContrastMap.h"
#include "analysis/DiffusionGraphs.h"
#include "platform/StandardColors.h"
#include "shell/MapParts.h"
#include "tests/support/TestDrive.h"
#include "tests/support/Transcript.h"

namespace {

/// A survey with two word forms counted over ten items at its three localities.
class CountMaps : public testing::Test, protected TestSurvey
{
protected:
    CountMaps()
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

    void single(DiffusionGraph graph) { drawSingleGraph(parts, graph, varn.CurrentWordform, surfaces); }
    void contrast() { DrawRankGraph(parts, surfaces); }

    CountMapParts parts = countMapParts(varn);
    const Drawing& drawing = frmMap.drawing();
};

using DiffusionGraphs = CountMaps;
using ContrastMap = CountMaps;

} // namespace

TEST_F(DiffusionGraphs, BarsRiseByTheShareOfItems)
{
    DrawBarGraph(parts, 2, 0, surfaces);
    DrawBarGraph(parts, 1, 1, surfaces);
    DrawBarGraph(parts, 2, 2, surfaces);
    EXPECT_EQ(transcript(drawing), R"(
box 2696,3478 2746,3578 filled 2 pen 1/0/2
white box
"form 2" 426.4,314.6 10pt
"No. of Items =10" 226.4,8050 10pt
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

TEST_F(DiffusionGraphs, CirclesGrowByTheShareAndTheScaleSaysHow)
{
    DrawCircleGraph(parts, 2, 0, surfaces);
    EXPECT_EQ(transcript(drawing), R"(
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
    frmMap.Cls();
    varn.NumWordforms = 10;
    varn.WordformName(10) = QStringLiteral("last");
    DrawCircleGraph(parts, 10, 10, surfaces);
    EXPECT_EQ(transcript(drawing), R"(
ellipse 932,1814 0,0 filled 0 pen 1/0/0
ellipse 2696,3578 0,0 filled 0 pen 1/0/0
ellipse 4464.4,5346.4 0,0 filled 0 pen 1/0/0
white box
"All items" 226.4,314.6 10pt
ellipse 326.4,3934.6 100,100 filled 0 pen 1/0/0
"last" 526.4,3814.6 10pt
)");
    DrawCircleGraph(parts, 1, 1, surfaces);
    EXPECT_EQ(printedAt(drawing, QStringLiteral("form 1")).y(), 1114.6F) << "in the first row";
    EXPECT_EQ(printedAt(drawing, QStringLiteral("25 %")).y(), 4264.6F) << "the scale stands under ten rows";
    EXPECT_EQ(printedAt(drawing, QStringLiteral("No. of Items =10")).y(), 8050);
}

TEST_F(DiffusionGraphs, TheNextCommandDrawsTheNextWordForm)
{
    for (const int expected : {1, 2, 1}) {
        EXPECT_EQ(varn.CurrentWordform, expected);
        single(DiffusionGraph::Circle);
    }
    varn.CurrentWordform = 3;
    EXPECT_EQ(errorOf([&] { single(DiffusionGraph::Bar); }).number(), ErrorNumber::SubscriptOutOfRange);
    varn.NumItemsAccumulated = 0;
    for (const DiffusionGraph graph : {DiffusionGraph::Bar, DiffusionGraph::Circle}) {
        varn.CurrentWordform = 1;
        EXPECT_EQ(errorOf([&] { single(graph); }).number(), ErrorNumber::DivisionByZero);
    }
}

TEST_F(DiffusionGraphs, SymbolsMarkTheLocalitiesThatReachTheMinimum)
{
    varn.DiffusionHanko(1) = {49, 0, 0, 0, 1, 1};
    varn.DiffusionCaption(1) = QStringLiteral("often");
    varn.MinimumPoints(1) = 10; // as many as the first locality has
    for (const int row : {0, 2}) {
        DrawHankoMap(parts, 1, row, surfaces);
        EXPECT_EQ(frmMap.DrawWidth, 1);
    }
    EXPECT_EQ(transcript(drawing), R"(
ellipse 932,1814 100,100 pen 3/0/0
white box
ellipse 932,1814 100,100 pen 3/0/0
white box
"often" 376.4,1264.6 10pt
ellipse 176.4,1344.6 100,100 pen 3/0/0
)");
}

TEST_F(DiffusionGraphs, LayersStandOneOverTheOtherWithARowEach)
{
    varn.NLine = 1;
    varn.NKanji = 0;
    const auto layers = [&](DiffusionGraph graph) {
        drawLayeredGraph(parts, graph, surfaces);
        const std::string all = transcript(drawing);
        return '\n' + all.substr(all.find("ellipse"));
    };
    EXPECT_EQ(layers(DiffusionGraph::Circle), R"(
ellipse 932,1814 100,100 filled 9 pen 1/0/1
ellipse 2696,3578 0,0 filled 9 pen 1/0/1
ellipse 4464.4,5346.4 40,40 filled 9 pen 1/0/1
white box
"All items" 226.4,314.6 10pt
ellipse 326.4,1234.6 100,100 filled 9 pen 1/0/1
"form 1" 526.4,1114.6 10pt
ellipse 326.4,1984.6 25,25 pen 1/0/0
"25 %" 526.4,1864.6 10pt
ellipse 326.4,2284.6 50,50 pen 1/0/0
"50 %" 526.4,2164.6 10pt
ellipse 326.4,2584.6 75,75 pen 1/0/0
"75 %" 526.4,2464.6 10pt
ellipse 326.4,2884.6 100,100 pen 1/0/0
"100 %" 526.4,2764.6 10pt
"No. of Items =10" 226.4,8050 10pt
ellipse 932,1814 0,0 filled 10 pen 1/0/2
ellipse 2696,3578 50,50 filled 10 pen 1/0/2
ellipse 4464.4,5346.4 0,0 filled 10 pen 1/0/2
white box
"All items" 226.4,314.6 10pt
ellipse 326.4,1534.6 100,100 filled 10 pen 1/0/2
"form 2" 526.4,1414.6 10pt
)");
    for (int k = 1; k <= 2; ++k) {
        varn.DiffusionHanko(k) = {static_cast<qint16>(48 + k), 0, 4, 0, 1, 2};
        varn.DiffusionCaption(k) = QStringLiteral("caption %1").arg(k);
        varn.MinimumPoints(k) = 5;
    }
    EXPECT_EQ(layers(DiffusionGraph::Symbol), R"(
ellipse 932,1814 100,100 pen 5/0/0
white box
"caption 1" 376.4,864.6 10pt
ellipse 176.4,944.6 100,100 pen 5/0/0
ellipse 2696,3578 100,100 filled 4 pen 5/0/0
white box
"caption 2" 376.4,1264.6 10pt
ellipse 176.4,1344.6 100,100 filled 4 pen 5/0/0
)");
    EXPECT_EQ(frmMap.DrawWidth, 1);
    EXPECT_EQ(varn.ScreenXY(2, 0), 2696);
}

TEST_F(ContrastMap, CirclesSayWhichSidePrevailsAndByHowMuch)
{
    varn.ContrastTitle = QStringLiteral("1 against 2");
    varn.ContrastMaxSize = 150;
    varn.ContrastSteps = 6;
    varn.ContrastSymbolColor(1) = 12;
    varn.ContrastSymbolColor(2) = 9;
    varn.ContrastPaintColor(1) = 4;
    varn.ContrastPaintColor(2) = 1;
    varn.ContrastSum(0, 1) = 10;
    varn.ContrastSum(0, 2) = -5;
    contrast();
    EXPECT_EQ(transcript(drawing), R"(
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

TEST_F(ContrastMap, TheLegendHasHalfTheStepsRoundedToTheEvenNeighbour)
{
    const std::pair<double, std::size_t> rows[] = {{0, 0}, {1, 0}, {2, 3}, {3, 5}, {5, 5}, {6, 7}};
    varn.ContrastTitle = QStringLiteral("title");
    for (const auto& [typed, labels] : rows) {
        frmMap.Cls();
        varn.ContrastSteps = typed + 1;
        contrast();
        EXPECT_TRUE(wasPrinted(drawing, QStringLiteral("title")));
        EXPECT_EQ(drawing.texts.size(), 1 + labels) << typed;
    }
    // As many as stand left of the labels; larger circles stand behind the longest label.
    const double behind = 676.4 + frmMap.TextWidth("-100%") + 60;
    for (const auto& [size, x] : {std::pair(190, 426.4), {191, behind + 191}}) {
        varn.ContrastMaxSize = static_cast<qint16>(size);
        frmMap.Cls();
        contrast();
        EXPECT_NEAR(operationsOf<EllipseOperation>(drawing).at(3).x, x, 0.1);
    }

    varn.ContrastMaxSize = 10000;
    varn.ContrastSum(0, 2) = 4;
    EXPECT_EQ(errorOf([&] { contrast(); }).number(), ErrorNumber::Overflow);
    varn.NumItemsAccumulated = 0;
    varn.ContrastMaxSize = 1;
    EXPECT_EQ(errorOf([&] { contrast(); }).number(), ErrorNumber::DivisionByZero);
}
