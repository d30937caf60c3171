// What the set-up form of cumulative analysis does with its files.

#include "analysis/CumulativeFile.h"
#include "analysis/OpenTotal.h"
#include "analysis/forms/frmCalc.h"
#include "platform/FileKind.h"
#include "platform/FileName.h"
#include "shell/VarnModule.h"
#include "ui_frmCalc.h"

namespace {

const QString FormTitle = QStringLiteral("Accumulate Data");

} // namespace

TotalState frmCalc::state()
{
    return {m_varn, m_varn.NLocality, m_varn, m_varn};
}

// The cumulative file

std::optional<QString> frmCalc::askForFile(const QString& title, const QString& filter)
{
    return askToOpen(dialogs(), m_varn.Drive, m_varn.dataFolder(), title, filter);
}

bool frmCalc::mayGiveUpTable(const QString& question)
{
    return !isTableUnsaved(m_varn) ||
           dialogs().confirmLoss(
               QStringLiteral("The cumulative data has changes that are not saved. ") + question, FormTitle);
}

bool frmCalc::mayGiveUpStrings(const QString& question)
{
    return !areCharsUnsaved(m_varn) ||
           dialogs().confirmLoss(QStringLiteral("The identifying strings have changes that are not saved. ") +
                                     question,
                                 FormTitle);
}

void frmCalc::takeFileName()
{
    m_varn.TotalFileName = withoutEnding(m_ui->txtTotalFileName->text().trimmed(), TotalFiles.ending);
}

void frmCalc::mnuFileOpen_Click()
{
    const QString question = QStringLiteral("Open a cumulative file and lose them?");
    if (!mayGiveUpFields(question) || !mayGiveUpTable(question)) {
        return;
    }
    if (const auto path = askForFile(QStringLiteral("Open Cumulative Data File"), TotalFiles.filter())) {
        LoadTotalFile(*path);
    }
}

void frmCalc::LoadTotalFile(const QString& path)
{
    openTotal(path, state(), dialogs());
    showTable();
    m_ui->fraChars->showFile();
}

void frmCalc::SaveTotalFile()
{
    if (!mayGiveUpFields(QStringLiteral("Save the file without them?"))) {
        return;
    }
    if (saveTotal(state(), dialogs())) {
        m_ui->txtTotalFileName->setText(m_varn.TotalFileName);
    } else {
        m_ui->txtTotalFileName->setFocus();
    }
}

void frmCalc::Initialize()
{
    initializeTotal(state(), dialogs());
    SetTotal();
}

// The file of identifying strings

void frmCalc::LoadSetData()
{
    const QString question = QStringLiteral("Open a file of strings and lose them?");
    if (!mayGiveUpFields(question) || !mayGiveUpStrings(question)) {
        return;
    }
    const auto path = askForFile(QStringLiteral("Open Specify Char File"), StringFiles.filter());
    if (path && openStrings(*path, state(), dialogs())) {
        showTable();
        m_ui->fraChars->showFile();
    }
}
