#include "render/BlankMap.h"

#include "render/LocalityMap.h"
#include "shell/MapParts.h"
#include "tests/support/TestDrive.h"
#include "tests/support/Transcript.h"

#include <sstream>

TEST(BlankMap, TheHeightOfTheFormSetsTheScale)
{
    TestSurvey survey;
    VarnModule& varn = survey.varn;
    varn.LineOffset(1, 1) = 250; // the extent includes the offset of a line
    const auto scale = [&] { return FindMinMax(varn, survey.surfaces.area, varn); };
    EXPECT_FLOAT_EQ(scale(), 0.98F * 9000 / 1000);
    EXPECT_EQ(std::tuple(varn.MinY, varn.MaxY, varn.RatioX), std::tuple(250, 1250, 12));
    EXPECT_EQ(std::pair(varn.MinX, varn.MaxX), std::pair(0.0, 1000.0));
    varn.LineOffset(1, 0) = 500;
    survey.surfaces.area.Left = 600;
    scale();
    EXPECT_EQ(std::tuple(varn.MinX, varn.MaxX, varn.RatioX), std::tuple(500, 1500, 11.4));
    survey.surfaces.area.Top = 1000; // a window further down leaves less height
    EXPECT_FLOAT_EQ(scale(), 0.98F * 8000 / 1000);

    varn.LineOffset(1, 1) = 2000000; // what lies that far out is drawn as if it reached to the middle
    EXPECT_FLOAT_EQ(scale(), 0.98F * 8000 / 1001000);
    findStartExtent(varn, varn);
    EXPECT_EQ(std::tuple(varn.MinX, varn.MaxX, varn.MinY, varn.MaxY),
              std::tuple(500, 1500, 2000000, 2001000));
    varn.LineOffset(1, 1) = -2000000;
    EXPECT_FLOAT_EQ(scale(), 0.98F * 8000 / 1000001);
    varn.LineOffset(1, 0) = -2000000;
    scale();
    EXPECT_EQ(std::pair(varn.MinX, varn.MaxX), std::pair(-2000000.0, -999999.0));
    varn.LineOffset(1, 0) = varn.LineOffset(1, 1) = 0;

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
}

TEST(BlankMap, AScaleBarIsDrawnWhereAnyOfItsThreeFiguresIsThere)
{
    TestSurvey survey;
    VarnModule& varn = survey.varn;
    varn.NKanji = 0;
    varn.Scale = 10;
    const auto drawn = [&](double divisions, double length, const char* label) {
        varn.ScaleDivisions = divisions;
        varn.ScaleLength = length;
        varn.ScaleLabel = QString::fromLatin1(label);
        survey.frmMap.Cls();
        PlotKanjiData(varn, varn, survey.surfaces);
        return transcript(survey.frmMap.drawing());
    };
    varn.KanjiXY(1, 0) = 10;
    varn.KanjiXY(1, 1) = 50;
    EXPECT_EQ(drawn(0, 0, ""), "\n");
    EXPECT_EQ(drawn(2.5, 100, ""), R"(
line 150,550 1150,550 pen 1/0/0
line 150,550 150,300 pen 1/0/0
line 550,550 550,466.7 pen 1/0/0
line 950,550 950,466.7 pen 1/0/0
"0" 200,250 10pt
)") << "divisions that do not come out even";
    EXPECT_EQ(drawn(1, 0, ""), R"(
line 150,550 150,550 150,300 pen 1/0/0
line 150,550 150,300 pen 1/0/0
"0" 200,250 10pt
)");
    for (const auto& [length, label] : {std::pair(5, ""), {0, "km"}}) {
        const auto draw = [&drawn, length = length, label = label] { drawn(0, length, label); };
        EXPECT_EQ(errorOf(draw).number(), ErrorNumber::DivisionByZero) << label;
    }
}

TEST(LocalityMap, LinesAndLocalitiesFillThePaper)
{
    TestSurvey survey;
    LocalityMap map;
    const auto drawn = [&] {
        map.draw(survey.varn);
        const DrawSurface& surface = map.surface();
        std::ostringstream text;
        text << surface.ScaleLeft << ' ' << surface.ScaleTop << ' ' << surface.Width << ' ' << surface.Height;
        for (int i = 1; i <= map.localities(); ++i) {
            text << " | " << map.position(i).x() << ' ' << map.position(i).y();
        }
        return text.str() + transcript(surface.drawing());
    };
    survey.varn.LineOffset(1, 0) = 200;
    survey.varn.LineOffset(1, 1) = 400;
    survey.varn.LineXY(1, 1, 1) = -300; // the first point alone reaches up there
    EXPECT_EQ(drawn(), R"(239.231 239.231 4031.54 4710 | 150 489.231 | 828.462 1167.69 | 1508.62 1847.85
line 489.2,150 3881.5,1167.7 3881.5,4560 489.2,4560 489.2,1167.7 pen 1/0/1
ellipse 150,489.2 18,18 filled 0 pen 1/0/0
ellipse 828.5,1167.7 18,18 filled 0 pen 1/0/0
ellipse 1508.6,1847.9 18,18 filled 0 pen 1/0/0
)");
    EXPECT_EQ(map.nearest({0, 0}), 1);
    EXPECT_EQ(map.nearest(map.position(3) - QPointF(100, 300)), 3);
    EXPECT_EQ(map.nearest(map.position(2) + QPointF(300, -100)), 2);
    survey.varn.NLine = 0;
    survey.varn.LocXY(3, 1) = 500;
    EXPECT_EQ(drawn(), R"(1023.6 2147.19 4800 3670.79 | 150 150 | 2397.19 2397.19 | 4650 3520.79
ellipse 150,150 18,18 filled 0 pen 1/0/0
ellipse 2397.2,2397.2 18,18 filled 0 pen 1/0/0
ellipse 4650,3520.8 18,18 filled 0 pen 1/0/0
)") << "localities alone";
    survey.varn.NLocality = 1;
    EXPECT_EQ(drawn(), R"(449900 899900 300 300 | 150 150
ellipse 150,150 18,18 filled 0 pen 1/0/0
)") << "one alone";
    survey.varn.NLocality = 0;
    EXPECT_EQ(drawn(), "0 0 0 0\n");
    EXPECT_EQ(map.nearest({0, 0}), 0);
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
