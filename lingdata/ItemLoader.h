#pragma once

#include "lingdata/LinguisticData.h"
#include "lingdata/LoadedState.h"
#include "mapdata/Folders.h"
#include "platform/Dialogs.h"

/// Path of the kinds file of the item at `itemPath`: in the current map's data folder, with the item's name.
QString kindsFilePath(const Folders& folders, const QString& itemPath);

/// Reads the kinds file at `path` into the kinds' words and counts.
void InputWordData(const Folders& folders, const QString& path, WordKinds& kinds);

/// Derives and sorts the kinds of the loaded item, then writes them to the kinds file at `path`.
void FileWordData(const Folders& folders, const QString& path, LinguisticData& data);

/// The answers of the item at `itemPath`, for whoever needs no kinds. Raises what reading raises.
ItemAnswers readItemAnswers(const Folders& folders, const QString& itemPath);

/// Loads the item at `itemPath` and its kinds: from its kinds file where there is one, otherwise derived from
/// the item and written to that file. A kinds file that cannot be read is left as it is, and the kinds are
/// derived; the item is loaded, too, where the kinds file cannot be written. Returns what the user is to be
/// told of these two; empty where all went well. Raises what reading the item raises, and subscript out of
/// range beyond 200 kinds; the loaded item is then as it was.
QString LoadWordData(const Folders& folders, const QString& itemPath, LinguisticData& data,
                     LoadedState& state);
/// The same; tells the user.
void LoadWordData(const Folders& folders, const QString& itemPath, LinguisticData& data, LoadedState& state,
                  Dialogs& dialogs);

/// Whether the item at `itemPath` is the loaded one.
bool isLoadedItem(const QString& itemPath, const LinguisticData& data);

/// From now on no item is loaded.
void dropItem(LinguisticData& data, LoadedState& state);
