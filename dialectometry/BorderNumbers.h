#pragma once

#include "dialectometry/AreaFill.h"

/// Writes at the strongest borders, on a white ground, the number of each (see `BorderChanges::changes`): of
/// the thirty strongest those not less than two thirds of the first, as far as there is room.
void drawBorderNumbers(const AreaMapParts& parts, std::span<const double> numbers, DrawSurface& target);
