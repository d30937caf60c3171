#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

// CLDF is a folder of CSV tables with a metadata file that says what tables and columns mean. They mean the
// same in every data set, by terms such as "FormTable" and "languageReference", whatever their names are.

/// A column of a CLDF table.
struct CldfColumn
{
    QString name;
    /// What it means; empty where CLDF has no term for it.
    QString term;
    /// What parts its values where a cell can hold several.
    QString separator;
    /// What a cell without a value holds.
    QStringList nulls;
};

/// A table of a CLDF data set.
struct CldfTable
{
    QString term;
    /// Its file, as GDAL opens it.
    QString path;
    std::vector<CldfColumn> columns;

    /// The column that means `term`, or none.
    const CldfColumn* find(const QString& term) const;
};

/// What a metadata file says of its data set.
struct CldfMetadata
{
    QString path;
    /// "Wordlist", "StructureDataset", and others.
    QString module;
    QString title;
    std::vector<CldfTable> tables;

    /// The table that means `term`, or none.
    const CldfTable* find(const QString& term) const;
    /// The same. Raises type mismatch where there is none, and says what it is needed for.
    const CldfTable& table(const QString& term, const QString& purpose) const;
};

/// The metadata of the data set at `path`: a metadata file, a folder or zip with one. Of several it is a word
/// list or structure data set where there is one. Nothing where there is none. Raises what reading raises.
std::optional<CldfMetadata> findCldfMetadata(const QString& path);
