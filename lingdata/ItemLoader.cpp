#include "lingdata/ItemLoader.h"

#include "lingdata/KindList.h"
#include "lingdata/LinguisticFile.h"

#include <utility>

namespace {

void writeKindsFile(const Folders& folders, const QString& path, const WordKinds& kinds)
{
    writeSequentialFile(folders.Drive, path, [&kinds](SequentialWriter& file) { writeKinds(file, kinds); });
}

} // namespace

QString kindsFilePath(const Folders& folders, const QString& itemPath)
{
    QString name = itemPath.mid(itemPath.lastIndexOf(QLatin1Char('\\')) + 1);
    if (const qsizetype dot = name.lastIndexOf(QLatin1Char('.')); dot >= 0) {
        name.truncate(dot);
    }
    return folders.dataFolder() + QLatin1Char('\\') + name + QStringLiteral(".srt");
}

void InputWordData(const Folders& folders, const QString& path, WordKinds& kinds)
{
    readSequentialFile(folders.Drive, path, [&kinds](SequentialReader& file) { readKinds(file, kinds); });
}

void FileWordData(const Folders& folders, const QString& path, LinguisticData& data)
{
    SearchKindWord(data);
    SortKindWord(data);
    writeKindsFile(folders, path, data);
}

LinguisticData readWordData(const Folders& folders, const QString& itemPath)
{
    LinguisticData fresh;
    static_cast<ItemAnswers&>(fresh) = readSequentialFile(folders.Drive, itemPath, readItem);
    fresh.ItemFileName = itemPath.mid(itemPath.lastIndexOf(QLatin1Char('\\')) + 1);
    fresh.KindsPath = kindsFilePath(folders, itemPath);
    if (fileExists(folders.Drive, fresh.KindsPath)) {
        InputWordData(folders, fresh.KindsPath, fresh);
    } else {
        SearchKindWord(fresh);
        SortKindWord(fresh);
    }
    return fresh;
}

void LoadWordData(const Folders& folders, const QString& itemPath, LinguisticData& data, LoadedState& state)
{
    const bool haveKinds = fileExists(folders.Drive, kindsFilePath(folders, itemPath));
    data = readWordData(folders, itemPath);
    dataLoaded(state);
    if (!haveKinds) {
        writeKindsFile(folders, data.KindsPath, data);
    }
}
