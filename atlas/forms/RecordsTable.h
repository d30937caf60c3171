#pragma once

#include "atlas/RecordEdits.h"

#include <QTableView>

class RecordTextDelegate;
class RecordsModel;
struct VarnModule;

/// The table of symbol records. A click on a symbol asks for another one, for all chosen rows where it is one
/// of them; typing in a kind or caption edits it in place; rows are dragged to another place.
class RecordsTable : public QTableView
{
    Q_OBJECT

public:
    RecordsTable(VarnModule& varn, RecordsModel& model, QWidget* parent);

    /// The numbers of the chosen rows that hold records.
    RecordNumbers chosenRecords() const;
    void chooseRecords(const RecordNumbers& numbers);
    /// Opens the row for a new record.
    void typeNewRecord();
    /// Where the symbol of the current row stands on the screen.
    QRect symbolOnScreen() const;

Q_SIGNALS:
    void chosenChanged();
    /// The symbols of the chosen records are to be changed.
    void symbolWanted();

protected:
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void setUpRows();
    void setUpColumns();

    RecordsModel& m_model;
    RecordTextDelegate* m_texts;
};
