#include "dialectometry/AreaMap.h"

#include "dialectometry/AreaLegend.h"
#include "dialectometry/CellLines.h"
#include "dialectometry/IsoglossMap.h"
#include "lingdata/LinguisticFile.h"
#include "mapdata/MapFiles.h"
#include "mapdata/MapSearch.h"
#include "platform/StandardColors.h"
#include "symbols/SymbolFile.h"
#include "tests/dialectometry/MapOfCells.h"

#include <set>

namespace {

/// The sample survey with its first item.
MapOfCells sampleMap()
{
    MapOfCells map({});
    VarnModule& varn = map.varn;
    varn.VarnPath = varn.Drive.varnPath(QStringLiteral(INSTALLATION_FOLDER));
    varn.VarnMapName = QStringLiteral("\\Sample");
    varn.LingFolder = QStringLiteral("\\VarnData\\Sample\\Ling");
    loadBaseMap(varn.Drive, {varn.VarnPath, varn.VarnMapName}, {}, varn);
    const QString path = varn.dataFolder() + QStringLiteral("\\01_rain.");
    static_cast<ItemAnswers&>(varn) = readSequentialFile(varn.Drive, path + QStringLiteral("dbs"), readItem);
    LoadHankoData(varn.Drive, path + QStringLiteral("han"), varn);
    map.cells = localityCells(varn, varn);
    return map;
}

/// Whether a pixel of the 3 x 3 around `pixel` has that colour: a line may pass over the middle.
bool hasColorNear(const QImage& image, QPoint pixel, QRgb color)
{
    for (int i = 0; i < 9; ++i) {
        if (image.pixel(pixel + QPoint(i % 3 - 1, i / 3 - 1)) == color) {
            return true;
        }
    }
    return false;
}

int changedBorders(const BorderChanges& changes, double change)
{
    return static_cast<int>(std::ranges::count(changes.changes, change));
}

} // namespace

TEST(AreaMap, PaintsEachLocalityAsTheRecordsThatMarkIt)
{
    MapOfCells map = sampleMap();
    drawAreaMap(linguisticMapParts(map.varn), map.cells, {}, map.surfaces());
    const QImage image = map.painted();
    const auto records = recordsOfLocalities(map.varn, map.varn, false, map.varn.NLocality);
    const std::vector<AreaFill> fills = recordFills(map.varn, AreaLook::Colored);
    int plain = 0;
    int empty = 0;
    for (int i = 0; i < map.varn.NLocality; ++i) {
        const std::vector<int>& own = records[static_cast<std::size_t>(i)];
        if (own.empty()) {
            EXPECT_TRUE(hasColorNear(image, map.pixelOf(i), qRgb(255, 255, 255))) << i;
            ++empty;
        } else if (own.size() == 1 && fills[static_cast<std::size_t>(own[0])].pattern == FillPattern::Solid) {
            EXPECT_TRUE(hasColorNear(image, map.pixelOf(i), fills[static_cast<std::size_t>(own[0])].ground))
                << i;
            ++plain;
        }
    }
    EXPECT_GT(plain, 70);
    EXPECT_GT(empty, 2);

    const QStringList texts = textsOf(map.surface.drawing());
    EXPECT_TRUE(texts.contains(QStringLiteral("rain")) || wasPrinted(map.surface.drawing(), map.varn.Hanrei));
    EXPECT_TRUE(texts.contains(QStringLiteral("vosela (21)"))) << texts.join('|').toStdString();
    EXPECT_TRUE(texts.contains(QStringLiteral("tamuka (25)")));
    EXPECT_FALSE(texts.join('|').contains(QStringLiteral("no symbol")));
}

TEST(AreaMap, AnswersWithoutASymbolAreToldFromNoAnswer)
{
    MapOfCells map = sampleMap();
    const auto records = recordsOfLocalities(map.varn, map.varn, false, map.varn.NLocality);
    const auto unmarked = std::ranges::count(records, std::vector<int>{3});
    ASSERT_GT(unmarked, 10);
    map.varn.HankoWord(4) = QStringLiteral("nobody says so");
    drawAreaMap(linguisticMapParts(map.varn), map.cells, {}, map.surfaces());
    const QStringList texts = textsOf(map.surface.drawing());
    EXPECT_TRUE(texts.contains(withCount(QStringLiteral("no symbol"), unmarked)))
        << texts.join('|').toStdString();
    const QImage image = map.painted();
    for (int i = 0; i < map.varn.NLocality; ++i) {
        const bool isUnmarked = records[static_cast<std::size_t>(i)] == std::vector<int>{3};
        EXPECT_EQ(hasColorNear(image, map.pixelOf(i), qRgb(236, 236, 236)), isUnmarked) << i;
    }
}

TEST(AreaMap, RecordsOfOneColourStayApart)
{
    SymbolSet symbols;
    symbols.NHanrei = 40;
    for (int k = 1; k <= symbols.NHanrei; ++k) {
        symbols.Hanko(k).LineColor = static_cast<qint16>(k % 4 == 0 ? 15 : k % 4);
    }
    symbols.Hanko(1).PaintOn = 1;
    symbols.Hanko(1).PaintColor = 4;
    EXPECT_EQ(recordFills(symbols, AreaLook::Colored)[0].ground, tint(QBColor(4), 0.3));
    const int different[] = {40, 28};
    for (const AreaLook look : {AreaLook::Colored, AreaLook::Hatched}) {
        const std::vector<AreaFill> fills = recordFills(symbols, look);
        const int expected = different[look == AreaLook::Colored ? 0 : 1];
        for (int i = 0; i < expected; ++i) {
            EXPECT_EQ(std::count(fills.begin(), fills.begin() + expected, fills[static_cast<std::size_t>(i)]),
                      1)
                << i;
        }
    }
    symbols.Hanko(3).LineColor = 16;
    EXPECT_TRUE(
        errorOf([&] { recordFills(symbols, AreaLook::Colored); }).message().contains(QStringLiteral("16")));
}

TEST(AreaMap, SeveralAnswersAreStripesThatAddUpToTheCell)
{
    const QRgb red = qRgb(255, 0, 0);
    const QRgb blue = qRgb(0, 0, 255);
    MapOfCells map({{300, 300}, {300, 300}, {600, 300}});
    const std::vector<AreaFill> fills = {{red, 0, FillPattern::Solid}, {blue, 0, FillPattern::Solid}};
    drawFilledMap(map.parts(), {fills, {{0}, {1}, {}}}, map.surfaces());
    int reds = 0;
    int blues = 0;
    const QImage image = map.painted();
    for (int y = 180; y < 260; ++y) {
        for (int x = 180; x < 260; ++x) {
            reds += image.pixel(x, y) == red ? 1 : 0;
            blues += image.pixel(x, y) == blue ? 1 : 0;
        }
    }
    EXPECT_NEAR(reds, blues, 400) << "two localities at one point";
    EXPECT_GT(reds + blues, 4500);
    EXPECT_EQ(image.pixel(map.pixelOf(2)), qRgb(255, 255, 255)) << "no answer";
}

TEST(AreaLegend, StandsInColumnsThatFillTheHeight)
{
    MapOfCells map({{300, 300}});
    map.varn.HanreiX = 0;
    map.varn.KanjiText(1) = QStringLiteral("the name of this map");
    AreaLegend legend;
    legend.title = QStringLiteral("title");
    for (int i = 0; i < 70; ++i) {
        AreaLegendRow row;
        row.fills = {hatchedFill(i)};
        row.text = withCount(QStringLiteral("row"), i);
        legend.rows.push_back(row);
    }
    drawAreaLegend(map.parts(), legend, map.surfaces());
    const Drawing& drawing = map.surface.drawing();
    EXPECT_EQ(operationsOf<AreaOperation>(drawing).size(), 70U + 70 + 28)
        << "a pattern, its outline, grey grounds";
    std::set<float> columns;
    for (const TextOperation& text : operationsOf<TextOperation>(drawing)) {
        EXPECT_LT(text.y + 200, 9000);
        columns.insert(text.x);
    }
    EXPECT_EQ(columns.size(), 1U + 3) << "the title and three columns";
    const auto grounds = operationsOf<BoxOperation>(drawing);
    ASSERT_EQ(grounds.size(), 71U);
    EXPECT_GT(grounds[0].width, map.surface.TextWidth(map.varn.KanjiText(1))) << "the name is covered";
    EXPECT_LT(grounds[1].width, 1500) << "the map stays whole beside a short row";
}

TEST(CellLines, RunOnButNotThroughAJunction)
{
    MapOfCells map(gridOfPlaces());
    map.varn.Scale = 10;
    std::vector<int> kinds(16);
    for (int i = 0; i < 16; ++i) {
        kinds[static_cast<std::size_t>(i)] = i % 4 < 2 ? 0 : 1;
    }
    const auto linesOf = [&] { return cellLines(map.cells, bordersBetween(map.cells, kinds), map.varn); };
    EXPECT_EQ(linesOf().size(), 1U) << "from top to bottom";
    kinds[15] = 2;
    EXPECT_EQ(linesOf().size(), 2U) << "a corner of its own does not touch it";
    kinds[14] = 2;
    EXPECT_EQ(linesOf().size(), 3U) << "three lines meet";
    kinds.assign(16, 0);
    kinds[5] = 1;
    const std::vector<CellLine> around = linesOf();
    ASSERT_EQ(around.size(), 1U);
    EXPECT_EQ(around[0].points.front(), around[0].points.back());
}

TEST(IsoglossMap, RunsWhereKindsChange)
{
    MapOfCells map(gridOfPlaces());
    const auto halves = [](std::vector<int> left, std::vector<int> right) {
        LocalityKinds kinds;
        for (int i = 0; i < 16; ++i) {
            kinds.push_back(i % 4 < 2 ? left : right);
        }
        return kinds;
    };
    const struct
    {
        std::vector<int> left;
        std::vector<int> right;
        double change;
        int borders;
    } rows[] = {{{0}, {1}, 1, 4},
                {{0, 2}, {2, 3}, 0.5, 4},
                {{0, 2}, {2}, 0.5, 4},
                {{1, 2}, {1, 2}, 1, 0},
                {{0}, {}, 1, 0}};
    for (const auto& row : rows) {
        const BorderChanges changes = borderChanges(map.cells, halves(row.left, row.right));
        EXPECT_EQ(changedBorders(changes, row.change), row.borders);
        EXPECT_EQ(std::ranges::count_if(changes.changes, [](double c) { return c > 0; }), row.borders);
    }

    const BorderChanges changes = borderChanges(map.cells, halves({0}, {1}));
    drawIsoglossMap(map.parts(), QStringLiteral("house"), changes, {false, false}, map.surfaces());
    const Drawing& drawing = map.surface.drawing();
    EXPECT_EQ(textsOf(drawing), QStringList({"house", "all answers change"}));
    const auto lines = operationsOf<PolylineOperation>(drawing);
    ASSERT_EQ(lines.size(), 3U) << "the isogloss in one piece, the frame over it, and a sample";
    EXPECT_EQ(drawing.pens[static_cast<std::size_t>(lines[0].pen)].width, 3);
    for (std::size_t i = 0; i < lines[0].points; ++i) {
        EXPECT_NEAR(drawing.points[lines[0].firstPoint + i].x(), map.varn.toScreen(250), 2);
    }
}

TEST(IsoglossMap, BundlesAreAsWideAsTheirItems)
{
    MapOfCells map(gridOfPlaces());
    BorderChanges sum;
    for (int item = 0; item < 12; ++item) {
        LocalityKinds kinds;
        for (int i = 0; i < 16; ++i) {
            // All items part the left half from the right one, one the upper half from the lower one.
            kinds.push_back({(i % 4 < 2 ? 0 : 1) + (item == 0 && i >= 8 ? 2 : 0)});
        }
        addChanges(sum, borderChanges(map.cells, kinds));
    }
    EXPECT_EQ(changedBorders(sum, 12), 4);
    EXPECT_EQ(changedBorders(sum, 1), 4);
    drawBundleMap(map.parts(), QStringLiteral("12 items"), sum, {false, true}, map.surfaces());
    const QStringList texts = textsOf(map.surface.drawing());
    EXPECT_EQ(texts.count(QStringLiteral("12")), 4) << texts.join('|').toStdString();
    EXPECT_EQ(texts.mid(4), QStringList({"12 items", "10-12 items", "7-9 items", "4-6 items", "1-3 items"}));
    std::set<int> widths;
    for (const auto& line : operationsOf<PolylineOperation>(map.surface.drawing())) {
        widths.insert(map.surface.drawing().pens[static_cast<std::size_t>(line.pen)].width);
    }
    EXPECT_EQ(widths, std::set<int>({1, 2, 4, 6, 8})) << "the wide ones where localities lie far apart";
}

TEST(IsoglossMap, SmoothLinesKeepTheirEnds)
{
    const std::vector<QPointF> zigzag = {{0, 0}, {10, 10}, {20, 0}, {30, 10}};
    const std::vector<QPointF> soft = smoothed(zigzag);
    EXPECT_EQ(soft.front(), zigzag.front());
    EXPECT_EQ(soft.back(), zigzag.back());
    EXPECT_GT(soft.size(), 20U);
    for (const QPointF point : soft) {
        EXPECT_TRUE(QRectF(0, 0, 30, 10).contains(point));
    }
    EXPECT_EQ(smoothed({{0, 0}, {5, 5}}), std::vector<QPointF>({{0, 0}, {5, 5}}));
    const std::vector<QPointF> closed = smoothed({{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}});
    EXPECT_EQ(closed.front(), closed.back());
    EXPECT_NE(closed.front(), QPointF(0, 0));
}
