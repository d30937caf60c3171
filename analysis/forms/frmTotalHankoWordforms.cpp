// The word form that the form of diffusion symbols shows, and its statistics.

#include "analysis/StatisticsLines.h"
#include "analysis/forms/frmTotalHanko.h"
#include "render/ListText.h"
#include "render/forms/SymbolPicker.h"
#include "shell/MapParts.h"
#include "shell/VarnModule.h"
#include "ui_frmTotalHanko.h"

#include <QScopeGuard>

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
