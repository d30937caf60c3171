#pragma once

#include "platform/DrawSurface.h"

/// The map form's first size: a drawing area of 12000 x 9000 twips at the screen's top left.
void setFirstSize(DrawSurface& frmMap);

/// Makes the drawing area `millimetres` high and keeps the proportion of its sides.
void setMapHeight(DrawSurface& frmMap, double millimetres);
