#include "lingdata/WordTable.h"

#include <utility>

WordTable::WordTable(ItemEditor& editor, QObject* parent) : QAbstractTableModel(parent), m_editor(editor) {}

void WordTable::replaceItem(ItemEditor item)
{
    beginResetModel();
    m_editor = std::move(item);
    endResetModel();
}

int WordTable::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_editor.localities();
}

int WordTable::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ItemEditor::MostWords;
}

QVariant WordTable::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole)) {
        return {};
    }
    return m_editor.word(index.row() + 1, index.column() + 1);
}

bool WordTable::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || role != Qt::EditRole) {
        return false;
    }
    m_editor.setWord(index.row() + 1, index.column() + 1, value.toString());
    Q_EMIT dataChanged(index, index);
    return true;
}

QVariant WordTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole) {
        return {};
    }
    return orientation == Qt::Horizontal ? QStringLiteral("Word %1").arg(section + 1)
                                         : QString::number(section + 1);
}

Qt::ItemFlags WordTable::flags(const QModelIndex& index) const
{
    return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
}
