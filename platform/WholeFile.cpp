#include "platform/WholeFile.h"

#include "platform/RunTimeError.h"
#include "platform/TextEncoding.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <system_error>
#include <unistd.h>

namespace {

constexpr qint64 MaxFileSize = 64LL * 1024 * 1024;

[[noreturn]] void raise(ErrorNumber number, const QString& path, const QString& detail = {})
{
    throw RunTimeError(number, detail).at({path});
}

/// Raises the error that the last step of writing `file` ended with. A disk can be full at every step: where
/// the file is made, written, and put in its place.
[[noreturn]] void raiseWriteError(const QFileDevice& file, ErrorNumber otherwise, const QString& path)
{
    const bool full = file.error() == QFileDevice::ResourceError || errno == ENOSPC || errno == EDQUOT;
    raise(full ? ErrorNumber::DiskFull : otherwise, path, file.errorString());
}

/// A device or a pipe has no end to read up to, and would not be one any more after a file took its place.
void requireRegular(const QFileInfo& file, const QString& path)
{
    if (file.isDir()) {
        raise(ErrorNumber::PermissionDenied, path, QStringLiteral("It is a folder."));
    }
    if (file.exists() && !file.isFile()) {
        raise(ErrorNumber::PermissionDenied, path, QStringLiteral("It is a device or a pipe, not a file."));
    }
}

void requireReadable(const QFileInfo& file, const QString& path)
{
    if (!file.exists()) {
        const bool folderExists = QFileInfo::exists(file.absolutePath());
        raise(folderExists ? ErrorNumber::FileNotFound : ErrorNumber::PathNotFound, path);
    }
    requireRegular(file, path);
    if (file.size() > MaxFileSize) {
        raise(ErrorNumber::OutOfMemory, path, QStringLiteral("The file is larger than 64 MiB."));
    }
}

/// Makes the file with all of `bytes`; it stays open.
void writeAll(QFileDevice& file, const QString& path, const QByteArray& bytes)
{
    errno = 0;
    if (!file.open(QIODevice::WriteOnly)) {
        raiseWriteError(file, ErrorNumber::PermissionDenied, path);
    }
    // A disk that fills up takes a part of the bytes before it refuses the rest.
    for (qsizetype written = 0; written < bytes.size();) {
        const qint64 taken = file.write(bytes.constData() + written, bytes.size() - written);
        if (taken <= 0) {
            raiseWriteError(file, ErrorNumber::DeviceIOError, path);
        }
        written += taken;
    }
    // What is still in the buffer would be lost without a word when the file is closed.
    if (!file.flush() || file.error() != QFileDevice::NoError) {
        raiseWriteError(file, ErrorNumber::DeviceIOError, path);
    }
}

/// Waits until what was written is on the disk. `QSaveFile` waits too, but says nothing where that fails. A
/// file system that cannot be waited for has no fault.
void requireOnDisk(const QFileDevice& file, const QString& path)
{
    if (fsync(file.handle()) == 0 || errno == EINVAL || errno == ENOTSUP) {
        return;
    }
    const int error = errno;
    const bool full = error == ENOSPC || error == EDQUOT;
    raise(full ? ErrorNumber::DiskFull : ErrorNumber::DeviceIOError, path,
          QString::fromStdString(std::generic_category().message(error)));
}

} // namespace

QByteArray readBytes(const DriveC& drive, const QString& path)
{
    const QString hostPath = drive.hostPath(path);
    requireReadable(QFileInfo(hostPath), path);
    QFile file(hostPath);
    if (!file.open(QIODevice::ReadOnly)) {
        raise(ErrorNumber::PermissionDenied, path, file.errorString());
    }
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        raise(ErrorNumber::DeviceIOError, path, file.errorString());
    }
    return bytes;
}

QString readTextFile(const DriveC& drive, const QString& path)
{
    try {
        return decodeText(readBytes(drive, path));
    } catch (const RunTimeError& error) {
        throw error.hasPlace() ? error : error.at({path});
    }
}

void replaceHostFile(const QString& hostPath, const QString& path, const QByteArray& bytes)
{
    const QFileInfo target(hostPath);
    if (!QFileInfo::exists(target.absolutePath())) {
        raise(ErrorNumber::PathNotFound, path);
    }
    requireRegular(target, path);
    QSaveFile file(target.absoluteFilePath());
    writeAll(file, path, bytes);
    requireOnDisk(file, path);
    if (!file.commit()) {
        raiseWriteError(file, ErrorNumber::DeviceIOError, path);
    }
}

void writeNewHostFile(const QString& hostPath, const QString& path, const QByteArray& bytes)
{
    QFile file(hostPath);
    writeAll(file, path, bytes);
}

void replaceFile(const DriveC& drive, const QString& path, const QByteArray& bytes)
{
    replaceHostFile(drive.hostPath(path), path, bytes);
}

bool fileExists(const DriveC& drive, const QString& path)
{
    return QFileInfo(drive.hostPath(path)).isFile();
}
