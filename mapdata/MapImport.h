#pragma once

#include "mapdata/BaseMap.h"
#include "platform/DriveC.h"

/// Reads localities from the file at `path`: a localities file (its first line is the count alone), or a
/// table with x and y in its first two columns, one locality a line. The columns are separated by commas,
/// semicolons, tabs or blanks; a first line without numbers is passed over as the heading.
///
/// Raises type mismatch for a line without two numbers, overflow, subscript out of range beyond 1000
/// localities, and input past end of file where there is no locality, each with the line and, where a
/// coordinate is at fault, the field; and the errors of reading a file.
Localities importLocalities(const DriveC& drive, const QString& path);
