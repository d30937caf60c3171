#include "lingdata/forms/DataPages.h"

#include "lingdata/ItemLoader.h"
#include "platform/StandardColors.h"
#include "render/ListText.h"
#include "shell/MapParts.h"
#include "tests/support/TestDrive.h"
#include "tests/support/Transcript.h"

#include <algorithm>
#include <cmath>

namespace {

/// A list of `count` lines, all with the same word.
DataList listOf(int count, const QString& word)
{
    DataList list{"Rain", "rain.dbs", {"No."}, {}};
    for (int n = 1; n <= count; ++n) {
        list.lines.push_back({{n}, {}, word});
    }
    return list;
}

Drawing drawn(const DataPages& pages, int page)
{
    DrawSurface target;
    pages.draw(page, target);
    return target.drawing();
}

QString textsOf(const Drawing& drawing)
{
    return QStringList(drawing.texts.begin(), drawing.texts.end()).join(' ');
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

/// How many boxes leave `page` or lie on another one; texts that follow each other on a line touch.
int misplaced(const std::vector<QRectF>& boxes, const QRectF& page)
{
    const auto isMisplaced = [&](const QRectF& box) {
        const QRectF inner = box.adjusted(2, 2, -2, -2);
        return !page.adjusted(-2, -80, 2, 2).contains(box) ||
               std::any_of(boxes.begin(), boxes.end(),
                           [&](const QRectF& other) { return &other != &box && inner.intersects(other); });
    };
    return static_cast<int>(std::count_if(boxes.begin(), boxes.end(), isMisplaced));
}

/// A survey with the glyphs of the installation.
class DataPagesOf : public testing::Test, protected TestSurvey
{
protected:
    DataPagesOf() { varn.VarnPath = varn.Drive.varnPath(INSTALLATION_FOLDER); }
};

} // namespace

TEST(DataPages, PagesAreCountedByFullOnesAndOne)
{
    const std::pair<int, int> rows[] = {{0, 1},     {63, 1},    {64, 2},    {127, 2},   {128, 3},
                                        {4031, 63}, {4032, 63}, {4095, 63}, {4096, 65}, {5000, 79}};
    for (const auto& [lines, pages] : rows) {
        EXPECT_EQ(pageCount(lines), pages) << lines;
    }
}

TEST(DataPages, AnItemShowsItsWordFormsAndKinds)
{
    TestSurvey survey;
    const QString path = survey.varn.dataFolder() + "\\rain.dbs";
    survey.write(path, "3,\"Q 1\",\"Rain\",\"\"\r\n2\r\n\"uyu\"\r\n\"ame\"\r\n0\r\n1\r\n\"uyu\"\r\n");
    LoadWordData(survey.varn, path, survey.varn, survey.varn);
    EXPECT_EQ(textsOf(drawn(DataPages(survey.varn, dataList(survey.varn, {})), 1)),
              "** PAGE = 1 / 1 Q 1  Rain rain.dbs No. Loc. Sub Word 1 1 1 uyu 2 1 2 ame 3 3 1 uyu");
    LocalityNames names;
    names.localityNames = {{}, {}, {"c", "Amele"}};
    EXPECT_EQ(
        textsOf(drawn(DataPages(survey.varn, dataList(survey.varn, names)), 1)),
        "** PAGE = 1 / 1 Q 1  Rain rain.dbs No. Loc. Sub Locality Word 1 1 1 uyu 2 1 2 ame 3 3 1 Amele uyu");
    EXPECT_EQ(textsOf(drawn(DataPages(survey.varn, kindList(survey.varn)), 1)),
              "** PAGE = 1 / 1 Q 1  Rain rain.dbs No. Count Word 1 1 ame 2 2 uyu");
}

TEST_F(DataPagesOf, EveryPageHasItsLinesUnderAHeading)
{
    const DataPages pages(varn, listOf(64 + 3, "ame"));
    EXPECT_EQ(textsOf(drawn(pages, 1)).count("ame"), 64);
    const Drawing page = drawn(pages, 2);
    EXPECT_EQ(textsOf(page), "** PAGE = 2 / 2 Rain rain.dbs No. Word 65 ame 66 ame 67 ame");
    for (const auto& text : operationsOf<TextOperation>(page)) {
        const bool isTitle = text.y == 400;
        EXPECT_EQ(text.color, QBColor(isTitle ? 8 : 0)) << qPrintable(page.texts[text.text]);
    }
    EXPECT_EQ(printedAt(page, "Word").y(), 400);
    EXPECT_EQ(printedAt(page, "ame").y(), 760);
    const auto rule = operationsOf<PolylineOperation>(page).at(0);
    EXPECT_EQ(page.points[rule.firstPoint + 1], QPointF(static_cast<float>(pages.area().width()), 288));
}

TEST_F(DataPagesOf, ALineStandsUnderTheTitlesOfItsColumn)
{
    DataList list{"Q", "q.dbs", {"No.", "Sub"}, {}};
    list.lines = {{{1, 2}, "C", "i"}, {{3, 4}, {}, "\\E2"}};
    const DataPages pages(varn, list);
    DrawSurface ruler;
    const double no = ruler.TextWidth("No.");
    const double sub = no + 180 + ruler.TextWidth("Sub");
    const double locality = sub + 180;
    const double word = locality + ruler.TextWidth("Locality") + 180;
    const double code = word + ruler.TextWidth("Word") + 180;
    QString page = R"(
"** PAGE = 1 / 1" 0,0 10pt
"Q" +960,0 10pt
"q.dbs" >%1,0 10pt
line 0,288 %1,288 pen 1/0/8
"No." 0,400 10pt color 8
"Sub" +180,400 10pt color 8
"Locality" +180,400 10pt color 8
"Word" +180,400 10pt color 8
"Code" +180,400 10pt color 8
"1" >%2,760 10pt
"2" >%3,760 10pt
"C" %4,760 10pt
"i" %5,760 10pt
"3" >%2,1048 10pt
"4" >%3,1048 10pt
"\E2" %6,1048 10pt
)";
    for (const double x : {pages.area().width(), no, sub, locality, word, code}) {
        page = page.arg(std::round(10 * x) / 10);
    }
    Drawing texts = drawn(pages, 1);
    std::erase_if(texts.operations,
                  [](const auto& it) { return std::holds_alternative<PictureOperation>(it); });
    EXPECT_EQ(transcriptLike(page.toStdString(), texts), page.toStdString());
}

TEST_F(DataPagesOf, ColumnsShareThePageAndItsLines)
{
    const DataPages pages(varn, listOf(64, "ame"));
    const Drawing page = drawn(pages, 1);
    const auto columns = static_cast<int>(std::ranges::count(page.texts, QString("No.")));
    ASSERT_GT(columns, 2);
    const double step = (pages.area().width() + 480) / columns;
    const int lines = (64 + columns - 1) / columns;
    const double end = DrawSurface().TextWidth("No.");
    for (int n = 1; n <= 64; ++n) {
        const QString number = QString::number(n);
        const QPointF place = printedAt(page, number);
        EXPECT_NEAR(place.x() + DrawSurface().TextWidth(number), step * ((n - 1) / lines) + end, 1) << n;
        EXPECT_EQ(place.y(), 760 + 288 * ((n - 1) % lines)) << n;
    }
}

TEST_F(DataPagesOf, WhateverTheWordsNothingCollidesAndAllIsOnThePage)
{
    const QString words[] = {"a", "te\\N1u\\:\\E2", "a \\N1 phrase \\E2 of some length",
                             QString("long \\N1").repeated(60), QString("plain ").repeated(200)};
    const std::tuple<qint16, qint16, qint16> papers[] = {{210, 297, 8}, {297, 210, 40}};
    for (const auto& [width, height, fontSize] : papers) {
        varn.PaperWidth = width;
        varn.PaperHeight = height;
        varn.MapFontSize = fontSize;
        for (const QString& word : words) {
            const DataPages pages(varn, listOf(200, word));
            const std::vector<QRectF> boxes = boxesOf(drawn(pages, 3));
            EXPECT_GT(boxes.size(), 2 * 64U);
            EXPECT_EQ(misplaced(boxes, QRectF({0, 0}, pages.area())), 0)
                << qPrintable(word.left(30)) << width;
        }
    }
    varn.LeftMargin = 400;
    varn.TopMargin = 400;
    EXPECT_NO_THROW(drawn(DataPages(varn, listOf(64, "ame")), 1)) << "margins that leave no room";
}

TEST_F(DataPagesOf, LongTextsAreCutBetweenTheirUnits)
{
    if (!anyFont()) {
        GTEST_SKIP() << "needs a font";
    }
    constexpr auto Phonetic = ListText::Coding::Phonetic;
    DrawSurface target;
    target.FontSize = 20;
    const auto list = [&] { return ListText(textParts(varn), target); };
    const QString coded = QString("\\N1").repeated(6);
    const float width = list().width(coded, Phonetic);
    EXPECT_EQ(list().shortened(coded, width, Phonetic), coded);
    const QString cut = list().shortened(coded, width * 0.9F, Phonetic);
    EXPECT_TRUE(cut.endsWith("\\N1...")) << qPrintable(cut);
    EXPECT_LE(list().width(cut, Phonetic), width * 0.9F);
    EXPECT_EQ(list().shortened("abc", 1), "");
    EXPECT_EQ(target.FontSize, 20) << "the surface has its own font again";
}
