#include "analysis/AnalysisFileName.h"

#include "platform/FileKind.h"
#include "platform/FileName.h"
#include "platform/RunTimeError.h"

QString analysisFileStem(const QString& path, const QString& ending)
{
    return withoutEnding(fileNameOf(path), ending);
}

QString analysisFilePath(const Folders& folders, const QString& name, const QString& ending)
{
    QString path = folders.dataFolder() + QLatin1Char('\\') + withoutEnding(name.trimmed(), ending) + ending;
    if (!isFileName(name)) {
        throw RunTimeError(ErrorNumber::BadFileName).at({path});
    }
    return path;
}

std::optional<QString> analysisSavePath(const Folders& folders, const QString& name, const QString& ending,
                                        Dialogs& dialogs)
{
    const QString path = analysisFilePath(folders, name, ending);
    const bool mayBeSaved = askToSave(dialogs, folders.Drive, path, QStringLiteral("Re Input File Name"));
    return mayBeSaved ? std::optional(path) : std::nullopt;
}
