// Where points of the map are in the view, and what is found on the map.

#include "atlas/MapViewport.h"

#include "atlas/FreePlace.h"
#include "atlas/LocalityAnswer.h"
#include "atlas/SpotGrid.h"
#include "tests/support/TestDrive.h"

#include <cmath>

namespace {

void expectNear(QPointF a, QPointF b)
{
    EXPECT_NEAR(a.x(), b.x(), 1e-6);
    EXPECT_NEAR(a.y(), b.y(), 1e-6);
}

} // namespace

TEST(MapViewport, ZoomsAtThePointAndPansAndFits)
{
    MapViewport view;
    const QRectF paper(0, 0, 1000, 1000);
    view.setRoom({816, 416}, paper);
    EXPECT_DOUBLE_EQ(view.scale(), 0.4);
    expectNear(view.toView({500, 500}), {408, 208});
    const QPointF pointer(300, 100);
    const QPointF before = view.toMap(pointer);
    view.zoomAt(pointer, 4);
    expectNear(view.toMap(pointer), before);
    EXPECT_DOUBLE_EQ(view.scale(), 1.6);
    view.pan({-30, 20});
    expectNear(view.toView(before), {270, 120});

    const QPointF middle = view.toMap({408, 208});
    view.setRoom({1016, 616}, paper);
    EXPECT_DOUBLE_EQ(view.scale(), 1.6) << "another size of the window does not zoom";
    expectNear(view.toView(middle), {508, 308});
    view.fit();
    view.setRoom({116, 116}, paper);
    EXPECT_DOUBLE_EQ(view.scale(), 0.1) << "a map that fits goes on to fit";
}

TEST(MapViewport, NeverLosesTheMap)
{
    MapViewport view;
    const QRectF paper(0, 0, 1000, 1000);
    view.setRoom({816, 416}, paper);
    view.pan({-1e6, 1e6});
    EXPECT_TRUE(QRectF(0, 0, 816, 416).intersects({view.toView({0, 0}), view.toView({1000, 1000})}));
    for (int i = 0; i < 100; ++i) {
        view.zoomAt({0, 0}, 2);
    }
    EXPECT_DOUBLE_EQ(view.zoom(), MapViewport::LargestZoom);
    view.bringIntoView({990, 990});
    expectNear(view.toView({990, 990}), {408, 208});
    view.bringIntoView({991, 990});
    expectNear(view.toView({990, 990}), {408, 208});
    for (int i = 0; i < 100; ++i) {
        view.zoomAt({0, 0}, 0.5);
    }
    EXPECT_DOUBLE_EQ(view.zoom(), MapViewport::SmallestZoom);
    view.setRoom({0, 0}, paper);
    EXPECT_TRUE(std::isfinite(view.toMap({1, 1}).x()));
}

TEST(SpotGrid, FindsWhatAWalkOverAllSpotsFinds)
{
    std::vector<MapSpot> spots;
    for (int i = 0; i < 500; ++i) {
        spots.push_back({QPointF(i * 7919 % 1000, i * 104729 % 700 * 2), i + 1});
    }
    spots.push_back({{1e7, -1e7}, 501}); // one far out makes the others crowd
    const SpotGrid grid(spots);
    for (int i = 0; i < 300; ++i) {
        const QPointF point(i * 31 % 1100 - 50, i * 17 % 1500 - 50);
        const double radius = i % 90;
        double least = radius;
        std::set<int> inside;
        const QRectF area(point, QSizeF(radius, 2 * radius));
        for (const MapSpot& spot : spots) {
            least = std::min(least, std::hypot(spot.place.x() - point.x(), spot.place.y() - point.y()));
            if (area.contains(spot.place)) {
                inside.insert(spot.locality);
            }
        }
        const int found = grid.nearest(point, radius);
        if (found > 0) {
            const QPointF at = spots[static_cast<std::size_t>(found - 1)].place;
            EXPECT_DOUBLE_EQ(std::hypot(at.x() - point.x(), at.y() - point.y()), least);
        } else {
            EXPECT_EQ(least, radius) << "none is nearer";
        }
        EXPECT_EQ(grid.within(area), inside);
    }
    EXPECT_EQ(grid.nearest({1e7 + 3, -1e7}, 5), 501);
    EXPECT_EQ(SpotGrid().nearest({0, 0}, 1e9), 0);
    EXPECT_EQ(SpotGrid({{{5, 5}, 7}}).nearest({6, 5}, 2), 7) << "one locality";
}

TEST(FreePlace, HidesAsFewLocalitiesAsCanBeAndThenAsLittleOfTheMap)
{
    const QRectF paper(0, 0, 1000, 800);
    std::vector<QPointF> spots = {{50, 50}, {950, 50}, {500, 400}, {50, 750}};
    std::vector<QPointF> others;
    const auto found = [&](QSizeF size) { return freePlace(paper, size, {spots, others, 20}); };
    const auto hidden = [&](QPointF place, QSizeF size) {
        return std::ranges::count_if(spots, [&](QPointF p) { return QRectF(place, size).contains(p); });
    };
    EXPECT_EQ(found({200, 100}), QPointF(800, 700)) << "the corner that is free";
    DrawSurface map;
    map.Line(700, 720, 1000, 720, 0);
    map.PrintAt(300, 300, QStringLiteral("Town"));
    others = pointsOf(map.drawing(), 0, 2);
    EXPECT_TRUE(QRectF(0, 0, 1000, 719).contains(QRectF(found({200, 100}), QSizeF(200, 100))))
        << "a line is there";
    spots.emplace_back(950, 750);
    const QPointF place = found({200, 100});
    EXPECT_EQ(hidden(place, {200, 100}), 0);
    EXPECT_TRUE(paper.contains(QRectF(place, QSizeF(200, 100))));
    EXPECT_EQ(hidden(found({900, 500}), {900, 500}), 1);
    EXPECT_EQ(found({5000, 5000}), QPointF(0, 0)) << "larger than the paper";
}

TEST(LocalityAnswer, HasTheWordFormsAndTheRecordsThatMarkThem)
{
    TestSurvey survey;
    VarnModule& varn = survey.varn;
    varn.localityNames = {{"a", "Amele", 0, 0}, {"b", "Ueno", 0, 0}, {"c", "Ci 2", 0, 0}};
    varn.NLocate = 2;
    varn.WordCount(1) = 2;
    varn.WordData(1, 1) = "ame";
    varn.WordData(1, 2) = "uyu";
    varn.NHanrei = 2;
    varn.HankoWord(1) = "ame";
    varn.HankoWord(2) = "m";
    const SymbolMarks marks(varn, false);
    const LocalityAnswer answer = answerOf(varn, varn, varn, marks, 1);
    EXPECT_EQ(answer.line(), "1 Amele: ame, uyu");
    EXPECT_EQ(answer.words.at(0).records, (std::vector{1, 2}));
    EXPECT_TRUE(answer.words.at(1).records.empty());
    for (const int unanswered : {2, 3}) {
        EXPECT_TRUE(answerOf(varn, varn, varn, marks, unanswered).words.empty());
    }
    const std::pair<const char*, std::vector<int>> rows[] = {
        {"2", {2, 3}}, {"U", {2, 1}}, {" AME ", {1}}, {"nowhere", {}}, {"", {}}, {" ", {}}, {"uyu", {1}}};
    for (const auto& [text, found] : rows) {
        EXPECT_EQ(localitiesFound(varn, varn, text), found) << text;
    }
}
