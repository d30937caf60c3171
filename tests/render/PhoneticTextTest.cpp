#include "render/PhoneticText.h"

#include "platform/DrawnArea.h"
#include "platform/StandardColors.h"
#include "render/ListText.h"
#include "render/SymbolHelp.h"
#include "shell/MapParts.h"
#include "tests/support/TestDrive.h"
#include "tests/support/Transcript.h"

#include <QDir>

#include <utility>

namespace {

/// Twips of a glyph's pixel across, at 192 dpi; down, at 144 dpi, it is 10.
constexpr double GlyphWidth = 7.5;

/// A survey with two glyphs in each set, which are as wide as many of their pixels as stands here.
struct GlyphSurvey : TestSurvey
{
    GlyphSurvey()
    {
        for (const auto& [set, width] :
             {std::pair("Standard16", 4), {"Standard18", 5}, {"Bold16", 6}, {"Bold18", 7}}) {
            QImage glyph(width, 16, QImage::Format_Grayscale8);
            glyph.setDotsPerMeterX(7559);
            glyph.setDotsPerMeterY(5669);
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
    EXPECT_NEAR(survey.plot("a\\A1b"), 100 + a + 4 * GlyphWidth + b, 0.1);
    const Drawing& drawing = survey.frmMap.drawing();
    const auto glyph = operationsOf<PictureOperation>(drawing).at(0);
    EXPECT_NEAR(glyph.x, 100 + a, 0.1);
    EXPECT_NEAR(glyph.height, 160, 0.1);
    EXPECT_NEAR(glyph.y + 0.75 * glyph.height, 200 + survey.frmMap.TextAscent(), 0.1) << "on the baseline";
    EXPECT_NEAR(printedAt(drawing, "b").x(), 100 + a + 4 * GlyphWidth, 0.1);
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
        EXPECT_NEAR(survey.plot("\\A1"), 100 + width * GlyphWidth, 0.1) << fontSize << bold;
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
    survey.surfaces.area.Height = 3000;
    EXPECT_TRUE(wasPrinted(page(), note)) << "there is no room for them";
}

TEST(SymbolHelp, CodesGlyphsLettersAndNamesStandInColumns)
{
    TestSurvey survey;
    survey.surfaces.area.Height = 626 + 2 * 288 + 10; // two rows
    survey.varn.ExpSymbols = {{"c1", "l1", ""}, {"c2", "l2", ""}, {"c3", "l3", "n3"}};
    const Drawing& drawing = survey.frmMap.drawing();
    const auto draw = [&](float width) {
        survey.surfaces.area.Width = width;
        WriteSymbolHelp(survey.varn.ExpSymbols, textParts(survey.varn), survey.surfaces);
    };
    draw(12000);
    EXPECT_EQ(transcript(drawing), R"(
"** List of VARN Format Data and Phonetic Alphabets **" 50,50 10pt
"c1" 50,626 10pt
"c1" 578,626 10pt
"l1" 1106,626 10pt
"c2" 50,914 10pt
"c2" 578,914 10pt
"l2" 1106,914 10pt
"c3" 1898,626 10pt
"c3" 2426,626 10pt
"l3" 2954,626 10pt
"n3" 3482,626 10pt
)");
    survey.varn.ExpSymbols[2].name.clear();
    draw(3482);
    EXPECT_EQ(printedAt(drawing, "c3"), QPointF(1898, 626)) << "just wide enough";
    draw(3481);
    EXPECT_EQ(printedAt(drawing, "c3"), QPointF(50 + 1440 + 240, 578)) << "a size smaller";
    survey.surfaces.area.Height = 100;
    draw(3481);
    EXPECT_EQ(printedAt(drawing, "c3"), QPointF(50 + 2 * (1296 + 216), 530)) << "the least size";
    EXPECT_EQ(printedAt(drawing, "Make the map form larger to see all codes."), QPointF(50, 290));
    survey.varn.ExpSymbols[0].name = "n1";
    draw(12000);
    EXPECT_NEAR(printedAt(drawing, "c2").x(), 50 + 1584 + survey.frmMap.TextWidth("n1") + 264, 0.1);
}

TEST(ListText, ListsAreWrittenInBlackOfTenPointsAndCutBetweenLetters)
{
    GlyphSurvey survey;
    DrawSurface& surface = survey.frmMap;
    const TextFont font{"Some Sans", 14, true, true};
    const QString word = "ab\\A1cd";
    surface.setFont(font);
    surface.ForeColor = QBColor(12);
    {
        ListText list(textParts(survey.varn), surface);
        const float width = list.width("abcde");
        EXPECT_FLOAT_EQ(width, surface.TextWidth("abcde"));
        list.write(10, 20, "plain \\A1");
        list.writeRight(10 + width, 40, "abcde");
        list.write(30, 60, "\\Q1xp", ListText::Coding::Phonetic);
        EXPECT_NEAR(list.width(word, ListText::Coding::Phonetic),
                    list.width("ab") + GlyphWidth * 4 + list.width("cd"), 0.1);
        EXPECT_EQ(list.shortened("abcde", width), "abcde");
        EXPECT_EQ(list.shortened("abcdefgh", list.width("abc...") + 1), "abc...");
        EXPECT_EQ(list.shortened("abcdefgh", list.width("...") + 1), "");
        const float cut = list.width("ab\\A1...", ListText::Coding::Phonetic);
        EXPECT_EQ(list.shortened(word + word, cut, ListText::Coding::Phonetic), "ab\\A1...");
        EXPECT_EQ(list.shortened(word + word, cut - 1, ListText::Coding::Phonetic), "ab...");
    }
    EXPECT_EQ(surface.font(), font);
    EXPECT_EQ(surface.ForeColor, QBColor(12));
    EXPECT_EQ(transcript(surface.drawing()),
              "\n\"plain \\A1\" 10,20 10pt\n\"abcde\" 10,40 10pt\n\"p\" 30,60 10pt\n");
}
