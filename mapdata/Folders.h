#pragma once

#include "platform/DriveC.h"

#include <QString>

/// Where the program's data lies. All paths are joined as they stand, with backslashes.
struct Folders
{
    DriveC Drive;
    /// The installation folder, without a trailing backslash.
    QString VarnPath = QStringLiteral("C:\\Varn62E\\Varn");
    /// The current map: a backslash and its name.
    QString VarnMapName;
    /// Whether a map is current.
    bool hasMap() const { return VarnMapName.size() > 1; }
    /// The current map's folder of items and symbol files, relative to `VarnPath`.
    QString LingFolder;
    /// Path of the file whose existence says that the program has been set up.
    QString DriveFileName;
    /// Path of the file that holds the current map and the map font.
    QString MapNameFile;

    /// The current map's folder of items and symbol files.
    QString dataFolder() const { return VarnPath + LingFolder; }
};

/// The folder that the installation lies in: the contents of the drive file.
QString installationRoot();

/// Fixes the installation folder and the paths of the drive file and the map-name file.
void fixPaths(Folders& folders);

/// Fixes the current map's folder of items and symbol files.
void fixLingFolder(Folders& folders);
