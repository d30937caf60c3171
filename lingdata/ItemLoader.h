#pragma once

#include "lingdata/LinguisticData.h"
#include "shell/Folders.h"
#include "shell/LoadedState.h"

/// Path of the kinds file of the item at `itemPath`: in the current map's data folder, with the item's name.
QString kindsFilePath(const Folders& folders, const QString& itemPath);

/// Reads the kinds file at `path` into the kinds' words and counts.
void InputWordData(const Folders& folders, const QString& path, WordKinds& kinds);

/// Derives and sorts the kinds of the loaded item, then writes them to the kinds file at `path`.
void FileWordData(const Folders& folders, const QString& path, LinguisticData& data);

/// The item at `itemPath` and its kinds: from its kinds file where there is one, otherwise derived from the
/// item. Raises what reading them raises, and subscript out of range beyond 200 kinds.
LinguisticData readWordData(const Folders& folders, const QString& itemPath);

/// Loads the item at `itemPath` and its kinds: from its kinds file where there is one, otherwise derived from
/// the item and written to that file. A load that fails leaves the loaded item as it was; where only the
/// kinds file cannot be written, the item is loaded all the same.
void LoadWordData(const Folders& folders, const QString& itemPath, LinguisticData& data, LoadedState& state);
