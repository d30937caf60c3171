#pragma once

#include "exchange/SourceChoices.h"

#include <optional>

/// What a column of that heading mostly is, in English, German, French, Spanish and Japanese tables; nothing
/// for a heading that tells nothing.
std::optional<ColumnRole> knownRole(const QString& heading);
