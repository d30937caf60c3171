#pragma once

#include "platform/FormArea.h"

/// The map form's first area: 12000 x 9000 twips at the screen's top left.
FormArea firstArea();

/// `area` made `millimetres` high; the proportion of its sides is kept. Raises division by zero for an area
/// without height, overflow.
FormArea withHeight(const FormArea& area, double millimetres);
