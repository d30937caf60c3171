#include "lingdata/forms/KindListView.h"

#include <QKeyEvent>

#include <utility>

void KindListView::keyboardSearch(const QString& typed)
{
    if (std::exchange(m_beginsAnew, false)) {
        // An empty search forgets the letters before it, however short the time since; the search goes on
        // from the current kind, which may be wanted again.
        const int row = currentRow();
        QListWidget::keyboardSearch(QString());
        setCurrentRow(row);
    }
    QListWidget::keyboardSearch(typed);
}

void KindListView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        m_beginsAnew = true;
        Q_EMIT kindEntered();
        break;
    case Qt::Key_Delete:
        Q_EMIT kindRemoved();
        break;
    default:
        QListWidget::keyPressEvent(event);
    }
}
