#pragma once

#include <QString>

#include <optional>

/// Where the program's paths lie on this machine. Paths are written `C:\Varn62E\Varn\...` throughout. On
/// Windows they are used as they are; elsewhere `C:` is a folder of the user's data and `Z:` is the root of
/// the file system. Names match without regard to letter case.
class DriveC
{
public:
    /// Drive C: is the folder `drive_c` in the user's data folder of this program.
    DriveC();
    /// Drive C: is the folder `root`.
    explicit DriveC(QString root);

    /// The path on this machine of `path`. Existing names are found in whatever letter case they have; where
    /// a name does not exist it is kept as written. Raises bad file name where there is no drive C: or Z:.
    QString hostPath(const QString& path) const;

    /// The path on this machine of a path on drive C: or Z:; nothing for any other text.
    std::optional<QString> knownHostPath(const QString& path) const;

    /// The program's path of a file or folder of this machine.
    QString varnPath(const QString& hostPath) const;

private:
    QString m_root;
};
