#pragma once

#include "shell/VarnModule.h"

/// Writes the list of phonetic codes with their letters.
void WriteSymbolHelp(VarnModule& varn, MapSurfaces surfaces);
