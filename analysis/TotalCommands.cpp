#include "analysis/TotalCommands.h"

#include "analysis/AccumulateFolder.h"
#include "analysis/Accumulation.h"
#include "analysis/AnalysisFileName.h"
#include "analysis/CumulativeFile.h"
#include "platform/Dialogs.h"
#include "shell/VarnModule.h"

namespace {

bool hasName(const VarnModule& varn, Dialogs& dialogs)
{
    if (varn.TotalFileName.isEmpty()) {
        dialogs.message(QStringLiteral("Input Name of Aalysis File."),
                        QStringLiteral("Save of Analysis File"));
    }
    return !varn.TotalFileName.isEmpty();
}

bool hasIdentifyingStrings(const CumulativeData& data)
{
    for (int k = 1; k <= data.NumWordforms; ++k) {
        if (data.NumSpecifyChars(k) > 0) {
            return true;
        }
    }
    return false;
}

} // namespace

bool mayWriteTotal(const VarnModule& varn, Dialogs& dialogs)
{
    if (!hasName(varn, dialogs)) {
        return false;
    }
    const QString path = analysisFilePath(varn, varn.TotalFileName, QStringLiteral(".ttl"));
    const bool isOwn = path.compare(varn.TotalFilePath, Qt::CaseInsensitive) == 0;
    return isOwn || !fileExists(varn.Drive, path) ||
           dialogs.askYesNo(QStringLiteral("File already exist. Overwrite O.K.? "),
                            QStringLiteral("Save of Analysis File"));
}

bool saveTotal(VarnModule& varn, Dialogs& dialogs)
{
    if (!mayWriteTotal(varn, dialogs)) {
        return false;
    }
    SaveTotalFile(varn.Drive, varn.dataFolder(), varn.NLocality, varn);
    return true;
}

void initializeTotal(VarnModule& varn, Dialogs& dialogs)
{
    const QString title = QStringLiteral("Initialize of Analysis File.");
    if (!dialogs.askOkCancel(QStringLiteral("Initialize Analysis File. All Data will be Lost. O.K.?"),
                             title) ||
        !mayWriteTotal(varn, dialogs)) {
        return;
    }
    const CumulativeTable before = varn;
    clearCounts(varn.NLocality, varn);
    try {
        SaveTotalFile(varn.Drive, varn.dataFolder(), varn.NLocality, varn);
    } catch (const RunTimeError&) {
        static_cast<CumulativeTable&>(varn) = before;
        throw;
    }
    dialogs.message(QStringLiteral("Analysis File is initialized."), title);
}

bool mayExecute(const VarnModule& varn, Dialogs& dialogs)
{
    const QString title = QStringLiteral("Analysis of Linguistic Data.");
    if (varn.NumWordforms == 0) {
        dialogs.message(QStringLiteral("No. of Specify Data is inadequate."), title);
        return false;
    }
    return mayWriteTotal(varn, dialogs) &&
           (hasIdentifyingStrings(varn) ||
            dialogs.askYesNo(QStringLiteral("No word form has an identifying string, so the counts would not "
                                            "grow. Execute all the same?"),
                             title));
}

void executeLoadedItem(VarnModule& varn, Dialogs& dialogs)
{
    if (varn.ItemFileName.isEmpty()) {
        dialogs.message(QStringLiteral("Specify Linguistic Data."), QStringLiteral("Input Wordform Data."));
        return;
    }
    if (!mayExecute(varn, dialogs)) {
        return;
    }
    executeItem(varn, varn, varn.NLocality, varn);
    dialogs.message(QStringLiteral("Analyse of Linguistic Data File is completed."),
                    QStringLiteral("Analysis of Linguistic Data."));
}

bool saveStatistics(VarnModule& varn, Dialogs& dialogs)
{
    if (!hasName(varn, dialogs)) {
        return false;
    }
    SaveStats(varn.Drive, analysisFilePath(varn, varn.TotalFileName, QStringLiteral(".stt")), varn, varn);
    return true;
}
