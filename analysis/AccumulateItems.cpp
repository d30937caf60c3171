#include "analysis/AccumulateItems.h"

#include "analysis/Accumulation.h"
#include "analysis/CumulativeFile.h"
#include "lingdata/LinguisticFile.h"
#include "lingdata/LocalityMismatch.h"
#include "platform/FileName.h"

namespace {

/// Adds the item and its name to the table.
void countItem(const LinguisticData& item, int localities, CumulativeData& data)
{
    accumulateItem(item, localities, data);
    data.CountedItems << item.ItemFileName;
}

/// Saves the table; where that fails, it becomes `before` again.
void saveOrRestore(const TableFile& file, int localities, const CumulativeTable& before, CumulativeData& data)
{
    try {
        SaveTotalFile(file.drive, file.path, localities, data);
    } catch (const RunTimeError&) {
        static_cast<CumulativeTable&>(data) = before;
        throw;
    }
}

/// Counts the item at `path`; why it cannot be counted, or nothing. Its kinds are not needed.
QString countFile(const DriveC& drive, const QString& path, int localities, CumulativeData& data)
{
    LinguisticData item;
    item.ItemFileName = fileNameOf(path);
    try {
        static_cast<ItemAnswers&>(item) = readSequentialFile(drive, path, readItem);
        QString mismatch = localityMismatch(item.NLocate, localities);
        if (mismatch.isEmpty()) {
            countItem(item, localities, data);
        }
        return mismatch;
    } catch (const RunTimeError& error) {
        FilePlace place = error.place();
        place.path = drive.hostPath(path);
        return error.at(place).message();
    }
}

} // namespace

void executeItem(const TableFile& file, const LinguisticData& item, int localities, CumulativeData& data)
{
    const CumulativeTable before = data;
    countItem(item, localities, data);
    saveOrRestore(file, localities, before, data);
}

AccumulationResult accumulateItems(const TableFile& file, const ItemsToCount& items, int localities,
                                   CumulativeData& data, const AccumulationProgress& mayProceed)
{
    AccumulationResult result;
    result.items = static_cast<int>(items.paths.size());
    int done = 0;
    for (const QString& path : items.paths) {
        const QString name = fileNameOf(path);
        if (!mayProceed(done++, result.items, name)) {
            result.stopped = true;
            break;
        }
        if (!items.countAgain && isCounted(data, name)) {
            result.countedBefore << name;
            continue;
        }
        const CumulativeTable before = data;
        if (const QString reason = countFile(file.drive, path, localities, data); !reason.isEmpty()) {
            result.uncounted.push_back({name, reason});
            continue;
        }
        try {
            saveOrRestore(file, localities, before, data);
        } catch (const RunTimeError& error) {
            throw error.during(QStringLiteral("%1 of %2 items had been counted and saved.")
                                   .arg(result.counted)
                                   .arg(result.items));
        }
        ++result.counted;
    }
    return result;
}
