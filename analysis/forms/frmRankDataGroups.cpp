// The two groups of word forms of the contrast form.

#include "analysis/forms/frmRankData.h"
#include "ui_frmRankData.h"

void frmRankData::addSelected(int side)
{
    const int row = m_ui->lstWordList->currentRow();
    if (row < 0) {
        return;
    }
    switch (m_editor.addWordform(side, row + 1)) {
    case ContrastEditor::AddResult::Added:
        showGroups();
        groupList(side).setCurrentRow(groupList(side).count() - 1);
        break;
    case ContrastEditor::AddResult::Present:
        dialogs().message(QStringLiteral("Item %1 already has this word form.").arg(side), FormTitle);
        break;
    case ContrastEditor::AddResult::Full:
        dialogs().message(QStringLiteral("Item %1 has %2 word forms, which is the maximum.")
                              .arg(side)
                              .arg(ContrastEditor::MaxWordforms),
                          FormTitle);
        break;
    }
}

void frmRankData::removeSelected(int side)
{
    const int row = groupList(side).currentRow();
    if (row >= 0) {
        m_editor.removeWordform(side, row + 1);
        showGroups();
    }
}
