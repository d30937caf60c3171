#pragma once

#include <QString>

#include <optional>

/// A cell of the table that an item is entered in: a word form, which may be empty, or nothing.
using WordCell = std::optional<QString>;

/// What `text` makes of a cell when it is typed there: nothing where it is blank, an empty word form where it
/// is two double quotes.
WordCell typedCell(const QString& text);

/// How a cell reads where it is shown and edited.
QString cellText(const WordCell& cell);
