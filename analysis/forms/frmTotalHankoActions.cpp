// What the buttons and menu entries of the form of diffusion symbols do.

#include "analysis/AnalysisFileName.h"
#include "analysis/DiffusionEditor.h"
#include "analysis/StatisticsLines.h"
#include "analysis/forms/frmTotalHanko.h"
#include "render/ListText.h"
#include "render/forms/SymbolPicker.h"
#include "shell/FileKinds.h"
#include "shell/MapParts.h"
#include "shell/VarnModule.h"
#include "ui_frmTotalHanko.h"

#include <QScopeGuard>

// The word forms

void frmTotalHanko::stepTo(int k)
{
    if (k < 1 || k > m_varn.NumWordforms) {
        return;
    }
    m_wordform = k;
    m_block.Cls();
    const auto shown = qScopeGuard([this, was = m_showing] { m_showing = was; });
    m_showing = true;
    m_ui->lstWordform->setCurrentRow(k - 1);
    showWordform();
}

void frmTotalHanko::cmdBefore_Click()
{
    stepTo(m_wordform - 1);
}

void frmTotalHanko::cmdNext_Click()
{
    stepTo(m_wordform + 1);
}

void frmTotalHanko::lstWordform_Click()
{
    if (!m_showing) {
        stepTo(m_ui->lstWordform->currentRow() + 1);
    }
}

void frmTotalHanko::cmdSymbol_Click()
{
    m_picker->openWith(hanko());
}

void frmTotalHanko::cmdStatistics_Click()
{
    Stats(m_varn, m_varn.NLocality, m_varn);
    m_block.Cls();
    ListText text(textParts(m_varn), m_block);
    float y = 0;
    for (const QString& line : statisticsLines(m_varn, m_varn, m_wordform)) {
        text.write(0, y, line, ListText::Coding::Phonetic);
        y += m_block.TextHeight();
    }
}

// The file

bool frmTotalHanko::isEdited() const
{
    return m_prepared && m_saved != fileContents(m_varn);
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
    m_saved = fileContents(m_varn);
    m_ui->txtFileName->setText(analysisFileStem(path, Ending));
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
    if (analysisFileStem(name, Ending).isEmpty()) {
        dialogs().message(QStringLiteral("Input File Name of Symbol Data"),
                          QStringLiteral("Save Symbol File"));
        m_ui->txtFileName->setFocus();
        return std::nullopt;
    }
    return analysisSavePath(m_varn, name, Ending, dialogs());
}

void frmTotalHanko::mnuTotalHankoSave_Click()
{
    if (const auto path = savePath()) {
        writeSequentialFile(m_varn.Drive, *path,
                            [this](SequentialWriter& file) { writeDiffusionSymbols(file, m_varn); });
        m_ui->txtFileName->setText(analysisFileStem(*path, Ending));
        m_saved = fileContents(m_varn);
    }
}
