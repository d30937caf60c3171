#pragma once

#include <QPointF>
#include <QString>

class MapFrame;

/// A scale bar as a map has it: its length in map units, its divisions, and what stands at its right end.
struct ScaleBar
{
    double length = 0;
    int divisions = 0;
    QString label;
};

/// The bar of a round number of kilometres, or of metres on a small map, nearest under a fifth of the map's
/// width; true at the map's centre. A plane whose unit nobody knows has none: its length is 0.
ScaleBar makeScaleBar(const MapFrame& frame);
