#pragma once

#include "exchange/CldfMetadata.h"
#include "exchange/SourceTable.h"

#include <initializer_list>
#include <string_view>

/// The rows of a CLDF table, whose cells are asked for by what their columns mean.
class CldfRows
{
public:
    /// Reads the columns that mean `required`, and those that mean `optional` as far as the table has them.
    /// Raises file not found, and type mismatch for a table that is no CSV in UTF-8, where no column means a
    /// required term, and for a column that the file lacks.
    CldfRows(const CldfTable& table, std::initializer_list<const char*> required,
             std::initializer_list<const char*> optional = {});

    const std::vector<TableRow>& rows() const { return m_table.rows; }
    /// The cell in the column that means `term`; empty where none does.
    QString cell(const TableRow& row, std::string_view term) const;
    /// The values in such a cell, which is a list where the column says so.
    QStringList values(const TableRow& row, std::string_view term) const;
    /// An error in such a cell, or with a row where no column means `term`.
    RunTimeError errorAt(const TableRow& row, std::string_view term, const QString& what) const;

private:
    struct Column
    {
        std::string_view term;
        CldfColumn column;
        int number = 0;
    };

    /// Adds the columns of these terms; returns their numbers.
    std::vector<int> addColumns(const CldfTable& table, std::initializer_list<const char*> required,
                                std::initializer_list<const char*> optional);
    void addColumn(const CldfTable& table, const char* term);
    const Column* find(std::string_view term) const;

    /// Only the cells of the columns asked for are filled.
    SourceTable m_table;
    std::vector<Column> m_columns;
};
