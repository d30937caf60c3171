// The file of the contrast form.

#include "analysis/AnalysisFileName.h"
#include "analysis/ContrastData.h"
#include "analysis/forms/frmRankData.h"
#include "platform/FileKind.h"
#include "shell/VarnModule.h"
#include "ui_frmRankData.h"

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
    m_ui->txtRankFileName->setText(analysisFileStem(path, ContrastFiles));
    followTable();
    showBoxes(boxesOf(m_varn));
    m_saved.keep(settings());
    if (!differing.isEmpty()) {
        m_saved.forget(); // the file has other names
    }
}

std::optional<QString> frmRankData::savePath()
{
    const QString name = m_ui->txtRankFileName->text().trimmed();
    if (analysisFileStem(name, ContrastFiles).isEmpty()) {
        dialogs().message(QStringLiteral("Input File Name for Analysis Data."),
                          QStringLiteral("Save Contrast File"));
        m_ui->txtRankFileName->setFocus();
        return std::nullopt;
    }
    return analysisSavePath(m_varn, name, ContrastFiles, dialogs());
}

void frmRankData::mnuRankSave_Click()
{
    if (const auto path = savePath()) {
        SetRankData();
        SaveRankFile(m_varn.Drive, *path, m_varn);
        m_ui->txtRankFileName->setText(analysisFileStem(*path, ContrastFiles));
        m_saved.keep(settings());
        if (m_page > 0) {
            DisplayRank(); // under the name it has now
        }
    }
}
