#pragma once

#include "exchange/ImportReport.h"
#include "exchange/SurveyChoices.h"
#include "mapdata/Folders.h"

#include <optional>

/// Whether a survey can be written to a file of that name: .csv, .geojson, .gpkg, or a name without an ending
/// for a folder.
bool isExportName(const QString& path);

/// Writes the current map with all its items to `output`, a path of this machine: a table or a layer of its
/// localities with a column an item, or a folder with a CLDF Wordlist. It is there as a whole or not at all;
/// a file of that name is replaced, a folder never. Tells what was written and what was left out; nothing
/// where `progress` stopped it. Raises bad file name, permission denied for a folder that is there, and what
/// reading the map and writing files raise.
std::optional<ImportReport> exportSurvey(const Folders& folders, const QString& output,
                                         const ExchangeProgress& progress);
