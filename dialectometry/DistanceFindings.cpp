#include "dialectometry/CompleteDistances.h"
#include "dialectometry/DistanceMaps.h"
#include "dialectometry/Moments.h"

#include <algorithm>

namespace {

bool cutsTree(DistanceMapKind kind)
{
    return kind == DistanceMapKind::Clusters || kind == DistanceMapKind::Dendrogram ||
           kind == DistanceMapKind::ScalingPlot;
}

bool scales(DistanceMapKind kind)
{
    return kind == DistanceMapKind::Scaling || kind == DistanceMapKind::ScalingPlot;
}

void require(bool condition, const QString& otherwise)
{
    if (!condition) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, otherwise);
    }
}

void check(const DistanceMapSettings& settings, const DistanceMatrix& distances)
{
    const auto complete = static_cast<int>(completeLocalities(distances).size());
    const bool isOfTree = cutsTree(settings.kind) || scales(settings.kind);
    require(
        !isOfTree || complete >= 2,
        QStringLiteral("There are no two localities with a distance, so they cannot be parted into groups "
                       "or scaled."));
    require(!cutsTree(settings.kind) || (settings.groups >= 1 && settings.groups <= complete),
            QStringLiteral("%1 groups cannot be made of %2 localities.").arg(settings.groups).arg(complete));
    require(settings.kind != DistanceMapKind::Reference ||
                (settings.reference >= 0 && settings.reference < distances.size()),
            QStringLiteral("There is no locality %1 on the map.").arg(settings.reference + 1));
}

/// How often the noisy trees part each two neighbours.
std::optional<std::vector<BorderShare>> sharesOfBorders(const DistanceMapSettings& settings,
                                                        const DistanceMatrix& distances,
                                                        const LocalityCells& cells,
                                                        const DistanceProgress& goOn)
{
    const auto parted = noisyBorders(distances, settings.method, settings.groups, settings.noise, goOn);
    if (!parted) {
        return std::nullopt;
    }
    std::vector<BorderShare> shares;
    for (const LocalityPair& pair : neighbourPairs(cells)) {
        if (parted->has(pair.first, pair.second)) {
            shares.push_back({pair, (*parted)(pair.first, pair.second)});
        }
    }
    return shares;
}

/// The line with the least squares of differences in distance, over the pairs that have both.
Regression regressionOf(const DistanceMatrix& lengths, const DistanceMatrix& distances)
{
    std::vector<double> x;
    std::vector<double> y;
    for (std::size_t i = 0; i < distances.pairs().size(); ++i) {
        if (!std::isnan(lengths.pairs()[i]) && !std::isnan(distances.pairs()[i])) {
            x.push_back(lengths.pairs()[i]);
            y.push_back(distances.pairs()[i]);
        }
    }
    require(x.size() > 1,
            QStringLiteral("Fewer than two pairs of localities have a distance, so there is no line "
                           "through them."));
    const Moments across = momentsOf(x);
    const Moments up = momentsOf(y);
    const double correlation = correlationOf(x, y);
    require(!std::isnan(correlation),
            QStringLiteral("The distances, or the ways between the localities, are all the same."));
    const double slope = correlation * up.deviation() / across.deviation();
    return {slope, up.mean - slope * across.mean, correlation};
}

} // namespace

std::optional<DistanceFindings> findingsFor(const DistanceMapSettings& settings,
                                            const DistanceMatrix& distances, const BaseMap& map,
                                            const LocalityCells& cells, const DistanceProgress& goOn)
{
    check(settings, distances);
    DistanceFindings found;
    if (cutsTree(settings.kind)) {
        found.tree = linkage(distances, settings.method);
        found.groups = groupNumbers(found.tree, settings.groups, distances.size());
    }
    if (settings.kind == DistanceMapKind::Clusters && settings.noise.noise > 0) {
        auto shares = sharesOfBorders(settings, distances, cells, goOn);
        if (!shares) {
            return std::nullopt;
        }
        found.shares = std::move(*shares);
    }
    if (scales(settings.kind)) {
        found.scaling = classicalScaling(distances);
    }
    if (settings.kind == DistanceMapKind::LengthPlot) {
        found.lengths = localityLengths(map, map, map);
        found.line = regressionOf(found.lengths.lengths, distances);
    }
    return found;
}

QStringList leftOutOfMap(const DistanceMapSettings& settings, const DistanceFindings& findings,
                         const BaseMap& map)
{
    QStringList names;
    for (std::size_t i = 0; cutsTree(settings.kind) && i < findings.groups.size(); ++i) {
        if (findings.groups[i] == 0) {
            names << localityTitle(map, static_cast<int>(i) + 1);
        }
    }
    for (std::size_t i = 0; settings.kind == DistanceMapKind::Scaling && i < findings.scaling.places.size();
         ++i) {
        if (findings.scaling.places[i].empty()) {
            names << localityTitle(map, static_cast<int>(i) + 1);
        }
    }
    return names;
}
