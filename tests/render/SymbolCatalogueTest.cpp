#include "render/SymbolCatalogue.h"

#include "platform/StandardColors.h"
#include "tests/support/TestDrive.h"

TEST(SymbolCatalogue, PagesHold160Symbols)
{
    TestSurvey survey;
    survey.varn.Nsquare = 2; // 160 symbols
    EXPECT_EQ(LastSymbolPage(survey.varn), 1);
    survey.varn.Nsquare = 3;
    EXPECT_EQ(LastSymbolPage(survey.varn), 2);
    PlotSymbol(survey.varn, survey.varn, 2, survey.surfaces);
    EXPECT_EQ(survey.frmMap.drawing().texts,
              std::vector<QString>({QStringLiteral("161"), QStringLiteral("162"), QStringLiteral("163"),
                                    QStringLiteral("164")}));
}

TEST(SymbolCatalogue, SymbolsStandInAGridInChangingColors)
{
    TestSurvey survey;
    PlotSymbol(survey.varn, survey.varn, 1, survey.surfaces);
    const Drawing& drawing = survey.frmMap.drawing();
    const QPointF first = printedAt(drawing, QStringLiteral("1"));
    EXPECT_EQ(first, QPointF(750 - 250 - 200, 350 - 300));
    EXPECT_EQ(printedAt(drawing, QStringLiteral("16")), first + QPointF(15 * 750, 0));
    EXPECT_EQ(printedAt(drawing, QStringLiteral("17")), first + QPointF(0, 850));
    EXPECT_EQ(printedAt(drawing, QStringLiteral("160")), first + QPointF(15 * 750, 9 * 850));

    // Symbol 16 is a small box with diagonals: outline 16 mod 16, fill (16 + 11) mod 16.
    const auto boxes = operationsOf<BoxOperation>(drawing);
    const auto symbol16 = std::ranges::find_if(boxes, [](const BoxOperation& box) {
        return std::abs(box.x + box.width / 2 - (500 + 15 * 750)) < 1 &&
               std::abs(box.y + box.height / 2 - 350) < 1;
    });
    ASSERT_NE(symbol16, boxes.end());
    EXPECT_EQ(drawing.pens.at(static_cast<std::size_t>(symbol16->pen)).color, QBColor(0));
    EXPECT_EQ(symbol16->fill, QBColor(11));
    for (const LinePen& pen : drawing.pens) {
        EXPECT_NE(pen.color, QBColor(15)) << "nothing is outlined in white";
    }
}

TEST(SymbolCatalogue, ANarrowFormShowsTheFirstColumnWhole)
{
    TestSurvey survey;
    survey.surfaces.area.Width = 16 * 320;
    PlotSymbol(survey.varn, survey.varn, 1, survey.surfaces);
    const Drawing& drawing = survey.frmMap.drawing();
    EXPECT_EQ(printedAt(drawing, QStringLiteral("1")), QPointF(0, 50));
    EXPECT_EQ(printedAt(drawing, QStringLiteral("18")).x(), 320);
    EXPECT_EQ(survey.frmMap.ScaleLeft, 0);
}
