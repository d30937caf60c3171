#include "render/BlankMap.h"

#include "platform/StandardColors.h"
#include "render/MapSize.h"
#include "shell/MapParts.h"
#include "tests/TestDrive.h"

#include <QLineF>

TEST(BlankMap, TheHeightOfTheFormSetsTheScale)
{
    TestSurvey survey;
    VarnModule& varn = survey.varn;
    varn.LineOffset(1, 1) = 250; // the extent includes the offset of a line
    EXPECT_FLOAT_EQ(FindMinMax(varn, survey.frmMap, varn), 0.98F * 9000 / 1000);
    EXPECT_EQ(varn.MinY, 250);
    EXPECT_EQ(varn.MaxY, 1250);
    EXPECT_EQ(varn.RatioX, 12);

    survey.frmMap.Top = 1000; // a window further down leaves less height
    EXPECT_FLOAT_EQ(FindMinMax(varn, survey.frmMap, varn), 0.98F * 8000 / 1000);

    setFirstSize(survey.frmMap);
    setMapHeight(survey.frmMap, 100);
    EXPECT_FLOAT_EQ(survey.frmMap.Height, 5670);
    EXPECT_FLOAT_EQ(survey.frmMap.Width, 7560) << "the proportion of the sides is kept";
}

TEST(BlankMap, AMapWithoutExtentDividesByZero)
{
    TestSurvey survey;
    const auto findScale = [&] { FindMinMax(survey.varn, survey.frmMap, survey.varn); };
    for (int j = 1; j <= 5; ++j) {
        survey.varn.LineXY(1, j, 1) = 7;
    }
    EXPECT_EQ(errorOf(findScale).number(), ErrorNumber::DivisionByZero) << "all on one horizontal";
    survey.varn.NLine = 0;
    EXPECT_EQ(errorOf(findScale).number(), ErrorNumber::DivisionByZero) << "no lines";
}

TEST(BlankMap, LayersAreDrawnAtScaleWithAMargin)
{
    TestSurvey survey;
    survey.varn.LineStyle(1) = 1;
    survey.varn.LineOffset(1, 0) = 100;
    DrawBlankMap(blankMapParts(survey.varn), survey.surfaces);
    const Drawing& drawing = survey.frmMap.drawing();
    const auto coast = operationsOf<PolylineOperation>(drawing).at(0);
    EXPECT_EQ(drawing.points[coast.firstPoint + 2], QPointF(1100 * 8.82F + 50, 8870));
    const LinePen dashedBlue{QBColor(1), 1, 1};
    EXPECT_EQ(drawing.pens.at(static_cast<std::size_t>(coast.pen)), dashedBlue);
    EXPECT_EQ(survey.frmMap.DrawStyle, 0) << "what follows is drawn solid";
    EXPECT_EQ(printedAt(drawing, QStringLiteral("Town")), QPointF(400 * 8.82F + 50, 500 * 8.82F + 50));
    EXPECT_TRUE(operationsOf<EllipseOperation>(drawing).empty()) << "no dots unless asked for";

    survey.varn.PlotDots = true;
    DrawBlankMap(blankMapParts(survey.varn), survey.surfaces);
    const auto dots = operationsOf<EllipseOperation>(survey.frmMap.drawing());
    ASSERT_EQ(dots.size(), 3U);
    EXPECT_FLOAT_EQ(dots[1].x, 300 * 8.82F + 50);
    EXPECT_EQ(dots[1].halfWidth, 2);
    EXPECT_EQ(dots[1].fill, QBColor(0)) << "a black point";
    EXPECT_EQ(survey.frmMap.FillStyle, 1) << "what follows is not filled";
}

TEST(BlankMap, TheScaleBarHasATickForEachDivision)
{
    TestSurvey survey;
    DrawBlankMap(blankMapParts(survey.varn), survey.surfaces);
    const Drawing& drawing = survey.frmMap.drawing();
    const QPointF left(100 * 8.82 + 50, 900 * 8.82 + 50);
    const double length = 200 * 8.82;
    const auto near = [](QPointF a, QPointF b) { return QLineF(a, b).length() < 0.01; };
    EXPECT_TRUE(near(printedAt(drawing, QStringLiteral("0")), left + QPointF(50, -300)));
    EXPECT_TRUE(near(printedAt(drawing, QStringLiteral("20 km")), left + QPointF(length + 50, -300)));
    const auto lines = operationsOf<PolylineOperation>(drawing);
    ASSERT_EQ(lines.size(), 1U + 1 + 5) << "coast, bar, ticks";
    for (int i = -1; i <= 4; ++i) {
        const QPointF* points = &drawing.points[lines[static_cast<std::size_t>(i + 2)].firstPoint];
        const QPointF foot = i < 0 ? left : left + QPointF(i * length / 4, 0);
        const QPointF rise = i < 0 ? QPointF(length, 0) : QPointF(0, i == 0 || i == 4 ? -250 : -250.0 / 3);
        EXPECT_TRUE(near(points[0], foot)) << i;
        EXPECT_TRUE(near(points[1], foot + rise)) << i;
    }

    survey.varn.ScaleDivisions = 0;
    EXPECT_EQ(errorOf([&] { DrawBlankMap(blankMapParts(survey.varn), survey.surfaces); }).number(),
              ErrorNumber::DivisionByZero);
}

TEST(BlankMap, TheStampStandsInTheCornerInSmallType)
{
    TestSurvey survey;
    PlotDate(QStringLiteral("rain.han"), QDateTime(QDate(2024, 2, 9), QTime(8, 5, 1)), survey.surfaces);
    const Drawing& drawing = survey.frmMap.drawing();
    EXPECT_EQ(printedAt(drawing, QStringLiteral("rain.han")), QPointF(12000 - 1550, 9000 - 350));
    EXPECT_EQ(printedAt(drawing, QStringLiteral("2024-02-09 08:05:01")), QPointF(12000 - 1550, 9000 - 150));
    EXPECT_EQ(drawing.fonts.at(0).size, 8);
    EXPECT_EQ(survey.frmMap.FontSize, 10);
}

TEST(BlankMap, APreviewGoesToItsOwnSurface)
{
    TestSurvey survey;
    DrawSurface preview;
    survey.frmMap.Print(QStringLiteral("old map"));
    DrawBlankMap(blankMapParts(survey.varn), {preview, survey.frmMap});
    EXPECT_TRUE(survey.frmMap.drawing().operations.empty()) << "the map form is cleared";
    EXPECT_TRUE(wasPrinted(preview.drawing(), QStringLiteral("Town")));
}
