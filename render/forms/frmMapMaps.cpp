// The maps and lists that the map form draws.

#include "analysis/ContrastMap.h"
#include "analysis/DiffusionGraphs.h"
#include "lingdata/LoadedState.h"
#include "render/BlankMap.h"
#include "render/Legend.h"
#include "render/LinguisticMap.h"
#include "render/SymbolCatalogue.h"
#include "render/SymbolHelp.h"
#include "render/forms/frmMap.h"
#include "shell/MapParts.h"
#include "shell/VarnModule.h"
#include "ui_frmMap.h"

#include <QFileInfo>

#include <algorithm>

void frmMap::enableMapLing()
{
    const bool chosenKind = m_varn.AnalysisMode == 2 || m_varn.AnalysisMode == 4;
    m_ui->mnuMapLing->setEnabled(chosenKind || canDrawLinguisticMap(m_varn));
}

void frmMap::mnuMapLing_Click()
{
    drawOnTarget(QFileInfo(m_varn.ItemFileName).completeBaseName(),
                 [this] { drawLinguisticMap(linguisticMapParts(m_varn), surfaces()); });
}

void frmMap::mnuMapBlank_Click()
{
    drawOnTarget(QStringLiteral("Blank Map"), [this] { DrawBlankMap(blankMapParts(m_varn), surfaces()); });
}

void frmMap::mnuHanrei_Click()
{
    const WaitCursor wait;
    hideStyle();
    m_varn.DrawTarget = &m_surface;
    PlotHanrei(linguisticMapParts(m_varn), surfaces());
}

void frmMap::mnuSymbols_Click()
{
    drawOnTarget(QStringLiteral("Phonetic Alphabets"),
                 [this] { WriteSymbolHelp(m_varn.ExpSymbols, textParts(m_varn), surfaces()); });
}

void frmMap::mnuTotalBar_Click()
{
    drawOnTarget(QStringLiteral("Diffusion Map"), [this] {
        drawSingleGraph(countMapParts(m_varn), DiffusionGraph::Bar, m_varn.CurrentWordform, surfaces());
    });
}

void frmMap::mnuTotalSBar_Click()
{
    drawOnTarget(QStringLiteral("Diffusion Map"),
                 [this] { drawLayeredGraph(countMapParts(m_varn), DiffusionGraph::Bar, surfaces()); });
}

void frmMap::mnuTotalCircle_Click()
{
    drawOnTarget(QStringLiteral("Diffusion Map"), [this] {
        drawSingleGraph(countMapParts(m_varn), DiffusionGraph::Circle, m_varn.CurrentWordform, surfaces());
    });
}

void frmMap::mnuTotalSCircle_Click()
{
    drawOnTarget(QStringLiteral("Diffusion Map"),
                 [this] { drawLayeredGraph(countMapParts(m_varn), DiffusionGraph::Circle, surfaces()); });
}

void frmMap::mnuTotalHanko_Click()
{
    drawOnTarget(QStringLiteral("Diffusion Map"),
                 [this] { drawLayeredGraph(countMapParts(m_varn), DiffusionGraph::Symbol, surfaces()); });
}

void frmMap::mnuRank_Click()
{
    drawOnTarget(QStringLiteral("Contrast Map"),
                 [this] { drawContrastMap(countMapParts(m_varn), surfaces()); });
}

void frmMap::mnuHankoList_Click()
{
    m_symbolPage = 1;
    plotSymbolPage();
}

void frmMap::mnuHankoNext_Click()
{
    m_symbolPage = std::min(m_symbolPage + 1, LastSymbolPage(m_varn));
    plotSymbolPage();
}

void frmMap::mnuHankoPrevious_Click()
{
    m_symbolPage = std::max(m_symbolPage - 1, 1);
    plotSymbolPage();
}

void frmMap::plotSymbolPage()
{
    drawOnTarget(QStringLiteral("Symbols"), [this] { PlotSymbol(m_varn, m_varn, m_symbolPage, surfaces()); });
}
