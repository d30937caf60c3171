#pragma once

#include "atlas/RecordCounts.h"

#include <QAbstractTableModel>

class RecordsModel;

/// Some word forms of the page shown, with the number of their localities, and the kinds of the records that
/// mark them or, where none does, the offer of a record.
class WordsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Word, Localities, Records };

    WordsModel(const RecordsModel& records, QObject* parent) : QAbstractTableModel(parent), m_records(records)
    {}

    /// Shows the word forms of these numbers, from 0.
    void show(std::vector<std::size_t> words);
    const AnsweredWord& word(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const std::vector<int>& recordsOf(int row) const;
    QString offer() const;
    QString kindsOf(int row) const;

    const RecordsModel& m_records;
    std::vector<std::size_t> m_words;
};
