#pragma once

#include "dialectometry/AreaFill.h"
#include "platform/DrawSurface.h"

// What groups of localities look like. Group 1, 2, ... has its look whatever the number of groups is.

/// The colour of a group (from 1): the first ones can be told apart by all readers, later ones are tints of
/// them.
QRgb groupColor(int group);
/// The fill of a group (from 1); of group 0, what was left out, that of missing values. Later groups have a
/// pattern over their colour, and each has in the hatched look.
AreaFill groupFill(int group, AreaLook look);
/// Draws the symbol of a group (from 1) about (x, y), in its colour or in black; `size` is half its width in
/// twips. The symbols of later groups are hollow, then smaller.
void drawGroupSymbol(int group, AreaLook look, float x, float y, float size, DrawSurface& target);
