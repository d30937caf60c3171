#pragma once

#include "mapdata/Folders.h"
#include "plot/PlotCommands.h"

/// Writes the current map with its items to `output`. Returns whether all items are in it. Raises what
/// `exportSurvey` raises.
bool exportMap(const Folders& folders, const QString& output, PlotListener& listener);
