#pragma once

#include <QColor>
#include <QStringList>

/// The colour of a number 0..15 of the standard sixteen-colour palette. Raises invalid procedure call for
/// any other number.
QRgb QBColor(int number);

/// The names of the sixteen colours, in the order of their numbers.
QStringList standardColorNames();
