#pragma once

#include "exchange/SourceChoices.h"
#include "exchange/SourceTable.h"

#include <optional>
#include <vector>

/// What the columns of a table are.
class TableColumns
{
public:
    explicit TableColumns(std::vector<ColumnRole> roles) : m_roles(std::move(roles)) {}

    /// The role of column i, from 0. In a wide table each `Item` column is one item; in a long one the `Item`
    /// column names it and the `Answer` column answers it.
    ColumnRole role(int column) const { return m_roles[static_cast<std::size_t>(column)]; }
    int count() const { return static_cast<int>(m_roles.size()); }
    std::optional<int> find(ColumnRole role) const;

    bool isLong() const { return find(ColumnRole::Answer).has_value(); }
    bool hasDegrees() const;
    bool hasPlane() const;
    bool hasPlaces() const { return hasDegrees() || hasPlane(); }
    /// The column that names localities where other tables speak of them: their id, else their name.
    std::optional<int> key() const;
    std::vector<int> items() const;

private:
    std::vector<ColumnRole> m_roles;
};

/// Guesses what the columns of `table` are, by their headings in English, German, French, Spanish and
/// Japanese and by what stands in them; `corrections` are by heading, those of other headings are passed
/// over. Raises type mismatch for two columns of what only one can be, and where no column names the
/// localities, or the items of answers.
TableColumns guessColumns(const SourceTable& table, const QMap<QString, ColumnRole>& corrections = {});
