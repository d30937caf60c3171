#include "shell/Installation.h"

#include "platform/FileName.h"
#include "platform/Folder.h"
#include "platform/RunTimeError.h"
#include "platform/WholeFile.h"
#include "shell/MapChoice.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

namespace {

bool exists(const Folders& folders, const QString& path)
{
    return QFileInfo::exists(folders.Drive.hostPath(path));
}

void makeFolderOf(const Folders& folders, const QString& path)
{
    makeFolder(folders.Drive, folderOf(path));
}

void copyFile(const QString& source, const QString& path, const Folders& folders)
{
    QFile file(source);
    if (!file.open(QIODevice::ReadOnly)) {
        throw RunTimeError(ErrorNumber::FileNotFound, file.errorString()).at({source});
    }
    makeFolderOf(folders, path);
    replaceFile(folders.Drive, path, file.readAll());
}

/// The names of all files under `source`, relative to it, with slashes.
QStringList filesUnder(const QString& source)
{
    QStringList names;
    const QDir folder(source);
    QDirIterator files(source, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        names << folder.relativeFilePath(files.next());
    }
    names.sort();
    return names;
}

} // namespace

void layDownInstallation(const QString& source, const Folders& folders)
{
    const QString sample = QStringLiteral("VarnData/Sample/");
    const bool newUser = !exists(folders, folders.VarnPath) && !exists(folders, folders.DriveFileName) &&
                         !exists(folders, folders.MapNameFile);
    const bool haveSample = exists(folders, folders.VarnPath + QStringLiteral("\\VarnData\\Sample"));

    for (const QString& name : filesUnder(source)) {
        const QString path =
            folders.VarnPath + QLatin1Char('\\') + QString(name).replace(QLatin1Char('/'), QLatin1Char('\\'));
        const bool ofSample = name.startsWith(sample, Qt::CaseInsensitive);
        if (!(ofSample && haveSample) && !exists(folders, path)) {
            copyFile(source + QLatin1Char('/') + name, path, folders);
        }
    }
    if (newUser) {
        MapChoice choice;
        choice.VarnMapName = QStringLiteral("\\Sample");
        saveMapChoice(folders, choice);
        saveDriveFile(folders);
    }
}
