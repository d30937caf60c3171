// The check of the codes that were entered.

#include "lingdata/forms/frmDataInput.h"
#include "shell/VarnModule.h"
#include "ui_frmDataInput.h"

#include <QSignalBlocker>

#include <utility>

void frmDataInput::cmdCheckCode_Click()
{
    m_ui->tblWords->commitEdit();
    showFaults();
    if (m_faults.empty()) {
        hideFaults();
        dialogs().message(QStringLiteral("All codes are right."), QStringLiteral("Check Code"));
        return;
    }
    m_ui->fraCheck->show();
    m_ui->lstCheck->setCurrentRow(0);
    m_ui->lstCheck->setFocus();
}

void frmDataInput::showFaults()
{
    std::vector<FaultyWord> faults = m_editor.checkCodes();
    if (faults == m_faults) {
        return;
    }
    m_faults = std::move(faults);
    const QSignalBlocker silent(m_ui->lstCheck);
    m_ui->lstCheck->clear();
    for (const FaultyWord& faulty : m_faults) {
        m_ui->lstCheck->addItem(QStringLiteral("Locality %1, word %2:   %3   (%4)")
                                    .arg(localityTitle(m_varn, faulty.place.locality),
                                         QString::number(faulty.place.column), faulty.word,
                                         faultText(faulty.fault)));
    }
    m_ui->lblCheck->setText(QStringLiteral("Word forms with illegal codes: %1").arg(m_faults.size()));
}

void frmDataInput::goToFault(int index)
{
    if (index >= 0 && index < static_cast<int>(m_faults.size())) {
        const FaultyWord& faulty = m_faults[static_cast<std::size_t>(index)];
        m_ui->tblWords->goTo(faulty.place.locality, faulty.place.column, QAbstractItemView::PositionAtCenter);
    }
}

void frmDataInput::hideFaults()
{
    m_ui->fraCheck->hide();
}
