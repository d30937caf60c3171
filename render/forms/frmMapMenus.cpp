// What the entries of the map form's menus do.

#include "analysis/ContrastMap.h"
#include "analysis/DiffusionGraphs.h"
#include "lingdata/ItemLoader.h"
#include "platform/Numbers.h"
#include "plot/DrawingFile.h"
#include "render/BlankMap.h"
#include "render/Legend.h"
#include "render/LinguisticMap.h"
#include "render/MapSize.h"
#include "render/SymbolCatalogue.h"
#include "render/SymbolHelp.h"
#include "render/forms/frmMap.h"
#include "shell/FileKinds.h"
#include "shell/MapParts.h"
#include "shell/Printing.h"
#include "symbols/SymbolFile.h"
#include "ui_frmMap.h"

#include <QButtonGroup>
#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QScopeGuard>
#include <QStatusBar>

#include <algorithm>
#include <memory>

void frmMap::drawOnTarget(const QString& subject, const std::function<void()>& draw)
{
    QStringList name = {m_varn.VarnMapName.mid(1), subject};
    name.removeAll(QString());
    const QString document = name.join(QStringLiteral(" - "));
    const auto backToForm = qScopeGuard([this] { m_varn.DrawTarget = &m_surface; });
    hideStyle();
    {
        const WaitCursor wait;
        PrintYesNo(m_varn, m_surface, document);
        draw();
    }
    if (m_varn.PrintMode) {
        printDocument(document);
    }
}

void frmMap::printDocument(const QString& name)
{
    constexpr int MessageTime = 10000; // milliseconds

    if (!fitsPaper(m_varn) &&
        !dialogs().confirmLoss(QStringLiteral("The drawing is larger than the paper within its margins and "
                                              "will be cut. Print it ?"),
                               QStringLiteral("Print"))) {
        return;
    }
    const WaitCursor wait;
    PrintEnd(m_varn);
    statusBar()->showMessage(QStringLiteral("Printed: ") + name, MessageTime);
}

// File

void frmMap::mnuSaveMapAs_Click()
{
    const auto file = dialogs().saveFile(
        QStringLiteral("Save Map As"), m_varn.Drive.hostPath(m_varn.dataFolder()),
        QStringLiteral("PDF Files (*.pdf)|*.pdf|SVG Files (*.svg)|*.svg|PNG Files (*.png)|*.png"),
        QFileInfo(m_varn.ItemFileName).completeBaseName());
    if (!file) {
        return;
    }
    double dotsPerInch = DefaultResolution;
    if (drawingFormat(*file) == DrawingFormat::Png) {
        const auto answer = dialogs().input(QStringLiteral("Resolution of the picture in dots per inch"),
                                            QStringLiteral("Save Map As"), QString::number(dotsPerInch));
        if (!answer) {
            return;
        }
        dotsPerInch = Val(*answer);
    }
    const WaitCursor wait;
    saveDrawing(m_surface.drawing(), {m_surface.Width, m_surface.Height}, *file, dotsPerInch);
}

void frmMap::mnuCopyMap_Click()
{
    const WaitCursor wait;
    const QSizeF size(m_surface.Width, m_surface.Height);
    auto copied = std::make_unique<QMimeData>();
    copied->setImageData(drawingImage(m_surface.drawing(), size, DefaultResolution));
    copied->setData(QStringLiteral("image/svg+xml"), drawingSvg(m_surface.drawing(), size));
    QGuiApplication::clipboard()->setMimeData(copied.release()); // the clipboard owns it
}

void frmMap::mnuFilePrint_Click()
{
    if (!m_varn.PrinterConnected) {
        dialogs().message(
            QStringLiteral("Printer is not connected.  Please connect the printer in the Main Form."),
            QStringLiteral("Print"));
        return;
    }
    m_varn.PrintMode = dialogs().askYesNo(QStringLiteral("Will you print ?"), QStringLiteral("Print"));
    if (m_varn.PrintMode) {
        SettingPrinterScale(m_varn, m_varn);
        m_varn.PrinterFactor = 1.0F;
    }
    DisplayInsatsu();
}

void frmMap::lblInsatsumode_Click()
{
    if (!m_varn.PrinterConnected) {
        dialogs().message(
            QStringLiteral("Printer is not connected. Please connect the printer in the Main Form."),
            QStringLiteral("Print"));
        return;
    }
    m_varn.PrintMode = !m_varn.PrintMode;
    if (m_varn.PrintMode) {
        m_varn.PrinterFactor = 1.0F;
    }
    DisplayInsatsu();
}

// Load Data

std::optional<QString> frmMap::askForFile(const QString& title, const QString& filter)
{
    return askToOpen(dialogs(), m_varn.Drive, m_varn.dataFolder(), title, filter);
}

void frmMap::mnuInputWord_Click()
{
    if (const auto path = askForFile(QStringLiteral("Load Linguistic File"), ItemFiles.filter())) {
        LoadWordData(m_varn, *path, m_varn, m_varn, dialogs());
    }
}

void frmMap::mnuHankoInput_Click()
{
    if (m_varn.HankoUnsaved &&
        !dialogs().askYesNo(QStringLiteral("The symbol set is not saved and will be lost. Go on ?"),
                            QStringLiteral("Load Symbol File"))) {
        return;
    }
    if (const auto path = askForFile(QStringLiteral("Load Symbol File"), SymbolFiles.filter())) {
        LoadHankoData(m_varn.Drive, *path, m_varn);
        symbolSetLoaded(m_varn);
    }
}

void frmMap::enableMapLing()
{
    const bool chosenKind = m_varn.AnalysisMode == 2 || m_varn.AnalysisMode == 4;
    m_ui->mnuMapLing->setEnabled(chosenKind || canDrawLinguisticMap(m_varn));
}

// Draw Map

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

// Diffusion Map

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

// Set Map

void frmMap::mnuHpos_Click()
{
    constexpr int Gap = 12;
    const QRect shown = m_ui->picMap->visibleRegion().boundingRect();
    m_ui->fraStyle->adjustSize();
    m_ui->fraStyle->move(std::max(0, shown.right() - m_ui->fraStyle->width() - Gap), shown.top() + Gap);
    m_ui->fraStyle->show();
    m_places->checkedButton()->setFocus();
}

void frmMap::hideStyle()
{
    m_ui->fraStyle->hide();
}

void frmMap::mnuChiten_Click()
{
    m_varn.PlotDots = dialogs().askYesNo(QStringLiteral("Will you plot dots for localities ?"),
                                         QStringLiteral("Plot Locality Dots"));
}

void frmMap::mnuStyle_Click()
{
    m_varn.WriteFileName = dialogs().askYesNo(QStringLiteral("Will you print File Name?"),
                                              QStringLiteral("Write Symbol File Name"));
}

void frmMap::mnuMapSize_Click()
{
    constexpr double SmallestHeight = 0.1;
    const auto answer = dialogs().input(
        QStringLiteral("Input the height of map. (mm unit. Maximum is about 150mm) Iinitial setting is "
                       "0mm(default)."),
        QStringLiteral("Set of Map Vertical Size"), QStringLiteral("0"));
    if (!answer) {
        return;
    }
    if (const double millimetres = Val(*answer); millimetres >= SmallestHeight) {
        setMapHeight(m_surface, millimetres);
    } else {
        m_surface.Width = toSingle(m_varn.MapFormWidth);
        m_surface.Height = m_varn.MapFormHeight;
    }
    showArea();
}

// Symbols

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
