#include "dialectometry/ItemMaps.h"

#include "render/BlankMap.h"
#include "tests/dialectometry/MapOfCells.h"

namespace {

/// Two words on a grid of localities, the second one at the right and at one locality on the left, and a
/// river through both.
MapOfCells mapOfWords()
{
    MapOfCells map(gridOfPlaces());
    VarnModule& varn = map.varn;
    varn.Hanrei = QStringLiteral("rain");
    varn.NLocate = 16;
    for (int i = 1; i <= varn.NLocate; ++i) {
        varn.WordCount(i) = i == 1 ? 2 : 1;
        varn.WordData(i, 1) = i % 4 == 1 || i % 4 == 2 ? QStringLiteral("ame") : QStringLiteral("uyu");
        varn.WordData(i, 2) = QStringLiteral("uyu");
    }
    varn.NHanrei = 2;
    for (int k = 1; k <= varn.NHanrei; ++k) {
        varn.HankoWord(k) = varn.HankoCaption(k) = k == 1 ? QStringLiteral("ame") : QStringLiteral("uyu");
        varn.Hanko(k).LineColor = static_cast<qint16>(k);
    }
    return map;
}

QImage painted(const std::vector<Drawing>& layers)
{
    QImage image(800, 600, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    for (const Drawing& layer : layers) {
        paintDrawing(layer, painter, 1 / TwipsPerPixel);
    }
    return image;
}

} // namespace

TEST(ItemMaps, LayersAndTheBaseMapBetweenThemAreTheMap)
{
    MapOfCells map = mapOfWords();
    DrawBlankMap(map.parts().base, map.surfaces());
    const Drawing base = map.surface.drawing();
    const ItemMapSettings rows[] = {{ItemMapKind::Symbols, {}, {}},
                                    {ItemMapKind::Areas, {}, {}},
                                    {ItemMapKind::Areas, {AreaLook::Hatched, true}, {}},
                                    {ItemMapKind::Isoglosses, {}, {false, false}},
                                    {ItemMapKind::Isoglosses, {}, {true, false}}};
    std::vector<QImage> images;
    for (const ItemMapSettings& settings : rows) {
        const LinguisticMapParts parts = linguisticMapParts(map.varn);
        drawItemMap(parts, map.cells, settings, map.surfaces());
        const QImage whole = map.painted();
        const ItemLayers layers = itemLayers(parts, map.cells, settings, map.surfaces());
        EXPECT_EQ(painted({layers.under, base, layers.over}), whole) << images.size();
        EXPECT_EQ(layers.under.operations.empty(), settings.kind == ItemMapKind::Symbols);
        EXPECT_EQ(operationsOf<AreaOperation>(layers.under).empty(), settings.kind != ItemMapKind::Areas);
        EXPECT_TRUE(wasPrinted(layers.over, QStringLiteral("rain"))) << "the legend is not under the map";
        EXPECT_EQ(std::ranges::count(images, whole), 0) << "each row looks different";
        images.push_back(whole);
    }
}
