// The strings that identify a word form, and the item whose kinds they can be taken from.

#include "analysis/forms/frmCalc.h"
#include "lingdata/ItemLoader.h"
#include "lingdata/LinguisticFile.h"
#include "shell/VarnModule.h"
#include "ui_frmCalc.h"

namespace {

const QString FormTitle = QStringLiteral("Accumulate Data");

} // namespace

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
        m_ui->txtInputWord->setText(entry->text().section(QLatin1Char(' '), 1));
        m_ui->txtInputWord->setFocus();
    }
}

bool frmCalc::mayRegister(const QString& text)
{
    return !text.isEmpty() ||
           dialogs().askYesNo(QStringLiteral("An empty string is found in every answer. Register it?"),
                              FormTitle);
}

void frmCalc::cmdWordSelect_Click()
{
    const QString text = m_ui->txtInputWord->text();
    if (mayRegister(text)) {
        m_editor.add(text);
        SetTotalWordList();
    }
}

void frmCalc::cmdWordRewrite_Click()
{
    const QString text = m_ui->txtInputWord->text();
    if (mayRegister(text)) {
        m_editor.rewrite(text);
        SetTotalWordList();
    }
}

void frmCalc::cmdWordDelete_Click()
{
    m_editor.remove();
    SetTotalWordList();
    showString();
}

void frmCalc::cmdWordReset_Click()
{
    m_editor.reset();
    SetTotalWordList();
    showString();
}

void frmCalc::cmdWordNext_Click()
{
    m_editor.next();
    showString();
}

void frmCalc::cmdWordBefore_Click()
{
    m_editor.previous();
    showString();
}

void frmCalc::LstWord_Click()
{
    m_editor.choose(m_ui->LstWord->currentRow() + 1);
    showString();
}
