// What the set-up form of cumulative analysis does with its files.

#include "analysis/AnalysisFileName.h"
#include "analysis/CumulativeFile.h"
#include "analysis/OpenTotal.h"
#include "analysis/forms/frmCalc.h"
#include "platform/FileKind.h"
#include "platform/FileName.h"
#include "shell/VarnModule.h"
#include "ui_frmCalc.h"

namespace {

const QString FormTitle = QStringLiteral("Accumulate Data");

/// The word forms whose strings a file of identifying strings cannot hold; empty where it holds all.
QString wordformsWithoutLine(const CumulativeData& data)
{
    constexpr int MostStrings = 10;
    QStringList names;
    for (int k = 1; k <= data.NumWordforms; ++k) {
        const int strings = data.NumSpecifyChars(k);
        if (strings < 1 || strings > MostStrings) {
            names << QStringLiteral("%1 %2 (%3 strings)")
                         .arg(QString::number(k), data.WordformName(k), QString::number(strings));
        }
    }
    return names.join(QLatin1Char('\n'));
}

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
    showFileOfStrings();
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

void frmCalc::showFileOfStrings()
{
    m_ui->txtSetFileName->setText(analysisFileStem(m_varn.SpecifyFileName, StringFiles));
}

void frmCalc::LoadSetData()
{
    const QString question = QStringLiteral("Open a file of strings and lose them?");
    if (!mayGiveUpFields(question) || !mayGiveUpStrings(question)) {
        return;
    }
    const auto path = askForFile(QStringLiteral("Open Specify Char File"), StringFiles.filter());
    if (path && openStrings(*path, state(), dialogs())) {
        showTable();
        showFileOfStrings();
    }
}

void frmCalc::SaveSetData()
{
    const QString name = m_ui->txtSetFileName->text().trimmed();
    const QString title = QStringLiteral("Save Specify Char File");
    if (analysisFileStem(name, StringFiles).isEmpty()) {
        dialogs().message(QStringLiteral("Input Name of Specify Characters."), title);
        m_ui->txtSetFileName->setFocus();
        return;
    }
    const QString path = analysisFilePath(m_varn, name, StringFiles);
    const bool isOwn = path.compare(m_varn.SpecifyFileName, Qt::CaseInsensitive) == 0;
    if (!isOwn && !askToSave(dialogs(), m_varn.Drive, path, title)) {
        return;
    }
    ::SaveSetData(m_varn.Drive, path, m_varn);
    showFileOfStrings();
    if (const QString left = wordformsWithoutLine(m_varn); !left.isEmpty()) {
        dialogs().message(
            QStringLiteral("The file holds word forms with 1 to 10 strings. It cannot be opened "
                           "as long as one has none or more:\n\n") +
                left,
            title);
    }
}
