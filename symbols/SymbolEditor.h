#pragma once

#include "symbols/SymbolSet.h"

#include <QString>

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

/// Edits the shared symbol set record by record. The fields of whoever shows the current record are handed in
/// and come back as they are to be shown.
class SymbolEditor
{
public:
    explicit SymbolEditor(SymbolSet& set) : m_set(set) {}

    /// "5/7", or "8/New" where the current record is beyond the set.
    QString counter() const;

    /// Clears the fields of a record; the comment stays.
    static void NewData(HankoFields& fields);
    /// The current record. Raises subscript out of range where there is none of its number.
    HankoFields GetData() const;
    /// Stores the fields into the current record. A symbol number that an earlier record has brings that
    /// record's style into the fields. Raises overflow for a number that no 16-bit integer holds.
    void SetData(HankoFields& fields);

    /// Makes an empty set's first record the current one, with cleared fields.
    void start(HankoFields& fields);
    /// Stores the fields, and counts the record where it is new and has a kind.
    void registerRecord(HankoFields& fields);

    enum class NextResult { Done, Full };
    /// Goes to the next record, behind the last one to a new record; stays where the kind is empty. Full at
    /// the last record that a set can have.
    NextResult next(HankoFields& fields);
    /// Goes to the previous record; stays at record 1.
    void previous(HankoFields& fields);
    /// Goes to record k of the set. Raises subscript out of range where no set has it.
    void goTo(int k, HankoFields& fields);

    // Each raises subscript out of range for a negative number, which changes nothing.

    /// Inserts an empty record as number n and makes it the current one. A number beyond the set does
    /// nothing; number 0 clears the scratch record. Raises subscript out of range where the set is full.
    void insertRecord(int n, HankoFields& fields);
    /// Deletes record n of the set; what the last record held stays behind the set. Fields and current
    /// record stay; returns whether the fields belong to the current record no longer.
    bool deleteRecord(int n);

    /// Empties the set.
    void initialize(HankoFields& fields);

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
