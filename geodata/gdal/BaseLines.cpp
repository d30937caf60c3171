#include "geodata/gdal/BaseLines.h"

#include "geodata/gdal/GdalLayer.h"
#include "platform/RunTimeError.h"

#include <QFileInfo>
#include <QLineF>
#include <QRegularExpression>

#include <array>
#include <map>
#include <ogrsf_frmts.h>
#include <optional>

namespace {

using Geometry = std::unique_ptr<OGRGeometry>;
using Dataset = std::unique_ptr<GDALDataset>;

QRegularExpression anyOf(const char* words)
{
    return QRegularExpression(QString::fromUtf8(words), QRegularExpression::CaseInsensitiveOption |
                                                            QRegularExpression::UseUnicodePropertiesOption);
}

/// The kind that a name speaks of, in the languages that layers are often named in.
std::optional<BaseLineKind> kindOfName(const QString& name)
{
    struct Row
    {
        BaseLineKind kind;
        QRegularExpression words;
    };
    static const std::array<Row, 4> rows = {{
        {BaseLineKind::Border, anyOf("border|bound|admin|frontier|frontière|frontera|límite|grenz|grens")},
        {BaseLineKind::River, anyOf("river|stream|fluss|flüsse|rivier|rivière|fleuve|\\brío|\\brio|川")},
        {BaseLineKind::Lake, anyOf("lake|lagoon|\\bseen?\\b|\\blacs?\\b|\\blagos?\\b|湖")},
        {BaseLineKind::Coast, anyOf("coast|shore|küste|kust|\\bcôte|\\bcosta|\\bland\\b|海岸")},
    }};
    for (const Row& row : rows) {
        if (row.words.match(name).hasMatch()) {
            return row.kind;
        }
    }
    return std::nullopt;
}

Geometry rectangle(const QRectF& area)
{
    auto ring = std::make_unique<OGRLinearRing>();
    for (const QPointF corner : {area.topLeft(), area.topRight(), area.bottomRight(), area.bottomLeft()}) {
        ring->addPoint(corner.x(), corner.y());
    }
    ring->closeRings();
    auto polygon = std::make_unique<OGRPolygon>();
    polygon->addRingDirectly(ring.release());
    return polygon;
}

/// What of a line lies in `area`; nothing where they are far from each other.
Geometry cut(const OGRLineString& line, const OGRGeometry& area)
{
    if (line.getNumPoints() < 2) {
        return {};
    }
    OGREnvelope ofLine;
    OGREnvelope ofArea;
    line.getEnvelope(&ofLine);
    area.getEnvelope(&ofArea);
    return Geometry(ofArea.Intersects(ofLine) ? line.Intersection(&area) : nullptr);
}

/// Calls `visit` for every line of a geometry; the outlines of areas are lines.
template <typename Visit>
void visitLines(const OGRGeometry& geometry, const Visit& visit)
{
    if (geometry.IsEmpty()) {
        return;
    }
    if (geometry.hasCurveGeometry()) {
        visitLines(*Geometry(geometry.getLinearGeometry()), visit);
    } else if (const auto* line = dynamic_cast<const OGRLineString*>(&geometry)) {
        visit(*line);
    } else if (const auto* area = dynamic_cast<const OGRPolygon*>(&geometry)) {
        for (const OGRLinearRing* ring : *area) {
            visit(OGRLineString(*ring)); // GEOS cuts lines, not rings
        }
    } else if (const auto* parts = dynamic_cast<const OGRGeometryCollection*>(&geometry)) {
        for (const OGRGeometry* part : *parts) {
            visitLines(*part, visit);
        }
    }
}

/// Puts lines on the map: those in the window of the source, and of these what lies in the map.
class LineClip
{
public:
    explicit LineClip(const BaseLineArea& area) : m_area(area), m_map(rectangle(area.map))
    {
        for (const QRectF& part : area.source) {
            m_source.push_back(rectangle(part));
        }
        if (!area.legend.isEmpty()) {
            m_map.reset(m_map->Difference(rectangle(area.legend).get()));
        }
    }

    const BaseLineArea& area() const { return m_area; }

    void clip(const OGRLineString& line, OGRMultiLineString& clipped) const
    {
        constexpr double Pieces = 200; // a long straight line of degrees is a curve on the map

        for (const Geometry& part : m_source) {
            if (const Geometry inside = cut(line, *part)) {
                inside->segmentize(m_area.source.front().width() / Pieces);
                visitLines(*inside, [&](const OGRLineString& piece) { project(piece, clipped); });
            }
        }
    }

private:
    /// Projects a line, which ends where the projection cannot show it or leaps to the other side of the
    /// Earth.
    void project(const OGRLineString& line, OGRMultiLineString& clipped) const
    {
        OGRLineString onMap;
        for (const OGRPoint& point : line) {
            const auto place = m_area.toMap({point.getX(), point.getY()});
            if (!place || isLeap(onMap, *place)) {
                addCut(onMap, clipped);
                onMap.empty();
            }
            if (place) {
                onMap.addPoint(place->x(), place->y());
            }
        }
        addCut(onMap, clipped);
    }

    bool isLeap(const OGRLineString& line, QPointF next) const
    {
        const double leap = m_area.map.width() / 4; // the points of a line stand close together
        const int last = line.getNumPoints() - 1;
        return last >= 0 && QLineF(QPointF(line.getX(last), line.getY(last)), next).length() > leap;
    }

    void addCut(const OGRLineString& line, OGRMultiLineString& clipped) const
    {
        if (const Geometry inside = cut(line, *m_map)) {
            visitLines(*inside, [&](const OGRLineString& piece) { clipped.addGeometry(&piece); });
        }
    }

    const BaseLineArea& m_area;
    std::vector<Geometry> m_source;
    Geometry m_map;
};

/// The way of a layer's coordinates to degrees; none where they are degrees already, or where nobody knows.
std::unique_ptr<OGRCoordinateTransformation> toDegrees(OGRLayer& layer)
{
    const OGRSpatialReference* system = layer.GetSpatialRef();
    return system && !system->IsEmpty() ? wayToDegrees(*system) : nullptr;
}

QString featureName(const OGRFeature& feature)
{
    const int field = feature.GetFieldIndex("name");
    return field < 0 ? QString() : QString::fromUtf8(feature.GetFieldAsString(field));
}

using LinesOfKinds = std::map<BaseLineKind, OGRMultiLineString>;

void readLayer(OGRLayer& layer, const QString& fileName, const LineClip& clip, LinesOfKinds& lines)
{
    const auto way = clip.area().inDegrees ? toDegrees(layer) : nullptr;
    const auto ofLayer = kindOfName(QString::fromUtf8(layer.GetName()));
    const BaseLineKind ofFile = kindOfName(fileName).value_or(BaseLineKind::Coast);
    if (!way && clip.area().source.size() == 1) {
        const QRectF window = clip.area().source.front();
        layer.SetSpatialFilterRect(window.left(), window.top(), window.right(), window.bottom());
    }
    for (const auto& feature : layer) {
        OGRGeometry* geometry = feature->GetGeometryRef();
        if (!geometry || (way && geometry->transform(way.get()) != OGRERR_NONE)) {
            continue;
        }
        const auto kind = ofLayer ? ofLayer : kindOfName(featureName(*feature));
        OGRMultiLineString& ofKind = lines[kind.value_or(ofFile)];
        visitLines(*geometry, [&](const OGRLineString& line) { clip.clip(line, ofKind); });
    }
}

/// Joins lines that meet end to end, unless they are so many that this would take long.
Geometry joined(const OGRMultiLineString& lines)
{
    constexpr int MostJoined = 3000;
    return Geometry(lines.getNumGeometries() > MostJoined
                        ? lines.clone()
                        : OGRGeometryFactory::forceToLineString(lines.clone()));
}

QPolygonF pointsOf(const OGRLineString& line)
{
    QPolygonF points;
    points.reserve(line.getNumPoints());
    for (const OGRPoint& point : line) {
        points << QPointF(point.getX(), point.getY());
    }
    return points;
}

Dataset openLayers(const QString& path)
{
    Dataset layers(GDALDataset::Open(path.toUtf8().constData(),
                                     GDAL_OF_VECTOR | GDAL_OF_READONLY | GDAL_OF_VERBOSE_ERROR));
    if (!layers) {
        const bool exists = path.startsWith(QLatin1String("/vsi")) || QFileInfo::exists(path);
        throw RunTimeError(
            exists ? ErrorNumber::TypeMismatch : ErrorNumber::FileNotFound,
            QStringLiteral("It cannot be read as a layer of lines or areas. %1").arg(gdalError()))
            .at({path});
    }
    return layers;
}

} // namespace

std::vector<BaseLine> readBaseLines(const QString& path, const BaseLineArea& area)
{
    const GdalScope gdal;
    const Dataset layers = openLayers(path);
    const LineClip clip(area);
    LinesOfKinds lines;
    for (OGRLayer* layer : layers->GetLayers()) {
        readLayer(*layer, QFileInfo(path).baseName(), clip, lines);
    }
    std::vector<BaseLine> found;
    for (const auto& [kind, ofKind] : lines) {
        visitLines(*joined(ofKind), [&, lineKind = kind](const OGRLineString& line) {
            found.push_back({lineKind, pointsOf(line)});
        });
    }
    return found;
}

QPolygonF simplifiedLine(const QPolygonF& line, double tolerance)
{
    OGRLineString full;
    for (const QPointF point : line) {
        full.addPoint(point.x(), point.y());
    }
    const Geometry simple(full.SimplifyPreserveTopology(tolerance));
    QPolygonF points;
    if (simple) {
        visitLines(*simple, [&](const OGRLineString& part) { points = pointsOf(part); });
    }
    return points;
}
