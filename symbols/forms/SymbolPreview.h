#pragma once

#include "shell/VarnModule.h"

#include <optional>

/// Clears `surface` and draws records `first`..`last` of the symbol set on it, one row a record under a line
/// of headings: number, symbol, kind and caption. The row of the record that is being edited is shaded. A
/// symbol that cannot be drawn is shown as "?", a text with an escape in no code as it is written.
///
/// Returns the x where the widest row ends, in twips. Raises file not found for a glyph that the installation
/// lacks.
float DisplayHanrei(VarnModule& varn, int first, int last, DrawSurface& surface);

/// The record whose row of such a preview lies at height `y`, twips; nothing where none does.
std::optional<int> recordAt(float y, int first, int last, const DrawSurface& surface);

/// The height that a preview of 20 records needs at least, in twips.
float smallestPreviewHeight();
