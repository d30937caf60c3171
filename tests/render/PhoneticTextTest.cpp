#include "render/PhoneticText.h"

#include "platform/DrawnArea.h"
#include "render/SymbolHelp.h"
#include "shell/MapParts.h"
#include "tests/support/TestDrive.h"

#include <QBuffer>

#include <utility>

namespace {

/// A gray bitmap as wide as `pixels` pixels of 96 dpi and 16 high.
QByteArray bitmap(int pixels)
{
    QImage image(pixels, 16, QImage::Format_Grayscale8);
    image.fill(128);
    image.setDotsPerMeterX(3780);
    image.setDotsPerMeterY(3780);
    QBuffer buffer;
    image.save(&buffer, "bmp");
    return buffer.data();
}

/// A survey with two glyphs in each set, of different widths.
struct GlyphSurvey : TestSurvey
{
    GlyphSurvey()
    {
        int width = 4;
        for (const char* set : {"Standard16", "Standard18", "Bold16", "Bold18"}) {
            const QString folder = varn.VarnPath + QStringLiteral("\\VarnSymbol\\") + QLatin1String(set);
            write(folder + QStringLiteral("\\Symbol10.bmp"), bitmap(width));
            write(folder + QStringLiteral("\\SymbolS1.bmp"), bitmap(20));
            ++width;
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
         QStringLiteral(
             "U1 E2 I1 O1 O2 I2 U2 E3 E1 A1 I4 U4 I5 U3 S1 Z1 H1 F B G2 G1 N1 R1 S2 H2 ' Z2 : ; R2 I3 "
             "E4 N2 A2 T1 T2 A3 A4")},
        {GlyphSeries::Second, QStringLiteral("A5 E5 I6 O3 U5 U7 N3 A6 E6 I7 O4 U6 U8 N4 ? !")}};
    for (const auto& [glyphs, codes] : series) {
        int number = 0;
        for (const QString& code : codes.split(QLatin1Char(' '))) {
            const PhoneticUnit unit = decodePhonetic(QLatin1Char('\\') + code + QStringLiteral("xyz"));
            EXPECT_EQ(unit.kind, PhoneticUnit::Kind::Glyph) << qPrintable(code);
            EXPECT_EQ(std::pair(unit.series, unit.number), std::pair(glyphs, ++number)) << qPrintable(code);
            EXPECT_EQ(unit.consumed, code.size() + 1) << qPrintable(code);
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
    EXPECT_NEAR(printedAt(drawing, QStringLiteral("b")).x(), 100 + a + 60, 0.1);

    survey.varn.SpecialFontShift = -2;
    survey.plot("\\A5");
    const auto shifted = operationsOf<PictureOperation>(drawing).at(1);
    EXPECT_NEAR(shifted.y, glyph.y - 40, 0.1) << "two points up";
    EXPECT_EQ(survey.plot(""), 100);
}

TEST(PhoneticText, FontSizeAndBoldChooseTheGlyphSet)
{
    struct Row
    {
        qint16 fontSize;
        bool bold;
        int width;
    };
    for (const Row& row : {Row{10, false, 4}, Row{11, false, 5}, Row{10, true, 6}, Row{11, true, 7}}) {
        GlyphSurvey survey;
        survey.varn.MapFontSize = row.fontSize;
        survey.varn.PhoneticBold = row.bold;
        EXPECT_NEAR(survey.plot("\\A1"), 100 + row.width * 15, 0.1) << row.fontSize << row.bold;
    }
}

TEST(PhoneticText, AnIllegalEscapeIsReportedOnTheMapForm)
{
    GlyphSurvey survey;
    DrawSurface printer;
    PhoneticText writer(textParts(survey.varn), {printer, survey.frmMap});
    writer.PlotChar(100, 200, QStringLiteral("\\Q1xy"));
    EXPECT_TRUE(
        wasPrinted(survey.frmMap.drawing(), QStringLiteral("\\Q1x Illegal Data for Phonetic Alphabet.")));
    EXPECT_TRUE(wasPrinted(printer.drawing(), QStringLiteral("y")));
    EXPECT_TRUE(operationsOf<PictureOperation>(printer.drawing()).empty());
}

TEST(PhoneticText, AMissingOrBrokenBitmapIsAnErrorThatNamesIt)
{
    GlyphSurvey survey;
    const RunTimeError missing = errorOf([&] { survey.plot("\\A2"); });
    EXPECT_EQ(missing.number(), ErrorNumber::FileNotFound);
    EXPECT_TRUE(missing.place().path.endsWith(QStringLiteral("\\Standard16\\Symbol34.bmp")));
    survey.write(survey.varn.VarnPath + QStringLiteral("\\VarnSymbol\\Standard16\\Symbol34.bmp"), "BMx");
    EXPECT_EQ(errorOf([&] { survey.plot("\\A2"); }).number(), ErrorNumber::TypeMismatch);
}

TEST(SymbolHelp, AllCodesStandOnThePageWhateverTheFontOfTheMap)
{
    GlyphSurvey survey;
    for (int i = 1; i <= 54; ++i) {
        survey.varn.ExpSymbols.push_back(
            {QStringLiteral("\\A1"), QStringLiteral("a"), QStringLiteral("a long name of vowel %1").arg(i)});
    }
    const QString note = QStringLiteral("Make the map form larger to see all codes.");
    const QRectF paper(0, 0, survey.surfaces.area.Width, survey.surfaces.area.Height);
    survey.varn.MapFontSize = 10;
    WriteSymbolHelp(survey.varn.ExpSymbols, textParts(survey.varn), survey.surfaces);
    EXPECT_EQ(printedAt(survey.frmMap.drawing(), QStringLiteral("\\A1")), QPointF(50, 626));
    EXPECT_EQ(operationsOf<PictureOperation>(survey.frmMap.drawing()).at(1).x, 50 + 528);
    EXPECT_EQ(printedAt(survey.frmMap.drawing(), QStringLiteral("a")), QPointF(50 + 2 * 528, 626));
    EXPECT_EQ(printedAt(survey.frmMap.drawing(), QStringLiteral("a long name of vowel 2")),
              QPointF(50 + 3 * 528, 626 + 288));
    for (const int size : {8, 10, 12, 18, 36}) {
        survey.varn.MapFontSize = static_cast<qint16>(size);
        survey.frmMap.FontSize = size;
        WriteSymbolHelp(survey.varn.ExpSymbols, textParts(survey.varn), survey.surfaces);
        const Drawing& drawing = survey.frmMap.drawing();
        EXPECT_TRUE(paper.contains(drawnArea(drawing))) << size;
        EXPECT_EQ(operationsOf<PictureOperation>(drawing).size(), 54U);
        const QPointF first = printedAt(drawing, QStringLiteral("a long name of vowel 1"));
        const QPointF second = printedAt(drawing, QStringLiteral("a long name of vowel 2"));
        EXPECT_GE(second.y() - first.y(), 240) << "as far apart as glyphs are high, size " << size;
        EXPECT_GT(printedAt(drawing, QStringLiteral("a long name of vowel 54")).x(), first.x());
        EXPECT_FALSE(wasPrinted(drawing, note));
        EXPECT_EQ(survey.frmMap.FontSize, size);
    }
    survey.surfaces.area.Height = 3000;
    WriteSymbolHelp(survey.varn.ExpSymbols, textParts(survey.varn), survey.surfaces);
    EXPECT_TRUE(wasPrinted(survey.frmMap.drawing(), note)) << "there is no room for them";
}
