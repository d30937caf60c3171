#pragma once

#include "lingdata/ItemEditor.h"
#include "mapdata/LocalityNames.h"

#include <QAbstractTableModel>

/// The cells of an item as a table: a row for each locality, a column for each of its word forms. An empty
/// word form reads as two double quotes. Rows are headed by their localities.
class WordTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// `editor` and `names` must outlive the table.
    WordTable(ItemEditor& editor, const LocalityNames& names, QObject* parent = nullptr);

    /// Puts another item into the table.
    void replaceItem(ItemEditor item);
    /// Shows what was changed in the item otherwise than through the table.
    void showChanges();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// The cell at `index`.
    static CellPlace place(const QModelIndex& index) { return {index.row() + 1, index.column() + 1}; }

private:
    /// Tells the views that there are `rows` rows now.
    void resize(int rows);

    ItemEditor& m_editor;
    const LocalityNames& m_names;
    /// How many rows the views know of.
    int m_rows = 0;
};
