#pragma once

#include "analysis/CumulativeTable.h"

/// Edits the identifying strings of the current word form. One of them is the current string.
class SpecifyCharsEditor
{
public:
    explicit SpecifyCharsEditor(CumulativeData& data) : m_data(data) {}

    /// Makes the first string of the current word form the current one.
    void start();
    QStringList strings() const;

    /// Number of the current string, from 1; 0 where the word form has none.
    int current() const { return m_current; }
    /// The current string; empty where there is none.
    QString text() const;

    /// Makes string c the current one, where the word form has it.
    void choose(int c);
    /// The string behind and before the current one; the last has none behind it, the first none before.
    void next() { choose(m_current + 1); }
    void previous() { choose(m_current - 1); }

    /// Adds `text` behind the strings of the word form. Raises subscript out of range beyond 400 strings.
    void add(const QString& text);
    /// Replaces the current string by `text`; where the word form has none, adds it.
    void rewrite(const QString& text);
    /// Removes the current string; the next becomes the current one, or else the last.
    void remove();
    /// Empties the list of the word form.
    void reset();

private:
    int count() const { return m_data.NumSpecifyChars(m_data.CurrentWordform); }

    CumulativeData& m_data;
    int m_current = 0;
};
