#pragma once

#include "platform/Drawing.h"

#include <string>

/// What `drawing` holds, an operation a line in drawing order after an empty line, with all that can be seen
/// of it: places and sizes in twips, colours by their standard numbers, pens as width/style/colour.
/// White boxes with white edges are only named, as their size follows from the fonts of the machine.
std::string transcript(const Drawing& drawing);
