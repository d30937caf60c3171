#include "geodata/gdal/PointReader.h"

#include "geodata/gdal/GdalLayer.h"
#include "platform/RunTimeError.h"

#include <QHash>

#include <ogrsf_frmts.h>

namespace {

/// What the coordinates of a layer are.
struct LayerSystem
{
    /// Whether they are degrees, or become degrees by `way`.
    bool isKnown = false;
    std::unique_ptr<OGRCoordinateTransformation> way;
};

LayerSystem systemOf(OGRLayer& layer)
{
    const OGRSpatialReference* system = layer.GetSpatialRef();
    if (!system || (!system->IsGeographic() && !system->IsProjected()) ||
        QByteArrayView(system->GetName()).startsWith("Undefined")) {
        return {};
    }
    return {true, wayToDegrees(*system)};
}

/// The point of a feature, or the first of several; nothing where it is a line or an area.
const OGRPoint* pointOf(const OGRGeometry* geometry)
{
    if (!geometry || geometry->IsEmpty()) {
        return nullptr;
    }
    if (const auto* parts = dynamic_cast<const OGRGeometryCollection*>(geometry)) {
        for (const OGRGeometry* part : *parts) {
            if (const OGRPoint* point = pointOf(part)) {
                return point;
            }
        }
    }
    return dynamic_cast<const OGRPoint*>(geometry);
}

/// Whether an attribute is what the format has for every feature, to draw it or tell how it was measured.
bool isOfFormat(const QString& driver, const QString& attribute)
{
    static const QStringList kml =
        QStringLiteral(
            "timestamp begin end altitudemode tessellate extrude visibility draworder icon snippet")
            .split(QLatin1Char(' '));
    static const QStringList gpx =
        QStringLiteral("ele time magvar geoidheight src url urlname link1_href link1_text link1_type "
                       "link2_href link2_text link2_type sym fix sat hdop vdop pdop ageofdgpsdata dgpsid")
            .split(QLatin1Char(' '));
    return driver.endsWith(QLatin1String("KML")) ? kml.contains(attribute.toLower())
                                                 : driver == QLatin1String("GPX") && gpx.contains(attribute);
}

/// Tracks and routes consist of points that are no localities.
bool isPartOfLine(const QString& driver, const OGRLayer& layer)
{
    return driver == QLatin1String("GPX") &&
           QByteArrayView(const_cast<OGRLayer&>(layer).GetName()).endsWith("_points");
}

QString textOf(const OGRFeature& feature, int field)
{
    QString text;
    if (feature.GetFieldDefnRef(field)->GetType() == OFTStringList) {
        QStringList texts;
        for (char** each = feature.GetFieldAsStringList(field); each && *each; ++each) {
            texts << QString::fromUtf8(*each);
        }
        text = texts.join(QStringLiteral("; "));
    } else {
        text = QString::fromUtf8(feature.GetFieldAsString(field));
    }
    return text.trimmed();
}

/// The points of files while they are read.
class PointReader
{
public:
    void readFile(const QString& path);
    LayerPoints take();

private:
    void readLayer(OGRLayer& layer, const QString& driver);
    void addPoint(const OGRFeature& feature, QPointF place, const std::vector<int>& columns);
    /// The column of each field of a layer; -1 for those that are left.
    std::vector<int> columnsOf(const OGRFeatureDefn& fields, const QString& driver);

    LayerPoints m_points;
    QHash<QString, int> m_columnOfName;
};

std::vector<int> PointReader::columnsOf(const OGRFeatureDefn& fields, const QString& driver)
{
    std::vector<int> columns;
    for (int field = 0; field < fields.GetFieldCount(); ++field) {
        const QString name = QString::fromUtf8(fields.GetFieldDefn(field)->GetNameRef());
        if (isOfFormat(driver, name)) {
            columns.push_back(-1);
            continue;
        }
        if (!m_columnOfName.contains(name)) {
            m_columnOfName.insert(name, static_cast<int>(m_points.attributes.size()));
            m_points.attributes << name;
        }
        columns.push_back(m_columnOfName.value(name));
    }
    return columns;
}

void PointReader::addPoint(const OGRFeature& feature, QPointF place, const std::vector<int>& columns)
{
    TableRow row{static_cast<int>(m_points.rows.size()) + 1, QStringList(m_points.attributes.size())};
    for (std::size_t field = 0; field < columns.size(); ++field) {
        if (columns[field] >= 0) {
            row.cells[columns[field]] = textOf(feature, static_cast<int>(field));
        }
    }
    m_points.rows.push_back(std::move(row));
    m_points.places.push_back(place);
}

void PointReader::readLayer(OGRLayer& layer, const QString& driver)
{
    const LayerSystem system = systemOf(layer);
    const std::vector<int> columns = columnsOf(*layer.GetLayerDefn(), driver);
    for (const OGRFeatureUniquePtr& feature : layer) {
        if (const OGRPoint* point = pointOf(feature->GetGeometryRef())) {
            double x = point->getX();
            double y = point->getY();
            if (system.way && system.way->Transform(1, &x, &y) == FALSE) {
                throw RunTimeError(ErrorNumber::TypeMismatch,
                                   QStringLiteral("The point of feature %1 in \"%2\" cannot be turned into "
                                                  "degrees. Is its reference system the right one? %3")
                                       .arg(feature->GetFID())
                                       .arg(QString::fromUtf8(layer.GetName()), gdalError()));
            }
            m_points.isKnown = m_points.isKnown && system.isKnown;
            addPoint(*feature, {x, y}, columns);
        }
    }
}

void PointReader::readFile(const QString& path)
{
    const GdalScope scope;
    const GdalDataset dataset = openDataset(path);
    const QString driver = QString::fromUtf8(dataset->GetDriverName());
    m_points.hasFormatAttributes = m_points.hasFormatAttributes || driver.endsWith(QLatin1String("KML")) ||
                                   driver == QLatin1String("GPX");
    for (OGRLayer* layer : dataset->GetLayers()) {
        if (!isPartOfLine(driver, *layer)) {
            readLayer(*layer, driver);
        }
    }
}

LayerPoints PointReader::take()
{
    for (TableRow& row : m_points.rows) {
        row.cells.resize(m_points.attributes.size()); // later layers brought more attributes
    }
    return std::move(m_points);
}

} // namespace

LayerPoints readLayerPoints(const QStringList& files)
{
    PointReader points;
    for (const QString& file : files) {
        try {
            points.readFile(file);
        } catch (const RunTimeError& error) {
            throw error.at({file});
        }
    }
    return points.take();
}

bool hasLines(const QString& file)
{
    const GdalScope scope;
    const GdalDataset dataset = openDataset(file);
    for (OGRLayer* layer : dataset->GetLayers()) {
        for (const OGRFeatureUniquePtr& feature : *layer) {
            const OGRGeometry* geometry = feature->GetGeometryRef();
            if (geometry && !geometry->IsEmpty() && geometry->getDimension() > 0) {
                return true;
            }
        }
    }
    return false;
}
