#pragma once

#include "lingdata/ItemEditor.h"
#include "shell/Folders.h"

// The files that an item is opened from for entry, and saved to.

/// Path of the file that an item called `name` (with or without ".dbs") is saved to, in the current map's
/// data folder; empty where there is no name. Raises bad file name for one that no file can have.
QString enteredItemPath(const Folders& folders, const QString& name);

/// Path of the list of input kinds of the item at `itemPath`: in the data folder, with the item's name.
QString inputKindsPath(const Folders& folders, const QString& itemPath);

/// Opens the item at `itemPath` with its list of input kinds. Where there is no such list, the word forms are
/// its kinds, as far as it holds them. Raises what reading the two files raises.
ItemEditor openItem(const Folders& folders, const QString& itemPath);

/// Saves the item to `itemPath` and its list of input kinds. The item's kinds file is removed, since it no
/// longer fits. Raises what writing raises.
void saveItem(const Folders& folders, const QString& itemPath, ItemEditor& editor);

/// Makes the kinds file of the item at `itemPath`. Raises subscript out of range for more than 200 kinds, and
/// what writing raises.
void renewKindsFile(const Folders& folders, const QString& itemPath, const ItemEditor& editor);
