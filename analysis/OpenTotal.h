#pragma once

#include "analysis/TotalCommands.h"

/// Loads the cumulative file at `path`. The strings of the table before would count for it: where the file of
/// strings of the same name is there, it is offered, and otherwise the user says whether they stay. Raises
/// what loading either file raises; what could not be loaded is as it was.
void openTotal(const QString& path, const TotalState& state, Dialogs& dialogs);

/// Loads the file of identifying strings at `path`; where it is of another number of word forms than the
/// table, only if the user wants the table to have that number. False where the strings stay. Raises what
/// loading raises.
bool openStrings(const QString& path, const TotalState& state, Dialogs& dialogs);
