#pragma once

#include "render/MapParts.h"

/// Draws the caption block: the item's title, then one row for each record of the symbol set whose caption
/// has no hyphen, in columns that fill the height of the map form. Raises division by zero where the form is
/// not as high as two rows.
void PlotHanrei(const LinguisticMapParts& parts, MapSurfaces surfaces);

/// Where the caption block starts on the drawing, in twips.
QPointF captionOrigin(const BlankMapParts& parts);

/// Paints the title line of the caption block white, as far as `title` and the place name there reach and no
/// further, so that the map stays whole.
void ClsHanrei(const BlankMapParts& parts, DrawSurface& target, const QString& title);
