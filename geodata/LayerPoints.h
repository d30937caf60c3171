#pragma once

#include "geodata/TableRow.h"

#include <QPointF>

#include <vector>

/// The points of layers with their attributes.
struct LayerPoints
{
    QStringList attributes;
    /// A row a point, numbered from 1, with a cell for each attribute.
    std::vector<TableRow> rows;
    /// Where the points lie, as many as rows: in degrees where `isKnown`, else as the layers have it.
    std::vector<QPointF> places;
    /// Whether the reference systems of all layers are known.
    bool isKnown = true;
    /// Whether a format gave every feature attributes of its own, which mostly nobody fills.
    bool hasFormatAttributes = false;
};
