#include "exchange/TableColumns.h"

#include "exchange/Degrees.h"
#include "exchange/KnownHeadings.h"

#include <QSet>

#include <algorithm>

namespace {

/// Whether most of what stands in a column, if anything does, are numbers or degrees.
bool holdsNumbers(const SourceTable& table, int column)
{
    int filled = 0;
    int numbers = 0;
    for (const TableRow& row : table.rows) {
        const QString& cell = row.cells[column];
        filled += cell.isEmpty() ? 0 : 1;
        numbers += degrees(cell) ? 1 : 0;
    }
    return 2 * numbers >= filled;
}

bool holdsDifferentTexts(const SourceTable& table, int column)
{
    QSet<QString> texts;
    for (const TableRow& row : table.rows) {
        texts.insert(row.cells[column]);
    }
    return texts.size() == static_cast<qsizetype>(table.rows.size()) && !texts.contains(QString());
}

/// What only one column of a table can be.
bool isSingle(ColumnRole role)
{
    return role != ColumnRole::Item && role != ColumnRole::Left;
}

/// The roles of a table's columns while they are found out.
class ColumnGuess
{
public:
    explicit ColumnGuess(const SourceTable& table)
        : m_table(table), m_roles(static_cast<std::size_t>(table.headings.size()))
    {}

    void correct(const QMap<QString, ColumnRole>& corrections);
    void findPlaces();
    void findLong();
    void findNames();
    TableColumns wholeTable() const;

private:
    int width() const { return static_cast<int>(m_roles.size()); }
    const QString& heading(int column) const { return m_table.headings[column]; }
    std::optional<ColumnRole>& role(int column) { return m_roles[static_cast<std::size_t>(column)]; }
    std::optional<int> find(ColumnRole role) const;
    /// The first column without a role whose heading means `role`.
    std::optional<int> meant(ColumnRole role) const;
    void give(ColumnRole role, std::optional<int> column);

    const SourceTable& m_table;
    std::vector<std::optional<ColumnRole>> m_roles;
};

std::optional<int> ColumnGuess::find(ColumnRole role) const
{
    const auto found = std::ranges::find(m_roles, std::optional(role));
    return found == m_roles.end() ? std::nullopt : std::optional(static_cast<int>(found - m_roles.begin()));
}

std::optional<int> ColumnGuess::meant(ColumnRole role) const
{
    for (int column = 0; column < width(); ++column) {
        if (!m_roles[static_cast<std::size_t>(column)] && knownRole(heading(column)) == role) {
            return column;
        }
    }
    return std::nullopt;
}

void ColumnGuess::give(ColumnRole role, std::optional<int> column)
{
    if (column && !find(role)) {
        this->role(*column) = role;
    }
}

void ColumnGuess::correct(const QMap<QString, ColumnRole>& corrections)
{
    for (const auto& [name, role] : corrections.asKeyValueRange()) {
        const qsizetype column = m_table.headings.indexOf(name);
        if (column >= 0) {
            this->role(static_cast<int>(column)) = role;
        }
    }
}

void ColumnGuess::findPlaces()
{
    for (int column = 0; column < width(); ++column) {
        const std::optional<ColumnRole> meant = role(column) ? std::nullopt : knownRole(heading(column));
        if (meant && isPlace(*meant) && holdsNumbers(m_table, column)) {
            give(*meant, column);
        }
    }
}

/// Numbers and codes of localities stand at the left; further right such a heading may be an item.
void ColumnGuess::findNames()
{
    constexpr int FirstColumns = 4;
    const std::optional<int> id = meant(ColumnRole::Id);
    if (id && *id < FirstColumns) {
        give(ColumnRole::Id, id);
    }
    give(ColumnRole::Name, meant(ColumnRole::Name));
    const bool none = !find(ColumnRole::Id) && !find(ColumnRole::Name);
    if (none && width() > 0 && !m_roles.front() &&
        (heading(0).isEmpty() || holdsDifferentTexts(m_table, 0))) {
        m_roles.front() = ColumnRole::Name;
    }
}

/// A long table names its localities again and again, and its items and answers in a column each.
void ColumnGuess::findLong()
{
    const std::optional<int> key = find(ColumnRole::Id) ? find(ColumnRole::Id) : find(ColumnRole::Name);
    const std::optional<int> item = find(ColumnRole::Item) ? find(ColumnRole::Item) : meant(ColumnRole::Item);
    const std::optional<int> answer = meant(ColumnRole::Answer);
    if (key && item && answer && !holdsDifferentTexts(m_table, *key)) {
        role(*item) = ColumnRole::Item;
        give(ColumnRole::Answer, answer);
    }
}

/// What is left is an item in a wide table, and nothing in a long one.
TableColumns ColumnGuess::wholeTable() const
{
    const bool isLong = find(ColumnRole::Answer).has_value();
    std::vector<ColumnRole> roles;
    for (int column = 0; column < width(); ++column) {
        const bool isLeft =
            isLong || heading(column).isEmpty() || knownRole(heading(column)) == ColumnRole::Left;
        roles.push_back(
            m_roles[static_cast<std::size_t>(column)].value_or(isLeft ? ColumnRole::Left : ColumnRole::Item));
    }
    return TableColumns(std::move(roles));
}

void requireSingle(const SourceTable& table, const TableColumns& columns)
{
    for (int column = 0; column < columns.count(); ++column) {
        const ColumnRole role = columns.role(column);
        if (isSingle(role) && columns.find(role) != column) {
            throw RunTimeError(ErrorNumber::TypeMismatch,
                               QStringLiteral("The columns \"%1\" and \"%2\" cannot both be the same.")
                                   .arg(table.headings[*columns.find(role)], table.headings[column]))
                .at({table.path, table.headingRow, column + 1});
        }
    }
}

void requireItemsOfAnswers(const SourceTable& table, const TableColumns& columns)
{
    if (columns.isLong() && !columns.find(ColumnRole::Item)) {
        throw RunTimeError(
            ErrorNumber::TypeMismatch,
            QStringLiteral("The column \"%1\" holds answers, but none names the items; say which one does.")
                .arg(table.headings[*columns.find(ColumnRole::Answer)]))
            .at({table.path, table.headingRow});
    }
}

} // namespace

std::optional<int> TableColumns::find(ColumnRole role) const
{
    const auto found = std::ranges::find(m_roles, role);
    return found == m_roles.end() ? std::nullopt : std::optional(static_cast<int>(found - m_roles.begin()));
}

bool TableColumns::hasDegrees() const
{
    return find(ColumnRole::Longitude) && find(ColumnRole::Latitude);
}

bool TableColumns::hasPlane() const
{
    return find(ColumnRole::X) && find(ColumnRole::Y);
}

std::optional<int> TableColumns::key() const
{
    const std::optional<int> id = find(ColumnRole::Id);
    return id ? id : find(ColumnRole::Name);
}

std::vector<int> TableColumns::items() const
{
    std::vector<int> items;
    for (int column = 0; column < count(); ++column) {
        if (role(column) == ColumnRole::Item) {
            items.push_back(column);
        }
    }
    return items;
}

TableColumns guessColumns(const SourceTable& table, const QMap<QString, ColumnRole>& corrections)
{
    ColumnGuess guess(table);
    guess.correct(corrections);
    guess.findPlaces();
    guess.findNames();
    guess.findLong();
    TableColumns columns = guess.wholeTable();
    requireSingle(table, columns);
    requireItemsOfAnswers(table, columns);
    if (!columns.key()) {
        throw RunTimeError(
            ErrorNumber::TypeMismatch,
            QStringLiteral("No column names the localities; say which one does. There are: %1.")
                .arg(table.headings.join(QStringLiteral(", "))))
            .at({table.path, table.headingRow});
    }
    return columns;
}
