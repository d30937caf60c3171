#pragma once

#include <QString>

#include <optional>

/// The number in `text`, with a decimal point or a decimal comma; nothing where it is none.
std::optional<double> decimalNumber(QString text);

/// The degrees in `text`: a decimal number ("-5,187"), or degrees with minutes and seconds and a letter
/// ("5°11′14″S", "145 22 E", "W 3.5"); nothing where it is none. North and east are positive.
std::optional<double> degrees(const QString& text);

/// The shortest text, with a decimal point, that is read back as `number`.
QString coordinateText(double number);
