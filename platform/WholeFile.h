#pragma once

#include "platform/DriveC.h"

#include <QByteArray>
#include <QString>

/// All bytes of the file at `path`. Raises file not found, path not found, permission denied (also for a
/// folder, a device or a pipe), device I/O error, and out of memory for a file beyond 64 MiB.
QByteArray readBytes(const DriveC& drive, const QString& path);

/// The whole text of the file at `path`, in the encoding that its bytes speak for. Raises type mismatch for a
/// file that holds no text, and what `readBytes` raises.
QString readTextFile(const DriveC& drive, const QString& path);

/// Writes `bytes` to the file at `path` in one step: the file holds either all of them or what it held
/// before. Raises path not found, permission denied (also for a folder, a device or a pipe), disk full,
/// device I/O error.
void replaceFile(const DriveC& drive, const QString& path, const QByteArray& bytes);

/// The same for the file at `hostPath`, a path of this machine; `path` names it in errors.
void replaceHostFile(const QString& hostPath, const QString& path, const QByteArray& bytes);

/// Writes `bytes` to the new file at `hostPath`, in a folder that nobody knows yet; so it does not wait, as
/// `replaceFile` does, until they are on the disk. Raises permission denied, disk full, device I/O error.
void writeNewHostFile(const QString& hostPath, const QString& path, const QByteArray& bytes);

/// Whether a file (not a folder) exists at `path`.
bool fileExists(const DriveC& drive, const QString& path);
