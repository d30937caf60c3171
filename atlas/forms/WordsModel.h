#pragma once

#include "atlas/RecordCounts.h"

#include <QAbstractTableModel>

class RecordsModel;

/// Some word forms of the page shown, with the number of their localities and, where it is wanted, the kinds
/// of the records that mark them.
class WordsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Word, Localities, Records };

    WordsModel(const RecordsModel& records, bool showsRecords, QObject* parent)
        : QAbstractTableModel(parent), m_records(records), m_showsRecords(showsRecords)
    {}

    /// Shows the word forms of these numbers, from 0.
    void show(std::vector<std::size_t> words);
    const AnsweredWord& word(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString kindsOf(int row) const;

    const RecordsModel& m_records;
    bool m_showsRecords;
    std::vector<std::size_t> m_words;
};
