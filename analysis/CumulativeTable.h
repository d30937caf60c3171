#pragma once

#include "platform/BoundedArray.h"
#include "platform/Saved.h"

#include <QStringList>
#include <QVariant>

/// The running counts of up to ten distinguished word forms over many items, numbered from 1.
struct CumulativeTable
{
    int NumWordforms = 0;
    int NumItemsAccumulated = 0;
    /// Caption of the map.
    QString MapCaption;
    BoundedArray<QString, Bounds{1, 10}> WordformName;
    /// Colour numbers 0..15 of outline and fill.
    BoundedArray<int, Bounds{1, 10}> WordformSymbolColor;
    BoundedArray<qint16, Bounds{1, 10}> WordformPaintColor;
    /// Two values of each word form that are carried in the file, not used.
    BoundedArray<QVariant, Bounds{1, 10}> WordformExtraValue;
    BoundedArray<qint16, Bounds{1, 10}> WordformExtraInt;
    /// Count of word form k at locality j.
    BoundedArray<qint16, Bounds{0, 10}, Bounds{0, 1000}> Counts;
    /// Names of the item files counted, in their order, as far as they are known.
    QStringList CountedItems;

    bool operator==(const CumulativeTable&) const = default;
};

/// The strings that identify each distinguished word form in the answers.
struct SpecifiedChars
{
    /// Number of strings of word form k.
    BoundedArray<qint16, Bounds{0, 400}> NumSpecifyChars;
    /// The c-th string of word form k.
    BoundedArray<QString, Bounds{0, 10}, Bounds{0, 400}> SpecifyChars;

    /// Whether the word forms have the same strings: what stands behind their last ones does not count.
    bool operator==(const SpecifiedChars& other) const;
};

/// The loaded cumulative table with its identifying strings.
struct CumulativeData : CumulativeTable, SpecifiedChars
{
    /// Name of the cumulative file, without folder and ending.
    QString TotalFileName;
    /// Path of the file of identifying strings.
    QString SpecifyFileName;
    /// The word form shown and drawn next, 1..NumWordforms.
    int CurrentWordform = 1;

    /// Path of the cumulative file loaded or saved last, empty where there was none, and its bytes.
    QString TotalFilePath;
    QByteArray TotalFileBytes;
    Saved<CumulativeTable> SavedTable;
    Saved<SpecifiedChars> SavedChars;
};

/// Makes `number` the number of distinguished word forms; the first becomes the current one. Those that are
/// new have nothing but colours of their own; those that are dropped lose their name, colours, counts and
/// strings. Raises subscript out of range for a number that the table has no place for; nothing is changed
/// then.
void setNumWordforms(CumulativeData& data, int number);

/// Whether the table is not what its file holds, and whether the identifying strings are not what theirs
/// holds. A new table is unsaved from the first name, caption, item or count on.
bool isTableUnsaved(const CumulativeData& data);
bool areCharsUnsaved(const CumulativeData& data);

/// Whether word form k has a name, a count or an identifying string.
bool hasContents(const CumulativeData& data, int k);

/// Whether any word form has an identifying string.
bool hasIdentifyingStrings(const CumulativeData& data);

/// Whether the item file of that name is known to be counted in the table.
bool isCounted(const CumulativeTable& table, const QString& itemName);

/// The names of the distinguished word forms, in their order.
QStringList wordformNames(const CumulativeTable& table);
