#pragma once

#include "platform/DriveC.h"

/// Whether a folder exists at `path`.
bool folderExists(const DriveC& drive, const QString& path);

/// Makes the folder at `path` with all that lead to it, where they are missing. Raises permission denied.
void makeFolder(const DriveC& drive, const QString& path);

/// The folder of this machine that a file dialog begins in for `path`: the one there, or the nearest above it
/// that exists.
QString nearestFolder(const DriveC& drive, const QString& path);
