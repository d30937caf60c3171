// The analysis of the contrast form and its result table.

#include "analysis/forms/ContrastPages.h"
#include "analysis/forms/frmRankData.h"
#include "shell/VarnModule.h"
#include "ui_frmRankData.h"

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
