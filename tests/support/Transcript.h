#pragma once

#include "platform/Drawing.h"

#include <string>

/// What `drawing` holds, an operation a line in drawing order after an empty line, with all that can be seen
/// of it: places and sizes in twips, colours by their standard numbers, pens as width/style/colour.
/// White boxes with white edges are only named, as their size follows from the fonts of the machine.
std::string transcript(const Drawing& drawing);

/// The same, with each text placed as the line of `expected` places it that stands where its own will, so
/// that nothing follows from the fonts of the machine: "x,y" is where it begins, ">x" where it ends, "|x" and
/// "~y" its middle, "+x" and "+y" how far it is behind and below the end of the text before it.
std::string transcriptLike(const std::string& expected, const Drawing& drawing);
