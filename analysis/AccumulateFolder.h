#pragma once

#include "analysis/CumulativeTable.h"
#include "lingdata/LinguisticData.h"
#include "shell/Folders.h"

#include <functional>
#include <vector>

/// Adds one item to the table and saves the table to its file. Raises what counting and saving raise; table
/// and file are then as they were.
void executeItem(const Folders& folders, const ItemAnswers& item, int localities, CumulativeData& data);

/// An item file that could not be counted, and why.
struct UncountedItem
{
    QString name;
    QString reason;
};

/// What came of adding the items of a folder.
struct FolderAccumulation
{
    /// Number of item files in the folder, and how many of them were counted.
    int items = 0;
    int counted = 0;
    std::vector<UncountedItem> uncounted;
    bool stopped = false;
};

/// Told before each item: how many are done, of how many, and the name of the next. False stops.
using FolderProgress = std::function<bool(int done, int items, const QString& name)>;

/// Adds all `.dbs` files of `folder` to the table in the order of their names, each as if it were the only
/// one: the table is saved after each. A file that cannot be read or counted is passed over. Raises path not
/// found for a folder that is not there, and what saving the table raises; the table then holds what its file
/// holds.
FolderAccumulation accumulateFolder(const Folders& folders, const QString& folder, int localities,
                                    CumulativeData& data, const FolderProgress& mayProceed);
