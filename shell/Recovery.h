#pragma once

#include "shell/UnsavedWork.h"

#include <memory>

class QLockFile;

/// Writes `work` into `folder`: its parts in files like those that they would be saved to, and a file that
/// says what they are. Raises what writing raises.
void writeWork(const UnsavedWork& work, const DriveC& drive, const QString& folder);

/// The work that `writeWork` wrote into `folder`. Raises what reading raises.
UnsavedWork readWork(const DriveC& drive, const QString& folder);

/// Keeps unsaved work in a folder of its own while the program runs, so that it is there after an end without
/// saving. The folder is locked as long as this lives, for other programs that run to leave it alone.
class Recovery
{
public:
    explicit Recovery(DriveC drive);
    ~Recovery();

    /// Keeps `work` in place of what was kept; where it is empty, nothing is kept any more. Raises permission
    /// denied and what writing raises.
    void keep(const UnsavedWork& work);

private:
    void lock();

    DriveC m_drive;
    QString m_folder;
    std::unique_ptr<QLockFile> m_lock;
};

/// The folders in which programs that no longer run left work.
QStringList foldersLeftBehind(const DriveC& drive);

/// Removes such a folder.
void removeLeftBehind(const DriveC& drive, const QString& folder);

/// Puts such a folder, which cannot be read, out of the way, for a person to look at, and returns its new
/// path.
QString setAside(const DriveC& drive, const QString& folder);
