#include "exchange/NewMap.h"

#include "exchange/LegendPlace.h"
#include "exchange/MapFrame.h"
#include "platform/DrawnArea.h"
#include "render/BlankMap.h"
#include "render/Legend.h"
#include "tests/support/TestDrive.h"

#include <QLineF>

namespace {

QString naturalEarth()
{
    return QStringLiteral(INSTALLATION_FOLDER "/NaturalEarth/natural-earth-50m.gpkg");
}

SourceSurvey surveyAt(const std::vector<QPointF>& places, bool plane = false)
{
    SourceSurvey survey;
    survey.title = QStringLiteral("Survey");
    survey.plane = plane;
    for (const QPointF place : places) {
        survey.localities.push_back({QString::number(survey.localities.size()), {}, place});
    }
    return survey;
}

const std::vector<QPointF> Coast = {{145.1, -5.3}, {145.4, -4.4}, {145.8, -5.2}, {146.2, -5.6}};
const std::vector<QPointF> Fiji = {{178.4, -18.1}, {177.1, -12.5}, {-179.97, -16.8}, {-178.8, -18.2}};

QPointF locality(const NewMap& map, int i)
{
    return {map.localities.LocXY(i, 0), map.localities.LocXY(i, 1)};
}

/// The line kinds that a map has, told by the codes of its lines.
std::set<int> kindsOf(const MapLines& lines)
{
    std::set<int> kinds;
    for (int i = 1; i <= lines.NLine; ++i) {
        kinds.insert(lines.LineKind(i));
    }
    return kinds;
}

/// How far the ends of the scale bar lie apart on the Earth, in metres.
double metresOfBar(const NewMap& map)
{
    const MapFrame frame(map.names.projection);
    const QPointF middle(MapFrame::Width / 2, MapFrame::Height / 2);
    const QPointF half(map.placeNames.ScaleLength / 2, 0);
    const QPointF a = frame.toSource(middle - half).value_or(QPointF());
    const QPointF b = frame.toSource(middle + half).value_or(QPointF());
    const double north = (a.y() - b.y()) * 111195;
    const double east = std::remainder(a.x() - b.x(), 360) * 111195 * std::cos(M_PI / 180 * a.y());
    return std::hypot(north, east);
}

NewMap mapOf(const SourceSurvey& survey, QSizeF legend, const QString& projection = QStringLiteral("laea"))
{
    SurveyChoices choices;
    choices.projection = projection;
    ImportReport report;
    return makeMap(survey, choices, legend, naturalEarth(), report);
}

} // namespace

TEST(NewMap, LiesInTheDrawingAreaWithItsLegendAndScaleBarOverNoLocality)
{
    struct Row
    {
        const char* what;
        SourceSurvey survey;
        QString projection;
        QSizeF legend;
    };
    std::vector<QPointF> aroundPole;
    for (int longitude = -180; longitude < 180; longitude += 30) {
        aroundPole.emplace_back(longitude, 80);
    }
    const QString laea = QStringLiteral("laea");
    const Row rows[] = {
        {"a coast", surveyAt(Coast), laea, {2500, 3500}},
        {"a high legend", surveyAt(Coast), laea, {6000, 8700}},
        {"the date line", surveyAt(Fiji), laea, {2500, 5000}},
        {"a pole", surveyAt(aroundPole), laea, {2000, 2000}},
        {"one spot", surveyAt({{-2.4, 51.4}, {-2.4, 51.4}}), laea, {2500, 8000}},
        {"a wide survey",
         surveyAt({{-120, 48}, {-90, 50}, {-62, 48}}),
         QStringLiteral("tmerc"),
         {3000, 3000}},
        {"a registered system",
         surveyAt({{3.4, 51.4}, {7.1, 53.3}}),
         QStringLiteral("EPSG:28992"),
         {2500, 900}},
        {"a plane", surveyAt({{5, 5}, {12, 20}}, true), laea, {2500, 3500}},
    };
    TestSurvey drawn;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const NewMap map = mapOf(row.survey, row.legend, row.projection);
        const double scale = MapFrame::Twips;
        const QRectF legend({map.placeNames.HanreiX, double(map.placeNames.HanreiY)}, row.legend / scale);
        const QRectF bar(map.placeNames.KanjiXY(2, 0), map.placeNames.KanjiXY(2, 1) - 25,
                         map.placeNames.ScaleLength, 25);
        EXPECT_FALSE(bar.intersects(legend));
        for (int i = 1; i <= map.localities.NLocality; ++i) {
            const QPointF place = locality(map, i);
            EXPECT_TRUE(QRectF(30, 30, MapFrame::Width - 60, MapFrame::Height - 60).contains(place));
            EXPECT_FALSE(legend.adjusted(-10, -10, 10, 10).contains(place) || bar.contains(place));
            const QPointF source = row.survey.localities[static_cast<size_t>(i - 1)].position;
            const MapFrame frame(map.names.projection, row.survey.plane);
            EXPECT_LT(QLineF(frame.toMap(source).value_or(QPointF()), place).length(), 0.001);
            const QPointF back = frame.toSource(place).value_or(QPointF()) - source;
            EXPECT_LT(std::abs(std::remainder(back.x(), 360)) + std::abs(back.y()), 0.001);
        }

        static_cast<MapLines&>(drawn.varn) = map.lines;
        static_cast<PlaceNames&>(drawn.varn) = map.placeNames;
        DrawBlankMap({drawn.varn, drawn.varn, drawn.varn.SymbolFileName, drawn.varn}, drawn.surfaces);
        EXPECT_NEAR(drawn.varn.Scale, scale, 0.001);
        EXPECT_TRUE(QRectF(0, 0, 12000, 9000).contains(drawnArea(drawn.frmMap.drawing())));
        EXPECT_TRUE(QRectF(0, 0, 12000, 9000)
                        .contains(QRectF(
                            captionOrigin({drawn.varn, drawn.varn, drawn.varn.SymbolFileName, drawn.varn}),
                            row.legend)));
    }
}

TEST(NewMap, HasTheCoastWhereItIsAndARoundScaleBar)
{
    const NewMap coast = mapOf(surveyAt(Coast), {2500, 3500});
    const MapFrame frame(coast.names.projection);
    const QPointF madang = frame.toMap({145.8, -5.2}).value_or(QPointF()); // a port
    double nearest = MapFrame::Width;
    for (int i = 3; i <= coast.lines.NLine; ++i) { // behind the neat-line and the legend's
        EXPECT_EQ(coast.lines.MapLineColor(i), coast.lines.LineKind(i) == 1 ? 0 : 1);
        for (int j = 1; j <= coast.lines.LinePoints(i); ++j) {
            const QPointF point(coast.lines.LineXY(i, j, 0), coast.lines.LineXY(i, j, 1));
            nearest = std::min(nearest, QLineF(point, madang).length());
        }
    }
    EXPECT_LT(nearest, 30);

    for (const auto& places : {Coast, Fiji}) {
        const NewMap map = mapOf(surveyAt(places), {2500, 3500});
        EXPECT_TRUE(kindsOf(map.lines).contains(1));
        const double metres = map.placeNames.ScaleLabel.section(QLatin1Char(' '), 0, 0).toDouble() * 1000;
        EXPECT_NEAR(metresOfBar(map) / metres, 1, 0.005);
        EXPECT_LT(map.placeNames.ScaleLength, MapFrame::Width / 5);
        EXPECT_GT(map.placeNames.ScaleLength, MapFrame::Width / 13);
    }
    EXPECT_EQ(mapOf(surveyAt({{5, 5}, {12, 20}}, true), {}).placeNames.ScaleLength, 0);
}

TEST(NewMap, UnknownProjectionsAreRefused)
{
    for (const char* projection : {"EPSG:4326", "EPSG:1", "mercator", ""}) {
        const RunTimeError error = errorOf([&] { mapOf(surveyAt(Coast), {}, QLatin1String(projection)); });
        EXPECT_TRUE(error.detail().contains(QLatin1String("EPSG:3857"))) << projection;
    }
}

TEST(LegendMeasure, SeesTheWholeLegend)
{
    const TestSurvey survey;
    const LegendMeasure measure(survey.varn);
    ItemAnswers item;
    item.Hanrei = QStringLiteral("rain");
    SymbolSet symbols;
    symbols.NHanrei = 30;
    for (int k = 1; k <= symbols.NHanrei; ++k) {
        symbols.HankoCaption(k) = QStringLiteral("a caption");
        symbols.Hanko(k).HankoNo = 3;
    }
    const QSizeF two = measure.legendSize(item, symbols);
    EXPECT_NEAR(two.height(), 8700, 150); // 28 rows of 300 under the title
    symbols.NHanrei = 10;
    const QSizeF one = measure.legendSize(item, symbols);
    EXPECT_NEAR(one.height(), 50 + 11 * 300 + 250, 150);
    if (anyFont()) {
        EXPECT_GT(two.width(), one.width() + 1000);
        EXPECT_GT(measure.titleSize(QStringLiteral("a very much longer title than the captions are")).width(),
                  one.width());
    }
}
