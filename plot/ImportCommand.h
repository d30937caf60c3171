#pragma once

#include "plot/PlotCommands.h"

/// Makes the map that `options` ask for of their source, and tells the report. Raises what reading the source
/// and making and writing the survey raise; there is no such map then.
void importSurvey(const PlotOptions& options, PlotListener& listener);
