#include "render/PhoneticText.h"

#include "platform/DrawnArea.h"
#include "render/SymbolHelp.h"
#include "shell/MapParts.h"
#include "tests/support/TestDrive.h"
#include "tests/support/Transcript.h"

#include <QDir>

#include <utility>

namespace {

/// A survey with two glyphs in each set, which are as wide as many pixels of 96 dpi as stands here.
struct GlyphSurvey : TestSurvey
{
    GlyphSurvey()
    {
        for (const auto& [set, width] :
             {std::pair("Standard16", 4), {"Standard18", 5}, {"Bold16", 6}, {"Bold18", 7}}) {
            QImage glyph(width, 16, QImage::Format_Grayscale8);
            glyph.setDotsPerMeterX(3780);
            glyph.setDotsPerMeterY(3780);
            const QString folder = hostPath("Varn62E/Varn/VarnSymbol/") + set;
            QDir().mkpath(folder);
            EXPECT_TRUE(glyph.save(folder + "/Symbol10.bmp") && glyph.save(folder + "/SymbolS1.bmp"));
        }
    }

    float plot(const char* text)
    {
        PhoneticText writer(textParts(varn), surfaces);
        return writer.PlotChar(100, 200, QString::fromUtf8(text));
    }
};

} // namespace

TEST(PhoneticCode, EveryGlyphHasOneCode)
{
    // In the order of the glyphs' numbers.
    const std::pair<GlyphSeries, QString> series[] = {
        {GlyphSeries::Main,
         "U1 E2 I1 O1 O2 I2 U2 E3 E1 A1 I4 U4 I5 U3 S1 Z1 H1 F B G2 G1 N1 R1 S2 H2 ' Z2 : ; R2 "
         "I3 E4 N2 A2 T1 T2 A3 A4"},
        {GlyphSeries::Second, "A5 E5 I6 O3 U5 U7 N3 A6 E6 I7 O4 U6 U8 N4 ? !"}};
    for (const auto& [glyphs, codes] : series) {
        int number = 0;
        for (const QString& code : codes.split(QLatin1Char(' '))) {
            const PhoneticUnit unit = decodePhonetic("\\" + code + "xyz");
            EXPECT_EQ(std::tuple(unit.kind, unit.series, unit.number, unit.consumed),
                      std::tuple(PhoneticUnit::Kind::Glyph, glyphs, ++number, code.size() + 1))
                << qPrintable(code);
        }
        EXPECT_EQ(number, glyphs == GlyphSeries::Main ? 38 : 16);
    }
}

TEST(PhoneticCode, IllegalEscapesSkipGenerously)
{
    const std::pair<const char*, int> rows[] = {{"\\Q1x", 4}, {"\\a1", 4}, {"\\A9z", 4}, {"\\", 4},
                                                {"\\Q", 3},   {"\\A", 3},  {"\\\\A1", 4}};
    for (const auto& [text, consumed] : rows) {
        const PhoneticUnit unit = decodePhonetic(QString::fromLatin1(text));
        EXPECT_EQ(unit.kind, PhoneticUnit::Kind::Illegal) << text;
        EXPECT_EQ(unit.consumed, consumed) << text;
    }
}

TEST(PhoneticText, GlyphsStandBetweenPlainCharacters)
{
    GlyphSurvey survey;
    const float a = survey.frmMap.TextWidth(QStringLiteral("a"));
    const float b = survey.frmMap.TextWidth(QStringLiteral("b"));
    EXPECT_NEAR(survey.plot("a\\A1b"), 100 + a + 4 * 15 + b, 0.1);
    const Drawing& drawing = survey.frmMap.drawing();
    const auto glyph = operationsOf<PictureOperation>(drawing).at(0);
    EXPECT_NEAR(glyph.x, 100 + a, 0.1);
    EXPECT_NEAR(glyph.y + 0.75 * glyph.height, 200 + survey.frmMap.TextAscent(), 0.1) << "on the baseline";
    EXPECT_NEAR(printedAt(drawing, "b").x(), 100 + a + 60, 0.1);
    survey.varn.SpecialFontShift = -2;
    survey.plot("\\A5");
    EXPECT_NEAR(operationsOf<PictureOperation>(drawing).at(1).y, glyph.y - 40, 0.1) << "two points up";
    EXPECT_EQ(survey.plot(""), 100);
}

TEST(PhoneticText, FontSizeAndBoldChooseTheGlyphSet)
{
    const std::tuple<qint16, bool, int> rows[] = {
        {10, false, 4}, {11, false, 5}, {10, true, 6}, {11, true, 7}};
    for (const auto& [fontSize, bold, width] : rows) {
        GlyphSurvey survey;
        survey.varn.MapFontSize = fontSize;
        survey.varn.PhoneticBold = bold;
        EXPECT_NEAR(survey.plot("\\A1"), 100 + width * 15, 0.1) << fontSize << bold;
    }
}

TEST(PhoneticText, AnIllegalEscapeIsReportedOnTheMapForm)
{
    GlyphSurvey survey;
    DrawSurface printer;
    PhoneticText(textParts(survey.varn), {printer, survey.frmMap}).PlotChar(100, 200, u"\\Q1xy");
    EXPECT_EQ(survey.frmMap.drawing().texts,
              std::vector<QString>({"\\Q1x Illegal Data for Phonetic Alphabet."}));
    EXPECT_EQ(transcript(printer.drawing()), "\n\"y\" 100,200 10pt\n");
}

TEST(PhoneticText, AMissingOrBrokenBitmapIsAnErrorThatNamesIt)
{
    GlyphSurvey survey;
    const QString path = survey.varn.VarnPath + "\\VarnSymbol\\Standard16\\Symbol34.bmp";
    for (const ErrorNumber expected : {ErrorNumber::FileNotFound, ErrorNumber::TypeMismatch}) {
        const RunTimeError error = errorOf([&] { survey.plot("\\A2"); });
        EXPECT_EQ(error.number(), expected);
        EXPECT_EQ(error.place().path, path);
        survey.write(path, "BMx");
    }
}

TEST(SymbolHelp, AllCodesStandOnThePageWhateverTheFontOfTheMap)
{
    GlyphSurvey survey;
    for (int i = 1; i <= 54; ++i) {
        survey.varn.ExpSymbols.push_back({"\\A1", "a", QStringLiteral("a long name of vowel %1").arg(i)});
    }
    const QString note = QStringLiteral("Make the map form larger to see all codes.");
    const auto page = [&]() -> const Drawing& {
        WriteSymbolHelp(survey.varn.ExpSymbols, textParts(survey.varn), survey.surfaces);
        return survey.frmMap.drawing();
    };
    const QRectF paper(0, 0, survey.surfaces.area.Width, survey.surfaces.area.Height);
    for (const int size : {8, 10, 12, 18, 36}) {
        SCOPED_TRACE(size);
        survey.varn.MapFontSize = static_cast<qint16>(size);
        survey.frmMap.FontSize = size;
        const Drawing& drawing = page();
        EXPECT_TRUE(paper.contains(drawnArea(drawing)));
        EXPECT_EQ(operationsOf<PictureOperation>(drawing).size(), 54U);
        const QPointF first = printedAt(drawing, "a long name of vowel 1");
        EXPECT_GE(printedAt(drawing, "a long name of vowel 2").y() - first.y(), 240) << "glyphs are so high";
        EXPECT_GT(printedAt(drawing, "a long name of vowel 54").x(), first.x());
        EXPECT_FALSE(wasPrinted(drawing, note));
        EXPECT_EQ(survey.frmMap.FontSize, size);
    }
    survey.varn.MapFontSize = 10;
    EXPECT_EQ(printedAt(page(), "\\A1"), QPointF(50, 626));
    EXPECT_EQ(operationsOf<PictureOperation>(survey.frmMap.drawing()).at(1).x, 50 + 528);
    EXPECT_EQ(printedAt(survey.frmMap.drawing(), "a"), QPointF(50 + 2 * 528, 626));
    EXPECT_EQ(printedAt(survey.frmMap.drawing(), "a long name of vowel 2"), QPointF(50 + 3 * 528, 626 + 288));
    survey.surfaces.area.Height = 3000;
    EXPECT_TRUE(wasPrinted(page(), note)) << "there is no room for them";
}
