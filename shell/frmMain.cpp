#include "shell/frmMain.h"

#include "mapdata/MapFiles.h"
#include "platform/Numbers.h"
#include "platform/WholeFile.h"
#include "render/BlankMap.h"
#include "shell/Installation.h"
#include "shell/MapChoice.h"
#include "shell/VarnModule.h"
#include "ui_frmMain.h"

#include <QCoreApplication>
#include <QScopeGuard>

namespace {

/// Shows that the text of `box` is for reading only.
void colorAsReadOnly(QLineEdit& box)
{
    QPalette palette = box.palette();
    palette.setColor(QPalette::Base, palette.color(QPalette::Window));
    box.setPalette(palette);
}

} // namespace

frmMain::frmMain(VarnModule& varn, Dialogs& dialogs)
    : VarnForm(dialogs), m_ui(std::make_unique<Ui::frmMain>()), m_varn(varn), m_map(varn, dialogs)
{
    m_ui->setupUi(this);
    m_preview.Width = m_map.surface().Width;
    m_preview.Height = m_map.surface().Height;
    m_ui->picPreview->setSurface(m_preview, SurfaceView::Fit::WholePaper);
    m_ui->picPreview->setPlaceholder(QStringLiteral("Check Map Name shows the map here."));
    colorAsReadOnly(*m_ui->txtVarnPath);
    colorAsReadOnly(*m_ui->txtVarnMapName);
    handle(m_ui->cmdMapName, &QPushButton::clicked, &frmMain::cmdMapName_Click);
    handle(m_ui->cmdMap, &QPushButton::clicked, &frmMain::cmdMap_Click);
    handle(m_ui->cmdExit, &QPushButton::clicked, &frmMain::cmdExit_Click);
    prepareSetMergin();
    connect(&m_map, &frmMap::toMain, this, &frmMain::bringToFront);
}

frmMain::~frmMain() = default;

void frmMain::Form_Load(const QString& installation)
{
    fixPaths(m_varn);
    recomputePaper();
    run([&] { layDownInstallation(installation, m_varn); });
    applyMapChoice({}, m_varn);
    run([this] {
        if (fileExists(m_varn.Drive, m_varn.DriveFileName)) {
            InputVarnDrive();
        } else {
            VarnDrive();
        }
    });
    m_map.Form_Load();
    m_varn.MapFormWidth = m_map.surface().Width;
    m_varn.MapFormHeight = toInteger(m_map.surface().Height);
    fixLingFolder(m_varn);
    loadBaseMap();
    m_varn.AnalysisMode = 0;
    m_varn.PlotDots = false;
    m_varn.WriteFileName = false;
    refresh();
}

void frmMain::InputVarnDrive()
{
    applyMapChoice(loadMapChoice(m_varn), m_varn);
    if (!dialogs().askYesNo(mapChoiceQuestion(currentMapChoice(m_varn)), QStringLiteral("Map Name, Font"))) {
        VarnDrive();
    }
}

void frmMain::VarnDrive()
{
    saveDriveFile(m_varn);
    saveMapChoice(m_varn, currentMapChoice(m_varn));
    MapChoice choice = currentMapChoice(m_varn);
    if (const auto name = dialogs().input(QStringLiteral("Input Map Name"),
                                          QStringLiteral("Map Name of Varn"), choice.VarnMapName.mid(1))) {
        choice.VarnMapName = QLatin1Char('\\') + *name;
    }
    if (dialogs().askYesNo(QStringLiteral("Input Font Name"), QStringLiteral("Setting of Fonts"))) {
        askForFont(choice);
    }
    applyMapChoice(choice, m_varn);
    saveMapChoice(m_varn, choice);
}

void frmMain::askForFont(MapFont& font)
{
    if (const auto chosen = dialogs().chooseFont(
            {font.MapFontName, font.MapFontSize, font.MapFontBold, font.MapFontItalic})) {
        font.MapFontName = chosen->name;
        font.MapFontSize = toInteger(chosen->size);
        font.MapFontBold = chosen->bold;
        font.MapFontItalic = chosen->italic;
    }
    if (const auto shift = dialogs().input(
            QStringLiteral("Input Vertical Position of Special Fonts.  Input (-3.0 to 3.0).  Default (0)\r\n"
                           "Move Upper for Smaller Number"),
            QStringLiteral("Vertical Position of Special Fonts"), QString::number(font.SpecialFontShift))) {
        font.SpecialFontShift = toSingle(Val(*shift));
    }
}

void frmMain::loadBaseMap()
{
    run([this] { LoadSquareData(m_varn.Drive, m_varn.VarnPath, m_varn); });
    run([this] { m_varn.ExpSymbols = LoadSymbols(m_varn); });
    if (m_varn.VarnMapName.isEmpty()) {
        return; // the user has been told, or did not choose a map
    }
    run([this] { LoadLineData(m_varn.Drive, m_varn.VarnPath, m_varn.VarnMapName, m_varn); });
    run([this] { LoadLocateData(m_varn.Drive, m_varn.VarnPath, m_varn.VarnMapName, m_varn); });
    run([this] { LoadKanjiData(m_varn.Drive, m_varn.VarnPath, m_varn.VarnMapName, m_varn); });
    findStartExtent(m_varn, m_varn);
}

void frmMain::SetMapName()
{
    drawPreview();
    refresh();
    // The answer No will lead to the form where maps are chosen.
    dialogs().askYesNo(QStringLiteral("Is this a right map name ? "), QStringLiteral("Map Name"));
}

void frmMain::drawPreview()
{
    const WaitCursor wait;
    DrawSurface& mapForm = m_map.surfaces().frmMap;
    m_preview.Width = mapForm.Width;
    m_preview.Height = mapForm.Height;
    m_varn.DrawTarget = &m_preview;
    const auto back = qScopeGuard([&] { m_varn.DrawTarget = &mapForm; });
    m_preview.Cls();
    DrawBlankMap(m_varn, m_map.surfaces());
}

void frmMain::refresh()
{
    const QString mapName = m_varn.VarnMapName.mid(1);
    m_ui->txtVarnPath->setText(m_varn.VarnPath);
    m_ui->txtVarnMapName->setText(mapName);
    setWindowTitle(mapName.isEmpty() ? QStringLiteral("VARN") : QStringLiteral("VARN - ") + mapName);
    m_ui->picPreview->refresh();
    m_map.refresh();
}

void frmMain::cmdMapName_Click()
{
    SetMapName();
}

void frmMain::cmdMap_Click()
{
    m_map.bringToFront();
}

void frmMain::cmdExit_Click()
{
    QCoreApplication::exit();
}
