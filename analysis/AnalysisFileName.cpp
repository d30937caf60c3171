#include "analysis/AnalysisFileName.h"

#include "platform/FileName.h"
#include "platform/RunTimeError.h"

QString analysisFileStem(const QString& path, const FileKind& kind)
{
    return withoutEnding(fileNameOf(path), kind.ending);
}

QString analysisFilePath(const Folders& folders, const QString& name, const FileKind& kind)
{
    QString path =
        folders.dataFolder() + QLatin1Char('\\') + withoutEnding(name.trimmed(), kind.ending) + kind.ending;
    if (!isFileName(name)) {
        throw RunTimeError(ErrorNumber::BadFileName).at({path});
    }
    return path;
}

std::optional<QString> analysisSavePath(const Folders& folders, const QString& name, const FileKind& kind,
                                        Dialogs& dialogs)
{
    const QString path = analysisFilePath(folders, name, kind);
    const bool mayBeSaved = askToSave(dialogs, folders.Drive, path, QStringLiteral("Re Input File Name"));
    return mayBeSaved ? std::optional(path) : std::nullopt;
}
