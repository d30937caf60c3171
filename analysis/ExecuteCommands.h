#pragma once

#include "analysis/AccumulateItems.h"
#include "analysis/TotalCommands.h"

/// Whether an item can be added to the table: there are word forms to count and a file to save to, and where
/// no word form has an identifying string, the user wants it all the same.
bool mayExecute(const TotalState& state, Dialogs& dialogs);

/// Adds the loaded item to the table and saves it. An item that the table holds already, or that has not the
/// localities of the map, only if the user wants it all the same. Raises overflow and what `saveTotal`
/// raises; table and file are then as they were.
void executeLoadedItem(const LinguisticData& item, const TotalState& state, Dialogs& dialogs);

/// The items of `folder` to count: all, where the table holds some of them already and the user wants them
/// counted again. Raises path not found.
ItemsToCount itemsToCount(const QString& folder, const TotalState& state, Dialogs& dialogs);

/// What came of adding the items of a folder, in words for the user; the names of at most fifteen that were
/// not counted.
QString accumulationText(const AccumulationResult& done);
