#pragma once

#include "mapdata/Folders.h"

#include <QByteArray>
#include <QStringList>

#include <utility>
#include <vector>

class RunTimeError;
struct ItemAnswers;

/// What the list of items tells of an item.
struct AtlasItem
{
    /// Path of the program.
    QString path;
    QString caption;
    /// Its distinct word forms, in order of first appearance.
    QStringList wordForms;
    /// How many localities it has, and how many of them have a word form.
    int localities = 0;
    int answered = 0;
    bool hasSymbols = false;
    /// Why the item, or its symbol file, cannot be read, as `unreadable` says it; empty where they can.
    QString trouble;

    /// Name of its file, without its ending.
    QString name() const;
};

/// Paths of the items of the current map, in the order of their names; none where the map has no folder of
/// items.
QStringList atlasItemPaths(const Folders& folders);

/// The same items with marks of what their files hold: `fileMark` of the item, a slash, and that of the
/// symbol file that belongs to it.
std::vector<std::pair<QString, QByteArray>> atlasItemMarks(const Folders& folders);

/// Reads the item at `path` for the list. An item that cannot be read has its reason in it.
AtlasItem readAtlasItem(const Folders& folders, const QString& path);

/// That `what` cannot be read and why: a line, and the place in the file in further ones.
QString unreadable(const QString& what, const RunTimeError& error);

/// Tells in `item` what its word forms are.
void describe(const ItemAnswers& answers, AtlasItem& item);

/// A mark of what the file at `path` holds, by its size and time; empty where there is no file.
QByteArray fileMark(const Folders& folders, const QString& path);

/// The path of the symbol file that belongs to the item at `itemPath`: the one of its name.
QString symbolPathOf(const QString& itemPath);

/// Whether `text`, without regard to letter case, stands in the item's caption, name or a word form.
bool contains(const AtlasItem& item, const QString& text);
/// The word forms in which `text` stands, where neither the caption nor the name has it.
QStringList wordFormsWith(const AtlasItem& item, const QString& text);
