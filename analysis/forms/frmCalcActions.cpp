// What the buttons and menu entries of the set-up form of cumulative analysis do.

#include "analysis/forms/frmCalc.h"
#include "lingdata/ItemLoader.h"
#include "platform/Numbers.h"
#include "shell/FileKinds.h"
#include "shell/VarnModule.h"
#include "ui_frmCalc.h"

namespace {

const QString FormTitle = QStringLiteral("Accumulate Data");

} // namespace

// The number of word forms and of items

void frmCalc::cmdTotalNumber_Click()
{
    const qint16 number = toInteger(Val(m_ui->txtTotalNumber->text()));
    if (number == 0) {
        dialogs().message(QStringLiteral("No. of Specify Data is inadequate."), FormTitle);
        return;
    }
    if (mayGiveUpFields(QStringLiteral("Show the first word form without them?"))) {
        changeNumWordforms(number, state(), dialogs());
        showTable();
    }
}

void frmCalc::cmdSetInput_Click()
{
    const qint16 items = toInteger(Val(m_ui->txtTotalItems->text()));
    if (items < 0) {
        dialogs().message(QStringLiteral("No. of Items Accumulated must not be negative."), FormTitle);
        return;
    }
    m_varn.NumItemsAccumulated = items;
    SetTotal();
}

// The word forms

bool frmCalc::mayGiveUpFields(const QString& question)
{
    return !isEdited() ||
           dialogs().confirmLoss(
               QStringLiteral("Name or colors of word form %1 are changed and not registered. ")
                       .arg(m_shownWordform) +
                   question,
               FormTitle);
}

void frmCalc::moveTo(int k)
{
    if (k < 1 || k > m_varn.NumWordforms) {
        return;
    }
    if (mayGiveUpFields(QStringLiteral("Leave it without them?"))) {
        TotalSet(k);
    } else {
        SetTotalList();
    }
}

void frmCalc::cmdNext_Click()
{
    moveTo(m_varn.CurrentWordform + 1);
}

void frmCalc::cmdPrevious_Click()
{
    moveTo(m_varn.CurrentWordform - 1);
}

void frmCalc::lstTotal_Click(int row)
{
    if (row >= 0 && row + 1 != m_varn.CurrentWordform) {
        moveTo(row + 1);
    }
}

void frmCalc::cmdSet_Click()
{
    const WordformFields held = fields();
    const int k = m_varn.CurrentWordform;
    m_varn.WordformName(k) = held.name;
    if (held.symbolColor >= 0) {
        m_varn.WordformSymbolColor(k) = held.symbolColor;
    }
    if (held.paintColor >= 0) {
        m_varn.WordformPaintColor(k) = static_cast<qint16>(held.paintColor);
    }
    m_stored = held;
    SetTotalList();
}

// The item

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

// The identifying strings

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
