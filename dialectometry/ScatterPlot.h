#pragma once

#include "dialectometry/AreaFill.h"
#include "dialectometry/DistanceMatrix.h"
#include "dialectometry/Kilometres.h"
#include "dialectometry/Scaling.h"

#include <QRectF>
#include <QStringList>

/// Draws the localities at their places on the first two dimensions into `area`, in twips, both dimensions at
/// one scale, in the colours of their `groups` (none where these are empty). Names stand where there is room
/// for them. The title line ends with stress and share of variance.
void drawScalingPlot(const Scaling& scaling, const QStringList& names, std::span<const int> groups,
                     const MapFont& font, const QString& title, const QRectF& area, DrawSurface& target);

/// A straight line through points, and Pearson's correlation of their coordinates.
struct Regression
{
    double slope = 0;
    double intercept = 0;
    double correlation = 0;
};

/// Draws the distance of every two localities over the length of the way between them into `area`, with the
/// regression line and its correlation; many pairs as boxes, the darker the more of them lie there. Pairs
/// without one of both are left out.
void drawDistancePlot(const Lengths& ways, const DistanceMatrix& distances, const Regression& line,
                      const MapFont& font, const QString& title, const QRectF& area, DrawSurface& target);
