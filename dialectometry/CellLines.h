#pragma once

#include "dialectometry/AreaFill.h"

/// Borders of cells that were put together to a line, and the class (from 0) that they have in common.
struct CellLine
{
    int lineClass = 0;
    /// In twips.
    std::vector<QPointF> points;
};

/// Draws nothing of a border.
constexpr int NoLine = -1;

/// The lines of borders of one class. `classes` is the class of each border of the cells, or `NoLine`. Lines
/// run on where two borders of one class meet and no other is drawn.
std::vector<CellLine> cellLines(const LocalityCells& cells, std::span<const int> classes,
                                const MapGeometry& geometry);

/// The borders between cells of two kinds: class 0 where the numbers in `kinds`, one a cell, differ.
std::vector<int> bordersBetween(const LocalityCells& cells, std::span<const int> kinds);

/// Draws the lines of class i with pen i, the last class on top.
void drawCellLines(const std::vector<CellLine>& lines, std::span<const LinePen> pens, DrawSurface& target);
