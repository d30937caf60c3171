#pragma once

#include "atlas/SpotGrid.h"
#include "platform/DrawingPainter.h"
#include "render/LinguisticMap.h"

#include <QRectF>

#include <functional>

/// Which layers of the map are shown.
struct AtlasLayers
{
    enum class Labels { None, Numbers, Names };

    bool lines = true;
    bool dots = true;
    bool placeNames = true;
    bool legend = true;
    /// What is written beside each locality.
    Labels labels = Labels::None;
};

/// How a map of the atlas is drawn.
struct AtlasMapStyle
{
    AtlasLayers layers;
    /// How many times larger than the printed map it is, while texts and symbols keep their size.
    double zoom = 1;
};

/// Operations of a drawing.
struct OperationRange
{
    std::size_t first = 0;
    /// Behind the last one.
    std::size_t end = 0;
};

/// A symbol of the map and what it is drawn with.
struct DrawnSymbol : PlacedSymbol
{
    OperationRange operations;
};

/// A map of the atlas as it was drawn, in twips, and where its layers, symbols and localities are.
struct AtlasDrawing
{
    Drawing drawing;
    /// The paper of the printed map: the map form's first area, and more where the lines leave that.
    QRectF paper;
    /// How many times larger than the printed map it was drawn.
    double zoom = 1;
    /// Twips a map unit.
    double scale = 1;
    OperationRange baseMap;
    /// In drawing order.
    std::vector<DrawnSymbol> symbols;
    /// The symbol of each record by itself, about `SampleMiddle`.
    std::vector<Drawing> samples;
    OperationRange legend;
    /// What the legend covers; empty without one.
    QRectF legendBox;
    /// Where locality 1 and the following are.
    std::vector<QPointF> localities;
    SpotGrid spots;
    /// Why the drawing is not complete; empty where it is.
    QString trouble;
};

/// The corner of the drawing that stays where it is when the drawing is zoomed.
constexpr QPointF DrawingCorner(MapGeometry::Margin, MapGeometry::Margin);

/// Where the middle of a symbol drawn by itself is; farther from its middle no symbol reaches.
constexpr QPointF SampleMiddle(900, 900);

/// Draws the linguistic map. A map whose lines have no extent is as large as its localities need. What cannot
/// be drawn is left out with the reason in `trouble`.
AtlasDrawing drawAtlasMap(const LinguisticMapParts& parts, const AtlasMapStyle& style);

/// A map or a plot in place of the linguistic map.
struct OtherMap
{
    /// Draws it from the parts of the linguistic map.
    std::function<void(const LinguisticMapParts&, MapSurfaces)> draw;
    /// How large the paper is at least, in twips of the printed map.
    QSizeF paper;
    /// Whether it stands on the base map, so that localities can be found on it and labelled.
    bool hasLocalities = true;
    /// Whether it shows the item, so that what is wrong with that is wrong with the map.
    bool isOfItem = false;
    /// What is to be told of it; empty for nothing.
    QString message;
};

AtlasDrawing drawOtherMap(const LinguisticMapParts& parts, const AtlasMapStyle& style, const OtherMap& map);

/// What of a drawing is painted, and how.
struct AtlasView
{
    /// Painter units a twip.
    double scale = 1;
    /// The part of the drawing that can be seen, in twips.
    QRectF visible;
    /// The records that stand out while the others fade; none where all are shown alike.
    std::set<int> records;
    bool withLegend = true;
};

/// Paints the drawing, its corner (0, 0) at the painter's.
void paintAtlasMap(const AtlasDrawing& map, QPainter& painter, const AtlasView& view);
/// Paints the legend alone.
void paintLegend(const AtlasDrawing& map, QPainter& painter, double scale);
