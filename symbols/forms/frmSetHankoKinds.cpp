// The kinds of the item that the symbol set-up form lists.

#include "lingdata/ItemLoader.h"
#include "lingdata/LinguisticFile.h"
#include "platform/WholeFile.h"
#include "shell/VarnModule.h"
#include "symbols/forms/frmSetHanko.h"
#include "ui_frmSetHanko.h"

void frmSetHanko::SetKindWord()
{
    m_ui->lstKindWord->clear();
    m_listedReading = m_varn.ItemReading;
    LoadSrtData();
    for (int k = 1; k <= m_varn.NKind; ++k) {
        m_ui->lstKindWord->addItem(QString::number(m_varn.KindCount(k)) + QLatin1Char(' ') +
                                   m_varn.KindWord(k));
    }
    m_ui->lstKindWord->setCurrentRow(0);
}

void frmSetHanko::LoadSrtData()
{
    if (m_varn.ItemFileName.isEmpty()) {
        return;
    }
    const QString path = kindsFilePath(m_varn, m_varn.ItemFileName);
    if (fileExists(m_varn.Drive, path)) {
        InputWordData(m_varn, path, m_varn);
    } else {
        FileWordData(m_varn, path, m_varn);
    }
}

void frmSetHanko::LoadGengoDataCheck()
{
    if (m_varn.NKind == 0) {
        dialogs().message(QStringLiteral("Specify Linguistic Data"), QStringLiteral("Input Ling. Data"));
        Q_EMIT toMain();
    }
}

void frmSetHanko::mnuInputWord_Click()
{
    if (const auto path = askForFile(QStringLiteral("Load Linguistic File"), ItemFiles.filter())) {
        LoadWordData(m_varn, *path, m_varn, m_varn, dialogs());
        SetKindWord();
    }
}

void frmSetHanko::cmdWord_Click()
{
    if (const QListWidgetItem* entry = m_ui->lstKindWord->currentItem()) {
        m_ui->txtWord->setText(entry->text().section(QLatin1Char(' '), 1));
    }
}

void frmSetHanko::cmdAutoHanrei_Click()
{
    m_ui->txtHanrei->setText(m_ui->txtWord->text());
}
