#pragma once

#include "mapdata/BaseMap.h"
#include "platform/DrawSurface.h"
#include "platform/FormArea.h"

#include <cmath>

/// How map units become drawing units (twips), and the extent of the base map.
struct MapGeometry
{
    /// Drawing units per map unit.
    float Scale = 0;
    /// Extent of the lines in map units.
    double MinX = 1000000;
    double MinY = 1000000;
    double MaxX = -999999;
    float MaxY = StartMaxY;
    /// Drawing units per map unit that would fill the form's width and height.
    double RatioX = 0;
    double RatioY = 0;
    /// Positions of the localities in drawing units; while a line or a polygon is drawn, its points.
    BoundedArray<float, Bounds{0, 1000}, Bounds{0, 1}> ScreenXY;

    /// The drawing position of a coordinate of the map: a margin of 50 is kept at the left and at the top.
    /// Raises overflow for a coordinate too large to be drawn.
    float toScreen(float coordinate) const
    {
        const float position = Scale * coordinate + Margin;
        return std::isfinite(position) ? position : raiseTooFar(coordinate);
    }

    static constexpr float Margin = 50;
    /// Below every coordinate: where the search for `MaxY` starts.
    static constexpr float StartMaxY = -999999;

private:
    [[noreturn]] static float raiseTooFar(float coordinate);
};

/// The surface that is drawn on, and the map form's own, which takes the traces of unknown symbol numbers and
/// phonetic codes.
struct TracedTarget
{
    DrawSurface& DrawTarget;
    DrawSurface& frmMap;

    /// Makes lines thin again after symbols, whose last one leaves its own width.
    void thinLines() const { DrawTarget.DrawWidth = frmMap.DrawWidth = 1; }
};

/// What a map is drawn on: the surfaces of one drawing command, and the area of the map form. A map is as
/// large as it on every target.
struct MapSurfaces : TracedTarget
{
    FormArea area;
};

/// Measures the extent of the lines and returns the scale at which its height fills 98 % of `form`, the map
/// form or whichever form asks. Raises division by zero for a map without extent, overflow.
float FindMinMax(const MapLines& map, const FormArea& form, MapGeometry& geometry,
                 float startMaxY = MapGeometry::StartMaxY);

/// Fills the start values of the extent from the lines, before any scale is known.
void findStartExtent(const MapLines& map, MapGeometry& geometry);

// Layout cursors for columns of text.

/// The width of a column and the height of a row of text, in twips.
struct TextCell
{
    float dx;
    qint16 dy;
};

/// The cell for the map font's size; half as wide where `halfWidth` is set. Raises overflow.
TextCell X0Y0(qint16 mapFontSize, bool halfWidth);
/// Steps x by dx and widens `xmax` to where the target's last text ended.
void XYPosition(const DrawSurface& target, float& x, float& xmax, float dx);
/// Steps to the next cell of a grid: the next column, past `xlim` the next row, past `ylim` the top again.
void XmaxYmax(float& x, float& y, float x0, float y0, float xlim, float ylim, float dx, float dy);
