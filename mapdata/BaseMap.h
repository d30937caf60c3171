#pragma once

#include "mapdata/LocalityNames.h"
#include "platform/BoundedArray.h"

#include <QString>

/// The localities (survey points) of a map, numbered 1..NLocality in file order.
struct Localities
{
    qint16 NLocality = 0;
    /// Position of locality i in map units: (i, 0) is x, (i, 1) is y. Index 0 is left empty.
    BoundedArray<float, Bounds{0, 1000}, Bounds{0, 1}> LocXY;
};

/// The lines of a map (coast, borders, rivers), numbered 1..NLine.
struct MapLines
{
    int NLine = 0;
    /// A code of the line; carried, not used.
    BoundedArray<qint16, Bounds{0, 100}> LineKind;
    BoundedArray<int, Bounds{0, 100}> LinePoints;
    /// Colour number 0..15.
    BoundedArray<int, Bounds{0, 100}> MapLineColor;
    /// Number of the line's style, see `penStyle`; kept as the file gives it.
    BoundedArray<qint16, Bounds{0, 100}> LineStyle;
    /// Added to every point of the line, x and y, in map units.
    BoundedArray<float, Bounds{0, 100}, Bounds{0, 1}> LineOffset;
    /// Point j of line i, before the offset, in map units.
    BoundedArray<float, Bounds{0, 100}, Bounds{0, 500}, Bounds{0, 1}> LineXY;
};

/// The place names of a map, numbered 1..NKanji, and its scale bar in the slot behind the last name.
struct PlaceNames
{
    qint16 NKanji = 0;
    /// Where a text starts, in map units.
    BoundedArray<float, Bounds{0, 30}, Bounds{0, 1}> KanjiXY;
    BoundedArray<QString, Bounds{0, 30}> KanjiText;
    QString ScaleLabel;
    double ScaleDivisions = 0;
    /// Length of the scale bar in map units.
    double ScaleLength = 0;
    /// Where the caption block starts, in map units: the position of the first place name.
    double HanreiX = 0;
    qint16 HanreiY = 0;
};

/// The polygon designs of symbols, numbered 1..Nsquare.
struct PolygonTable
{
    qint16 Nsquare = 0;
    BoundedArray<qint16, Bounds{0, 1000}> SquareVertices;
    /// A value of each polygon; carried, not used.
    BoundedArray<double, Bounds{0, 1000}> SquareValue;
    /// The reference point (centre) in polygon units as the file gives it.
    BoundedArray<float, Bounds{0, 200}, Bounds{0, 1}> SquareCentre;
    /// Vertex j of polygon k in polygon units, relative to the reference point.
    BoundedArray<float, Bounds{0, 200}, Bounds{0, 20}, Bounds{0, 1}> SquareXY;
};

/// A survey area's base map, the names of its localities, and the installation's polygon designs.
struct BaseMap : Localities, LocalityNames, MapLines, PlaceNames, PolygonTable
{
};
