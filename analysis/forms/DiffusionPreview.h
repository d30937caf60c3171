#pragma once

#include "shell/VarnModule.h"

/// Clears `surface` and draws the symbols of the diffusion map on it, a row for each word form: number,
/// symbol, caption, minimum points and at how many localities it is drawn. The row of word form `current` is
/// shaded. A symbol that cannot be drawn is shown as "?".
void drawDiffusionPreview(VarnModule& varn, int current, DrawSurface& surface);

/// The height that the preview of ten word forms needs, in twips.
float diffusionPreviewHeight();
