#pragma once

#include "mapdata/NamedLocalities.h"
#include "platform/Dialogs.h"
#include "shell/VarnModule.h"

#include <functional>
#include <optional>

// The import commands. Each asks for a file, reads it, asks where to save it, and writes it there as a file
// of the base map; the folders of the current map are made where they are missing. Where that is a file of
// the current map, the map is loaded from it. A cancelled dialog ends the command; an error leaves file and
// map as they were.

/// Reads localities with names and degrees from a file of this machine for a map that has the names
/// `current`; nothing where the file tells none.
using ReadNamedLocalities =
    std::function<std::optional<NamedLocalities>(const QString& path, const LocalityNames& current)>;

/// Localities: where `readNamed` reads the file, with their names, which are written beside them; else from a
/// localities file or a table of x and y.
void SaveLocateData(VarnModule& varn, Dialogs& dialogs, const ReadNamedLocalities& readNamed);
/// Coast, borders and rivers.
void SaveLineData(VarnModule& varn, Dialogs& dialogs);
/// The polygon designs of symbols.
void SaveSquareData(VarnModule& varn, Dialogs& dialogs);

/// Asks for a file of place names, writes it as the installation's special place names, makes them the
/// current place names, and draws the base map anew with them where it has lines. A map without place names
/// of its own keeps them as its own.
void SaveKanjiData(VarnModule& varn, Dialogs& dialogs, MapSurfaces surfaces);
