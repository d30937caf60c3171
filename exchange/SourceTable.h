#pragma once

#include "geodata/TableRow.h"
#include "platform/RunTimeError.h"

#include <QString>
#include <QStringList>

#include <vector>

/// A table as text: its headings and its rows.
struct SourceTable
{
    /// The file, a path of this machine.
    QString path;
    int headingRow = 0;
    QStringList headings;
    std::vector<TableRow> rows;

    /// `error` at a row and a column (from 0) of this table.
    RunTimeError errorAt(const TableRow& row, int column, const QString& what) const;
};

/// Reads the table at `path`, a path of this machine: a text with columns parted by commas, semicolons, tabs
/// or bars, or the first filled sheet of an XLSX or ODS file; the first table in a zip. Lines that begin with
/// "#" and title lines above the headings are passed over. Cells of formulas are their values; of merged
/// cells the first is filled. Raises file not found, permission denied, type mismatch for what is no table or
/// not sound.
SourceTable readTable(const QString& path);

/// Whether a file of that name can be a table: .csv, .tsv, .tab, .txt, .u16, .xlsx, .ods, or one of them
/// zipped.
bool isTableName(const QString& path);
