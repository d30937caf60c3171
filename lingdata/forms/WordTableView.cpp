#include "lingdata/forms/WordTableView.h"

#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>

WordTableView::WordTableView(QWidget* parent) : QTableView(parent)
{
    setSelectionMode(ContiguousSelection);
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

QItemSelectionModel::SelectionFlags WordTableView::selectionCommand(const QModelIndex& index,
                                                                    const QEvent* event) const
{
    constexpr Qt::KeyboardModifiers ExtendFar = Qt::ShiftModifier | Qt::ControlModifier;
    const bool isKey = event != nullptr && event->type() == QEvent::KeyPress;
    if (isKey && static_cast<const QKeyEvent*>(event)->modifiers().testFlags(ExtendFar)) {
        return QItemSelectionModel::SelectCurrent;
    }
    return QTableView::selectionCommand(index, event);
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
        Q_EMIT deletePressed();
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
