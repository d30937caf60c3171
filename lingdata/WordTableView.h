#pragma once

#include <QTableView>

/// The view of a table of words, made for entry from the keyboard: typing fills the current cell, Tab goes on
/// to the next cell, Enter to the next locality, Delete empties the selected cells.
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
    /// Empties the selected cells.
    void clearSelected();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
};
