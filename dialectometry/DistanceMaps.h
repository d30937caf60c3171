#pragma once

#include "dialectometry/ClusterMap.h"
#include "dialectometry/Distances.h"
#include "dialectometry/Kilometres.h"
#include "dialectometry/Linkage.h"
#include "dialectometry/NoisyClusters.h"
#include "dialectometry/ScatterPlot.h"
#include "dialectometry/ValueClasses.h"

/// The maps and plots that distances are drawn as.
enum class DistanceMapKind : std::uint8_t {
    /// How alike all localities are to one.
    Reference,
    Beams,
    /// The groups of a tree of clusters, and that tree.
    Clusters,
    Dendrogram,
    /// Localities by the dimensions of the distances: as colours of the map, and as places on a plot.
    Scaling,
    ScalingPlot,
    /// Distances over the lengths of the ways between localities.
    LengthPlot,
};

/// Which map of distances is drawn, and how.
struct DistanceMapSettings
{
    DistanceMapKind kind = DistanceMapKind::Clusters;
    /// The locality (from 0) of a reference map.
    int reference = 0;
    ClassRule rule = ClassRule::AroundMean;
    LinkageMethod method = LinkageMethod::Ward;
    /// How many groups the tree is cut into.
    int groups = 4;
    /// Borders that stay with noise are drawn where there is any.
    NoiseSettings noise = {0, 100, 1};
    AreaLook look = AreaLook::Colored;
    /// Whether each locality has the symbol of its group.
    bool symbols = false;
    /// Whether the tree stands beside the groups.
    bool withDendrogram = false;

    bool operator==(const DistanceMapSettings&) const = default;
};

/// What is found out of distances for a map of them; only what that map shows is filled.
struct DistanceFindings
{
    Linkage tree;
    /// The group of each locality (from 0); 0 for one that was left out.
    std::vector<int> groups;
    std::vector<BorderShare> shares;
    Scaling scaling;
    Lengths lengths;
    Regression line;
};

/// Finds out what the map shows; nothing where `goOn` returned false. Raises invalid procedure call for fewer
/// than two localities with distances, more groups than localities in the tree, a reference that is no
/// locality, and distances through which no line goes.
std::optional<DistanceFindings> findingsFor(const DistanceMapSettings& settings,
                                            const DistanceMatrix& distances, const BaseMap& map,
                                            const LocalityCells& cells, const DistanceProgress& goOn);

/// Draws the map. `what` says which distances it shows: "Levenshtein distances of 166 items".
void drawDistanceMap(const AreaMapParts& parts, const DistanceMatrix& distances,
                     const DistanceFindings& findings, const DistanceMapSettings& settings,
                     const QString& what, MapSurfaces surfaces);

/// How large the map is on a form of `area`, in twips: wider by the tree that stands beside it.
QSizeF distanceMapSize(const DistanceMapSettings& settings, const FormArea& area);

/// The names of the localities that the map leaves out, for want of a distance to some; none of a map that
/// leaves out none.
QStringList leftOutOfMap(const DistanceMapSettings& settings, const DistanceFindings& findings,
                         const BaseMap& map);

/// "Levenshtein distances over 166 items".
QString nameOf(const DistanceSettings& settings, std::size_t items);
/// "Isoglosses of 166 items".
QString isoglossesOf(std::size_t items);
/// "Ward's method".
QString nameOf(LinkageMethod method);
