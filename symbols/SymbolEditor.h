#pragma once

#include "symbols/SymbolSet.h"

#include <QString>

#include <optional>

/// What the fields of the symbol editor hold.
struct HankoFields
{
    QString Explain;
    QString word;
    QString caption;
    /// The symbol number as it is typed.
    QString number;
    /// Colours, paint, size and thickness; its symbol number is not used.
    HankoStyle style;

    bool operator==(const HankoFields&) const = default;
};

/// `text` without the blanks at its right end.
QString DelBlankChar(const QString& text);

/// `style` with 0 for every value that the lists of colours, sizes and thicknesses do not have.
HankoStyle listedStyle(const HankoStyle& style);

/// Edits the shared symbol set record by record. What a form's fields hold is handed in where it counts; what
/// they are to show next comes back.
class SymbolEditor
{
public:
    explicit SymbolEditor(SymbolSet& set) : m_set(set) {}

    /// "5/7", or "8/New" where the current record is beyond the set.
    QString counter() const;

    /// The fields of a new record, with that comment.
    static HankoFields NewData(const QString& Explain);
    /// The current record. Raises subscript out of range where there is none of its number.
    HankoFields GetData() const;
    /// Stores the fields into the current record. A symbol number that an earlier record has brings that
    /// record's style into the fields. Raises overflow for a number that no 16-bit integer holds.
    HankoFields SetData(const HankoFields& fields);

    /// Makes an empty set's first record the current one, with cleared fields.
    HankoFields start();
    /// Stores the fields, and counts the record where it is new and has a kind.
    HankoFields registerRecord(const HankoFields& fields);

    /// Goes to the next record, behind the last one to a new record; stays where the kind is empty. Nothing
    /// at the last record that a set can have.
    std::optional<HankoFields> next(const HankoFields& fields);
    /// Goes to the previous record; stays at record 1.
    HankoFields previous(const HankoFields& fields);
    /// Goes to record k of the set; the comment in the fields is `Explain` still. Raises subscript out of
    /// range where no set has it.
    HankoFields goTo(int k, const QString& Explain);

    // Each raises subscript out of range for a negative number, which changes nothing.

    /// Inserts an empty record as number n, makes it the current one and stores the comment. A number beyond
    /// the set does nothing and returns nothing; number 0 clears the scratch record. Raises subscript out of
    /// range where the set is full.
    std::optional<HankoFields> insertRecord(int n, const QString& Explain);
    /// Deletes record n of the set; what the last record held stays behind the set. Fields and current
    /// record stay; returns whether the fields belong to the current record no longer.
    bool deleteRecord(int n);

    /// Empties the set.
    HankoFields initialize();

    /// The records that the preview shows: none where the last is before the first.
    int firstShown() const { return m_firstShown; }
    int lastShown() const { return m_lastShown; }
    /// Shows the last records of the set.
    void DisplayHanreiData();
    /// Each scrolls the preview by one record.
    void scrollUp();
    void scrollDown();

    static constexpr int MaxShown = 20;

private:
    HankoFields fieldsOf(int k) const;
    void SetSame(HankoStyle& style) const;
    void copyRecord(int from, int to);

    SymbolSet& m_set;
    int m_firstShown = 1;
    int m_lastShown = 0;
};
