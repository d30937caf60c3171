#include "lingdata/forms/WordTable.h"

#include <QGuiApplication>
#include <QPalette>

#include <utility>

WordTable::WordTable(ItemEditor& editor, const LocalityNames& names, QObject* parent)
    : QAbstractTableModel(parent), m_editor(editor), m_names(names), m_rows(editor.localities())
{}

void WordTable::replaceItem(ItemEditor item)
{
    beginResetModel();
    m_editor = std::move(item);
    m_rows = m_editor.localities();
    endResetModel();
}

void WordTable::showChanges()
{
    resize(m_editor.localities());
    Q_EMIT dataChanged(index(0, 0), index(m_rows - 1, ItemEditor::MostWords - 1));
}

void WordTable::resize(int rows)
{
    if (rows > m_rows) {
        beginInsertRows({}, m_rows, rows - 1);
        m_rows = rows;
        endInsertRows();
    } else if (rows < m_rows) {
        beginRemoveRows({}, rows, m_rows - 1);
        m_rows = rows;
        endRemoveRows();
    }
}

int WordTable::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int WordTable::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ItemEditor::MostWords;
}

QVariant WordTable::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_editor.localities()) {
        return {};
    }
    const WordCell& cell = m_editor.cell(place(index));
    if (role == Qt::ForegroundRole && cell && cell->isEmpty()) {
        return QGuiApplication::palette().placeholderText();
    }
    return role == Qt::DisplayRole || role == Qt::EditRole ? cellText(cell) : QVariant();
}

bool WordTable::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || role != Qt::EditRole) {
        return false;
    }
    const QString text = value.toString();
    if (text != cellText(m_editor.cell(place(index)))) {
        m_editor.setCell(place(index), typedCell(text));
    }
    Q_EMIT dataChanged(index, index);
    return true;
}

QVariant WordTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole) {
        return {};
    }
    return orientation == Qt::Horizontal ? QStringLiteral("Word %1").arg(section + 1)
                                         : localityTitle(m_names, section + 1);
}

Qt::ItemFlags WordTable::flags(const QModelIndex& index) const
{
    return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
}
