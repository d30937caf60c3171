#include "lingdata/ItemFolder.h"

#include "lingdata/LinguisticFile.h"

#include <QDir>

QStringList itemFiles(const DriveC& drive, const QString& folder)
{
    const QDir dir(drive.hostPath(folder));
    if (!dir.exists()) {
        throw RunTimeError(ErrorNumber::PathNotFound).at({folder});
    }
    QStringList paths;
    for (const QString& name :
         dir.entryList({ItemFiles.pattern()}, QDir::Files, QDir::Name | QDir::IgnoreCase)) {
        paths << folder + QLatin1Char('\\') + name;
    }
    return paths;
}
