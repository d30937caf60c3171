#pragma once

#include <QString>

/// What tells items apart by their paths, whose letter case does not count.
inline QString itemKey(const QString& itemPath)
{
    return itemPath.toCaseFolded();
}
