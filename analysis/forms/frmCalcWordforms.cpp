// The word forms of the set-up form of cumulative analysis: their number, names and colours.

#include "analysis/forms/frmCalc.h"
#include "platform/Numbers.h"
#include "shell/VarnModule.h"
#include "ui_frmCalc.h"

namespace {

const QString FormTitle = QStringLiteral("Accumulate Data");

} // namespace

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
