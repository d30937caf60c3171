#pragma once

#include <QStringList>

/// A file name for each item, without ending: the item's number and as much of its name as every system can
/// have in a file name, such as "007-rain". So they are unique, whatever system ignores letter case, and
/// stand in the order of the source.
QStringList itemFileNames(const QStringList& items);
