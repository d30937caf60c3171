#pragma once

#include "exchange/SourceChoices.h"
#include "exchange/SourceSurvey.h"
#include "exchange/SourceTable.h"
#include "exchange/TableColumns.h"

/// What parts several answers in the cells of a table, as it is guessed where nobody says it; empty for
/// nothing.
QString guessedSeparator(const SourceTable& table, const TableColumns& columns);

/// Reads a survey from a table: wide (a row a locality, a column an item) or long (locality, item, answer).
/// The localities stand in the same table, in the file that `choices` name, or in a file beside the table.
/// Raises type mismatch, with file, row and column and what can be done, for what is not sound, and what
/// `readTable` and `guessColumns` raise.
SourceSurvey readTableSource(const SourceChoices& choices);

/// The same for a table that was read already.
SourceSurvey surveyInTable(const SourceTable& table, const SourceChoices& choices);
