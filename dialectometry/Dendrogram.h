#pragma once

#include "dialectometry/AreaFill.h"
#include "dialectometry/Linkage.h"

#include <QRectF>
#include <QStringList>

/// What a dendrogram is drawn from.
struct DendrogramParts
{
    const Linkage& tree;
    /// Of all localities, from 0.
    const QStringList& names;
    /// The group of each locality as `groupNumbers` gives them; empty for a tree without groups.
    const std::vector<int>& groups;
    const MapFont& font;
};

/// Draws the tree of clusters into `area`, in twips: the localities on the left from top to bottom, joinings
/// to the right by their height, the groups in their colours, and the axis of heights below. Names are as
/// large as their rows let them be; where these are too low to be read, each group has a bracket with its
/// number of localities.
void drawDendrogram(const DendrogramParts& parts, const QString& title, const QRectF& area, AreaLook look,
                    DrawSurface& target);
