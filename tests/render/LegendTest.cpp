#include "render/Legend.h"

#include "platform/StandardColors.h"
#include "shell/MapParts.h"
#include "tests/support/TestDrive.h"
#include "tests/support/Transcript.h"

namespace {

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

    /// Draws the legend with `captions`.
    const Drawing& drawn(const QStringList& captions)
    {
        for (const QString& caption : captions) {
            varn.HankoCaption(++varn.NHanrei) = caption;
            varn.Hanko(varn.NHanrei) = {49, 0, 0, 0, 0, 0};
        }
        PlotHanrei(linguisticMapParts(varn), surfaces);
        return frmMap.drawing();
    }
};

} // namespace

TEST(Legend, RowsStandUnderTheTitle)
{
    LegendSurvey survey;
    survey.varn.MapFontSize = 14; // rows 320 apart
    EXPECT_EQ(transcript(survey.drawn({"one", "hid-den", "two"})), R"(
white box
"Rain" 250,350 10pt
ellipse 650,1070 50,50 pen 1/0/0
"one" 850,990 10pt
ellipse 650,1390 50,50 pen 1/0/0
"two" 850,1310 10pt
)");
}

TEST(Legend, AFullColumnIsFollowedByOneToTheRight)
{
    LegendSurvey survey;
    survey.surfaces.area.Height = 6 * 300; // five rows a column
    const Drawing& drawing = survey.drawn({"a", "the widest of its column", "c", "d", "e"});
    EXPECT_EQ(printedAt(drawing, "c"), QPointF(850, 350 + 4 * 300));
    const double widestEnd = 850 + survey.frmMap.TextWidth("the widest of its column");
    EXPECT_NEAR(printedAt(drawing, "d").x(), widestEnd + 400 + 200, 0.1);
    EXPECT_EQ(printedAt(drawing, "d").y(), 350 + 300);
    EXPECT_EQ(printedAt(drawing, "e").y(), 350 + 2 * 300);
}

TEST(Legend, TheTitleLineIsErasedFirst)
{
    for (const char* title : {"Rain", "An item's title that is longer than the survey's"}) {
        LegendSurvey survey;
        survey.varn.KanjiText(1) = QStringLiteral("A survey's long title");
        survey.varn.Hanrei = QString::fromLatin1(title);
        survey.frmMap.DrawWidth = 5; // as a symbol leaves it
        const Drawing& drawing = survey.drawn({});
        const auto box = operationsOf<BoxOperation>(drawing).at(0);
        EXPECT_EQ(drawing.pens.at(static_cast<std::size_t>(box.pen)),
                  (LinePen{QBColor(15), 1, PenStyle::Solid}));
        EXPECT_EQ(QPointF(box.x, box.y), QPointF(200, 300));
        const float longer =
            std::max(survey.frmMap.TextWidth(survey.varn.KanjiText(1)), survey.frmMap.TextWidth(title));
        const float pixels = 2 * 15; // for the edges of painted letters
        EXPECT_FLOAT_EQ(box.x + box.width, 250 + longer + pixels) << "to the end of the longer one only";
        EXPECT_FLOAT_EQ(box.y + box.height, 350 + survey.frmMap.TextHeight() + pixels);
    }
}
