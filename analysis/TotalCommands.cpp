#include "analysis/TotalCommands.h"

#include "analysis/Accumulation.h"
#include "analysis/AnalysisFileName.h"
#include "analysis/CumulativeFile.h"
#include "platform/Dialogs.h"
#include "platform/FileKind.h"

namespace {

bool hasName(const CumulativeData& data, Dialogs& dialogs)
{
    if (data.TotalFileName.isEmpty()) {
        // Spelt as users know it.
        dialogs.message(QStringLiteral("Input Name of Aalysis File."),
                        QStringLiteral("Save of Analysis File"));
    }
    return !data.TotalFileName.isEmpty();
}

void save(const TotalState& state)
{
    SaveTotalFile(state.folders.Drive, totalFilePath(state.folders.dataFolder(), state.data),
                  state.localities, state.data);
}

} // namespace

bool mayWriteTotal(const Folders& folders, const CumulativeData& data, Dialogs& dialogs)
{
    if (!hasName(data, dialogs)) {
        return false;
    }
    const QString path = analysisFilePath(folders, data.TotalFileName, TotalFiles);
    return isOwnFile(data, path) ||
           askToSave(dialogs, folders.Drive, path, QStringLiteral("Save of Analysis File"));
}

bool saveTotal(const TotalState& state, Dialogs& dialogs)
{
    if (!mayWriteTotal(state.folders, state.data, dialogs)) {
        return false;
    }
    save(state);
    return true;
}

void initializeTotal(const TotalState& state, Dialogs& dialogs)
{
    const QString title = QStringLiteral("Initialize of Analysis File.");
    if (!dialogs.askOkCancel(QStringLiteral("Initialize Analysis File. All Data will be Lost. O.K.?"),
                             title) ||
        !mayWriteTotal(state.folders, state.data, dialogs)) {
        return;
    }
    const CumulativeTable before = state.data;
    clearCounts(state.localities, state.data);
    try {
        save(state);
    } catch (const RunTimeError&) {
        static_cast<CumulativeTable&>(state.data) = before;
        throw;
    }
    outdateSums(state.contrast);
    dialogs.message(QStringLiteral("Analysis File is initialized."), title);
}

QString droppedWordforms(const CumulativeData& data, int number)
{
    QStringList dropped;
    for (int k = number + 1; k <= data.NumWordforms; ++k) {
        if (hasContents(data, k)) {
            dropped << QStringLiteral("%1 %2").arg(QString::number(k), data.WordformName(k)).trimmed();
        }
    }
    return dropped.isEmpty()
               ? QString()
               : QStringLiteral("These word forms are dropped, with their counts and strings: ") +
                     dropped.join(QStringLiteral(", ")) + QLatin1Char('.');
}

bool changeNumWordforms(int number, const TotalState& state, Dialogs& dialogs)
{
    CumulativeData changed = state.data;
    setNumWordforms(changed, number);
    const QString dropped = droppedWordforms(state.data, number);
    if (!dropped.isEmpty() &&
        !dialogs.confirmLoss(dropped + QStringLiteral(" O.K.?"), QStringLiteral("Accumulate Data"))) {
        return false;
    }
    state.data = std::move(changed);
    outdateSums(state.contrast);
    return true;
}

bool saveStatistics(const Folders& folders, const CumulativeData& data, Statistics& statistics,
                    Dialogs& dialogs)
{
    if (!hasName(data, dialogs)) {
        return false;
    }
    SaveStats(folders.Drive, analysisFilePath(folders, data.TotalFileName, StatisticsFiles), data,
              statistics);
    return true;
}
