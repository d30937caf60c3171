#pragma once

#include <QTableView>

/// The view of a table of words, made for entry from the keyboard: typing fills the current cell, Tab goes on
/// to the next cell, Enter to the next locality. What is selected is one block of cells with the current one.
class WordTableView : public QTableView
{
    Q_OBJECT

public:
    explicit WordTableView(QWidget* parent = nullptr);

    /// Takes over what is being typed, for an operation on the whole item.
    void commitEdit();
    /// Makes a cell current, both counted from 1, and scrolls to it; numbers outside the table do nothing.
    void goTo(int locality, int column, ScrollHint scroll = EnsureVisible);
    /// Goes to the first cell of the next locality; stays on the last one.
    void goToNextLocality();
    /// Goes up or down in the column.
    void goByRows(int rows);
    /// The locality and the column of the current cell, from 1; 0 where there is none.
    int locality() const { return currentIndex().row() + 1; }
    int column() const { return currentIndex().column() + 1; }
    /// The selected cells.
    QItemSelectionRange selected() const { return selectionModel()->selection().value(0); }

Q_SIGNALS:
    /// The user wants the selected cells emptied.
    void deletePressed();

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
};
