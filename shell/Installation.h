#pragma once

#include "mapdata/Folders.h"

/// Lays down the installation tree where it is missing: every file of `source`, a folder of this machine or
/// of the program's resources, that the installation folder does not have yet; the sample survey only as a
/// whole, where its folder is missing. Where nothing at all was there before, the program is set up with the
/// sample as its current map. What the user has is never overwritten.
///
/// Raises path not found, permission denied, disk full, device I/O error.
void layDownInstallation(const QString& source, const Folders& folders);
