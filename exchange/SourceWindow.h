#pragma once

#include <QRectF>

#include <vector>

class MapFrame;

/// What a map shows of its source, with a margin: a rectangle of degrees (or of the plane), or two where the
/// map lies across the date line; the whole Earth where it shows a pole.
std::vector<QRectF> sourceWindow(const MapFrame& frame);
