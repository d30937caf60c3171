#include "atlas/forms/AtlasLocalityFilter.h"

void AtlasLocalityFilter::setText(const QString& text)
{
    m_text = text;
    invalidateFilter();
}

void AtlasLocalityFilter::setOnly(const std::optional<AtlasSelection::Numbers>& localities)
{
    m_only = localities;
    invalidateFilter();
}

bool AtlasLocalityFilter::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    if (m_only && !m_only->contains(row + 1)) {
        return false;
    }
    const QAbstractItemModel& table = *sourceModel();
    bool isFound = m_text.isEmpty();
    for (int column = 0; !isFound && column < table.columnCount(parent); ++column) {
        isFound = table.index(row, column, parent).data().toString().contains(m_text, Qt::CaseInsensitive);
    }
    return isFound;
}

/// Localities without a word form come last, and those of the same words by their numbers.
bool AtlasLocalityFilter::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const QVariant a = left.data();
    const QVariant b = right.data();
    if (a.typeId() == QMetaType::Int) {
        return a.toInt() < b.toInt();
    }
    const bool isEmpty = a.toString().isEmpty();
    if (isEmpty != b.toString().isEmpty()) {
        return isEmpty == (sortOrder() == Qt::DescendingOrder);
    }
    const int order = a.toString().localeAwareCompare(b.toString());
    return order != 0 ? order < 0 : left.row() < right.row();
}
