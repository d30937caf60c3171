#pragma once

#include <QString>

#include <optional>

class Dialogs;
class DriveC;

/// A kind of file that the user is asked for.
struct FileKind
{
    /// What the files are called where a kind is chosen, such as "RNK files".
    QLatin1String name;
    /// The end of their names, such as ".rnk".
    QLatin1String ending;

    /// What the names of the files match, such as "*.rnk".
    QString pattern() const;
    /// As the dialogs take it.
    QString filter() const;
};

/// Asks for an existing file, beginning in `folder` or the nearest one above it that exists, a path of the
/// program, as the one returned is. Nothing where the dialog was cancelled.
std::optional<QString> askToOpen(Dialogs& dialogs, const DriveC& drive, const QString& folder,
                                 const QString& title, const QString& filter);

/// Asks for the file to save to, `path` proposed; the same of folders and of the path returned.
std::optional<QString> askWhereToSave(Dialogs& dialogs, const DriveC& drive, const QString& path,
                                      const QString& title, const QString& filter);

/// Whether the file at `path` may be written: asks where there is one already.
bool askToSave(Dialogs& dialogs, const DriveC& drive, const QString& path, const QString& title,
               const QString& question = QStringLiteral("File already exist. Overwrite O.K.? "));
