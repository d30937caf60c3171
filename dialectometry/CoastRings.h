#pragma once

#include "mapdata/BaseMap.h"
#include "platform/Drawing.h"

#include <span>
#include <vector>

/// The lines of a map, in map units; pieces of one kind and look that meet end to end are one line.
struct JoinedLines
{
    /// Those that go around an area; without rectangles, which are frames.
    std::vector<Ring> closed;
    /// The others.
    std::vector<Ring> open;
};

JoinedLines joinedLines(const MapLines& lines);

/// The coasts among `rings`: for each of `places` the smallest one that holds it, except a line around
/// others that hold nine in ten of its places: a shore line, or the outer one of two borders.
std::vector<Ring> coastsAround(std::span<const QPointF> places, const std::vector<Ring>& rings);

/// Whether `ring` holds `point`.
bool holds(const Ring& ring, QPointF point);
/// The area of `ring`, negative where it runs counter-clockwise on the screen.
double signedArea(const Ring& ring);
