#include "analysis/ExecuteCommands.h"

#include "analysis/CumulativeFile.h"
#include "lingdata/ItemFolder.h"
#include "lingdata/LocalityMismatch.h"
#include "platform/Dialogs.h"
#include "platform/FileName.h"

#include <algorithm>

namespace {

const QString Title = QStringLiteral("Analysis of Linguistic Data.");

/// Whether the item belongs to the map, or the user wants it counted all the same.
bool mayCountOnMap(const LinguisticData& item, int localities, Dialogs& dialogs)
{
    const QString mismatch = localityMismatch(item.NLocate, localities);
    return mismatch.isEmpty() ||
           dialogs.confirmLoss(mismatch + QStringLiteral(" Its answers would be counted at wrong localities. "
                                                         "Execute all the same?"),
                               Title);
}

/// Whether the item is new to the table, or the user wants it counted all the same.
bool mayCountAgain(const LinguisticData& item, const CumulativeTable& table, Dialogs& dialogs)
{
    return !isCounted(table, item.ItemFileName) ||
           dialogs.confirmLoss(QStringLiteral("%1 is counted in the table already. Count it once more?")
                                   .arg(item.ItemFileName),
                               Title);
}

} // namespace

bool mayExecute(const TotalState& state, Dialogs& dialogs)
{
    if (state.data.NumWordforms == 0) {
        dialogs.message(QStringLiteral("No. of Specify Data is inadequate."), Title);
        return false;
    }
    return mayWriteTotal(state.folders, state.data, dialogs) &&
           (hasIdentifyingStrings(state.data) ||
            dialogs.askYesNo(QStringLiteral("No word form has an identifying string, so the counts would not "
                                            "grow. Execute all the same?"),
                             Title));
}

void executeLoadedItem(const LinguisticData& item, const TotalState& state, Dialogs& dialogs)
{
    if (item.ItemFileName.isEmpty()) {
        dialogs.message(QStringLiteral("Specify Linguistic Data."), QStringLiteral("Input Wordform Data."));
        return;
    }
    if (!mayExecute(state, dialogs) || !mayCountOnMap(item, state.localities, dialogs) ||
        !mayCountAgain(item, state.data, dialogs)) {
        return;
    }
    executeItem({state.folders.Drive, totalFilePath(state.folders.dataFolder(), state.data)}, item,
                state.localities, state.data);
    outdateSums(state.contrast);
    dialogs.message(QStringLiteral("Analyse of Linguistic Data File is completed."), Title);
}

ItemsToCount itemsToCount(const QString& folder, const TotalState& state, Dialogs& dialogs)
{
    ItemsToCount items{itemFiles(state.folders.Drive, folder)};
    const auto known = std::count_if(items.paths.begin(), items.paths.end(), [&](const QString& path) {
        return isCounted(state.data, fileNameOf(path));
    });
    items.countAgain = known > 0 && dialogs.confirmLoss(
                                        QStringLiteral("%1 of the %2 items are counted in the table already. "
                                                       "Count them once more? With No they are left out.")
                                            .arg(known)
                                            .arg(items.paths.size()),
                                        Title);
    return items;
}

QString accumulationText(const AccumulationResult& done)
{
    constexpr std::size_t MostNames = 15;
    QStringList lines = {done.stopped ? QStringLiteral("Analyse of Linguistic Data Files is stopped.")
                                      : QStringLiteral("Analyse of Linguistic Data File is completed."),
                         QStringLiteral("%1 of %2 items were counted.").arg(done.counted).arg(done.items)};
    if (!done.countedBefore.isEmpty()) {
        lines << QStringLiteral("%1 had been counted before.").arg(done.countedBefore.size());
    }
    if (!done.uncounted.empty()) {
        lines << QString() << QStringLiteral("Not counted:");
    }
    for (std::size_t i = 0; i < std::min(done.uncounted.size(), MostNames); ++i) {
        lines << done.uncounted[i].name;
    }
    if (done.uncounted.size() > MostNames) {
        lines << QStringLiteral("and %1 more, as the form shows").arg(done.uncounted.size() - MostNames);
    }
    return lines.join(QLatin1Char('\n'));
}
