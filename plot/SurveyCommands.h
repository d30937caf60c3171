#pragma once

#include "plot/MapPlot.h"

/// Does the commands on a survey as a whole: areas and isoglosses, distances and their maps. Returns whether
/// nothing was left out. Raises the run-time's errors.
bool plotSurvey(MapPlot& map, const PlotOptions& options, PlotListener& listener);
