#pragma once

#include <QString>

/// Whether a file can be called `name` on every system: it has no separator, no wildcard, no control
/// character.
bool isFileName(const QString& name);

// Parts of paths of drive C:, whose folders are divided by backslashes. An ending is what stands from the
// last dot of a file's name on, such as ".dbs".

/// The folder of the file at `path`, without a backslash at its end; empty where `path` is only a name.
QString folderOf(const QString& path);
/// The name of the file at `path`, with its ending.
QString fileNameOf(const QString& path);
/// The name of the file at `path`, without its ending, whichever that is.
QString stemOf(const QString& path);
/// `path` with `ending` in place of the ending that it has.
QString withEnding(const QString& path, const QString& ending);
/// `name` without `ending`, in capital letters or small ones, where it has just that.
QString withoutEnding(const QString& name, const QString& ending);
