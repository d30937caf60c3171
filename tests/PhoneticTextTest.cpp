#include "render/PhoneticText.h"

#include "render/SymbolHelp.h"
#include "tests/TestDrive.h"

#include <QBuffer>
#include <QElapsedTimer>

#include <set>

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
        PhoneticText writer(varn, varn, varn, varn.Pictures, surfaces);
        return writer.PlotChar(100, 200, QString::fromUtf8(text));
    }
};

} // namespace

TEST(PhoneticCode, EveryGlyphHasOneCode)
{
    std::set<std::pair<GlyphSeries, int>> glyphs;
    QStringList codes = {QStringLiteral(":"), QStringLiteral(";"), QStringLiteral("'"), QStringLiteral("!"),
                         QStringLiteral("?"), QStringLiteral("B"), QStringLiteral("F")};
    const std::pair<char, int> letters[] = {{'A', 6}, {'E', 6}, {'G', 2}, {'H', 2}, {'I', 7}, {'N', 4},
                                            {'O', 4}, {'R', 2}, {'S', 2}, {'T', 2}, {'U', 8}, {'Z', 2}};
    for (const auto& [letter, digits] : letters) {
        for (int digit = 1; digit <= digits; ++digit) {
            codes << QLatin1Char(letter) + QString::number(digit);
        }
    }
    for (const QString& code : codes) {
        const PhoneticUnit unit = decodePhonetic(QString(QLatin1Char('\\') + code + QStringLiteral("xyz")));
        EXPECT_EQ(unit.kind, PhoneticUnit::Kind::Glyph) << qPrintable(code);
        EXPECT_EQ(unit.consumed, code.size() + 1) << qPrintable(code);
        EXPECT_LE(unit.number, unit.series == GlyphSeries::Main ? 38 : 16);
        glyphs.insert({unit.series, unit.number});
    }
    EXPECT_EQ(glyphs.size(), 54U);
    const std::pair<const char*, std::pair<GlyphSeries, int>> samples[] = {
        {"\\A1", {GlyphSeries::Main, 10}}, {"\\A5", {GlyphSeries::Second, 1}},
        {"\\U1", {GlyphSeries::Main, 1}},  {"\\N4", {GlyphSeries::Second, 14}},
        {"\\'", {GlyphSeries::Main, 26}},  {"\\?", {GlyphSeries::Second, 15}}};
    for (const auto& [text, glyph] : samples) {
        const PhoneticUnit unit = decodePhonetic(QString::fromLatin1(text));
        EXPECT_EQ(std::pair(unit.series, unit.number), glyph) << text;
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
    PhoneticText writer(survey.varn, survey.varn, survey.varn, survey.varn.Pictures,
                        {printer, survey.frmMap});
    writer.PlotChar(100, 200, QStringLiteral("\\Q1xy"));
    EXPECT_TRUE(
        wasPrinted(survey.frmMap.drawing(), QStringLiteral("\\Q1x Illegal Data for Phonetic Alphabet.")));
    EXPECT_TRUE(wasPrinted(printer.drawing(), QStringLiteral("y")));
    EXPECT_TRUE(operationsOf<PictureOperation>(printer.drawing()).empty());
}

TEST(PhoneticText, AMillionCharactersAreWrittenInAMoment)
{
    constexpr qint64 AMoment = 15000; // milliseconds; copying the rest for every unit takes minutes
    GlyphSurvey survey;
    QElapsedTimer timer;
    timer.start();
    EXPECT_GT(survey.plot(QByteArray("\\A1\\Q1x").repeated(150000).constData()), 0);
    EXPECT_LT(timer.elapsed(), AMoment);
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

TEST(SymbolHelp, TheCodeListFillsColumns)
{
    GlyphSurvey survey;
    QByteArray list = "60\r\n";
    for (int i = 1; i <= 60; ++i) {
        list += "\"\\A1\",\"a\",\"name " + QByteArray::number(i) + "\"\r\n";
    }
    survey.write(survey.varn.VarnPath + QStringLiteral("\\VarnData\\ExpSymbol.txt"), list);
    survey.varn.ExpSymbols = LoadSymbols(survey.varn);
    WriteSymbolHelp(survey.varn, survey.surfaces);
    const Drawing& drawing = survey.frmMap.drawing();
    EXPECT_TRUE(wasPrinted(drawing, QStringLiteral("** List of VARN Format Data and Phonetic Alphabets **")));
    const QPointF first = printedAt(drawing, QStringLiteral("name 1"));
    const QPointF last = printedAt(drawing, QStringLiteral("name 60"));
    EXPECT_EQ(printedAt(drawing, QStringLiteral("name 2")).y() - first.y(), 288);
    EXPECT_GT(last.x(), first.x()) << "a second column";
    EXPECT_LT(last.y(), survey.frmMap.Height - 288);
}
