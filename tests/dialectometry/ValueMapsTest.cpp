#include "dialectometry/BeamMap.h"
#include "dialectometry/ClusterMap.h"
#include "dialectometry/Dendrogram.h"
#include "dialectometry/GroupColors.h"
#include "dialectometry/PlotAxis.h"
#include "dialectometry/ReferenceMap.h"
#include "dialectometry/ScalingMap.h"
#include "dialectometry/ScatterPlot.h"
#include "tests/dialectometry/MapOfCells.h"

#include <QFontMetricsF>

#include <cmath>
#include <limits>

namespace {

constexpr double None = std::numeric_limits<double>::quiet_NaN();
constexpr QRgb White = qRgb(255, 255, 255);

/// Distances on a grid: as far as the columns are apart, in tenths.
DistanceMatrix columnDistances()
{
    DistanceMatrix distances(16);
    for (int a = 0; a < 16; ++a) {
        for (int b = a + 1; b < 16; ++b) {
            distances.set(a, b, std::abs(a % 4 - b % 4) / 10.0);
        }
    }
    return distances;
}

/// A tree of `count` localities that joins one after the other to the first.
Linkage comb(int count)
{
    Linkage tree;
    for (int i = 0; i < count; ++i) {
        tree.localities.push_back(i);
    }
    for (int i = 1; i < count; ++i) {
        tree.merges.push_back({i == 1 ? 0 : count + i - 2, i, static_cast<double>(i), i + 1});
    }
    return tree;
}

QRectF boxOf(const Drawing& drawing, const TextOperation& text)
{
    const QFontMetricsF font(twipFont(drawing.fonts[static_cast<std::size_t>(text.font)]));
    return {text.x, text.y, font.horizontalAdvance(drawing.texts[text.text]), font.height()};
}

/// How many pens of a width the lines of a drawing have.
std::ptrdiff_t linesOfWidth(const Drawing& drawing, int width)
{
    return std::ranges::count_if(operationsOf<PolylineOperation>(drawing),
                                 [&](const PolylineOperation& line) {
                                     return drawing.pens[static_cast<std::size_t>(line.pen)].width == width;
                                 });
}

} // namespace

TEST(ValueClasses, PartAtTheMeanOrEvenly)
{
    const std::vector<double> values = {0, 0.1, None, 0.2, 0.9};
    const ValueClasses around = valueClasses(values, ClassRule::AroundMean);
    ASSERT_EQ(around.count(), 6);
    EXPECT_DOUBLE_EQ(around.bounds[1], 0.1);
    EXPECT_DOUBLE_EQ(around.bounds[3], 0.3);
    EXPECT_DOUBLE_EQ(around.bounds[4], 0.5);
    EXPECT_EQ(around.text(3), QStringLiteral("0.30 - 0.50"));
    const ValueClasses even = valueClasses(values, ClassRule::EqualWidths);
    EXPECT_DOUBLE_EQ(even.bounds[1], 0.15);
    const std::pair<double, int> rows[] = {{0, 0},    {0.1, 0}, {0.11, 1}, {0.3, 2},
                                           {0.31, 3}, {0.9, 5}, {None, -1}};
    for (const auto& [value, number] : rows) {
        EXPECT_EQ(around(value), number) << value;
    }
    const ValueClasses same = valueClasses(std::vector{0.5, 0.5}, ClassRule::AroundMean);
    EXPECT_EQ(same.count(), 1);
    EXPECT_EQ(same(0.5), 0);
    EXPECT_EQ(same.text(0), QStringLiteral("0.5"));
    EXPECT_EQ(valueClasses(std::vector{None}, ClassRule::EqualWidths).count(), 0);
}

TEST(ReferenceMap, ColoursDistancesAndHatchesWhereThereIsNone)
{
    MapOfCells map(gridOfPlaces());
    std::vector<double> distances;
    for (int i = 0; i < 16; ++i) {
        distances.push_back(columnDistances()(0, i));
    }
    distances[15] = None;
    drawReferenceMap(map.parts(), QStringLiteral("Distance to A"), distances, 0,
                     {AreaLook::Colored, ClassRule::EqualWidths}, map.surfaces());
    const std::vector<AreaFill> fills = classFills(6, ClassRule::EqualWidths, AreaLook::Colored);
    const QImage image = map.painted();
    EXPECT_EQ(image.pixel(map.pixelOf(4)), fills[0].ground);
    EXPECT_EQ(image.pixel(map.pixelOf(7)), fills[5].ground);
    EXPECT_EQ(image.pixel(map.pixelOf(0)), qRgb(0, 0, 0)) << "the star";
    EXPECT_EQ(image.pixel(map.pixelOf(0) + QPoint(20, 20)), White) << "the reference is of no class";
    const auto areas = operationsOf<AreaOperation>(map.surface.drawing());
    EXPECT_EQ(std::ranges::count(areas, missingFill().pattern, &AreaOperation::pattern), 2)
        << "cell and legend";
    EXPECT_EQ(textsOf(map.surface.drawing()),
              QStringList({"Distance to A", "0.00 - 0.05 (3)", "0.05 - 0.10 (4)", "0.10 - 0.15 (0)",
                           "0.15 - 0.20 (4)", "0.20 - 0.25 (0)", "0.25 - 0.30 (3)", "no distance (1)"}));
}

TEST(BeamMap, IsDarkestBetweenTheMostAlike)
{
    MapOfCells map(gridOfPlaces());
    DistanceMatrix distances = columnDistances();
    distances.set(0, 4, None);
    drawBeamMap(map.parts(), QStringLiteral("Neighbours"), distances, map.surfaces());
    const QStringList texts = textsOf(map.surface.drawing());
    EXPECT_EQ(texts.value(1), QStringLiteral("0.000 - 0.017 (11)"))
        << "of twelve down the columns one has no distance";
    EXPECT_EQ(linesOfWidth(map.surface.drawing(), 7), 11 + 1);
    const QImage image = map.painted();
    EXPECT_EQ(image.pixel((map.pixelOf(5) + map.pixelOf(9)) / 2), qRgb(0, 0, 0));
    EXPECT_EQ(image.pixel((map.pixelOf(0) + map.pixelOf(4)) / 2), White);
}

TEST(ClusterMap, ShowsGroupsTheirSizesAndFirmBorders)
{
    MapOfCells map(gridOfPlaces());
    std::vector<int> groups(16, 1);
    for (const int i : {2, 3, 6, 7}) {
        groups[static_cast<std::size_t>(i)] = 2;
    }
    groups[15] = 0;
    drawClusterMap(map.parts(), QStringLiteral("Groups"), groups, {}, {}, map.surfaces());
    const QImage image = map.painted();
    EXPECT_EQ(image.pixel(map.pixelOf(0)), groupColor(1));
    EXPECT_EQ(image.pixel(map.pixelOf(7)), groupColor(2));
    EXPECT_EQ(textsOf(map.surface.drawing()),
              QStringList({"Groups", "group 1 (11)", "group 2 (4)", "left out (1)"}));
    EXPECT_EQ(operationsOf<AreaOperation>(map.surface.drawing()).size(), 3U + 2 * 3)
        << "cells of a group are one";

    MapOfCells noisy(gridOfPlaces());
    const std::vector<BorderShare> shares = {{{1, 2}, 1}, {{6, 5}, 0.3}, {{9, 10}, 0}, {{8, 9}, 0.02}};
    drawClusterMap(noisy.parts(), QStringLiteral("Groups"), groups, shares, {AreaLook::Hatched, true},
                   noisy.surfaces());
    EXPECT_EQ(linesOfWidth(noisy.surface.drawing(), 4), 2) << "the border and its sample";
    EXPECT_EQ(linesOfWidth(noisy.surface.drawing(), 2), 2);
    const Drawing& drawing = noisy.surface.drawing();
    const auto isSeldom = [&](const PolylineOperation& line) {
        return drawing.pens[static_cast<std::size_t>(line.pen)].color == qRgb(190, 190, 190);
    };
    EXPECT_EQ(std::ranges::count_if(operationsOf<PolylineOperation>(drawing), isSeldom), 2)
        << "also a border in two of a hundred runs";
    EXPECT_TRUE(textsOf(noisy.surface.drawing()).contains(QStringLiteral("border in 1 - 25 % of the runs")));
    EXPECT_EQ(operationsOf<EllipseOperation>(noisy.surface.drawing()).size(), 11U + 1);
}

TEST(GroupColors, TellTwentyFourGroupsApartInBothLooks)
{
    for (const AreaLook look : {AreaLook::Colored, AreaLook::Hatched}) {
        for (int group = 0; group <= 24; ++group) {
            for (int other = 0; other < group; ++other) {
                EXPECT_NE(groupFill(group, look), groupFill(other, look)) << group << ' ' << other;
            }
        }
    }
    QStringList symbols;
    for (int group = 1; group <= 32; ++group) {
        MapOfCells map({});
        drawGroupSymbol(group, AreaLook::Hatched, 1500, 1500, 150, map.surface);
        const QImage image = map.painted();
        symbols << QString::fromLatin1(
            QByteArray(reinterpret_cast<const char*>(image.bits()), image.sizeInBytes()).toBase64());
    }
    EXPECT_EQ(symbols.removeDuplicates(), 0);
}

TEST(ScalingMap, MakesThreeDimensionsColours)
{
    Scaling scaling;
    scaling.places = {{-1, 0, 5}, {1, 2, 5}, {}, {0, 1, 5}};
    scaling.variance = {0.5, 0.75, 0.876};
    const std::vector<QRgb> colors = scalingColors(scaling);
    EXPECT_EQ(colors[0], qRgb(40, 40, 148));
    EXPECT_EQ(colors[1], qRgb(255, 255, 148));
    EXPECT_EQ(colors[2], 0U);
    EXPECT_EQ(colors[3], qRgb(148, 148, 148));
    MapOfCells map({{100, 400}, {200, 400}, {300, 400}, {400, 400}});
    drawScalingMap(map.parts(), QStringLiteral("Scaling"), scaling, map.surfaces());
    EXPECT_EQ(map.painted().pixel(map.pixelOf(1)), colors[1]);
    EXPECT_EQ(
        textsOf(map.surface.drawing()),
        QStringList({"Scaling", "red: dimension 1, 50 % of the variance", "green: dimension 2, both 75 %",
                     "blue: dimension 3, all three 88 %", "left out"}));
}

TEST(Dendrogram, NamesItsLeavesAsLongAsTheyCanBeRead)
{
    for (const int count : {1, 2, 10, 300}) {
        MapOfCells map({});
        const Linkage tree = comb(count);
        QStringList names;
        std::vector<int> groups;
        for (int i = 0; i < count; ++i) {
            names << QStringLiteral("place%1").arg(i);
            groups.push_back(i < count / 2 ? 1 : 2);
        }
        drawDendrogram({tree, names, groups, map.varn}, QStringLiteral("Tree"), {0, 0, 12000, 9000},
                       AreaLook::Colored, map.surface);
        const Drawing& drawing = map.surface.drawing();
        const QStringList texts = textsOf(drawing);
        EXPECT_EQ(texts.contains(QStringLiteral("place0")), count <= 10) << count;
        EXPECT_EQ(texts.contains(QStringLiteral("1 (150)")), count == 300);
        EXPECT_EQ(texts.filter(QStringLiteral("place")), count <= 10 ? names : QStringList())
            << "from top to bottom as the tree joins them";
        const auto printed = operationsOf<TextOperation>(drawing);
        for (std::size_t i = 0; i < printed.size(); ++i) {
            EXPECT_TRUE(QRectF(0, 0, 12000, 9000).contains(boxOf(drawing, printed[i])))
                << texts[static_cast<qsizetype>(i)].toStdString();
            for (std::size_t j = 0; j < i; ++j) {
                EXPECT_FALSE(boxOf(drawing, printed[i]).intersects(boxOf(drawing, printed[j]))) << count;
            }
        }
    }
}

TEST(PlotAxis, HasRoundTicks)
{
    const struct
    {
        double least;
        double most;
        QStringList ticks;
    } rows[] = {{0, 1, {"0.0", "0.2", "0.4", "0.6", "0.8", "1.0"}},
                {-0.21, 0.41, {"-0.2", "-0.1", "0.0", "0.1", "0.2", "0.3", "0.4"}},
                {3, 420, {"100", "200", "300", "400"}},
                {0, 0.0031, {"0.0000", "0.0005", "0.0010", "0.0015", "0.0020", "0.0025", "0.0030"}},
                {5, 5, {"5.00"}}};
    for (const auto& row : rows) {
        const PlotAxis axis{row.least, row.most, 100, 1100};
        QStringList ticks;
        for (const double value : axisTicks(axis)) {
            ticks << tickText(value, axis);
        }
        EXPECT_EQ(ticks, row.ticks) << row.most;
    }
    EXPECT_EQ((PlotAxis{0, 10, 100, 1100}.at(2.5)), 350);
    EXPECT_EQ((PlotAxis{5, 5, 100, 1100}.at(5)), 600);
}

TEST(ScatterPlot, WritesNamesWhereTheyDoNotCollide)
{
    Scaling scaling;
    QStringList names;
    for (int i = 0; i < 60; ++i) {
        scaling.places.push_back({std::sin(i) * (i < 30 ? 0.1 : 1), std::cos(i * 1.7), 0});
        names << QStringLiteral("place%1").arg(i);
    }
    scaling.places.emplace_back();
    names << QStringLiteral("left out");
    scaling.stress = {0.5, 0.1234, 0};
    scaling.variance = {0.5, 0.666, 1};
    MapOfCells map({});
    drawScalingPlot(scaling, names, {}, map.varn, QStringLiteral("%1 %2"), {0, 0, 12000, 9000}, map.surface);
    const Drawing& drawing = map.surface.drawing();
    EXPECT_TRUE(wasPrinted(drawing, QStringLiteral("%1 %2: stress 0.123, 67 % of the variance")));
    EXPECT_EQ(operationsOf<EllipseOperation>(drawing).size(), 60U);
    std::vector<QRectF> boxes;
    for (const TextOperation& text : operationsOf<TextOperation>(drawing)) {
        if (drawing.texts[text.text].startsWith(QStringLiteral("place"))) {
            for (const QRectF& other : boxes) {
                EXPECT_FALSE(other.intersects(boxOf(drawing, text)));
            }
            boxes.push_back(boxOf(drawing, text));
        }
    }
    EXPECT_GT(boxes.size(), 30U);
    EXPECT_FALSE(wasPrinted(drawing, QStringLiteral("left out")));
}

TEST(ScatterPlot, WritesNamesBesideTheSymbolsOfGroups)
{
    Scaling scaling;
    scaling.places = {{0, 0}, {0.5, 0}, {0.515, 0}, {1, 0}};
    scaling.stress = {0, 0};
    scaling.variance = {1, 1};
    MapOfCells map({});
    const std::vector<int> groups = {1, 1, 1, 1};
    const QStringList names = {"aa", "bb", "cc", "dd"};
    drawScalingPlot(scaling, names, groups, map.varn, QString(), {0, 0, 12000, 9000}, map.surface);
    const Drawing& drawing = map.surface.drawing();
    for (const TextOperation& text : operationsOf<TextOperation>(drawing)) {
        for (const EllipseOperation& symbol : operationsOf<EllipseOperation>(drawing)) {
            const QRectF box(symbol.x - symbol.halfWidth, symbol.y - symbol.halfHeight, 2 * symbol.halfWidth,
                             2 * symbol.halfHeight);
            EXPECT_TRUE(!names.contains(drawing.texts[text.text]) || !boxOf(drawing, text).intersects(box));
        }
    }
}

TEST(ScatterPlot, ShowsDistancesOverKilometres)
{
    DistanceMatrix kilometers = columnDistances();
    for (double& pair : kilometers.pairs()) {
        pair *= 100;
    }
    DistanceMatrix distances = columnDistances();
    distances.set(0, 1, None);
    MapOfCells map({});
    drawDistancePlot({kilometers, LengthUnit::Kilometres}, distances, {0.01, 0, 0.9876}, map.varn,
                     QStringLiteral("Distances"), {0, 0, 12000, 9000}, map.surface);
    const Drawing& drawing = map.surface.drawing();
    EXPECT_TRUE(wasPrinted(drawing, QStringLiteral("Distances: r = 0.988")));
    EXPECT_TRUE(wasPrinted(drawing, QStringLiteral("kilometres")));
    EXPECT_EQ(operationsOf<EllipseOperation>(drawing).size(), 119U);
    EXPECT_EQ(linesOfWidth(drawing, 3), 1) << "the regression in one piece";

    MapOfCells empty({});
    drawDistancePlot({DistanceMatrix(3), LengthUnit::MapUnits}, DistanceMatrix(3), {}, empty.varn, QString(),
                     {0, 0, 900, 900}, empty.surface);
    EXPECT_TRUE(operationsOf<PolylineOperation>(empty.surface.drawing()).empty());
}
