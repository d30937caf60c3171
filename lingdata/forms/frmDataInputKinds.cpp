// The list of kinds of the data input form.

#include "lingdata/forms/WordEntryDelegate.h"
#include "lingdata/forms/frmDataInput.h"
#include "ui_frmDataInput.h"

#include <algorithm>

void frmDataInput::cmdKindToData_Click()
{
    const int kind = m_ui->lstKind->currentRow();
    WordTableView& words = *m_ui->tblWords;
    words.commitEdit();
    if (kind >= 0 && words.currentIndex().isValid()) {
        m_editor.setCell(WordTable::place(words.currentIndex()), m_editor.kinds()[kind]);
        m_table.showChanges();
        words.goToNextLocality();
    }
}

void frmDataInput::cmdDataToKind_Click()
{
    m_ui->tblWords->commitEdit();
    m_editor.collectKinds();
    showKinds();
}

void frmDataInput::cmdSetKind_Click()
{
    const WordCell kind = typedCell(m_ui->txtKind->text());
    m_ui->txtKind->setFocus();
    if (kind) {
        m_editor.addKind(*kind);
        showKinds();
        m_ui->lstKind->setCurrentRow(static_cast<int>(m_editor.kinds().indexOf(*kind)));
        m_ui->txtKind->selectAll();
    }
}

void frmDataInput::cmdDelKind_Click()
{
    const int row = m_ui->lstKind->currentRow();
    if (row >= 0) {
        m_editor.removeKind(row);
        showKinds();
    }
}

void frmDataInput::showKinds()
{
    const int row = std::min(m_ui->lstKind->currentRow(), static_cast<int>(m_editor.kinds().size()) - 1);
    m_ui->lstKind->clear();
    for (const QString& kind : m_editor.kinds()) {
        auto* entry = new QListWidgetItem(cellText(kind), m_ui->lstKind);
        if (kind.isEmpty()) {
            entry->setForeground(palette().placeholderText());
        }
    }
    m_ui->lstKind->setCurrentRow(row);
    m_delegate->setKinds(m_editor.kinds());
}
