#pragma once

#include "atlas/RecordCounts.h"
#include "atlas/RecordEdits.h"

#include <QAbstractTableModel>

#include <optional>

class AtlasDocument;
struct VarnModule;

/// The symbol records of the page shown, a row each, with what they mark. The row behind the last record is
/// empty: a kind that is written there becomes a new record. A kind or caption can be shown on the map while
/// it is typed, and rows can be dragged to another place.
class RecordsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Symbol, Kind, Caption, Words, Localities, ColumnCount };
    /// The `HankoStyle` of a record.
    static constexpr int StyleRole = Qt::UserRole;

    RecordsModel(VarnModule& varn, AtlasDocument& document, QObject* parent);

    const std::vector<AnsweredWord>& words() const { return m_counter.words(); }
    const RecordCounts& counts() const { return m_counts; }
    /// Whether the records can be changed: there is a page, and its symbol file can be read.
    bool isEditable() const;
    /// Whether another record has room.
    bool hasRoom() const;
    /// Whether there is a record in this row.
    bool isRecord(const QModelIndex& index) const;

    /// Shows on the map what it would be with `text` in this cell, until it is written or given up.
    void type(const QModelIndex& index, const QString& text);
    void endTyping();
    /// Moves records before record `before`, or behind the last one.
    void move(const RecordNumbers& numbers, int before);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

Q_SIGNALS:
    /// Another page, other records or other counts are shown.
    void shownChanged();
    /// Records have these numbers after they were moved.
    void moved(const RecordNumbers& numbers);

private:
    void showPage();
    void showWords();
    void count();
    void showSymbols();
    void showRows();
    void showCells();
    int neededRows() const;
    QString kindText(int k) const;
    QVariant text(const QModelIndex& index) const;
    bool isOutOfLegend(const QModelIndex& index) const;
    QString hint(const QModelIndex& index) const;
    QVariant newRowData(int column, int role) const;
    QVariant recordData(const QModelIndex& index, int role) const;
    /// The records with `text` in this cell.
    SymbolRecords edited(const QModelIndex& index, const QString& text) const;

    VarnModule& m_varn;
    AtlasDocument& m_document;
    RecordCounter m_counter;
    RecordCounts m_counts;
    int m_rows = 0;
    /// The column of the cell that is being typed in.
    std::optional<int> m_typedColumn;
};
