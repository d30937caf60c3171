#include "lingdata/WordTableView.h"

#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>

WordTableView::WordTableView(QWidget* parent) : QTableView(parent)
{
    setEditTriggers(AnyKeyPressed | DoubleClicked | EditKeyPressed);
    setWordWrap(false);
    setVerticalScrollMode(ScrollPerItem);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void WordTableView::commitEdit()
{
    if (QWidget* editor = state() == EditingState ? indexWidget(currentIndex()) : nullptr) {
        commitData(editor);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
}

void WordTableView::goTo(int locality, int column, ScrollHint scroll)
{
    const QModelIndex cell = model()->index(locality - 1, column - 1);
    if (cell.isValid()) {
        setCurrentIndex(cell);
        scrollTo(cell, scroll);
    }
}

void WordTableView::goToNextLocality()
{
    goTo(std::min(locality() + 1, model()->rowCount()), 1);
}

void WordTableView::goByRows(int rows)
{
    goTo(locality() + rows, column());
}

void WordTableView::clearSelected()
{
    for (const QModelIndex& cell : selectionModel()->selectedIndexes()) {
        model()->setData(cell, QString());
    }
}

void WordTableView::keyPressEvent(QKeyEvent* event)
{
    if (state() == EditingState) {
        return; // a key that the editor left, and acts on when it closes
    }
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        goToNextLocality();
        break;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        clearSelected();
        break;
    default:
        QTableView::keyPressEvent(event);
    }
}

void WordTableView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    // The next cell becomes current without an editor, so that the arrow keys lead on from it.
    QTableView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    switch (hint) {
    case QAbstractItemDelegate::SubmitModelCache:
        goToNextLocality();
        break;
    case QAbstractItemDelegate::EditNextItem:
        setCurrentIndex(moveCursor(MoveNext, Qt::NoModifier));
        break;
    case QAbstractItemDelegate::EditPreviousItem:
        setCurrentIndex(moveCursor(MovePrevious, Qt::NoModifier));
        break;
    default:
        break;
    }
}
