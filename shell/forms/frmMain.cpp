#include "shell/forms/frmMain.h"

#include "exchange/NamedLocalities.h"
#include "exchange/forms/frmNewSurvey.h"
#include "platform/Numbers.h"
#include "platform/forms/ThemeColors.h"
#include "render/BlankMap.h"
#include "shell/ImportCommands.h"
#include "shell/MapParts.h"
#include "shell/StartUp.h"
#include "shell/VarnModule.h"
#include "shell/forms/WorkKeeper.h"
#include "shell/forms/WorkingForms.h"
#include "ui_frmMain.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QScopeGuard>

frmMain::frmMain(VarnModule& varn, Dialogs& dialogs)
    : VarnForm(dialogs), m_ui(std::make_unique<Ui::frmMain>()), m_varn(varn),
      m_keeper(new WorkKeeper(varn, dialogs, *this, [this] { return unsavedWork(); }))
{
    m_ui->setupUi(this);
    setAcceptDrops(true);
    m_ui->picPreview->setPlaceholder(QStringLiteral("Check Map Name shows the map here."));
    showAsReadOnly(*m_ui->txtVarnPath);
    showAsReadOnly(*m_ui->txtVarnMapName);
    m_ui->fraSetMergin->edit(varn, dialogs, *this);
    connectButtons();
}

frmMain::~frmMain() = default;

void frmMain::makeForms()
{
    m_forms = std::make_unique<WorkingForms>(m_varn, dialogs(), [this] { return m_keeper->mayChangeMap(); });
    m_newSurvey = new frmNewSurvey(m_varn, dialogs(), this);
    m_preview.Width = m_forms->map.surface().Width;
    m_preview.Height = m_forms->map.surface().Height;
    m_ui->picPreview->setSurface(m_preview, SurfaceView::Fit::WholePaper);
    connectForms();
    connectAnalysisForms();
}

void frmMain::connectButtons()
{
    handle(m_ui->cmdRegMap, &QPushButton::clicked, &frmMain::cmdRegMap_Click);
    handle(m_ui->cmdMapName, &QPushButton::clicked, &frmMain::cmdMapName_Click);
    handle(m_ui->cmdInputData, &QPushButton::clicked, &frmMain::cmdInputData_Click);
    handle(m_ui->cmdData, &QPushButton::clicked, &frmMain::cmdData_Click);
    handle(m_ui->cmdHanko, &QPushButton::clicked, &frmMain::cmdHanko_Click);
    handle(m_ui->cmdMap, &QPushButton::clicked, &frmMain::cmdMap_Click);
    handle(m_ui->cmdSumUp, &QPushButton::clicked, &frmMain::cmdSumUp_Click);
    handle(m_ui->cmdAtlas, &QPushButton::clicked, &frmMain::cmdAtlas_Click);
    connect(m_ui->cmdSettingPrinter, &QPushButton::clicked, m_ui->fraSetMergin, &PageSetupFrame::open);
    handle(m_ui->cmdExit, &QPushButton::clicked, &frmMain::cmdExit_Click);
    handle(m_ui->mnuImportLocalities, &QAction::triggered, &frmMain::mnuImportLocalities_Click);
    handle(m_ui->mnuImportLines, &QAction::triggered, &frmMain::mnuImportLines_Click);
    handle(m_ui->mnuImportPlaceNames, &QAction::triggered, &frmMain::mnuImportPlaceNames_Click);
    handle(m_ui->mnuImportPolygons, &QAction::triggered, &frmMain::mnuImportPolygons_Click);
    handle(m_ui->mnuNewSurvey, &QAction::triggered, &frmMain::mnuNewSurvey_Click);
    handle(m_ui->mnuExportSurvey, &QAction::triggered, &frmMain::mnuExportSurvey_Click);
}

void frmMain::connectForms()
{
    connect(&m_forms->map, &frmMap::toMain, this, &frmMain::bringToFront);
    connect(&m_forms->chizu, &frmChizu::toMain, this, &frmMain::bringToFront);
    connect(&m_forms->dataInput, &frmDataInput::toMain, this, &frmMain::bringToFront);
    connect(&m_forms->data, &frmData::toMain, this, &frmMain::bringToFront);
    connect(&m_forms->setHanko, &frmSetHanko::toMain, this, &frmMain::bringToFront);
    handle(&m_forms->chizu, &frmChizu::toDrawMap, &frmMain::openMap);
    handle(&m_forms->setHanko, &frmSetHanko::toDrawMap, &frmMain::openMap);
    handle(&m_forms->chizu, &frmChizu::mapChosen, &frmMain::showNewMap);
    connect(&m_forms->data, &frmData::itemLoaded, &m_forms->map, &frmMap::enableMapLing);
    handle(&m_forms->dataInput, &frmDataInput::itemReloaded, &frmMain::showReloadedItem);
    connect(&m_forms->atlas, &frmAtlas::toMain, this, &frmMain::bringToFront);
    handle(&m_forms->atlas, &frmAtlas::toNewSurvey, &frmMain::mnuNewSurvey_Click);
    handle(&m_forms->atlas, &frmAtlas::toInputData, &frmMain::cmdInputData_Click);
    handle(&m_forms->atlas, &frmAtlas::toAccumulateData, &frmMain::cmdSumUp_Click);
    connect(&m_forms->atlas, &frmAtlas::mapWanted, this,
            [this](const QString& mapName) { run([&] { openAtlas(mapName); }); });
    connect(m_newSurvey, &frmNewSurvey::surveyMade, this,
            [this](const QString& mapName, const QString& item) { run([&] { showSurvey(mapName, item); }); });
}

void frmMain::connectAnalysisForms()
{
    handle(&m_forms->dataInput, &frmDataInput::toAccumulateData, &frmMain::openCalc);
    connect(&m_forms->calc, &frmCalc::toMain, this, &frmMain::bringToFront);
    handle(&m_forms->calc, &frmCalc::toExecute, &frmMain::openCalExec);
    handle(&m_forms->calc, &frmCalc::toDrawMap, &frmMain::openMap);
    handle(&m_forms->calc, &frmCalc::toContrast, &frmMain::openRankData);
    connect(&m_forms->calExec, &frmCalExec::toMain, this, &frmMain::bringToFront);
    handle(&m_forms->calExec, &frmCalExec::toAccumulateData, &frmMain::openCalc);
    handle(&m_forms->calExec, &frmCalExec::toDrawMap, &frmMain::openMap);
    handle(&m_forms->calExec, &frmCalExec::toSymbols, &frmMain::openTotalHanko);
    handle(&m_forms->calExec, &frmCalExec::toContrast, &frmMain::openRankData);
    handle(&m_forms->rankData, &frmRankData::toAnalysis, &frmMain::openCalc);
    handle(&m_forms->rankData, &frmRankData::toDrawMap, &frmMain::drawContrastMap);
    handle(&m_forms->totalHanko, &frmTotalHanko::toAnalysis, &frmMain::openCalExec);
    handle(&m_forms->totalHanko, &frmTotalHanko::toDrawMap, &frmMain::drawDiffusionSymbols);
}

void frmMain::Form_Load(const QString& installation)
{
    StartUp start(m_varn, dialogs(), [this](const auto& step) { return run(step); });
    fixPaths(m_varn);
    m_ui->fraSetMergin->recomputePaper();
    start.chooseMapAndFont(installation);
    makeForms();
    m_forms->map.Form_Load();
    m_varn.MapFormWidth = m_forms->map.surface().Width;
    m_varn.MapFormHeight = toInteger(m_forms->map.surface().Height);
    fixLingFolder(m_varn);
    start.loadMap();
    m_varn.AnalysisMode = 0;
    m_varn.PlotDots = false;
    m_varn.WriteFileName = false;
    m_keeper->start();
    run([this] { offerKeptWork(); });
}

UnsavedWork frmMain::unsavedWork()
{
    UnsavedWork work = ::unsavedWork(m_varn, m_forms->dataInput.unsavedItem());
    m_forms->atlas.document().addTo(work);
    return work;
}

void frmMain::offerKeptWork()
{
    const std::optional<UnsavedWork> work = m_keeper->offer();
    if (!work) {
        return;
    }
    showNewMap();
    if (work->item) {
        m_forms->dataInput.enterUnsaved(*work->item);
        open(m_forms->dataInput);
    }
    if (work->table) {
        open(m_forms->calc);
    }
    if (work->isOfAtlas()) {
        m_forms->atlas.showKept(*work);
    } // symbols are set with an item, which is not loaded
}

void frmMain::SetMapName()
{
    drawPreview();
    refresh();
    if (!dialogs().askYesNo(QStringLiteral("Is this a right map name ? "), QStringLiteral("Map Name"))) {
        openChizu();
    }
}

void frmMain::drawPreview()
{
    const WaitCursor wait;
    const MapSurfaces mapForm = m_forms->map.surfaces();
    m_preview.Width = mapForm.area.Width;
    m_preview.Height = mapForm.area.Height;
    m_varn.DrawTarget = &m_preview;
    const auto back = qScopeGuard([&] { m_varn.DrawTarget = &mapForm.frmMap; });
    m_preview.Cls();
    DrawBlankMap(blankMapParts(m_varn), m_forms->map.surfaces());
}

void frmMain::refresh()
{
    const QString mapName = m_varn.VarnMapName.mid(1);
    m_ui->txtVarnPath->setText(m_varn.VarnPath);
    m_ui->txtVarnMapName->setText(mapName);
    showTitle({QStringLiteral("VARN"), mapName});
    m_ui->picPreview->refresh();
    if (m_forms) { // not before the first question of the start
        m_forms->map.refresh();
    }
}

void frmMain::cmdMapName_Click()
{
    SetMapName();
}

void frmMain::openChizu()
{
    open(m_forms->chizu);
}

void frmMain::openMap()
{
    open(m_forms->map);
}

void frmMain::openCalc()
{
    open(m_forms->calc);
}

void frmMain::openCalExec()
{
    open(m_forms->calExec);
}

void frmMain::openRankData()
{
    open(m_forms->rankData);
}

void frmMain::openTotalHanko()
{
    open(m_forms->totalHanko);
}

void frmMain::drawContrastMap()
{
    openMap();
    m_forms->map.mnuRank_Click();
}

void frmMain::drawDiffusionSymbols()
{
    openMap();
    m_forms->map.mnuTotalHanko_Click();
}

void frmMain::showNewMap()
{
    m_preview.Cls();
    for (VarnForm* form : workingForms()) {
        form->showNewState();
    }
}

std::vector<VarnForm*> frmMain::workingForms()
{
    // Those that may have unsaved work come first, and the symbols of the atlas are saved with its pages.
    return {&m_forms->dataInput, &m_forms->atlas,   &m_forms->setHanko, &m_forms->calc,  &m_forms->totalHanko,
            &m_forms->rankData,  &m_forms->calExec, &m_forms->data,     &m_forms->chizu, &m_forms->map};
}

void frmMain::showReloadedItem()
{
    for (VarnForm* form : workingForms()) {
        form->followSharedState();
        form->refresh();
    }
}

void frmMain::cmdRegMap_Click()
{
    openChizu();
    m_preview.Cls();
}

void frmMain::cmdInputData_Click()
{
    open(m_forms->dataInput);
}

void frmMain::cmdData_Click()
{
    open(m_forms->data);
}

void frmMain::cmdHanko_Click()
{
    open(m_forms->setHanko);
}

void frmMain::cmdMap_Click()
{
    openMap();
}

void frmMain::cmdSumUp_Click()
{
    openCalc();
}

void frmMain::cmdAtlas_Click()
{
    open(m_forms->atlas);
}

void frmMain::cmdExit_Click()
{
    m_keeper->keep();
    QCoreApplication::exit();
}

void frmMain::closeEvent(QCloseEvent* event)
{
    // Whoever has unsaved work there may still change his mind.
    for (VarnForm* form : workingForms()) {
        if (!form->close()) {
            event->ignore();
            return;
        }
    }
    m_keeper->giveUp();
    event->accept();
}

void frmMain::mnuImportLocalities_Click()
{
    SaveLocateData(m_varn, dialogs(), readNamedLocalities);
}

void frmMain::mnuImportLines_Click()
{
    SaveLineData(m_varn, dialogs());
}

void frmMain::mnuImportPlaceNames_Click()
{
    SaveKanjiData(m_varn, dialogs(), m_forms->map.surfaces());
}

void frmMain::mnuImportPolygons_Click()
{
    SaveSquareData(m_varn, dialogs());
}
