#include "atlas/forms/WordsModel.h"

#include <utility>

void WordsModel::show(std::vector<Row> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

int WordsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int WordsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_withRecords ? 3 : 2;
}

QVariant WordsModel::data(const QModelIndex& index, int role) const
{
    if (role == Qt::TextAlignmentRole && index.column() == Localities) {
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    const Row& row = m_rows.at(static_cast<std::size_t>(index.row()));
    switch (index.column()) {
    case Word:
        return row.word.word;
    case Localities:
        return static_cast<int>(row.word.localities.size());
    default:
        return row.kinds.join(QStringLiteral(", "));
    }
}

QVariant WordsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    constexpr const char* Headings[] = {"Word form", "Places", "Kinds that mark it"};
    return QLatin1String(Headings[section]);
}
