#include "shell/Printing.h"

#include "render/BlankMap.h"
#include "shell/MapParts.h"
#include "tests/support/RecordingPrinter.h"
#include "tests/support/TestDrive.h"

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
        PrintYesNo(varn, frmMap, QStringLiteral("Test - Town"));
        DrawBlankMap(blankMapParts(varn), {{*varn.DrawTarget, frmMap}, surfaces.area});
        PrintEnd(varn);
    }

    RecordingPrinter::Documents documents;
};

} // namespace

TEST(Printing, PaperIsA4InEitherOrientation)
{
    PageSetup page;
    setPaper(page, PageOrientation::Portrait);
    EXPECT_EQ(paperLabel(page), QStringLiteral("A4 Portrait(297 X 210) mm"));
    EXPECT_EQ(paperSpaceLabel(page), QStringLiteral("Height:297(mm) Width:210(mm)"));
    setPaper(page, PageOrientation::Landscape);
    EXPECT_EQ(paperLabel(page), QStringLiteral("A4 Landscape(210 X 297) mm"));
    EXPECT_EQ(printModeLabel(page), QStringLiteral("Don't print"));
    page.PrintMode = true;
    EXPECT_EQ(printModeLabel(page), QStringLiteral("Print A4 Landscape"));
}

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
    EXPECT_FALSE(survey.frmMap.drawing().operations.empty());

    survey.varn.PrintMode = true;
    survey.drawMap();
    survey.varn.LeftMargin = 30;
    survey.varn.TopMargin = 25;
    survey.drawMap();
    ASSERT_EQ(survey.documents.size(), 2U);
    EXPECT_TRUE(survey.frmMap.drawing().operations.empty());
    const QPointF onForm(400 * 8.82F + 50, 500 * 8.82F + 50);
    const QPointF first = printedAt(survey.documents[0].at(0), QStringLiteral("Town"));
    const QPointF second = printedAt(survey.documents[1].at(0), QStringLiteral("Town"));
    EXPECT_NEAR(first.x(), onForm.x() + 20 * 56.7, 0.01);
    EXPECT_NEAR(first.y(), onForm.y() + 15 * 56.7, 0.01);
    EXPECT_NEAR(second.x(), onForm.x() + 30 * 56.7, 0.01);
    EXPECT_NEAR(second.y(), onForm.y() + 25 * 56.7, 0.01);
}

TEST(Printing, APageHasThePaperAndTheFontChosenWhenItBegins)
{
    TestSurvey survey;
    VarnModule& varn = survey.varn;
    RecordingPrinter::Documents documents;
    PageLayout chosen;
    chosen.PaperOrientation = PageOrientation::Portrait;
    connectPrinter(varn, std::make_unique<RecordingPrinter>(documents, chosen));
    EXPECT_EQ(paperLabel(varn), QStringLiteral("A4 Portrait(297 X 210) mm")) << "as chosen with the printer";
    EXPECT_EQ(varn.Printer.FontSize, 10);

    setPaper(varn, PageOrientation::Landscape);
    varn.MapFontSize = 14;
    varn.MapFontName = QStringLiteral("Courier");
    varn.MapFontItalic = true;
    varn.Printer.FontBold = true;
    varn.Printer.DrawWidth = 5; // as a symbol leaves it
    varn.Printer.FillStyle = DrawSurface::Fill::Solid;
    beginDocument(varn, varn, QStringLiteral("Test - List"));
    varn.Printer.PrintAt(0, 0, QStringLiteral("list"));
    varn.Printer.Box(0, 0, 10, 10, qRgb(0, 0, 0));
    endDocument(varn);
    ASSERT_EQ(documents.size(), 1U);
    EXPECT_EQ(documents[0].name, QStringLiteral("Test - List"));
    EXPECT_EQ(documents[0].orientation, PageOrientation::Landscape);
    const TextFont font{QStringLiteral("Courier"), 14, false, true};
    EXPECT_EQ(documents[0].at(0).fonts.at(0), font);
    EXPECT_EQ(documents[0][0].pens.at(0).width, 1);
    EXPECT_EQ(operationsOf<BoxOperation>(documents[0][0]).at(0).fill, 0U);
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

TEST(Printing, ADocumentMayHaveManyPages)
{
    PrintedSurvey survey;
    beginDocument(survey.varn, survey.varn, {});
    survey.varn.Printer.Print(QStringLiteral("one"));
    newPage(survey.varn);
    survey.varn.Printer.Print(QStringLiteral("two"));
    endDocument(survey.varn);
    ASSERT_EQ(survey.documents.size(), 1U);
    ASSERT_EQ(survey.documents[0].size(), 2U);
    EXPECT_TRUE(wasPrinted(survey.documents[0][1], QStringLiteral("two")));
    EXPECT_FALSE(wasPrinted(survey.documents[0][1], QStringLiteral("one")));
}

TEST(Printing, WithoutAPrinterADocumentIsAnError)
{
    PrintedSurvey survey;
    survey.varn.PrintMode = true;
    connectPrinter(survey.varn, nullptr);
    EXPECT_FALSE(survey.varn.PrinterConnected);
    survey.drawMap();
    EXPECT_TRUE(wasPrinted(survey.frmMap.drawing(), QStringLiteral("Town"))) << "print mode is off";
    beginDocument(survey.varn, survey.varn, {});
    EXPECT_EQ(errorOf([&] { endDocument(survey.varn); }).number(), ErrorNumber::DeviceIOError);
}
