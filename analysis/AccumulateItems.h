#pragma once

#include "analysis/CumulativeTable.h"
#include "lingdata/LinguisticData.h"
#include "platform/DriveC.h"

#include <functional>
#include <vector>

/// The file that a table is saved to.
struct TableFile
{
    const DriveC& drive;
    QString path;
};

/// Adds one item to the table, notes its name, and saves the table to its file. Raises what counting and
/// saving raise; table and file are then as they were.
void executeItem(const TableFile& file, const LinguisticData& item, int localities, CumulativeData& data);

/// Item files to count.
struct ItemsToCount
{
    QStringList paths;
    /// Whether items that the table is known to hold are counted again, or left out.
    bool countAgain = false;
};

/// An item file that could not be counted, and why.
struct UncountedItem
{
    QString name;
    QString reason;
};

/// What came of adding items to a table.
struct AccumulationResult
{
    /// Number of items given, and how many of them were counted.
    int items = 0;
    int counted = 0;
    /// The names of those left out because the table held them before.
    QStringList countedBefore;
    std::vector<UncountedItem> uncounted;
    bool stopped = false;
};

/// Told before each item: how many are done, of how many, and the name of the next. False stops.
using AccumulationProgress = std::function<bool(int done, int items, const QString& name)>;

/// Adds items to the table in the order given, each as if it were the only one: the table is saved after
/// each. A file that cannot be read or counted, or whose number of localities is not `localities`, is passed
/// over. Raises what saving the table raises; the table then holds what its file holds.
AccumulationResult accumulateItems(const TableFile& file, const ItemsToCount& items, int localities,
                                   CumulativeData& data, const AccumulationProgress& mayProceed);
