#pragma once

#include "analysis/CountMapParts.h"

struct VarnModule;

// The parts of the shared state that maps are drawn from.

TextParts textParts(const VarnModule& varn);
BlankMapParts blankMapParts(VarnModule& varn);
LinguisticMapParts linguisticMapParts(VarnModule& varn);
CountMapParts countMapParts(VarnModule& varn);
