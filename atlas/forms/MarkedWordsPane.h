#pragma once

#include "atlas/forms/WordsModel.h"

#include <QTabWidget>

#include <set>

class QTableView;
class RecordsModel;
struct VarnModule;

/// What nobody must overlook: the word forms that no record marks, and those that several mark.
class MarkedWordsPane : public QTabWidget
{
    Q_OBJECT

public:
    MarkedWordsPane(VarnModule& varn, RecordsModel& records, QWidget* parent);

    /// Shows what the records mark now.
    void showMarks();
    /// The chosen word forms that no record marks.
    QStringList chosenUnmarked() const;

Q_SIGNALS:
    /// Other word forms were chosen, which these localities answered.
    void localitiesChosen(const std::set<int>& localities);
    /// The chosen word forms are to have records.
    void recordsWanted();

private:
    struct List
    {
        WordsModel* model;
        QTableView* view;
    };

    List addList(VarnModule& varn, const QString& name);
    std::set<int> localitiesOf(const List& list) const;

    const RecordsModel& m_records;
    List m_unmarked;
    List m_several;
};
