#include "atlas/AtlasDrawing.h"

#include "platform/StandardColors.h"
#include "shell/MapParts.h"
#include "tests/support/TestDrive.h"
#include "tests/support/Transcript.h"

#include <QPainter>

namespace {

using Labels = AtlasLayers::Labels;

/// A survey whose localities 1 and 3 have word forms, marked by an ellipse and a sloping line.
struct AtlasSurvey : TestSurvey
{
    AtlasSurvey()
    {
        varn.NLocate = 3;
        varn.Hanrei = "Rain";
        varn.WordCount(1) = 2;
        varn.WordData(1, 1) = "ame";
        varn.WordData(1, 2) = "uyu";
        varn.WordCount(3) = 1;
        varn.WordData(3, 1) = "uyu";
        varn.NHanrei = 2;
        varn.HankoWord(1) = "ame";
        varn.HankoCaption(1) = "AME";
        varn.Hanko(1) = {49, 12, 0, 0, 1, 0};
        varn.HankoWord(2) = "uyu";
        varn.HankoCaption(2) = "UYU";
        varn.Hanko(2) = {1, 9, 9, 1, 1, 1};
        varn.HankoPosition = HankoRight;
    }

    LinguisticMapParts parts() { return linguisticMapParts(varn); }
    AtlasDrawing drawn(const AtlasMapStyle& style = {}) { return drawAtlasMap(parts(), style); }
};

std::string transcript(const AtlasDrawing& map, const OperationRange& range)
{
    Drawing part = map.drawing;
    part.operations.assign(map.drawing.operations.begin() + static_cast<std::ptrdiff_t>(range.first),
                           map.drawing.operations.begin() + static_cast<std::ptrdiff_t>(range.end));
    return transcript(part);
}

/// Whether some pixel in a square of the painted map has a colour like `color`.
bool isPainted(const AtlasDrawing& map, const AtlasView& view, QPointF place, QColor color)
{
    QImage page(1200, 1200, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    paintAtlasMap(map, painter, view);
    painter.end();
    const QPoint middle = (place * view.scale).toPoint();
    for (int i = 0; i < 400; ++i) {
        const QColor pixel = page.pixelColor(middle + QPoint(i % 20 - 10, i / 20 - 10));
        if (std::abs(pixel.red() - color.red()) + std::abs(pixel.green() - color.green()) +
                std::abs(pixel.blue() - color.blue()) <
            60) {
            return true;
        }
    }
    return false;
}

} // namespace

TEST(AtlasDrawing, IsTheLinguisticMapThatTheOtherFormsDraw)
{
    AtlasSurvey survey;
    for (const bool dots : {false, true}) {
        survey.varn.PlotDots = dots;
        AtlasMapStyle style;
        style.layers.dots = dots;
        survey.frmMap.setFont(textFont(survey.varn));
        drawLinguisticMap(survey.parts(), survey.surfaces);
        EXPECT_EQ(transcript(survey.drawn(style).drawing), transcript(survey.frmMap.drawing()));
    }
}

TEST(AtlasDrawing, KnowsWhatEachSymbolIsDrawnWithAndWhereLocalitiesAre)
{
    AtlasSurvey survey;
    const AtlasDrawing map = survey.drawn();
    ASSERT_EQ(map.symbols.size(), 3u);
    const std::tuple<int, int, int> expected[] = {{1, 1, 1}, {2, 1, 2}, {2, 3, 1}};
    for (std::size_t i = 0; i < 3; ++i) {
        const DrawnSymbol& symbol = map.symbols[i];
        EXPECT_EQ(std::tuple(symbol.record, symbol.locality, symbol.word), expected[i]);
        EXPECT_EQ(symbol.operations.end, symbol.operations.first + 1);
    }
    EXPECT_EQ(transcript(map, map.symbols[0].operations).substr(0, 9), "\nellipse ");
    EXPECT_EQ(map.symbols[1].x, map.symbols[0].x + 80);
    EXPECT_FLOAT_EQ(static_cast<float>(map.localities[2].x()), map.symbols[2].x);
    EXPECT_EQ(map.spots.nearest(QPointF(map.symbols[1].x + 5, map.symbols[1].y), 10), 1) << "its second";
    EXPECT_TRUE(map.legendBox.contains(printedAt(map.drawing, "AME") + QPointF(1, 1)));
    EXPECT_NEAR(map.legendBox.left(), 20 * map.scale, 30);
    EXPECT_EQ(map.paper, QRectF(0, 0, 12000, 9000));
}

TEST(AtlasDrawing, LayersAreLeftOutAndLabelsAdded)
{
    AtlasSurvey survey;
    survey.varn.localityNames = {{"a", "Amele", 0, 0}, {"b", "Bo", 0, 0}, {"c", "Ci", 0, 0}};
    const auto count = [&](const AtlasLayers& layers) {
        const Drawing drawing = survey.drawn({layers}).drawing;
        return std::tuple(operationsOf<EllipseOperation>(drawing).size(), wasPrinted(drawing, "Town"),
                          wasPrinted(drawing, "UYU"), wasPrinted(drawing, "Bo"), wasPrinted(drawing, "2"));
    };
    EXPECT_EQ(count({}), std::tuple(5u, true, true, false, false)) << "three dots, a symbol, its caption";
    EXPECT_EQ(count({true, false, true, true, Labels::Names}), std::tuple(2u, true, true, true, false));
    EXPECT_EQ(count({true, true, false, false, Labels::Numbers}), std::tuple(4u, false, false, false, true));
    const auto lines = [&](bool on) {
        AtlasLayers layers;
        layers.lines = on;
        return operationsOf<PolylineOperation>(survey.drawn({layers}).drawing).front().points;
    };
    EXPECT_NE(lines(true), lines(false));
}

TEST(AtlasDrawing, ZoomedPlacesGrowAndSymbolsKeepTheirSize)
{
    AtlasSurvey survey;
    const AtlasDrawing once = survey.drawn();
    const AtlasDrawing thrice = survey.drawn({{}, 3});
    for (std::size_t i = 0; i < 3; ++i) {
        const QPointF expected = 3 * (once.localities[i] - DrawingCorner) + DrawingCorner;
        EXPECT_NEAR(thrice.localities[i].x(), expected.x(), 0.1);
        EXPECT_NEAR(thrice.localities[i].y(), expected.y(), 0.1);
    }
    const auto circles = [](const AtlasDrawing& map) { return operationsOf<EllipseOperation>(map.drawing); };
    EXPECT_EQ(circles(thrice).at(3).halfWidth, circles(once).at(3).halfWidth);
    EXPECT_NEAR(thrice.legendBox.width(), once.legendBox.width(), 1) << "as many rows a column as printed";
    EXPECT_NEAR(thrice.paper.height(), once.paper.height(), 1);
}

TEST(AtlasDrawing, SymbolsOfOtherRecordsFadeAndThoseOutOfViewAreLeftOut)
{
    AtlasSurvey survey;
    const AtlasDrawing map = survey.drawn();
    const QPointF ring = {map.symbols[0].x - 100, map.symbols[0].y};
    const QPointF box = map.localities[2];
    const QRectF all(0, 0, 12000, 9000);
    const double scale = 1 / TwipsPerPixel;
    EXPECT_TRUE(isPainted(map, {scale, all, {}, true}, ring, QBColor(12)));
    EXPECT_TRUE(isPainted(map, {scale, all, {}, true}, box, QBColor(9)));
    EXPECT_FALSE(isPainted(map, {scale, all, {2}, true}, ring, QBColor(12)));
    EXPECT_TRUE(isPainted(map, {scale, all, {2}, true}, box, QBColor(9)));
    EXPECT_FALSE(isPainted(map, {scale, QRectF(0, 0, 3000, 3000), {}, true}, box, QBColor(9)));
    const double large = 0.55; // the ring is 110 pixels wide
    EXPECT_TRUE(isPainted(map, {large, all, {1}, true}, ring, QBColor(12)));
    EXPECT_FALSE(isPainted(map, {large, all, {2}, true}, ring, QBColor(12)));
    const QPointF caption = printedAt(map.drawing, "AME") + QPointF(200, 150);
    EXPECT_TRUE(isPainted(map, {scale, all, {}, true}, caption, Qt::black) || !anyFont());
    EXPECT_FALSE(isPainted(map, {scale, all, {}, false}, caption, Qt::black));
}

TEST(AtlasDrawing, WhatCannotBeDrawnIsToldAndTheRestIsThere)
{
    AtlasSurvey survey;
    survey.varn.Hanko(2).LineColor = 99;
    const AtlasDrawing faulty = survey.drawn();
    EXPECT_TRUE(faulty.trouble.contains("Record 2 (uyu)")) << qPrintable(faulty.trouble);
    EXPECT_EQ(faulty.symbols.size(), 1u);
    EXPECT_EQ(faulty.localities.size(), 3u);

    survey.varn.Hanko(2).LineColor = 9;
    survey.varn.NLine = 0;
    const AtlasDrawing bare = survey.drawn();
    EXPECT_EQ(bare.trouble, QString());
    EXPECT_EQ(bare.symbols.size(), 3u);
    for (const QPointF& place : bare.localities) {
        EXPECT_TRUE(bare.paper.contains(place));
    }
    EXPECT_GT(bare.localities[2].y() - bare.localities[0].y(), 3000) << "large enough to be told apart";
    survey.varn.NLocality = 1;
    EXPECT_TRUE(bare.paper.contains(survey.drawn().localities.at(0)));
}

TEST(AtlasDrawing, AnItemMayHaveMoreLocalitiesThanTheMap)
{
    AtlasSurvey survey;
    survey.varn.NLocality = 2;
    const AtlasDrawing map = survey.drawn();
    EXPECT_EQ(map.localities.size(), 2u);
    EXPECT_EQ(map.symbols.size(), 3u);
    EXPECT_EQ(map.spots.within({0, 0, 1e6, 1e6}), (std::set<int>{1, 2}));
}
