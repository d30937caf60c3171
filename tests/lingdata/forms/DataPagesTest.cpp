#include "lingdata/forms/DataPages.h"

#include "lingdata/ItemLoader.h"
#include "platform/StandardColors.h"
#include "render/ListText.h"
#include "shell/MapParts.h"
#include "tests/support/TestDrive.h"

#include <algorithm>

namespace {

void useInstalledGlyphs(VarnModule& varn)
{
    varn.VarnPath = varn.Drive.varnPath(QStringLiteral(INSTALLATION_FOLDER));
}

/// A list of `count` lines, all with the same word.
DataList listOf(int count, const QString& word)
{
    DataList list{QStringLiteral("Rain"), QStringLiteral("rain.dbs"), {QStringLiteral("No.")}, {}};
    for (int n = 1; n <= count; ++n) {
        list.lines.push_back({{n}, {}, word});
    }
    return list;
}

/// A drawing's texts and glyphs as boxes, in twips; the font is that of lists.
std::vector<QRectF> boxesOf(const Drawing& drawing)
{
    DrawSurface ruler;
    std::vector<QRectF> boxes;
    for (const auto& text : operationsOf<TextOperation>(drawing)) {
        boxes.emplace_back(text.x, text.y, ruler.TextWidth(drawing.texts[text.text]), ruler.TextHeight());
    }
    for (const auto& glyph : operationsOf<PictureOperation>(drawing)) {
        boxes.emplace_back(glyph.x, glyph.y, glyph.width, glyph.height);
    }
    return boxes;
}

int overlaps(const std::vector<QRectF>& boxes)
{
    constexpr double Touch = 2; // texts that follow each other on a line touch
    int found = 0;
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        for (std::size_t k = 0; k < i; ++k) {
            found += boxes[i].adjusted(Touch, Touch, -Touch, -Touch).intersects(boxes[k]) ? 1 : 0;
        }
    }
    return found;
}

} // namespace

TEST(DataPages, PagesAreCountedByFullOnesAndOne)
{
    const std::pair<int, int> rows[] = {{0, 1},     {63, 1},    {64, 2},    {127, 2},   {128, 3},
                                        {4031, 63}, {4032, 63}, {4095, 63}, {4096, 65}, {5000, 79}};
    for (const auto& [lines, pages] : rows) {
        EXPECT_EQ(pageCount(lines), pages) << lines;
    }
}

TEST(DataPages, ListsHoldTheWordFormsAndTheKinds)
{
    TestSurvey survey;
    survey.write(QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Ling\\rain.dbs"),
                 "3,\"Q 1\",\"Rain\",\"\"\r\n2\r\n\"uyu\"\r\n\"ame\"\r\n0\r\n1\r\n\"uyu\"\r\n");
    LoadWordData(survey.varn, survey.varn.dataFolder() + QStringLiteral("\\rain.dbs"), survey.varn,
                 survey.varn);
    survey.varn.localityNames.resize(3);
    survey.varn.localityNames[2].name = QStringLiteral("Amele");
    const DataList data = dataList(survey.varn, survey.varn);
    EXPECT_EQ(data.title, QStringLiteral("Q 1  Rain"));
    ASSERT_EQ(data.lines.size(), 3U);
    EXPECT_EQ(data.lines[1].numbers, (std::vector<int>{2, 1, 2}));
    EXPECT_EQ(data.lines[2].numbers, (std::vector<int>{3, 3, 1}));
    EXPECT_EQ(data.lines[2].word, QStringLiteral("uyu"));
    EXPECT_EQ(data.lines[1].locality, QString());
    DrawSurface target;
    DataPages(survey.varn, data).draw(1, target);
    EXPECT_EQ(printedAt(target.drawing(), QStringLiteral("Amele")).x(),
              printedAt(target.drawing(), QStringLiteral("Locality")).x());
    const DataList kinds = kindList(survey.varn);
    ASSERT_EQ(kinds.lines.size(), 2U);
    EXPECT_EQ(kinds.lines[0].word, QStringLiteral("ame"));
    EXPECT_EQ(kinds.lines[1].numbers, (std::vector<int>{2, 2}));
}

TEST(DataPages, EveryPageHasItsLinesUnderAHeading)
{
    TestSurvey survey;
    DataList list = listOf(64 + 3, QStringLiteral("ame"));
    const DataPages pages(survey.varn, list);
    const std::pair<int, std::size_t> rows[] = {{1, 64}, {2, 3}};
    for (const auto& [page, lines] : rows) {
        DrawSurface target;
        pages.draw(page, target);
        const QStringList texts(target.drawing().texts.begin(), target.drawing().texts.end());
        EXPECT_EQ(texts.count(QStringLiteral("ame")), static_cast<qsizetype>(lines));
        EXPECT_TRUE(texts.contains(QStringLiteral("** PAGE = %1 / 2").arg(page)));
        EXPECT_TRUE(texts.contains(QStringLiteral("Rain")));
        EXPECT_EQ(texts.contains(QStringLiteral("65")), page == 2);
        EXPECT_FALSE(texts.contains(QStringLiteral("Code"))) << "no word has a code";
        const auto printed = operationsOf<TextOperation>(target.drawing());
        for (std::size_t n = 0; n < printed.size(); ++n) {
            const bool isTitle = texts[static_cast<qsizetype>(n)] == QStringLiteral("No.") ||
                                 texts[static_cast<qsizetype>(n)] == QStringLiteral("Word");
            EXPECT_EQ(printed[n].color, QBColor(isTitle ? 8 : 0))
                << qPrintable(texts[static_cast<qsizetype>(n)]);
        }
        const auto rule = operationsOf<PolylineOperation>(target.drawing()).at(0);
        EXPECT_EQ(target.drawing().points[rule.firstPoint + 1],
                  QPointF(static_cast<float>(pages.area().width()), 288));
        EXPECT_EQ(printedAt(target.drawing(), QStringLiteral("Word")).y(), 400);
        EXPECT_EQ(printedAt(target.drawing(), QStringLiteral("ame")).y(), 760);
    }
}

TEST(DataPages, WhateverTheWordsNothingCollidesAndAllIsOnThePage)
{
    TestSurvey survey;
    useInstalledGlyphs(survey.varn);
    const QString words[] = {QStringLiteral("a"), QStringLiteral("te\\N1u\\:\\E2"),
                             QStringLiteral("a \\N1 phrase \\E2 of some length"),
                             QStringLiteral("long \\N1").repeated(60),
                             QStringLiteral("plain ").repeated(200)};
    for (const int orientation : {1, 2}) {
        survey.varn.PaperHeight = orientation == 2 ? 210 : 297;
        survey.varn.PaperWidth = orientation == 2 ? 297 : 210;
        for (const QString& word : words) {
            for (const int fontSize : {8, 40}) {
                survey.varn.MapFontSize = static_cast<qint16>(fontSize);
                const DataPages pages(survey.varn, listOf(200, word));
                DrawSurface target;
                pages.draw(3, target);
                const std::vector<QRectF> boxes = boxesOf(target.drawing());
                EXPECT_GT(boxes.size(), 2 * 64U);
                EXPECT_EQ(overlaps(boxes), 0) << qPrintable(word.left(30)) << ' ' << orientation;
                const QRectF page(QPointF(0, 0), pages.area());
                const bool inside = std::all_of(boxes.begin(), boxes.end(), [&](const QRectF& box) {
                    return page.adjusted(-2, -80, 2, 2).contains(box);
                });
                EXPECT_TRUE(inside) << qPrintable(word.left(30)) << ' ' << orientation;
            }
        }
    }
}

TEST(DataPages, MarginsThatLeaveNoRoomAreNoError)
{
    TestSurvey survey;
    survey.varn.LeftMargin = 400;
    survey.varn.TopMargin = 400;
    const DataPages pages(survey.varn, listOf(64, QStringLiteral("ame")));
    DrawSurface target;
    EXPECT_NO_THROW(pages.draw(1, target));
}

TEST(ListText, LongTextsAreCutBetweenTheirUnits)
{
    if (!anyFont()) {
        GTEST_SKIP() << "needs a font";
    }
    TestSurvey survey;
    useInstalledGlyphs(survey.varn);
    DrawSurface target;
    target.FontSize = 20;
    {
        ListText text(textParts(survey.varn), target);
        const QString coded = QStringLiteral("\\N1\\N1\\N1\\N1\\N1\\N1");
        const float width = text.width(coded, ListText::Coding::Phonetic);
        EXPECT_EQ(text.shortened(coded, width, ListText::Coding::Phonetic), coded);
        const QString cut = text.shortened(coded, width * 0.9F, ListText::Coding::Phonetic);
        ASSERT_TRUE(cut.endsWith(QStringLiteral("...")));
        EXPECT_EQ(cut.chopped(3).size() % 3, 0) << qPrintable(cut);
        EXPECT_LE(text.width(cut, ListText::Coding::Phonetic), width * 0.9F);
        EXPECT_EQ(text.shortened(QStringLiteral("abc"), 1), QString());
    }
    EXPECT_EQ(target.FontSize, 20) << "the surface has its own font again";
}
