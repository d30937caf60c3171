#include "dialectometry/DistanceMaps.h"

#include "dialectometry/BeamMap.h"
#include "dialectometry/Dendrogram.h"
#include "dialectometry/ReferenceMap.h"
#include "dialectometry/ScalingMap.h"

#include <array>

namespace {

/// How wide a tree beside its map is, as a part of the map's width.
constexpr float TreeShare = 0.8F;

QStringList namesOf(const BaseMap& map)
{
    QStringList names;
    for (int i = 1; i <= map.NLocality; ++i) {
        names << localityTitle(map, i);
    }
    return names;
}

/// One map of distances: what it is drawn from, and how.
class DistanceMapDrawing
{
public:
    DistanceMapDrawing(const AreaMapParts& parts, const DistanceMatrix& distances,
                       const DistanceFindings& findings, const DistanceMapSettings& settings,
                       const QString& what, MapSurfaces surfaces)
        : m_parts(parts), m_distances(distances), m_findings(findings), m_settings(settings), m_what(what),
          m_surfaces(surfaces)
    {}

    void reference() const
    {
        std::vector<double> row(static_cast<std::size_t>(m_distances.size()));
        for (int i = 0; i < m_distances.size(); ++i) {
            row[static_cast<std::size_t>(i)] = m_distances(m_settings.reference, i);
        }
        const QString place = localityTitle(m_parts.base.map, m_settings.reference + 1);
        drawReferenceMap(m_parts, twoLines(QStringLiteral("Distance to locality %1").arg(place)), row,
                         m_settings.reference, {m_settings.look, m_settings.rule}, m_surfaces);
    }

    void beams() const
    {
        drawBeamMap(m_parts, twoLines(QStringLiteral("Neighbours")), m_distances, m_surfaces);
    }

    void clusters() const
    {
        drawClusterMap(m_parts, twoLines(groupsTitle()), m_findings.groups, m_findings.shares,
                       {m_settings.look, m_settings.symbols}, m_surfaces);
        if (m_settings.withDendrogram) {
            tree(page(m_surfaces.area.Width), nameOf(m_settings.method));
        }
    }

    void dendrogram() const { tree(page(), titled(groupsTitle())); }

    void scaling() const
    {
        drawScalingMap(m_parts, twoLines(QStringLiteral("Multidimensional scaling")), m_findings.scaling,
                       m_surfaces);
    }

    void scalingPlot() const
    {
        drawScalingPlot(m_findings.scaling, namesOf(m_parts.base.map), m_findings.groups, m_parts.text.font,
                        titled(QStringLiteral("Multidimensional scaling")), page(), target());
    }

    void lengthPlot() const
    {
        drawDistancePlot(m_findings.lengths, m_distances, m_findings.line, m_parts.text.font, m_what, page(),
                         target());
    }

private:
    DrawSurface& target() const { return m_surfaces.DrawTarget; }
    /// Inside a rim.
    QRectF page(float left = 0) const
    {
        constexpr float Rim = 200;
        const float width = left > 0 ? m_surfaces.area.Width * TreeShare : m_surfaces.area.Width;
        return QRectF(left, 0, width, m_surfaces.area.Height).adjusted(Rim, Rim, -Rim, -Rim);
    }
    QString titled(const QString& map) const { return map + QStringLiteral(": ") + m_what; }
    /// For a legend, which is narrow.
    QString twoLines(const QString& map) const { return map + QLatin1Char('\n') + m_what; }

    QString groupsTitle() const
    {
        return QStringLiteral("%1 groups by %2").arg(m_settings.groups).arg(nameOf(m_settings.method));
    }

    void tree(const QRectF& area, const QString& title) const
    {
        const QStringList names = namesOf(m_parts.base.map);
        drawDendrogram({m_findings.tree, names, m_findings.groups, m_parts.text.font}, title, area,
                       m_settings.look, target());
    }

    const AreaMapParts& m_parts;
    const DistanceMatrix& m_distances;
    const DistanceFindings& m_findings;
    const DistanceMapSettings& m_settings;
    const QString& m_what;
    MapSurfaces m_surfaces;
};

} // namespace

void drawDistanceMap(const AreaMapParts& parts, const DistanceMatrix& distances,
                     const DistanceFindings& findings, const DistanceMapSettings& settings,
                     const QString& what, MapSurfaces surfaces)
{
    const DistanceMapDrawing drawing(parts, distances, findings, settings, what, surfaces);
    switch (settings.kind) {
    case DistanceMapKind::Reference:
        return drawing.reference();
    case DistanceMapKind::Beams:
        return drawing.beams();
    case DistanceMapKind::Clusters:
        return drawing.clusters();
    case DistanceMapKind::Dendrogram:
        return drawing.dendrogram();
    case DistanceMapKind::Scaling:
        return drawing.scaling();
    case DistanceMapKind::ScalingPlot:
        return drawing.scalingPlot();
    case DistanceMapKind::LengthPlot:
        return drawing.lengthPlot();
    }
}

QSizeF distanceMapSize(const DistanceMapSettings& settings, const FormArea& area)
{
    const bool isWider = settings.kind == DistanceMapKind::Clusters && settings.withDendrogram;
    return {isWider ? area.Width * (1 + TreeShare) : area.Width, area.Height};
}

namespace {

QString counted(std::size_t items)
{
    return items == 1 ? QStringLiteral("1 item") : QStringLiteral("%1 items").arg(items);
}

QString nameOf(const DistanceSettings& settings)
{
    switch (settings.measure) {
    case DistanceMeasure::RelativeIdentity:
        return QStringLiteral("relative identity values");
    case DistanceMeasure::WeightedIdentity:
        return QStringLiteral("weighted identity values");
    case DistanceMeasure::Levenshtein:
        return settings.vowelsApart ? QStringLiteral("Levenshtein distances, vowels apart")
                                    : QStringLiteral("Levenshtein distances");
    }
    return {};
}

} // namespace

QString nameOf(const DistanceSettings& settings, std::size_t items)
{
    return QStringLiteral("%1 over %2").arg(nameOf(settings), counted(items));
}

QString isoglossesOf(std::size_t items)
{
    return QStringLiteral("Isoglosses of ") + counted(items);
}

QString nameOf(LinkageMethod method)
{
    constexpr std::array Names = {"single linkage", "complete linkage", "average linkage",
                                  "weighted average linkage", "Ward's method"};
    return QLatin1String(Names.at(static_cast<std::size_t>(method)));
}
