#pragma once

#include <QString>

/// Whether a file can be called `name` on every system: it has no separator, no wildcard, no control
/// character.
bool isFileName(const QString& name);
