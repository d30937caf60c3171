#pragma once

class Dialogs;
struct VarnModule;

/// Whether the cumulative file can be written: it has a name, which the user is told otherwise, and where it
/// would replace a file other than the one last loaded or saved, the user agrees. Raises bad file name.
bool mayWriteTotal(const VarnModule& varn, Dialogs& dialogs);

/// Saves the cumulative table to the file of its name. False where the user has to name it first, or keeps
/// the file that is there. Raises bad file name and what writing raises.
bool saveTotal(VarnModule& varn, Dialogs& dialogs);

/// Asks, empties the counts of the cumulative table and saves it. Raises what `saveTotal` raises; the counts
/// are then as they were.
void initializeTotal(VarnModule& varn, Dialogs& dialogs);

/// Whether an item can be added to the table: there are word forms to count and a file to save to, and where
/// no word form has an identifying string, the user wants it all the same.
bool mayExecute(const VarnModule& varn, Dialogs& dialogs);

/// Adds the loaded item to the table and saves it. Raises overflow and what `saveTotal` raises; table and
/// file are then as they were.
void executeLoadedItem(VarnModule& varn, Dialogs& dialogs);

/// Saves the statistics beside the cumulative file. False where that has no name yet.
bool saveStatistics(VarnModule& varn, Dialogs& dialogs);
