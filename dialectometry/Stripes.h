#pragma once

#include "platform/Drawing.h"

/// Every `of`-th stripe of the area of `rings`, in twips, beginning with number `which` (from 0). The stripes
/// rise to the right, at fixed places of the drawing, so that those of neighbouring areas run on.
Rings stripes(const Rings& rings, std::size_t which, std::size_t of);
