#pragma once

#include "plot/PlotOptions.h"

#include <functional>

/// Called before each page of an atlas with its number, from 1, the number of pages, and the item's name.
using PlotProgress = std::function<void(int page, int pages, const QString& name)>;

/// Draws what `options` ask for into their output file. Raises the run-time's errors; the file is then as it
/// was.
void plot(const PlotOptions& options, const PlotProgress& progress);
