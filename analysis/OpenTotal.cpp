#include "analysis/OpenTotal.h"

#include "analysis/AnalysisFileName.h"
#include "analysis/CumulativeFile.h"
#include "platform/Dialogs.h"
#include "platform/FileName.h"

namespace {

const QString OpenTitle = QStringLiteral("Open Cumulative Data File");

QString fileOfStrings(const CumulativeData& data)
{
    const QString name = analysisFileStem(data.SpecifyFileName, StringFiles);
    return name.isEmpty() ? QStringLiteral("of no file yet")
                          : QStringLiteral("of ") + name + StringFiles.ending;
}

/// Whether the user wants the file of strings of the table's name, at `path`.
bool wantsOwnStrings(const QString& path, const CumulativeData& data, Dialogs& dialogs)
{
    const QString question = QStringLiteral("Open %1, the identifying strings of the same name?")
                                 .arg(analysisFileStem(path, StringFiles) + StringFiles.ending);
    if (areCharsUnsaved(data)) {
        return dialogs.confirmLoss(question + QStringLiteral(" Those that are there are not saved."),
                                   OpenTitle);
    }
    return dialogs.askYesNo(question, OpenTitle);
}

void dropStrings(CumulativeData& data)
{
    static_cast<SpecifiedChars&>(data) = {};
    data.SavedChars = {};
    data.SpecifyFileName.clear();
}

/// Asks which strings count for a table that was just loaded.
void chooseStrings(const QString& totalPath, const TotalState& state, Dialogs& dialogs)
{
    const QString own = withEnding(totalPath, StringFiles.ending);
    if (own.compare(state.data.SpecifyFileName, Qt::CaseInsensitive) == 0) {
        return;
    }
    if (fileExists(state.folders.Drive, own) && wantsOwnStrings(own, state.data, dialogs) &&
        openStrings(own, state, dialogs)) {
        return;
    }
    if (hasIdentifyingStrings(state.data) &&
        !dialogs.askYesNo(QStringLiteral("The identifying strings are still those %1. Keep them for %2.ttl?")
                              .arg(fileOfStrings(state.data), state.data.TotalFileName),
                          OpenTitle)) {
        dropStrings(state.data);
    }
}

QString otherNumber(const CumulativeData& data, int number)
{
    return QStringLiteral(
               "The file has the strings of %1 word forms, the cumulative data has %2. Open the file "
               "and make it %1 word forms?")
        .arg(number)
        .arg(data.NumWordforms);
}

/// Whether the user wants the table to have `number` word forms, as the file of strings has.
bool mayTakeNumber(const CumulativeData& data, int number, Dialogs& dialogs)
{
    const QString title = QStringLiteral("Open Specify Char File");
    if (data.NumWordforms == 0 || number == data.NumWordforms) {
        return true;
    }
    const QString dropped = droppedWordforms(data, number);
    return dropped.isEmpty()
               ? dialogs.askYesNo(otherNumber(data, number), title)
               : dialogs.confirmLoss(otherNumber(data, number) + QLatin1Char('\n') + dropped, title);
}

} // namespace

void openTotal(const QString& path, const TotalState& state, Dialogs& dialogs)
{
    const QString before = state.data.TotalFilePath;
    const auto namesError = LoadTotalFile(state.folders.Drive, path, state.localities, state.data);
    outdateSums(state.contrast);
    if (namesError) {
        dialogs.message(QStringLiteral("It is not known which items are counted in the table.\n\n") +
                            namesError->message(),
                        OpenTitle);
    }
    if (path.compare(before, Qt::CaseInsensitive) != 0) {
        chooseStrings(path, state, dialogs);
    }
}

bool openStrings(const QString& path, const TotalState& state, Dialogs& dialogs)
{
    CumulativeData loaded = state.data;
    LoadSetData(state.folders.Drive, path, loaded);
    if (!mayTakeNumber(state.data, loaded.NumWordforms, dialogs)) {
        return false;
    }
    const bool otherTable = loaded.NumWordforms != state.data.NumWordforms;
    state.data = std::move(loaded);
    if (otherTable) {
        outdateSums(state.contrast);
    }
    return true;
}
