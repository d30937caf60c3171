// Undo and redo of the symbol set-up form.

#include "shell/VarnModule.h"
#include "symbols/forms/frmSetHanko.h"
#include "ui_frmSetHanko.h"

void frmSetHanko::connectHistory()
{
    m_ui->mnuRedo->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});
    handle(m_ui->mnuUndo, &QAction::triggered, &frmSetHanko::mnuUndo_Click);
    handle(m_ui->mnuRedo, &QAction::triggered, &frmSetHanko::mnuRedo_Click);
    int number = 0;
    for (QLineEdit* box : {m_ui->txtExplain, m_ui->txtWord, m_ui->txtHanrei, m_ui->txtHankoNumber}) {
        box->installEventFilter(this);
        connect(box, &QLineEdit::textEdited, this,
                [this, number] { run([this, number] { m_history.recordTyping(state(), number); }); });
        ++number;
    }
}

SymbolEditorState frmSetHanko::state() const
{
    return {m_varn, m_varn.CurrentHanko, fields(), m_stored, m_orphaned};
}

void frmSetHanko::restore(const SymbolEditorState& state)
{
    static_cast<SymbolRecords&>(m_varn) = state.records;
    m_varn.CurrentHanko = state.CurrentHanko;
    showFields(state.fields);
    m_stored = state.stored;
    m_orphaned = state.orphaned;
    m_editor.DisplayHanreiData();
    DisplayHanrei();
}

QLineEdit* frmSetHanko::typingBox() const
{
    return qobject_cast<QLineEdit*>(focusWidget());
}

void frmSetHanko::mnuUndo_Click()
{
    QLineEdit* box = typingBox();
    if (box != nullptr && box->isUndoAvailable()) {
        box->undo();
    } else {
        restore(m_history.undo());
    }
}

void frmSetHanko::mnuRedo_Click()
{
    QLineEdit* box = typingBox();
    if (box != nullptr && box->isRedoAvailable()) {
        box->redo();
    } else {
        restore(m_history.redo());
    }
}
