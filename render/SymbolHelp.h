#pragma once

#include "render/PhoneticText.h"

/// Writes the list of phonetic codes with their letters.
void WriteSymbolHelp(const std::vector<PhoneticSymbol>& codes, const TextParts& parts, MapSurfaces surfaces);
