#pragma once

#include "exchange/SourceTable.h"

#include <QByteArray>

/// The rows of a text whose columns are parted by commas, semicolons, tabs or bars, whichever parts its rows
/// most evenly. Lines that begin with "#" are passed over. Raises type mismatch for bytes that are no text.
std::vector<TableRow> textTableRows(const QByteArray& bytes);
