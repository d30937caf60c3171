#pragma once

#include "dialectometry/Distances.h"

#include <optional>

/// Cronbach's alpha (1951) of the items: how far they agree on which localities are near each other, 0 for
/// chance, and good from 0.7 on (Heeringa 2004, 6.4.1). It follows from the mean correlation of the distances
/// by every two items. Where distances are lacking, each pair of localities counts for those pairs of items
/// that have it; an item whose distances are all the same is no item. Linear in the items. Nothing with fewer
/// than two items, with items that contradict each other throughout, and where `goOn` returned false.
std::optional<double> cronbachAlpha(const SurveyComparison& survey, const DistanceProgress& goOn);

/// Local incoherence: how much farther away than the eight nearest localities the eight most alike ones lie,
/// from 0 (they are the same) on. Nerbonne & Kleiweg (2007), Toward a dialectological yardstick. Of
/// localities that are equally alike the nearest counts first; a locality whose eight nearest stand on it is
/// left out. Nothing where all are.
std::optional<double> localIncoherence(const DistanceMatrix& distances, const DistanceMatrix& lengths);

/// Pearson's correlation of distances with lengths on the map; nothing where either does not vary.
std::optional<double> lengthCorrelation(const DistanceMatrix& distances, const DistanceMatrix& lengths);
