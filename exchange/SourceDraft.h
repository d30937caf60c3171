#pragma once

#include "exchange/ReadSource.h"
#include "exchange/SourceTable.h"

#include <optional>
#include <vector>

/// A source while its user says what it is: what stands in it, what is guessed, and what is wrong. What was
/// said takes effect with the next `read`.
class SourceDraft
{
public:
    /// A path of this machine. What was said of another source is forgotten, but for its localities.
    void setPath(const QString& path);
    /// The file with the localities; empty where they stand in the source or beside it.
    void setLocalities(const QString& path);
    void setAnswerSeparator(const QString& separator);
    void setWords(WordSource words);
    /// Corrects the guess for a column (from 0) of the table. What only one column can be, no other is any
    /// more.
    void setRole(int column, ColumnRole role);

    /// Reads the source with what was said; what it then is tell the functions below.
    void read();

    const SourceChoices& choices() const { return m_choices; }
    /// Whether there is a source that can be looked into, though its columns may have to be corrected.
    bool isOpen() const { return m_kind == SourceKind::Cldf || m_table; }
    bool isCldf() const { return m_kind == SourceKind::Cldf; }
    /// The rows of a table, or the attributes of a layer; nothing for CLDF.
    const std::optional<SourceTable>& table() const { return m_table; }
    /// What the columns of the table are, by guess and correction.
    ColumnRole role(int column) const { return m_roles[static_cast<std::size_t>(column)]; }
    /// Whether a column can be corrected: corrections go by the heading, so it needs one of its own.
    bool isCorrectable(int column) const;
    /// What parts several answers in a cell, where the user does not say it.
    const QString& guessedSeparator() const { return m_guessedSeparator; }
    /// The survey, where the source was read and nothing was said since.
    const std::optional<SourceSurvey>& survey() const { return m_survey; }
    /// What the source was recognised as, and what came in, in lines.
    QString description() const;
    /// What is wrong and what can be done; empty where nothing is.
    const QString& fault() const { return m_fault; }

private:
    void open();
    void guess();
    void forget();

    SourceChoices m_choices;
    std::optional<SourceKind> m_kind;
    std::optional<SourceTable> m_table;
    std::vector<ColumnRole> m_roles;
    QString m_guessedSeparator;
    std::optional<SourceSurvey> m_survey;
    QString m_fault;
};
