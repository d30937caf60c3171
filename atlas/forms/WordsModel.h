#pragma once

#include "atlas/RecordCounts.h"

#include <QAbstractTableModel>
#include <QStringList>

/// Some word forms of the page shown, with the number of their localities and, where several records mark
/// them, the kinds of these.
class WordsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Word, Localities, Records };

    /// A word form, its localities, and the records that mark it.
    struct Row
    {
        AnsweredWord word;
        QStringList kinds;
    };

    WordsModel(bool withRecords, QObject* parent) : QAbstractTableModel(parent), m_withRecords(withRecords) {}

    void show(std::vector<Row> rows);
    const AnsweredWord& word(int row) const { return m_rows.at(static_cast<std::size_t>(row)).word; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<Row> m_rows;
    bool m_withRecords;
};
