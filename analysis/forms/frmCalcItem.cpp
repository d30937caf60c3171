// The item that strings can be taken from.

#include "analysis/forms/frmCalc.h"
#include "lingdata/ItemLoader.h"
#include "lingdata/LinguisticFile.h"
#include "shell/VarnModule.h"
#include "ui_frmCalc.h"

void frmCalc::mnuGengoOpen_Click()
{
    const auto path = askForFile(QStringLiteral("Open Linguistic Data"), ItemFiles.filter());
    if (!path) {
        return;
    }
    LoadWordData(m_varn, *path, m_varn, m_varn, dialogs());
    SetKindWord();
    if (m_varn.NKind == 0) {
        dialogs().message(QStringLiteral("Specify Linguistic Data."), QStringLiteral("Input Wordform Data."));
    }
}

void frmCalc::lstDisplay_Click()
{
    const int kinds = m_ui->lstDisplay->count();
    m_ui->lblWordNumber->setText(
        kinds == 0
            ? QStringLiteral("No kinds of words")
            : QStringLiteral("Kind of word %1 of %2").arg(m_ui->lstDisplay->currentRow() + 1).arg(kinds));
}

void frmCalc::cmdSetWord_Click()
{
    if (const QListWidgetItem* entry = m_ui->lstDisplay->currentItem()) {
        m_ui->fraChars->enter(entry->text().section(QLatin1Char(' '), 1));
    }
}
