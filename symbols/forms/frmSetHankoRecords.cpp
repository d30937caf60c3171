// The records of the symbol set-up form.

#include "platform/Numbers.h"
#include "render/forms/SymbolPicker.h"
#include "shell/VarnModule.h"
#include "symbols/forms/SymbolPreview.h"
#include "symbols/forms/frmSetHanko.h"
#include "ui_frmSetHanko.h"

#include <limits>

void frmSetHanko::cmdSymbol_Click()
{
    HankoStyle style = fields().style;
    const double number = Val(m_ui->txtHankoNumber->text());
    if (number >= 0 && number <= std::numeric_limits<qint16>::max()) {
        style.HankoNo = toInteger(number);
    }
    m_picker->openWith(style);
}

void frmSetHanko::cmdSave_Click()
{
    showStored(m_editor.registerRecord(fields()));
    DisplayHanrei();
}

void frmSetHanko::cmdNext_Click()
{
    const int before = m_varn.CurrentHanko;
    const std::optional<HankoFields> record = m_editor.next(fields());
    if (!record) {
        dialogs().message(QStringLiteral("Caption Data exceed Maximum."), QStringLiteral("Set Symbols"));
    } else if (m_varn.CurrentHanko != before) {
        showStored(*record);
        DisplayHanrei();
    }
}

void frmSetHanko::cmdBefore_Click()
{
    showStored(m_editor.previous(fields()));
    DisplayHanrei();
}

void frmSetHanko::cmdInserte_Click()
{
    const auto answer = dialogs().input(QStringLiteral("Specify Number of Insert Data."),
                                        QStringLiteral("Insert"), QString());
    if (!answer) {
        return;
    }
    if (const auto record = m_editor.insertRecord(toInteger(Val(*answer)), fields().Explain)) {
        showStored(*record);
    }
    DisplayHanrei();
}

void frmSetHanko::cmdDelete_Click()
{
    const auto answer = dialogs().input(QStringLiteral("Specify Number of Delete Data."),
                                        QStringLiteral("Delete"), QString());
    if (answer) {
        m_orphaned = m_editor.deleteRecord(toInteger(Val(*answer))) || m_orphaned;
        DisplayHanrei();
    }
}

void frmSetHanko::cmdUp_Click()
{
    m_editor.scrollUp();
    DisplayHanrei();
}

void frmSetHanko::cmdDown_Click()
{
    m_editor.scrollDown();
    DisplayHanrei();
}

void frmSetHanko::showRecordAt(float y)
{
    const auto record = recordAt(y, m_editor.firstShown(), m_editor.lastShown(), m_preview);
    if (record && mayGiveUpFields(QStringLiteral("Show record %1 and lose them?").arg(*record))) {
        showStored(m_editor.goTo(*record, fields().Explain));
        DisplayHanrei();
    }
}

bool frmSetHanko::mayGiveUpFields(const QString& question)
{
    return !isEdited() || dialogs().confirmLoss(
                              QStringLiteral("The fields hold changes that are not registered. ") + question,
                              QStringLiteral("Set Symbols for Kinds"));
}
