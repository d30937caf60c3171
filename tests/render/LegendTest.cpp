#include "render/Legend.h"

#include "platform/StandardColors.h"
#include "shell/MapParts.h"
#include "tests/support/TestDrive.h"

namespace {

void addCaption(VarnModule& varn, const QString& caption)
{
    const int k = ++varn.NHanrei;
    varn.HankoCaption(k) = caption;
    varn.Hanko(k) = {49, 0, 0, 0, 0, 0};
}

/// A survey whose caption block starts at (200, 300) twips.
struct LegendSurvey : TestSurvey
{
    LegendSurvey()
    {
        varn.Scale = 10;
        varn.HanreiX = 20;
        varn.HanreiY = 30;
        varn.Hanrei = QStringLiteral("Rain");
    }
};

} // namespace

TEST(Legend, RowsStandUnderTheTitle)
{
    for (const auto& [fontSize, step] : {std::pair{10, 300.0}, std::pair{14, 320.0}}) {
        LegendSurvey survey;
        survey.varn.MapFontSize = static_cast<qint16>(fontSize);
        for (const char* caption : {"one", "hid-den", "two"}) {
            addCaption(survey.varn, QString::fromLatin1(caption));
        }
        PlotHanrei(linguisticMapParts(survey.varn), survey.surfaces);
        const Drawing& drawing = survey.frmMap.drawing();
        EXPECT_EQ(printedAt(drawing, QStringLiteral("Rain")), QPointF(250, 350));
        EXPECT_EQ(printedAt(drawing, QStringLiteral("one")), QPointF(850, 350 + 2 * step));
        EXPECT_EQ(printedAt(drawing, QStringLiteral("two")), QPointF(850, 350 + 3 * step)) << "they close up";
        EXPECT_FALSE(wasPrinted(drawing, QStringLiteral("hid-den")));
        const auto symbols = operationsOf<EllipseOperation>(drawing);
        ASSERT_EQ(symbols.size(), 2U);
        EXPECT_EQ(symbols[0].x, 650);
        EXPECT_EQ(symbols[0].y, 430 + 2 * step);
    }
}

TEST(Legend, AFullColumnIsFollowedByOneToTheRight)
{
    LegendSurvey survey;
    survey.surfaces.area.Height = 6 * 300; // five rows a column
    for (const char* caption : {"a", "the widest of its column", "c", "d", "e"}) {
        addCaption(survey.varn, QString::fromLatin1(caption));
    }
    PlotHanrei(linguisticMapParts(survey.varn), survey.surfaces);
    const Drawing& drawing = survey.frmMap.drawing();
    EXPECT_EQ(printedAt(drawing, QStringLiteral("c")), QPointF(850, 350 + 4 * 300));
    const double widestEnd = 850 + survey.frmMap.TextWidth(QStringLiteral("the widest of its column"));
    EXPECT_NEAR(printedAt(drawing, QStringLiteral("d")).x(), widestEnd + 400 + 200, 0.1);
    EXPECT_EQ(printedAt(drawing, QStringLiteral("d")).y(), 350 + 300);
    EXPECT_EQ(printedAt(drawing, QStringLiteral("e")).y(), 350 + 2 * 300);
}

TEST(Legend, TheTitleLineIsErasedFirst)
{
    LegendSurvey survey;
    survey.varn.KanjiText(1) = QStringLiteral("A survey's long title");
    survey.frmMap.DrawWidth = 5; // as a symbol leaves it
    for (const char* title : {"Rain", "An item's title that is longer than the survey's"}) {
        survey.frmMap.Cls();
        survey.varn.Hanrei = QString::fromLatin1(title);
        PlotHanrei(linguisticMapParts(survey.varn), survey.surfaces);
        const Drawing& drawing = survey.frmMap.drawing();
        const auto box = operationsOf<BoxOperation>(drawing).at(0);
        EXPECT_EQ(box.fill, QBColor(15));
        EXPECT_EQ(drawing.pens.at(static_cast<std::size_t>(box.pen)),
                  (LinePen{QBColor(15), 1, PenStyle::Solid}));
        EXPECT_EQ(QPointF(box.x, box.y), QPointF(200, 300));
        const float longer = std::max(survey.frmMap.TextWidth(survey.varn.KanjiText(1)),
                                      survey.frmMap.TextWidth(survey.varn.Hanrei));
        const float pixels = 2 * 15; // for the edges of painted letters
        EXPECT_FLOAT_EQ(box.x + box.width, 250 + longer + pixels) << "to the end of the longer one only";
        EXPECT_FLOAT_EQ(box.y + box.height, 350 + survey.frmMap.TextHeight() + pixels);
    }
}

TEST(Legend, AFormOfOneRowDividesByZero)
{
    LegendSurvey survey;
    survey.surfaces.area.Height = 500;
    addCaption(survey.varn, QStringLiteral("a"));
    EXPECT_EQ(errorOf([&] { PlotHanrei(linguisticMapParts(survey.varn), survey.surfaces); }).number(),
              ErrorNumber::DivisionByZero);
}
