#pragma once

#include "atlas/AtlasItem.h"

#include <QAbstractListModel>
#include <QHash>

#include <vector>

struct AtlasPage;

/// The items of the current map as rows, in the order of their files. Their files are read some at a time, so
/// that a map of many items does not let the user wait.
class AtlasItemTable : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        /// Its caption, or the name of its file where it has none; as `Qt::DisplayRole`.
        Caption = Qt::DisplayRole,
        Path = Qt::UserRole,
        /// Its file and figures, in a line.
        Figures,
        /// Why it cannot be read; empty where it can.
        Trouble,
        HasSymbols,
        IsUnsaved
    };

    explicit AtlasItemTable(const Folders& folders, QObject* parent = nullptr);

    /// Lists the items that are there now. Those whose files changed are to be read again.
    void refresh();
    /// Reads items that are not read yet for about `milliseconds`; returns whether some are left.
    bool readSome(int milliseconds);
    /// Whether the item of `row` was read.
    bool isRead(int row) const { return m_rows.at(static_cast<std::size_t>(row)).isRead; }

    /// Takes over what `page` holds now.
    void showPage(const AtlasPage& page);
    /// Marks the items at these paths as unsaved, and no others.
    void showUnsaved(const QStringList& paths);

    const AtlasItem& item(int row) const { return m_rows.at(static_cast<std::size_t>(row)).item; }
    /// The row of the item at `path`; -1 where there is none.
    int rowOf(const QString& path) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    struct Row
    {
        AtlasItem item;
        /// What the files held when they were listed or read last.
        QByteArray mark;
        bool isRead = false;
        bool isUnsaved = false;
    };

    std::vector<Row> rowsNow();
    void replaceRows(std::vector<Row> rows);
    void read(Row& row) const;
    QString wholeText(const Row& row) const;
    void changed(std::size_t row);

    const Folders& m_folders;
    std::vector<Row> m_rows;
    QHash<QString, int> m_rowOf;
    /// The first row that may not be read yet.
    std::size_t m_next = 0;
};
