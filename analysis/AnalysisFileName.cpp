#include "analysis/AnalysisFileName.h"

#include "platform/FileName.h"
#include "platform/RunTimeError.h"
#include "platform/WholeFile.h"

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
    QString path = analysisFilePath(folders, name, ending);
    if (fileExists(folders.Drive, path) &&
        !dialogs.confirmLoss(QStringLiteral("File already exist. Overwrite O.K.? "),
                             QStringLiteral("Re Input File Name"))) {
        return std::nullopt;
    }
    return path;
}
