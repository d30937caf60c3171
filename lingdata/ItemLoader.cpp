#include "lingdata/ItemLoader.h"

#include "lingdata/KindList.h"
#include "lingdata/LinguisticFile.h"
#include "platform/FileName.h"

#include <utility>

namespace {

void writeKindsFile(const Folders& folders, const QString& path, const WordKinds& kinds)
{
    writeSequentialFile(folders.Drive, path, [&kinds](SequentialWriter& file) { writeKinds(file, kinds); });
}

void deriveKinds(LinguisticData& data)
{
    SearchKindWord(data);
    SortKindWord(data);
}

/// Reads the item's kinds from their file, or derives them where that is damaged; says so then.
QString readKindsFile(const Folders& folders, LinguisticData& data)
{
    try {
        InputWordData(folders, data.KindsPath, data);
    } catch (const RunTimeError& error) {
        deriveKinds(data);
        return QStringLiteral(
                   "The kinds file cannot be read. It is left as it is; the kinds shown are those of "
                   "the item.\r\n\r\n") +
               error.message();
    }
    return {};
}

/// Derives the item's kinds and writes their file; says so where it cannot be written.
QString makeKindsFile(const Folders& folders, LinguisticData& data)
{
    deriveKinds(data);
    try {
        writeKindsFile(folders, data.KindsPath, data);
    } catch (const RunTimeError& error) {
        return QStringLiteral("The kinds file cannot be written.\r\n\r\n") + error.message();
    }
    return {};
}

} // namespace

QString kindsFilePath(const Folders& folders, const QString& itemPath)
{
    return folders.dataFolder() + QLatin1Char('\\') + stemOf(itemPath) + QStringLiteral(".srt");
}

void InputWordData(const Folders& folders, const QString& path, WordKinds& kinds)
{
    readSequentialFile(folders.Drive, path, [&kinds](SequentialReader& file) { readKinds(file, kinds); });
}

void FileWordData(const Folders& folders, const QString& path, LinguisticData& data)
{
    deriveKinds(data);
    writeKindsFile(folders, path, data);
}

ItemAnswers readItemAnswers(const Folders& folders, const QString& itemPath)
{
    return readSequentialFile(folders.Drive, itemPath, readItem);
}

QString LoadWordData(const Folders& folders, const QString& itemPath, LinguisticData& data,
                     LoadedState& state)
{
    LinguisticData fresh;
    static_cast<ItemAnswers&>(fresh) = readItemAnswers(folders, itemPath);
    fresh.ItemFileName = fileNameOf(itemPath);
    fresh.ItemPath = itemPath;
    fresh.KindsPath = kindsFilePath(folders, itemPath);
    fresh.ItemReading = data.ItemReading + 1;
    QString trouble = fileExists(folders.Drive, fresh.KindsPath) ? readKindsFile(folders, fresh)
                                                                 : makeKindsFile(folders, fresh);
    data = std::move(fresh);
    dataLoaded(state);
    return trouble;
}

void LoadWordData(const Folders& folders, const QString& itemPath, LinguisticData& data, LoadedState& state,
                  Dialogs& dialogs)
{
    const QString trouble = LoadWordData(folders, itemPath, data, state);
    if (!trouble.isEmpty()) {
        dialogs.message(trouble, QStringLiteral("Kinds of Word Forms"));
    }
}

bool isLoadedItem(const QString& itemPath, const LinguisticData& data)
{
    return !data.ItemPath.isEmpty() && data.ItemPath.compare(itemPath, Qt::CaseInsensitive) == 0;
}

void dropItem(LinguisticData& data, LoadedState& state)
{
    const int reading = data.ItemReading + 1;
    data = {};
    data.ItemReading = reading;
    dataDropped(state);
}
