#pragma once

#include "platform/SequentialFile.h"
#include "shell/VarnModule.h"

/// What the map-name file holds: the current map (a backslash and its name) and the font of map texts.
struct MapChoice : MapFont
{
    QString VarnMapName;
};

/// The folder that the installation lies in: the contents of the drive file.
QString installationRoot();

/// Fixes the installation folder and the paths of the drive file and the map-name file.
void fixPaths(Folders& folders);

/// The current map and map font.
MapChoice currentMapChoice(const VarnModule& varn);

/// Makes `choice` the current map and map font; phonetic glyphs are bold where the font is. The
/// sums of a contrast are outdated.
void applyMapChoice(const MapChoice& choice, VarnModule& varn);

/// Fixes the current map's folder of items and symbol files.
void fixLingFolder(Folders& folders);

/// The six fields of a map-name file.
MapChoice readMapChoice(SequentialReader& file);
void writeMapChoice(SequentialWriter& file, const MapChoice& choice);

/// Reads the map-name file. Raises file not found, and the errors of a short or malformed file.
MapChoice loadMapChoice(const Folders& folders);
/// Writes the map-name file. Raises path not found, permission denied, disk full, device I/O error.
void saveMapChoice(const Folders& folders, const MapChoice& choice);
/// Writes the drive file. Raises what `saveMapChoice` raises.
void saveDriveFile(const Folders& folders);

/// The question that the start-up asks about a map-name file that was read.
QString mapChoiceQuestion(const MapChoice& choice);
