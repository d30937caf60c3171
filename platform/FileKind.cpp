#include "platform/FileKind.h"

#include "platform/Dialogs.h"
#include "platform/FileName.h"
#include "platform/Folder.h"
#include "platform/WholeFile.h"

QString FileKind::pattern() const
{
    return QLatin1Char('*') + ending;
}

QString FileKind::filter() const
{
    return QStringLiteral("%1 (%2)|%2").arg(name, pattern());
}

std::optional<QString> askToOpen(Dialogs& dialogs, const DriveC& drive, const QString& folder,
                                 const QString& title, const QString& filter)
{
    const std::optional<QString> file = dialogs.openFile(title, nearestFolder(drive, folder), filter);
    return file ? std::optional(drive.varnPath(*file)) : std::nullopt;
}

std::optional<QString> askWhereToSave(Dialogs& dialogs, const DriveC& drive, const QString& path,
                                      const QString& title, const QString& filter)
{
    const std::optional<QString> file =
        dialogs.saveFile(title, nearestFolder(drive, folderOf(path)), filter, fileNameOf(path));
    return file ? std::optional(drive.varnPath(*file)) : std::nullopt;
}

bool askToSave(Dialogs& dialogs, const DriveC& drive, const QString& path, const QString& title,
               const QString& question)
{
    return !fileExists(drive, path) || dialogs.confirmLoss(question, title);
}
