#pragma once

#include "lingdata/ItemEditor.h"
#include "lingdata/ItemLoader.h"
#include "mapdata/Folders.h"

// The files that an item is opened from for entry, and saved to.

/// Path of the file that an item called `name` (with or without ".dbs") is saved to, in the current map's
/// data folder; empty where there is no name. Raises bad file name for one that no file can have.
QString enteredItemPath(const Folders& folders, const QString& name);

/// Path of the list of input kinds of the item at `itemPath`: in the data folder, with the item's name.
QString inputKindsPath(const Folders& folders, const QString& itemPath);

/// An item opened for entry.
struct OpenedItem
{
    ItemEditor editor;
    /// What the user is to be told of a list of input kinds that cannot be read; empty where all went well.
    QString trouble;
};

/// Opens the item at `itemPath` with its list of input kinds. Where there is no such list, or none that can
/// be read, the word forms are its kinds, as far as it holds them. Raises what reading the item raises.
OpenedItem openItem(const Folders& folders, const QString& itemPath);

/// Saves the item to `itemPath` and its list of input kinds. The item's kinds file is removed, since it no
/// longer fits. Raises what writing raises.
void saveItem(const Folders& folders, const QString& itemPath, ItemEditor& editor);

/// Makes the kinds file of the item that was saved to `itemPath`. Raises subscript out of range for more than
/// 200 kinds, and what writing raises, permission denied for one that is in the way of it too.
void renewKindsFile(const Folders& folders, const QString& itemPath, const ItemEditor& editor);

/// Loads the item that was saved to `itemPath` afresh, and makes its kinds file. Raises what `LoadWordData`
/// and `renewKindsFile` raise; no item is loaded then.
void reloadItem(const Folders& folders, const QString& itemPath, LinguisticData& data, LoadedState& state,
                Dialogs& dialogs);
