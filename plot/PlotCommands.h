#pragma once

#include "plot/PlotListener.h"
#include "plot/PlotOptions.h"

/// Draws what `options` ask for into their output file, or counts, imports or exports what they ask for.
/// Returns whether everything was done: false where something was left out of an accumulation or export.
/// Raises the run-time's errors; a file that was drawn into is then as it was.
bool plot(const PlotOptions& options, PlotListener& listener);
