#include "atlas/forms/AtlasItemFilter.h"

#include "atlas/AtlasItemTable.h"

AtlasItemFilter::AtlasItemFilter(AtlasItemTable& table, QObject* parent)
    : QSortFilterProxyModel(parent), m_table(table)
{
    setSourceModel(&table);
}

void AtlasItemFilter::setText(const QString& text)
{
    m_text = text;
    invalidateFilter();
}

bool AtlasItemFilter::filterAcceptsRow(int row, const QModelIndex&) const
{
    return m_text.isEmpty() || contains(m_table.item(row), m_text);
}

QVariant AtlasItemFilter::data(const QModelIndex& index, int role) const
{
    if (role == Found && index.isValid() && !m_text.isEmpty()) {
        return wordFormsWith(m_table.item(mapToSource(index).row()), m_text);
    }
    return QSortFilterProxyModel::data(index, role);
}
