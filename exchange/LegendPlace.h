#pragma once

#include "mapdata/BaseMap.h"
#include "mapdata/MapFont.h"
#include "platform/PictureStore.h"
#include "render/MapStyle.h"

#include <QRectF>
#include <QSizeF>

#include <vector>

struct Folders;
struct ItemAnswers;
struct SymbolSet;

/// How far the caption block starts from the edges of its room, in map units: the white under its title must
/// not reach the lines there.
constexpr double LegendInset = 6;

/// Measures legends as they are drawn on the map form at its first size.
class LegendMeasure
{
public:
    /// Of an installation, whose polygon designs and phonetic letters are drawn. Raises what reading the
    /// designs raises.
    explicit LegendMeasure(const Folders& folders);

    /// How far the caption block of an item reaches from where it starts, in twips.
    QSizeF legendSize(const ItemAnswers& item, const SymbolSet& symbols) const;
    /// How far a title alone reaches.
    QSizeF titleSize(const QString& title) const;

private:
    const Folders& m_folders;
    BaseMap m_map;
    MapFont m_font;
    MapStyle m_style;
    PictureStore m_pictures;
};

/// How points of a plane, y growing upward, and the legend share a map: a point stands at
/// (offset + scale * x, offset - scale * y), in map units.
struct MapLayout
{
    double scale = 1;
    QPointF offset;
    /// The corner or side of the map that the legend has for itself; empty without one.
    QRectF legend;
    /// Whether the legend covers no point; a very wide one may.
    bool legendIsFree = true;
};

/// Places `points` as large as they can be while the legend, `legend` map units in size, has a corner or a
/// side of the map. `aroundSpot` is the extent that is shown, in units of the plane, where all of them lie on
/// one spot.
MapLayout layOutMap(const std::vector<QPointF>& points, double aroundSpot, QSizeF legend);
