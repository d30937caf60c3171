#include "render/BlankMap.h"

#include "shell/MapParts.h"
#include "tests/support/TestDrive.h"
#include "tests/support/Transcript.h"

TEST(BlankMap, TheHeightOfTheFormSetsTheScale)
{
    TestSurvey survey;
    VarnModule& varn = survey.varn;
    varn.LineOffset(1, 1) = 250; // the extent includes the offset of a line
    const auto scale = [&] { return FindMinMax(varn, survey.surfaces.area, varn); };
    EXPECT_FLOAT_EQ(scale(), 0.98F * 9000 / 1000);
    EXPECT_EQ(std::tuple(varn.MinY, varn.MaxY, varn.RatioX), std::tuple(250, 1250, 12));
    survey.surfaces.area.Top = 1000; // a window further down leaves less height
    EXPECT_FLOAT_EQ(scale(), 0.98F * 8000 / 1000);

    for (int j = 1; j <= 5; ++j) {
        varn.LineXY(1, j, 1) = 7;
    }
    EXPECT_EQ(errorOf(scale).number(), ErrorNumber::DivisionByZero) << "all on one horizontal";
    varn.NLine = 0;
    EXPECT_EQ(errorOf(scale).number(), ErrorNumber::DivisionByZero) << "no lines";
}

TEST(BlankMap, LayersAreDrawnAtScaleWithAMargin)
{
    TestSurvey survey;
    survey.varn.LineStyle(1) = 1;
    survey.varn.LineOffset(1, 0) = 100;
    survey.frmMap.Print("old map");
    DrawSurface preview;
    DrawBlankMap(blankMapParts(survey.varn), {{preview, survey.frmMap}, survey.surfaces.area});
    EXPECT_TRUE(survey.frmMap.drawing().operations.empty()) << "the map form is cleared";
    EXPECT_EQ(transcript(preview.drawing()), R"(
line 932,50 9752,50 9752,8870 932,8870 932,50 pen 1/1/1
"Title" 226.4,319 10pt
"Town" 3578,4460 10pt
line 932,7988 2696,7988 pen 1/0/0
line 932,7988 932,7738 pen 1/0/0
line 1373,7988 1373,7904.7 pen 1/0/0
line 1814,7988 1814,7904.7 pen 1/0/0
line 2255,7988 2255,7904.7 pen 1/0/0
line 2696,7988 2696,7738 pen 1/0/0
"0" 982,7688 10pt
"20 km" 2746,7688 10pt
)") << "no dots unless asked for";
    EXPECT_EQ(preview.DrawStyle, PenStyle::Solid) << "what follows is drawn solid";

    survey.varn.PlotDots = true;
    survey.frmMap.FillStyle = DrawSurface::Fill::Transparent;
    PlotLocateData(survey.varn, survey.varn, survey.varn, survey.surfaces);
    EXPECT_EQ(survey.frmMap.FillStyle, DrawSurface::Fill::Transparent) << "what follows is not filled";
    PlotLocateCircle(survey.varn, survey.varn, survey.frmMap);
    EXPECT_EQ(transcript(survey.frmMap.drawing()), R"(
ellipse 932,1814 2,2 filled 0 pen 1/0/0
ellipse 2696,3578 2,2 filled 0 pen 1/0/0
ellipse 4464.4,5346.4 2,2 filled 0 pen 1/0/0
ellipse 932,1814 45,45 filled 10 pen 1/0/10
ellipse 932,1814 75,75 pen 1/0/12
ellipse 2696,3578 45,45 filled 10 pen 1/0/10
ellipse 2696,3578 75,75 pen 1/0/12
ellipse 4464.4,5346.4 45,45 filled 10 pen 1/0/10
ellipse 4464.4,5346.4 75,75 pen 1/0/12
)");

    survey.varn.ScaleDivisions = 0;
    EXPECT_EQ(errorOf([&] { DrawBlankMap(blankMapParts(survey.varn), survey.surfaces); }).number(),
              ErrorNumber::DivisionByZero);
}

TEST(BlankMap, TheStampStandsInTheCornerInSmallType)
{
    TestSurvey survey;
    PlotDate("rain.han", QDateTime(QDate(2024, 2, 9), QTime(8, 5, 1)), survey.surfaces);
    EXPECT_EQ(transcript(survey.frmMap.drawing()), R"(
"rain.han" 10450,8650 8pt
"2024-02-09 08:05:01" 10450,8850 8pt
)");
    EXPECT_EQ(survey.frmMap.FontSize, 10);
}
