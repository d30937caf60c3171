#include "lingdata/forms/WordEntryDelegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>

#include <utility>

namespace {

bool leavesCell(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

/// Lists the kinds that begin with what is typed. Keys that leave the cell do so at once, list or no list: a
/// kind that was chosen in it stands in the editor by then.
class KindCompleter : public QCompleter
{
public:
    using QCompleter::QCompleter;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool ofList = watched != widget();
        if (ofList && event->type() == QEvent::KeyPress &&
            leavesCell(static_cast<QKeyEvent*>(event)->key())) {
            popup()->hide();
            QApplication::sendEvent(widget(), event);
            return true;
        }
        return QCompleter::eventFilter(watched, event);
    }
};

} // namespace

WordEntryDelegate::WordEntryDelegate(VarnModule& varn, QAbstractItemDelegate& kindDelegate, QObject* parent)
    : WordDelegate(varn, parent), m_kindDelegate(kindDelegate)
{}

void WordEntryDelegate::setKinds(QStringList kinds)
{
    m_kinds = std::move(kinds);
    m_kinds.removeAll(QString());
}

QWidget* WordEntryDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                         const QModelIndex&) const
{
    auto* editor = new QLineEdit(parent);
    auto* completer = new KindCompleter(m_kinds, editor);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->popup()->setItemDelegate(&m_kindDelegate);
    editor->setCompleter(completer);
    connect(editor, &QLineEdit::textChanged, this, &WordEntryDelegate::typed);
    return editor;
}

bool WordEntryDelegate::eventFilter(QObject* editor, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            auto* box = qobject_cast<QWidget*>(editor);
            Q_EMIT commitData(box);
            Q_EMIT closeEditor(box, NoHint);
            Q_EMIT left(key == Qt::Key_Down ? 1 : -1);
            return true;
        }
    }
    return WordDelegate::eventFilter(editor, event);
}
