#pragma once

#include <QStringList>

/// A row of a table.
struct TableRow
{
    /// Its number as a spreadsheet or an editor shows it, from 1.
    int number = 0;
    /// As many as the table has headings.
    QStringList cells;
};
