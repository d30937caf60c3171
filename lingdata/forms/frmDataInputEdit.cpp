// What the Edit menu of the data input form does.

#include "lingdata/forms/frmDataInput.h"
#include "shell/VarnModule.h"
#include "ui_frmDataInput.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QSignalBlocker>

#include <algorithm>

namespace {

/// Lets the text box that has the focus do `command`, one of its slots; false where none has it.
bool doneByTextBox(QWidget* focused, const char* command)
{
    const bool isTextBox =
        qobject_cast<QLineEdit*>(focused) != nullptr || qobject_cast<QPlainTextEdit*>(focused) != nullptr;
    return isTextBox && QMetaObject::invokeMethod(focused, command);
}

CellPlace firstCell(const QItemSelectionRange& cells)
{
    return WordTable::place(cells.topLeft());
}

} // namespace

void frmDataInput::mnuUndo_Click()
{
    m_ui->tblWords->commitEdit();
    showStep(m_editor.undo());
}

void frmDataInput::mnuRedo_Click()
{
    m_ui->tblWords->commitEdit();
    showStep(m_editor.redo());
}

void frmDataInput::showStep(const std::optional<CellPlace>& place)
{
    showEdited();
    if (place) {
        m_ui->tblWords->goTo(place->locality, place->column);
    }
}

void frmDataInput::showEdited()
{
    m_table.showChanges();
    showTexts();
    showKinds();
}

void frmDataInput::showTexts()
{
    m_ui->txtHanrei->setText(m_editor.caption());
    const QSignalBlocker silent(m_ui->txtComment);
    m_ui->txtComment->setPlainText(m_editor.comment());
}

void frmDataInput::emptySelected()
{
    std::vector<std::pair<CellPlace, WordCell>> cells;
    for (const QModelIndex& cell : m_ui->tblWords->selected().indexes()) {
        cells.emplace_back(WordTable::place(cell), std::nullopt);
    }
    m_editor.setCells(cells);
    m_table.showChanges();
}

void frmDataInput::mnuCut_Click()
{
    if (!doneByTextBox(focusWidget(), "cut")) {
        mnuCopy_Click();
        emptySelected();
    }
}

void frmDataInput::mnuCopy_Click()
{
    const QItemSelectionRange cells = m_ui->tblWords->selected();
    if (!doneByTextBox(focusWidget(), "copy") && cells.isValid()) {
        const WordBlock block = m_editor.block(firstCell(cells), WordTable::place(cells.bottomRight()));
        QGuiApplication::clipboard()->setText(blockText(block));
    }
}

void frmDataInput::mnuPaste_Click()
{
    const QItemSelectionRange cells = m_ui->tblWords->selected();
    if (doneByTextBox(focusWidget(), "paste") || !cells.isValid()) {
        return;
    }
    const WordBlock block = readBlock(QGuiApplication::clipboard()->text());
    const CellPlace first = firstCell(cells);
    if (!m_editor.hasRoomFor(block, first)) {
        dialogs().message(
            QStringLiteral("There is no room for the %1 rows and %2 columns from locality %3, word "
                           "%4 on. Nothing was pasted.")
                .arg(block.size())
                .arg(columnsOf(block))
                .arg(localityTitle(m_varn, first.locality))
                .arg(first.column),
            QStringLiteral("Paste"));
        return;
    }
    m_editor.paste(block, first);
    m_table.showChanges();
}

void frmDataInput::mnuGoTo_Click()
{
    const QString title = QStringLiteral("Go to Locality");
    WordTableView& words = *m_ui->tblWords;
    words.commitEdit();
    const auto answer =
        dialogs().input(QStringLiteral("Locality No."), title, QString::number(words.locality()));
    if (!answer) {
        return;
    }
    const int locality = answer->trimmed().toInt(); // 0 for what is no number
    if (locality < 1 || locality > m_editor.localities()) {
        dialogs().message(
            QStringLiteral("Locality No. must be a number from 1 to %1.").arg(m_editor.localities()), title);
        return;
    }
    words.goTo(locality, 1, QAbstractItemView::PositionAtCenter);
    words.setFocus();
}

void frmDataInput::mnuAddLocalities_Click()
{
    m_ui->tblWords->commitEdit();
    m_editor.addLocalities(m_varn.NLocality);
    m_table.showChanges();
}
