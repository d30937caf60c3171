#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

/// What a column of a table can be. `Item` is an item of a wide table, or names the items of a long one,
/// which `Answer` answers. `Left` is left out.
enum class ColumnRole { Id, Name, Longitude, Latitude, X, Y, Item, Answer, Left };

/// Which texts of a lexical source become word forms.
enum class WordSource { Forms, Cognates, Codes };

/// What the user said of a source; what is empty is guessed from it. All paths are paths of this machine.
struct SourceChoices
{
    /// A folder, metadata file, zip, table or layer.
    QString path;
    /// A table, point layer or KML with the localities, where they stand in a file of their own.
    QString localities;
    /// What parts several answers in a cell, such as ";". A line break is "\n".
    QString answerSeparator;
    WordSource words = WordSource::Forms;
    /// Roles of columns by their headings, where the guess is corrected.
    QMap<QString, ColumnRole> columns;
};
