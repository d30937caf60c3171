#include "exchange/LayerTable.h"

#include "exchange/Degrees.h"
#include "exchange/GdalLayer.h"
#include "exchange/KnownHeadings.h"
#include "exchange/LayerFiles.h"

#include <QHash>
#include <QPointF>

#include <algorithm>
#include <cmath>
#include <ogrsf_frmts.h>
#include <optional>

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

/// The table of the points in a file while they are read.
class PointTable
{
public:
    void readFile(const QString& path);
    SourceTable take(const QString& path);

private:
    void readLayer(OGRLayer& layer, const QString& driver);
    void addPoint(const OGRFeature& feature, QPointF place, const std::vector<int>& columns);
    /// The column of each field of a layer; -1 for those that are left.
    std::vector<int> columnsOf(const OGRFeatureDefn& fields, const QString& driver);
    bool areDegrees() const;
    bool isNeedless(qsizetype column) const;
    void cutNeedlessColumns();

    SourceTable m_table;
    QHash<QString, int> m_columnOfName;
    std::vector<QPointF> m_places;
    bool m_isKnown = true;
    bool m_cutEmpty = false;
};

std::vector<int> PointTable::columnsOf(const OGRFeatureDefn& fields, const QString& driver)
{
    std::vector<int> columns;
    for (int field = 0; field < fields.GetFieldCount(); ++field) {
        const QString name = QString::fromUtf8(fields.GetFieldDefn(field)->GetNameRef());
        if (isOfFormat(driver, name)) {
            columns.push_back(-1);
            continue;
        }
        if (!m_columnOfName.contains(name)) {
            m_columnOfName.insert(name, static_cast<int>(m_table.headings.size()));
            m_table.headings << name;
        }
        columns.push_back(m_columnOfName.value(name));
    }
    return columns;
}

void PointTable::addPoint(const OGRFeature& feature, QPointF place, const std::vector<int>& columns)
{
    TableRow row{static_cast<int>(m_table.rows.size()) + 1, QStringList(m_table.headings.size())};
    for (std::size_t field = 0; field < columns.size(); ++field) {
        if (columns[field] >= 0) {
            row.cells[columns[field]] = textOf(feature, static_cast<int>(field));
        }
    }
    m_table.rows.push_back(std::move(row));
    m_places.push_back(place);
}

void PointTable::readLayer(OGRLayer& layer, const QString& driver)
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
            m_isKnown = m_isKnown && system.isKnown;
            addPoint(*feature, {x, y}, columns);
        }
    }
}

void PointTable::readFile(const QString& path)
{
    const GdalScope scope;
    const GdalDataset dataset = openDataset(path);
    const QString driver = QString::fromUtf8(dataset->GetDriverName());
    m_cutEmpty = m_cutEmpty || driver.endsWith(QLatin1String("KML")) || driver == QLatin1String("GPX");
    for (OGRLayer* layer : dataset->GetLayers()) {
        if (!isPartOfLine(driver, *layer)) {
            readLayer(*layer, driver);
        }
    }
}

/// Coordinates without a reference system are degrees where all of them can be. With one they are, but
/// GeoJSON cannot say that its coordinates are no degrees: then most lie beyond all degrees.
bool PointTable::areDegrees() const
{
    const auto lieWithin = [this](double east, double north) {
        return std::ranges::count_if(m_places, [=](QPointF place) {
            return std::abs(place.x()) <= east && std::abs(place.y()) <= north;
        });
    };
    const auto count = std::ssize(m_places);
    return m_isKnown ? 2 * lieWithin(360, 360) >= count : lieWithin(180, 90) == count;
}

/// Every feature of some formats has the attributes of the format, which mostly nobody fills; and numbers
/// under a heading such as "x" repeat where the point lies.
bool PointTable::isNeedless(qsizetype column) const
{
    const auto role = knownRole(m_table.headings[column]);
    const bool mayRepeat = role && isPlace(*role);
    return (m_cutEmpty || mayRepeat) && std::ranges::all_of(m_table.rows, [=](const TableRow& row) {
               const QString& cell = row.cells[column];
               return cell.isEmpty() || (mayRepeat && degrees(cell));
           });
}

void PointTable::cutNeedlessColumns()
{
    for (qsizetype column = m_table.headings.size() - 1; column >= 0; --column) {
        if (isNeedless(column)) {
            m_table.headings.removeAt(column);
            for (TableRow& row : m_table.rows) {
                row.cells.removeAt(column);
            }
        }
    }
}

SourceTable PointTable::take(const QString& path)
{
    m_table.path = path;
    for (TableRow& row : m_table.rows) {
        row.cells.resize(m_table.headings.size()); // later layers brought more attributes
    }
    cutNeedlessColumns();
    m_table.headings << (areDegrees() ? QStringList{QStringLiteral("longitude"), QStringLiteral("latitude")}
                                      : QStringList{QStringLiteral("x"), QStringLiteral("y")});
    for (std::size_t i = 0; i < m_places.size(); ++i) {
        for (const double coordinate : {m_places[i].x(), m_places[i].y()}) {
            m_table.rows[i].cells << coordinateText(coordinate);
        }
    }
    return std::move(m_table);
}

} // namespace

SourceTable readLayerTable(const QString& path)
{
    PointTable points;
    for (const QString& file : layerFiles(path)) {
        try {
            points.readFile(file);
        } catch (const RunTimeError& error) {
            throw error.at({file});
        }
    }
    SourceTable table = points.take(path);
    if (table.rows.empty()) {
        throw RunTimeError(ErrorNumber::TypeMismatch,
                           QStringLiteral("It has no points, and so no localities."))
            .at({path});
    }
    return table;
}
