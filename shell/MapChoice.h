#pragma once

#include "platform/SequentialFile.h"
#include "shell/VarnModule.h"

/// What the map-name file holds: the current map (a backslash and its name) and the font of map texts.
struct MapChoice : MapFont
{
    QString VarnMapName;
};

/// The current map and map font.
MapChoice currentMapChoice(const VarnModule& varn);

/// Makes `choice` the current map and map font; phonetic glyphs are bold where the font is. The
/// sums of a contrast are outdated.
void applyMapChoice(const MapChoice& choice, VarnModule& varn);

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
