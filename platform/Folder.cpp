#include "platform/Folder.h"

#include "platform/RunTimeError.h"

#include <QDir>
#include <QFileInfo>

bool folderExists(const DriveC& drive, const QString& path)
{
    return QFileInfo(drive.hostPath(path)).isDir();
}

void makeFolder(const DriveC& drive, const QString& path)
{
    if (!QDir().mkpath(drive.hostPath(path))) {
        throw RunTimeError(ErrorNumber::PermissionDenied, QStringLiteral("The folder cannot be made."))
            .at({path});
    }
}

QString nearestFolder(const DriveC& drive, const QString& path)
{
    QFileInfo folder(drive.hostPath(path));
    while (!folder.isDir() && !folder.isRoot()) {
        folder.setFile(folder.path());
    }
    return folder.filePath();
}
