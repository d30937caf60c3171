#include "shell/Printing.h"

#include "render/BlankMap.h"
#include "shell/MapParts.h"
#include "tests/support/RecordingPrinter.h"
#include "tests/support/TestDrive.h"
#include "tests/support/Transcript.h"

namespace {

/// A survey with a printer.
struct PrintedSurvey : TestSurvey
{
    PrintedSurvey()
    {
        varn.Scale = FindMinMax(varn, surfaces.area, varn);
        connectPrinter(varn, std::make_unique<RecordingPrinter>(documents));
    }

    void drawMap()
    {
        PrintYesNo(varn, frmMap, "Test - Town");
        DrawBlankMap(blankMapParts(varn), {{*varn.DrawTarget, frmMap}, surfaces.area});
        PrintEnd(varn);
    }

    RecordingPrinter::Documents documents;
};

} // namespace

TEST(Printing, TheScaleWouldFillThePaperBetweenTheMargins)
{
    PrintedSurvey survey;
    survey.varn.TopMargin = 10;
    survey.varn.BottomMargin = 20;
    survey.varn.LeftMargin = 200;
    survey.varn.RightMargin = 100;
    SettingPrinterScale(survey.varn, survey.varn);
    EXPECT_FLOAT_EQ(survey.varn.PrinterScale, 180 * 56.7F / 1000);
    EXPECT_LT(survey.varn.RatioX, 0) << "margins wider than the paper are not checked";
    EXPECT_FLOAT_EQ(survey.varn.Scale, 8.82F) << "a printed map has the scale of the screen";
}

TEST(Printing, EachDrawingCommandIsADocument)
{
    PrintedSurvey survey;
    survey.drawMap();
    EXPECT_TRUE(survey.documents.empty()) << "printing is off";
    const QPointF onForm = printedAt(survey.frmMap.drawing(), "Town");

    survey.varn.PrintMode = true;
    survey.drawMap();
    survey.varn.LeftMargin = 30;
    survey.varn.TopMargin = 25;
    survey.drawMap();
    ASSERT_EQ(survey.documents.size(), 2U);
    EXPECT_TRUE(survey.frmMap.drawing().operations.empty());
    const QPointF margins[] = {{20, 15}, {30, 25}};
    for (const size_t n : {0U, 1U}) {
        const QPointF moved = printedAt(survey.documents[n].at(0), "Town") - onForm;
        EXPECT_LT((moved - 56.7 * margins[n]).manhattanLength(), 0.02) << n;
    }

    connectPrinter(survey.varn, nullptr);
    survey.drawMap();
    EXPECT_TRUE(wasPrinted(survey.frmMap.drawing(), "Town")) << "print mode is off";
    beginDocument(survey.varn, survey.varn, {});
    EXPECT_EQ(errorOf([&] { endDocument(survey.varn); }).number(), ErrorNumber::DeviceIOError);
}

TEST(Printing, EachPageHasThePaperAndTheFontChosenWhenTheDocumentBegins)
{
    TestSurvey survey;
    VarnModule& varn = survey.varn;
    RecordingPrinter::Documents documents;
    PageLayout chosen;
    chosen.PaperOrientation = PageOrientation::Portrait;
    connectPrinter(varn, std::make_unique<RecordingPrinter>(documents, chosen));
    EXPECT_EQ(paperLabel(varn), "A4 Portrait(297 X 210) mm") << "as chosen with the printer";
    EXPECT_EQ(varn.Printer.FontSize, 10);

    setPaper(varn, PageOrientation::Landscape);
    varn.MapFontSize = 14;
    varn.MapFontName = "Courier";
    varn.MapFontItalic = true;
    varn.Printer.FontBold = true;
    varn.Printer.DrawWidth = 5; // as a symbol leaves it
    varn.Printer.FillStyle = DrawSurface::Fill::Solid;
    beginDocument(varn, varn, "Test - List");
    varn.Printer.PrintAt(0, 0, "list");
    newPage(varn);
    varn.Printer.Box(0, 0, 10, 10, qRgb(0, 0, 0));
    endDocument(varn);
    ASSERT_EQ(documents.size(), 1U);
    EXPECT_EQ(documents[0].name, "Test - List");
    EXPECT_EQ(documents[0].orientation, PageOrientation::Landscape);
    ASSERT_EQ(documents[0].size(), 2U);
    EXPECT_EQ(documents[0][0].fonts.at(0), (TextFont{"Courier", 14, false, true}));
    EXPECT_EQ(transcript(documents[0][0]), "\n\"list\" 1134,850.5 14pt italic\n");
    EXPECT_EQ(transcript(documents[0][1]), "\nbox 1134,850.5 1144,860.5 pen 1/0/0\n");
    EXPECT_FLOAT_EQ(varn.Printer.Width, 297 * 56.7F);
}

TEST(Printing, WhatIsLargerThanThePaperWithinItsMarginsIsNoticed)
{
    PrintedSurvey survey;
    VarnModule& varn = survey.varn;
    const float width = (297 - 20 - 15) * 56.7F;
    const float height = (210 - 15 - 15) * 56.7F;
    const auto fits = [&varn](float left, float top, float right, float bottom) {
        beginDocument(varn, varn, {});
        varn.Printer.FilledBox(left, top, right, bottom, qRgb(0, 0, 0));
        return fitsPaper(varn);
    };
    EXPECT_TRUE(fits(30, 30, width - 30, height - 30));
    EXPECT_FALSE(fits(-30, 30, 60, 60));
    EXPECT_FALSE(fits(30, -30, 60, 60));
    EXPECT_FALSE(fits(30, 30, width + 30, 60));
    EXPECT_FALSE(fits(30, 30, 60, height + 30));
    newPage(varn);
    EXPECT_FALSE(fitsPaper(varn)) << "any page";
}
