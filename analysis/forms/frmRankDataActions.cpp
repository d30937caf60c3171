// What the buttons and menu entries of the contrast form do.

#include "analysis/AnalysisFileName.h"
#include "analysis/forms/ContrastPages.h"
#include "analysis/forms/frmRankData.h"
#include "shell/FileKinds.h"
#include "ui_frmRankData.h"

// The groups

void frmRankData::addSelected(int side)
{
    const int row = m_ui->lstWordList->currentRow();
    if (row < 0) {
        return;
    }
    switch (m_editor.addWordform(side, row + 1)) {
    case ContrastEditor::AddResult::Added:
        m_groupsEdited = true;
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
        m_groupsEdited = true;
        showGroups();
    }
}

// The analysis

void frmRankData::cmdCalc_Click()
{
    DisplayOff();
    SetRankData();
    analyseContrast(m_varn, m_varn.NLocality, m_varn);
    refresh();
    dialogs().message(QStringLiteral("Contrast Analysis is finished."), FormTitle);
}

void frmRankData::mnuRankMap_Click()
{
    SetRankData();
    Q_EMIT toDrawMap();
}

// The result table

void frmRankData::mnuDisplayRank_Click()
{
    DisplayRankData();
}

void frmRankData::mnuDisplayNext_Click()
{
    DisplayON(m_page + 1);
}

void frmRankData::mnuDisplayPrevious_Click()
{
    DisplayON(m_page - 1);
}

void frmRankData::DisplayRankData()
{
    DisplayON(1);
}

void frmRankData::DisplayON(int page)
{
    m_page = page;
    DisplayRank();
}

void frmRankData::DisplayRank()
{
    m_paper.Cls();
    ContrastPages(m_varn, m_ui->txtRankFileName->text().trimmed()).draw(m_page, m_paper);
}

void frmRankData::DisplayOff()
{
    m_page = 0;
    m_paper.Cls();
}

// The file

bool frmRankData::mayGiveUpWork(const QString& question)
{
    return !isEdited() ||
           dialogs().confirmLoss(QStringLiteral("The contrast has changes that are not saved. ") + question,
                                 FormTitle);
}

void frmRankData::mnuRankOpen_Click()
{
    if (!mayGiveUpWork(QStringLiteral("Open a contrast file and lose them?"))) {
        return;
    }
    if (const auto path = askToOpen(dialogs(), m_varn.Drive, m_varn.dataFolder(),
                                    QStringLiteral("Open Contrast File"), ContrastFiles.filter())) {
        LoadRankFile(*path);
    }
}

void frmRankData::LoadRankFile(const QString& path)
{
    QString differing;
    ContrastData loaded = readSequentialFile(m_varn.Drive, path, [&](SequentialReader& file) {
        ContrastData contrast = readContrast(file);
        differing = differingNames(m_varn, contrast);
        return contrast;
    });
    if (!differing.isEmpty() &&
        !dialogs().askYesNo(differing + QStringLiteral("\n\nOpen the file with the word forms of the "
                                                       "cumulative data?"),
                            QStringLiteral("Open Contrast File"))) {
        return;
    }
    static_cast<ContrastData&>(m_varn) = std::move(loaded);
    m_ui->txtRankFileName->setText(analysisFileStem(path, Ending));
    followTable();
    showBoxes(boxesOf(m_varn));
    m_savedBoxes = boxes();
    m_groupsEdited = !differing.isEmpty();
}

std::optional<QString> frmRankData::savePath()
{
    const QString name = m_ui->txtRankFileName->text().trimmed();
    if (analysisFileStem(name, Ending).isEmpty()) {
        dialogs().message(QStringLiteral("Input File Name for Analysis Data."),
                          QStringLiteral("Save Contrast File"));
        m_ui->txtRankFileName->setFocus();
        return std::nullopt;
    }
    return analysisSavePath(m_varn, name, Ending, dialogs());
}

void frmRankData::mnuRankSave_Click()
{
    if (const auto path = savePath()) {
        SetRankData();
        SaveRankFile(m_varn.Drive, *path, m_varn);
        m_ui->txtRankFileName->setText(analysisFileStem(*path, Ending));
        m_savedBoxes = boxes();
        m_groupsEdited = false;
        if (m_page > 0) {
            DisplayRank(); // under the name it has now
        }
    }
}
