#pragma once

#include <QString>

/// What to tell the user of an item with `itemLocalities` localities on a map with `mapLocalities`: that the
/// two do not belong together. Empty where the numbers agree.
QString localityMismatch(int itemLocalities, int mapLocalities);
