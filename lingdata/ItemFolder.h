#pragma once

#include "platform/DriveC.h"

#include <QStringList>

/// The paths of the items in `folder`, its `.dbs` files, in the order of their names. Raises path not found
/// for a folder that is not there.
QStringList itemFiles(const DriveC& drive, const QString& folder);
