#include "exchange/SourceDraft.h"

#include "exchange/DraftFault.h"
#include "exchange/LayerTable.h"
#include "exchange/TableColumns.h"
#include "exchange/TableSource.h"

namespace {

QString sizeOf(const SourceTable& table)
{
    return QStringLiteral("%1 rows and %2 columns").arg(table.rows.size()).arg(table.headings.size());
}

QString shapeOf(const std::vector<ColumnRole>& roles)
{
    return TableColumns(roles).isLong() ? QStringLiteral("long: a row an answer")
                                        : QStringLiteral("wide: a row a locality, a column an item");
}

} // namespace

/// What is known of the source is no longer true.
void SourceDraft::forget()
{
    m_survey.reset();
    m_fault.clear();
}

void SourceDraft::setPath(const QString& path)
{
    if (path == m_choices.path) {
        return;
    }
    const QString localities = m_choices.localities;
    *this = SourceDraft();
    m_choices.path = path;
    m_choices.localities = localities;
}

void SourceDraft::setLocalities(const QString& path)
{
    m_choices.localities = path;
    forget();
}

void SourceDraft::setAnswerSeparator(const QString& separator)
{
    m_choices.answerSeparator = separator;
    forget();
}

void SourceDraft::setWords(WordSource words)
{
    m_choices.words = words;
    forget();
}

void SourceDraft::setRole(int column, ColumnRole role)
{
    if (!m_table || column >= m_table->headings.size()) {
        return; // the file is another by now
    }
    const bool isOneOfMany =
        role == ColumnRole::Left || (role == ColumnRole::Item && !TableColumns(m_roles).isLong());
    if (!isOneOfMany) {
        m_choices.columns.removeIf([role](auto each) { return each.value() == role; });
    }
    m_choices.columns[m_table->headings[column]] = role;
    forget();
}

bool SourceDraft::isCorrectable(int column) const
{
    return m_table->headings.indexOf(m_table->headings[column]) == column;
}

/// Opens the source anew each time: whoever is told of a mistake in a file mends it there.
void SourceDraft::open()
{
    m_kind.reset();
    m_table.reset();
    const SourceKind kind = kindOfSource(m_choices.path);
    if (kind != SourceKind::Cldf) {
        m_table = kind == SourceKind::Layer ? readLayerTable(m_choices.path) : readTable(m_choices.path);
        m_roles.resize(static_cast<std::size_t>(m_table->headings.size()), ColumnRole::Left);
    }
    m_kind = kind;
}

/// Finds out what the columns are; corrections that do not go together are kept, too, to be corrected again.
void SourceDraft::guess()
{
    if (!m_table) {
        return;
    }
    for (int column = 0; column < m_table->headings.size(); ++column) {
        m_roles[static_cast<std::size_t>(column)] =
            m_choices.columns.value(m_table->headings[column], role(column));
    }
    const TableColumns columns = guessColumns(*m_table, m_choices.columns);
    for (int column = 0; column < columns.count(); ++column) {
        m_roles[static_cast<std::size_t>(column)] = columns.role(column);
    }
    m_guessedSeparator = ::guessedSeparator(*m_table, columns);
}

void SourceDraft::read()
{
    forget();
    m_fault = faultOf([this] {
        open();
        guess();
        m_survey = m_kind == SourceKind::Table ? surveyInTable(*m_table, m_choices) : readSource(m_choices);
    });
}

QString SourceDraft::description() const
{
    QStringList lines;
    if (m_table) {
        lines << (m_kind == SourceKind::Layer ? QStringLiteral("A layer of points: ")
                                              : QStringLiteral("A table: ")) +
                     sizeOf(*m_table);
    }
    if (m_table && m_survey) {
        lines.last() += QStringLiteral(", ") + shapeOf(m_roles);
    }
    if (m_survey) {
        lines << QStringLiteral("%1 localities, %2 items")
                     .arg(m_survey->localities.size())
                     .arg(m_survey->items.size());
        lines << m_survey->report.text();
    }
    lines.removeAll(QString());
    return lines.join(QLatin1Char('\n'));
}
