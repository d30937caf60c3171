// The file of the form of diffusion symbols.

#include "analysis/AnalysisFileName.h"
#include "analysis/DiffusionEditor.h"
#include "analysis/DiffusionSymbols.h"
#include "analysis/forms/frmTotalHanko.h"
#include "platform/FileKind.h"
#include "shell/VarnModule.h"
#include "ui_frmTotalHanko.h"

bool frmTotalHanko::isEdited() const
{
    return m_prepared && m_saved.differs(m_varn);
}

bool frmTotalHanko::mayGiveUpWork(const QString& question)
{
    return !isEdited() ||
           dialogs().confirmLoss(QStringLiteral("The symbols have changes that are not saved. ") + question,
                                 FormTitle);
}

void frmTotalHanko::mnuTotalHankoOpen_Click()
{
    if (!mayGiveUpWork(QStringLiteral("Open a symbol file and lose them?"))) {
        return;
    }
    if (const auto path = askToOpen(dialogs(), m_varn.Drive, m_varn.dataFolder(),
                                    QStringLiteral("Open Symbol File"), DiffusionSymbolFiles.filter())) {
        LoadTotalHanko(*path);
    }
}

void frmTotalHanko::LoadTotalHanko(const QString& path)
{
    DiffusionSymbols loaded = readSequentialFile(m_varn.Drive, path, readDiffusionSymbols);
    const int records = loaded.NDiffusion;
    static_cast<DiffusionSymbols&>(m_varn) = std::move(loaded);
    m_saved.keep(m_varn);
    m_ui->txtFileName->setText(analysisFileStem(path, DiffusionSymbolFiles));
    followWordforms(m_varn, m_names, m_varn);
    showWordform();
    if (records != m_varn.NumWordforms) {
        dialogs().message(
            QStringLiteral("The file has symbols for %1 word forms, the cumulative data has %2.")
                .arg(records)
                .arg(m_varn.NumWordforms),
            FormTitle);
    }
}

std::optional<QString> frmTotalHanko::savePath()
{
    const QString name = m_ui->txtFileName->text().trimmed();
    if (analysisFileStem(name, DiffusionSymbolFiles).isEmpty()) {
        dialogs().message(QStringLiteral("Input File Name of Symbol Data"),
                          QStringLiteral("Save Symbol File"));
        m_ui->txtFileName->setFocus();
        return std::nullopt;
    }
    return analysisSavePath(m_varn, name, DiffusionSymbolFiles, dialogs());
}

void frmTotalHanko::mnuTotalHankoSave_Click()
{
    if (const auto path = savePath()) {
        writeSequentialFile(m_varn.Drive, *path,
                            [this](SequentialWriter& file) { writeDiffusionSymbols(file, m_varn); });
        m_ui->txtFileName->setText(analysisFileStem(*path, DiffusionSymbolFiles));
        m_saved.keep(m_varn);
    }
}
