#include "render/SymbolCatalogue.h"

#include "platform/StandardColors.h"
#include "tests/support/TestDrive.h"
#include "tests/support/Transcript.h"

TEST(SymbolCatalogue, SymbolsStandInAGridInChangingColors)
{
    TestSurvey survey;
    PlotSymbol(survey.varn, survey.varn, 1, survey.surfaces);
    const Drawing& drawing = survey.frmMap.drawing();
    EXPECT_EQ(printedAt(drawing, "1"), QPointF(300, 50));
    EXPECT_EQ(printedAt(drawing, "17"), QPointF(300, 50 + 850));
    EXPECT_EQ(printedAt(drawing, "160"), QPointF(300 + 15 * 750, 50 + 9 * 850));
    // Symbol 16 is a small box with diagonals: outline 16 mod 16, fill (16 + 11) mod 16.
    EXPECT_NE(transcript(drawing).find(R"(
"16" 11550,50 6pt
box 11694.5,294.5 11805.5,405.5 filled 11 pen 2/0/0
line 11694.5,405.5 11805.5,294.5 pen 2/0/0
)"),
              std::string::npos);
    for (const LinePen& pen : drawing.pens) {
        EXPECT_NE(pen.color, QBColor(15)) << "nothing is outlined in white";
    }

    EXPECT_EQ(std::pair(survey.frmMap.FontSize, survey.frmMap.DrawWidth), std::pair(10, 1));

    survey.surfaces.area.Width = 16 * 320; // a narrow form shows the first column whole
    PlotSymbol(survey.varn, survey.varn, 1, survey.surfaces);
    EXPECT_EQ(printedAt(drawing, "1"), QPointF(0, 50));
    EXPECT_EQ(printedAt(drawing, "18").x(), 320);
    EXPECT_EQ(survey.frmMap.ScaleLeft, 0);

    EXPECT_EQ(LastSymbolPage(survey.varn), 1) << "a page holds 160 symbols";
    survey.varn.Nsquare = 3;
    EXPECT_EQ(LastSymbolPage(survey.varn), 2);
    PlotSymbol(survey.varn, survey.varn, 2, survey.surfaces);
    EXPECT_EQ(drawing.texts, std::vector<QString>({"161", "162", "163", "164"}));
    EXPECT_EQ(printedAt(drawing, "162"), QPointF(320, 50));
}
