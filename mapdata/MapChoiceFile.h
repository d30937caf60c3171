#pragma once

#include "shell/VarnModule.h"

/// Path of the file that the map set-up form registers a map in. It is not the file that start-up reads.
QString mapChoiceFile();

/// Writes the installation folder, the current map and the map font to that file, seven fields on one line.
/// Raises path not found, permission denied, disk full, device I/O error.
void saveRegisteredMap(const VarnModule& varn);
