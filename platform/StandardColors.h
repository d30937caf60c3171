#pragma once

#include <QColor>
#include <QStringList>

/// The standard sixteen colours, with their numbers in files.
enum class StandardColor {
    Black,
    Blue,
    Green,
    Cyan,
    Red,
    Magenta,
    Yellow,
    White,
    Gray,
    LightBlue,
    LightGreen,
    LightCyan,
    LightRed,
    LightMagenta,
    LightYellow,
    LightWhite
};

QRgb QBColor(StandardColor color);

/// The colour of a number 0..15 of the standard sixteen-colour palette. Raises invalid procedure call for
/// any other number.
QRgb QBColor(int number);

/// The names of the sixteen colours, in the order of their numbers.
QStringList standardColorNames();
