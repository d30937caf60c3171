#include "analysis/AccumulateFolder.h"

#include "analysis/Accumulation.h"
#include "analysis/CumulativeFile.h"
#include "lingdata/ItemLoader.h"

#include <QDir>

#include <optional>

namespace {

QStringList itemFiles(const DriveC& drive, const QString& folder)
{
    const QDir dir(drive.hostPath(folder));
    if (!dir.exists()) {
        throw RunTimeError(ErrorNumber::PathNotFound).at({folder});
    }
    return dir.entryList({QStringLiteral("*.dbs")}, QDir::Files, QDir::Name | QDir::IgnoreCase);
}

/// Saves the table; where that fails, it becomes `before` again.
void saveOrRestore(const Folders& folders, int localities, const CumulativeTable& before,
                   CumulativeData& data)
{
    try {
        SaveTotalFile(folders.Drive, folders.dataFolder(), localities, data);
    } catch (const RunTimeError&) {
        static_cast<CumulativeTable&>(data) = before;
        throw;
    }
}

/// Counts the item at `path`; why it cannot be counted where it cannot.
std::optional<RunTimeError> countItem(const Folders& folders, const QString& path, int localities,
                                      CumulativeData& data)
{
    try {
        accumulateItem(readItemAnswers(folders, path), localities, data);
    } catch (const RunTimeError& error) {
        return error;
    }
    return std::nullopt;
}

/// `error`, which says how far the folder was done.
RunTimeError failedAfter(const FolderAccumulation& result, const RunTimeError& error)
{
    QStringList details = {
        error.detail(),
        QStringLiteral("%1 of %2 items had been counted and saved.").arg(result.counted).arg(result.items)};
    details.removeAll(QString());
    return RunTimeError(error.number(), details.join(QLatin1Char('\n'))).at(error.place());
}

} // namespace

void executeItem(const Folders& folders, const ItemAnswers& item, int localities, CumulativeData& data)
{
    const CumulativeTable before = data;
    accumulateItem(item, localities, data);
    saveOrRestore(folders, localities, before, data);
}

FolderAccumulation accumulateFolder(const Folders& folders, const QString& folder, int localities,
                                    CumulativeData& data, const FolderProgress& mayProceed)
{
    FolderAccumulation result;
    const QStringList names = itemFiles(folders.Drive, folder);
    result.items = static_cast<int>(names.size());
    int done = 0;
    for (const QString& name : names) {
        if (!mayProceed(done++, result.items, name)) {
            result.stopped = true;
            break;
        }
        const CumulativeTable before = data;
        if (const auto error = countItem(folders, folder + QLatin1Char('\\') + name, localities, data)) {
            result.uncounted.push_back({name, error->message()});
            continue;
        }
        try {
            saveOrRestore(folders, localities, before, data);
        } catch (const RunTimeError& error) {
            throw failedAfter(result, error);
        }
        ++result.counted;
    }
    return result;
}
