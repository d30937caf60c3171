#pragma once

#include "analysis/ContrastData.h"
#include "analysis/CumulativeTable.h"
#include "analysis/Statistics.h"
#include "mapdata/Folders.h"

class Dialogs;

/// What the commands of cumulative analysis work on. A contrast is outdated by all that changes the counts.
struct TotalState
{
    const Folders& folders;
    /// Number of localities of the map.
    int localities;
    CumulativeData& data;
    ContrastData& contrast;
};

/// Whether the cumulative file can be written: it has a name, which the user is told otherwise, and where it
/// would replace a file other than the one last loaded or saved, the user agrees. Raises bad file name.
bool mayWriteTotal(const Folders& folders, const CumulativeData& data, Dialogs& dialogs);

/// Saves the cumulative table to the file of its name. False where the user has to name it first, or keeps
/// the file that is there. Raises bad file name and what writing raises.
bool saveTotal(const TotalState& state, Dialogs& dialogs);

/// Asks, empties the counts of the cumulative table and saves it. Raises what `saveTotal` raises; the counts
/// are then as they were.
void initializeTotal(const TotalState& state, Dialogs& dialogs);

/// The sentence that says which word forms with contents are dropped where their number becomes `number`;
/// empty where none is.
QString droppedWordforms(const CumulativeData& data, int number);

/// Makes `number` the number of word forms; where that drops counts, names or strings, only if the user wants
/// it. Raises subscript out of range as `setNumWordforms` does. False where the number stays.
bool changeNumWordforms(int number, const TotalState& state, Dialogs& dialogs);

/// Saves the statistics beside the cumulative file. False where that has no name yet.
bool saveStatistics(const Folders& folders, const CumulativeData& data, Statistics& statistics,
                    Dialogs& dialogs);
