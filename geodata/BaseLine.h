#pragma once

#include <QPolygonF>
#include <QRectF>

#include <functional>
#include <optional>
#include <vector>

/// What a line of a base map stands for; also the code that it carries in the map's file.
enum class BaseLineKind { NeatLine, Coast, Border, River, Lake };

/// A line of a base map, in map units.
struct BaseLine
{
    BaseLineKind kind = BaseLineKind::Coast;
    QPolygonF points;
};

/// Which part of the lines of layers a map shows, and where.
struct BaseLineArea
{
    /// Whether coordinates of layers are turned into degrees where they have a way to them.
    bool inDegrees = true;
    /// The parts of the source, at least one, that the map shows.
    std::vector<QRectF> source;
    /// From the source to the map; nothing for a point that the projection cannot show.
    std::function<std::optional<QPointF>(QPointF)> toMap;
    /// The map in its units, and the room in it that lines leave to the legend; empty for none.
    QRectF map;
    QRectF legend;
};
