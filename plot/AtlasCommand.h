#pragma once

#include "plot/PlotListener.h"
#include "plot/PlotOptions.h"

/// Draws the linguistic maps of the items into one PDF: of those that `options` name, else of all that have a
/// symbol file of their name, in the order of names. Returns whether all were drawn: false where `keepGoing`
/// left some out, which are named. Raises the run-time's errors of the first item that cannot be drawn; the
/// file is then as it was.
bool plotAtlas(const PlotOptions& options, PlotListener& listener);
