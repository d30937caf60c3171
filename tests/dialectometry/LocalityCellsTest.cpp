#include "dialectometry/LocalityCells.h"

#include "dialectometry/CoastRings.h"
#include "tests/support/TestDrive.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>
#include <random>
#include <set>

namespace {

/// Localities and lines of a map that is put together in a test.
struct SmallMap
{
    SmallMap& at(std::initializer_list<QPointF> places)
    {
        for (const QPointF place : places) {
            ++localities.NLocality;
            localities.LocXY(localities.NLocality, 0) = static_cast<float>(place.x());
            localities.LocXY(localities.NLocality, 1) = static_cast<float>(place.y());
        }
        return *this;
    }
    SmallMap& line(std::initializer_list<QPointF> points, int color = 0)
    {
        const int i = ++lines.NLine;
        lines.MapLineColor(i) = color;
        lines.LineOffset(i, 0) = 10;
        for (const QPointF point : points) {
            const int j = ++lines.LinePoints(i);
            lines.LineXY(i, j, 0) = static_cast<float>(point.x()) - 10;
            lines.LineXY(i, j, 1) = static_cast<float>(point.y());
        }
        return *this;
    }
    LocalityCells cells() const { return localityCells(localities, lines); }
    QPointF place(int i) const { return {localities.LocXY(i + 1, 0), localities.LocXY(i + 1, 1)}; }

    Localities localities;
    MapLines lines;
};

/// Diamonds about (x, y).
SmallMap& diamond(SmallMap& map, double x, double y, double r)
{
    return map.line({{x - r, y}, {x, y - r}, {x + r, y}, {x, y + r}, {x - r, y}});
}

SmallMap randomMap(int count)
{
    SmallMap map;
    std::mt19937 random(5);
    const auto next = [&random] { return static_cast<double>(random() % 90000) / 100 + 50; };
    for (int i = 0; i < count; ++i) {
        map.at({{next(), next()}});
    }
    return diamond(map, 500, 500, 600);
}

double areaOf(const Rings& rings)
{
    double area = 0;
    for (const Ring& ring : rings) {
        area -= signedArea(ring);
    }
    return area;
}

bool isIn(const Rings& rings, QPointF point)
{
    return std::ranges::count_if(rings, [point](const Ring& ring) { return holds(ring, point); }) % 2 == 1;
}

std::vector<Rings> eachAlone(const LocalityCells& cells)
{
    std::vector<int> own(cells.localities.size());
    std::iota(own.begin(), own.end(), 0);
    return joinedCells(cells, own, static_cast<int>(own.size()));
}

double nearness(QPointF a, QPointF b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

/// Every cell holds its own localities and no others, and together they fill the area once.
void expectWholeCover(const SmallMap& map)
{
    const LocalityCells cells = map.cells();
    const std::vector<Rings> alone = eachAlone(cells);
    double sum = 0;
    for (const Rings& rings : alone) {
        EXPECT_GT(areaOf(rings), 0);
        sum += areaOf(rings);
    }
    EXPECT_NEAR(sum, areaOf(cells.area), 1e-5 * sum);
    const std::vector<int> one(alone.size());
    EXPECT_NEAR(areaOf(joinedCells(cells, one, 1).front()), sum, 1e-5 * sum);
    for (int i = 0; i < map.localities.NLocality; ++i) {
        for (std::size_t j = 0; j < alone.size(); ++j) {
            const bool isOwn = std::ranges::count(cells.localities[j], i) == 1;
            EXPECT_EQ(isIn(alone[j], map.place(i)), isOwn) << i << " in " << j;
        }
    }
}

} // namespace

TEST(LocalityCells, FillTheAreaOnceWhereverLocalitiesAre)
{
    SmallMap islands = SmallMap().at({{100, 100}, {110, 90}, {400, 100}, {405, 130}, {395, 80}});
    diamond(diamond(islands, 100, 100, 80), 400, 100, 90);
    SmallMap grid;
    for (int i = 0; i < 49; ++i) {
        grid.at({{i % 7 * 10.0, i / 7 * 10.0}});
    }
    SmallMap circle; // all cells meet at 0, where the digits are finest
    for (int i = 0; i < 10; ++i) {
        circle.at({{std::cos(std::numbers::pi * i / 5), std::sin(std::numbers::pi * i / 5)}});
    }
    const std::pair<const char*, SmallMap> maps[] = {
        {"random", randomMap(150)},
        {"a circle about 0", circle},
        {"islands", islands},
        {"a grid", grid},
        {"one locality", SmallMap().at({{7, 3}})},
        {"two localities", SmallMap().at({{7, 3}, {8, 3}})},
        {"on a line", SmallMap().at({{1, 1}, {2, 2}, {5, 5}, {3, 3}})},
        {"two at one point", SmallMap().at({{1, 1}, {9, 2}, {1, 1}, {4, 7}})},
        {"all at one point", SmallMap().at({{1, 1}, {1, 1}})},
        {"very near", SmallMap().at({{1000, 1000}, {1000.0002, 1000}, {1000, 1000.0005}})},
        {"far away", SmallMap().at({{5000000, 400000}, {5000010, 400000}, {5000000, 400020}})},
    };
    for (const auto& [name, map] : maps) {
        SCOPED_TRACE(name);
        expectWholeCover(map);
    }
    EXPECT_TRUE(SmallMap().cells().borders.empty());
}

TEST(LocalityCells, LieWithinTheCoastThatHoldsThem)
{
    constexpr double Diamond = 2 * 100.0 * 100.0;
    const auto inner = [] { return SmallMap().at({{180, 200}, {220, 200}, {200, 190}, {210, 230}}); };
    SmallMap plain = inner();
    diamond(plain, 200, 200, 100);
    SmallMap pieces = inner();
    pieces.line({{100, 200}, {200, 100}, {300, 200}}).line({{100, 200}, {200, 300}, {300, 200}});
    pieces.line({{300, 200}, {400, 100}}, 1);
    SmallMap framed = plain;
    framed.line({{0, 0}, {500, 0}, {500, 400}, {0, 400}, {0, 0}});
    SmallMap shore = plain;
    diamond(shore, 200, 200, 110);
    SmallMap empty = plain;
    diamond(empty, 600, 200, 40);
    const std::pair<const char*, SmallMap> maps[] = {{"a coast", plain},
                                                     {"in pieces", pieces},
                                                     {"in a frame", framed},
                                                     {"in a shore line", shore},
                                                     {"beside an empty island", empty}};
    for (const auto& [name, map] : maps) {
        EXPECT_NEAR(areaOf(map.cells().area), Diamond, 1) << name;
    }

    SmallMap outside = plain;
    outside.at({{400, 200}});
    const LocalityCells cells = outside.cells();
    EXPECT_GT(areaOf(cells.area), Diamond + 100) << "a disc around the locality off the coast";
    EXPECT_TRUE(isIn(cells.area, {400, 200}));
    expectWholeCover(outside);

    SmallMap jetty; // one of thirteen between coast and shore line does not make that the coast
    for (int i = 0; i < 12; ++i) {
        jetty.at({{180 + i % 4 * 10.0, 190 + i / 4 * 10.0}});
    }
    jetty.at({{305, 200}});
    diamond(diamond(jetty, 200, 200, 100), 200, 200, 110);
    EXPECT_LT(areaOf(jetty.cells().area), Diamond + 400);

    SmallMap open = inner();
    open.line({{100, 200}, {200, 100}, {300, 200}});
    EXPECT_LT(areaOf(open.cells().area), Diamond) << "the hull of the localities and a margin";
    EXPECT_TRUE(isIn(open.cells().area, {180, 190}));
    const SmallMap scattered = SmallMap().at({{0, 0}, {10, 0}, {500, 0}, {510, 0}, {250, 400}});
    EXPECT_TRUE(isIn(scattered.cells().area, {250, 100})) << "far from all of them";
}

TEST(LocalityCells, EndAtAnOpenCoast)
{
    SmallMap inland;
    for (int i = 0; i < 100; ++i) {
        inland.at({{i % 10 * 10.0, i / 10 * 10.0}});
    }
    inland.at({{200, 45}}); // on an island that nobody drew
    const Rings hull = inland.cells().area;
    const auto with = [&inland](std::initializer_list<QPointF> line) { return SmallMap(inland).line(line); };
    SmallMap inPieces = with({{95, 45}, {95, 150}});
    inPieces.line({{95, -50}, {95, 45}});
    const std::pair<const char*, SmallMap> coasts[] = {
        {"across the map", with({{95, -50}, {95, 150}})},
        {"in pieces", inPieces},
        {"that ends near the edge", with({{95, 90}, {95, -5}})},
    };
    for (const auto& [name, map] : coasts) {
        const Rings area = map.cells().area;
        EXPECT_FALSE(isIn(area, {130, 45})) << name;
        EXPECT_TRUE(isIn(area, {200, 45})) << name;
        EXPECT_NEAR(areaOf(area), 105 * 110 + 314, 100) << name;
        expectWholeCover(map);
    }
    const std::pair<const char*, SmallMap> others[] = {
        {"a river", with({{-50, 45}, {120, 45}, {110, -60}})},
        {"a line that ends inside", with({{100, -50}, {100, 45}})},
        {"a line at the rim", with({{-5, -50}, {-5, 150}})},
    };
    for (const auto& [name, map] : others) {
        EXPECT_NEAR(areaOf(map.cells().area), areaOf(hull), 1) << name;
    }
}

TEST(LocalityCells, AreBoundedHalfwayToTheirNeighbours)
{
    const SmallMap map = randomMap(120);
    const LocalityCells cells = map.cells();
    const auto nearest = [&map](QPointF point) {
        double least = 1e9;
        for (int i = 0; i < map.localities.NLocality; ++i) {
            least = std::min(least, nearness(map.place(i), point));
        }
        return least;
    };
    std::set<LocalityPair> pairs;
    for (const CellBorder& border : cells.borders) {
        if (border.left == CellBorder::Outside || border.right == CellBorder::Outside) {
            continue;
        }
        const int left = cells.localities[static_cast<std::size_t>(border.left)].front();
        const int right = cells.localities[static_cast<std::size_t>(border.right)].front();
        pairs.insert(std::minmax({left, right}));
        for (const QPointF point : border.points) {
            EXPECT_NEAR(nearness(map.place(left), point), nearest(point), 1e-3);
            EXPECT_NEAR(nearness(map.place(right), point), nearest(point), 1e-3);
        }
    }
    const std::vector<LocalityPair> neighbours = neighbourPairs(cells);
    EXPECT_EQ(neighbours, std::vector<LocalityPair>(pairs.begin(), pairs.end()));
    EXPECT_GT(neighbours.size(), 250U);
}

TEST(LocalityCells, OfOneGroupAreOneArea)
{
    SmallMap grid;
    for (int i = 0; i < 25; ++i) {
        grid.at({{i % 5 * 10.0, i / 5 * 10.0}});
    }
    const LocalityCells cells = grid.cells();
    std::vector<int> ring(25);
    ring[12] = 1;
    ring[0] = -1;
    const std::vector<Rings> joined = joinedCells(cells, ring, 2);
    EXPECT_EQ(joined[0].size(), 2U) << "the outline and the hole about the middle";
    ASSERT_EQ(joined[1].size(), 1U);
    EXPECT_NEAR(areaOf(joined[1]), 100, 1e-3);
    EXPECT_NEAR(areaOf(joined[0]) + 100 + areaOf(eachAlone(cells)[0]), areaOf(cells.area), 1e-2);
    EXPECT_FALSE(isIn(joined[0], grid.place(12)));
}
