#include "mapdata/forms/frmChizu.h"

#include "mapdata/MapFiles.h"
#include "mapdata/RegisteredMap.h"
#include "platform/FileKind.h"
#include "platform/SequentialFile.h"
#include "platform/forms/ThemeColors.h"
#include "render/BlankMap.h"
#include "shell/MapChange.h"
#include "shell/MapParts.h"
#include "shell/VarnModule.h"
#include "ui_frmChizu.h"

#include <QScopeGuard>
#include <QShortcut>

#include <utility>

frmChizu::frmChizu(VarnModule& varn, Dialogs& dialogs, std::function<MapSurfaces()> mapSurfaces,
                   std::function<bool()> mayChangeMap)
    : VarnForm(dialogs), m_ui(std::make_unique<Ui::frmChizu>()), m_varn(varn),
      m_mapSurfaces(std::move(mapSurfaces)), m_mayChangeMap(std::move(mayChangeMap))
{
    m_ui->setupUi(this);
    m_ui->picMap->setSurface(m_surface, SurfaceView::Fit::WholePaper);
    m_ui->picMap->setPlaceholder(QStringLiteral("The parts of the map are shown here."));
    showAsReadOnly(*m_ui->txtMapName);
    showAsReadOnly(*m_ui->txtPathName);
    handle(m_ui->cmdRegMapName, &QPushButton::clicked, &frmChizu::cmdRegMapName_Click);
    handle(m_ui->cmdCurveLine, &QPushButton::clicked, &frmChizu::cmdCurveLine_Click);
    handle(m_ui->cmdChiten, &QPushButton::clicked, &frmChizu::cmdChiten_Click);
    handle(m_ui->cmdMoji, &QPushButton::clicked, &frmChizu::cmdMoji_Click);
    handle(m_ui->cmdBlankMap, &QPushButton::clicked, &frmChizu::cmdBlankMap_Click);
    connect(m_ui->cmdMap, &QPushButton::clicked, this, &frmChizu::toDrawMap);
    connect(m_ui->cmdExit, &QPushButton::clicked, this, &frmChizu::toMain);
    connect(new QShortcut(QKeySequence(QStringLiteral("Ctrl+Q")), this), &QShortcut::activated, this,
            &frmChizu::toMain);
}

frmChizu::~frmChizu() = default;

void frmChizu::Form_Load()
{
    cls();
    refresh();
}

void frmChizu::refresh()
{
    const QString mapName = m_varn.VarnMapName.mid(1);
    m_ui->txtPathName->setText(m_varn.VarnPath);
    m_ui->txtMapName->setText(mapName);
    showTitle({QStringLiteral("Set Map Data and Draw Blank Map"), mapName});
    m_ui->picMap->refresh();
}

/// Empties the form's paper, which is as large as the map form.
void frmChizu::cls()
{
    const FormArea area = m_mapSurfaces().area;
    m_surface.Width = area.Width;
    m_surface.Height = area.Height;
    m_surface.Cls();
}

void frmChizu::drawHere(const std::function<void(MapSurfaces)>& draw)
{
    const WaitCursor wait;
    const MapSurfaces mapForm = m_mapSurfaces();
    if (m_surface.Width != mapForm.area.Width || m_surface.Height != mapForm.area.Height) {
        cls(); // parts of different scales would not lie on each other
    }
    m_varn.DrawTarget = &m_surface;
    const auto back = qScopeGuard([&] { m_varn.DrawTarget = &mapForm.frmMap; });
    draw(m_mapSurfaces());
}

/// The scale at which the map would fill this form's own drawing area.
void frmChizu::FindMinMax(float& scale) const
{
    const FormArea form = areaOnScreen(static_cast<float>(m_ui->picMap->width() * TwipsPerPixel),
                                       static_cast<float>(m_ui->picMap->height() * TwipsPerPixel));
    constexpr float StartMaxY = -1000000.0F;
    scale = ::FindMinMax(m_varn, form, m_varn, StartMaxY);
}

/// Asks for a file in the folders of a map and makes that map the current one, path and all. Returns whether
/// the user chose one.
bool frmChizu::SearchLocateData()
{
    const QString title = QStringLiteral("Set Map Name");
    const auto path =
        askToOpen(dialogs(), m_varn.Drive, m_varn.VarnPath + QStringLiteral("\\VarnData"), title,
                  QStringLiteral("Map and item files (*.map;*.dbs)|*.map;*.dbs|All files (*.*)|*.*"));
    if (!path) {
        return false;
    }
    const std::optional<MapPlace> place = mapPlaceOf(*path);
    if (!place) {
        dialogs().message(QStringLiteral("The file is not in the folder of a map under \\VarnData."), title);
        return false;
    }
    if (!isCurrentMap(*place, m_varn) && !m_mayChangeMap()) {
        return false;
    }
    changeMap(*place, m_varn);
    run([this] { loadLocalityNames(m_varn, m_varn); });
    return true;
}

void frmChizu::tellMissingParts()
{
    const QStringList missing = missingParts(m_varn.Drive, {m_varn.VarnPath, m_varn.VarnMapName});
    if (!missing.isEmpty()) {
        dialogs().message(QStringLiteral("The map lacks these files; what they hold stays empty:\r\n") +
                              missing.join(QStringLiteral("\r\n")),
                          QStringLiteral("Set Map Name"));
    }
}

void frmChizu::LoadLocate()
{
    const QString path = mapFolder(m_varn.VarnPath, m_varn.VarnMapName) + QStringLiteral("\\loc.map");
    static_cast<Localities&>(m_varn) = readSequentialFile(m_varn.Drive, path, readLocalities);
    FindMinMax(m_varn.Scale);
}

void frmChizu::SetMapName()
{
    cls();
    drawHere([this](MapSurfaces surfaces) { DrawBlankMap(blankMapParts(m_varn), surfaces); });
}

void frmChizu::PlotLocateCircle()
{
    ::PlotLocateCircle(m_varn, m_varn, m_surface);
}

/// Notes the installation folder in the lower left corner.
void frmChizu::printPath()
{
    constexpr int SmallSize = 8;
    constexpr float Left = 50;
    constexpr float AboveEdge = 200;
    const int fontSize = std::exchange(m_surface.FontSize, SmallSize);
    m_surface.CurrentX = Left;
    m_surface.CurrentY = m_surface.Height - AboveEdge;
    m_surface.Print(m_varn.VarnPath);
    m_surface.FontSize = fontSize;
}

void frmChizu::cmdCurveLine_Click()
{
    LoadLineData(m_varn.Drive, m_varn.VarnPath, m_varn.VarnMapName, m_varn);
    drawHere([this](MapSurfaces surfaces) { PlotLineData(m_varn, m_varn, surfaces); });
}

void frmChizu::cmdChiten_Click()
{
    LoadLocate();
    drawHere([this](MapSurfaces surfaces) {
        PlotLocateData(m_varn, m_varn, m_varn, surfaces);
        PlotLocateCircle();
    });
}

void frmChizu::cmdMoji_Click()
{
    LoadKanjiData(m_varn.Drive, m_varn.VarnPath, m_varn.VarnMapName, m_varn);
    drawHere([this](MapSurfaces surfaces) {
        m_varn.Scale = ::FindMinMax(m_varn, surfaces.area, m_varn);
        PlotKanjiData(m_varn, m_varn, surfaces);
    });
}

void frmChizu::cmdBlankMap_Click()
{
    SetMapName();
}

void frmChizu::cmdRegMapName_Click()
{
    if (!SearchLocateData()) {
        return;
    }
    Q_EMIT mapChosen();
    tellMissingParts();
    cls();
    if (m_varn.NLine > 0) {
        FindMinMax(m_varn.Scale);
        SetMapName();
    }
    printPath();
    refresh();
    if (dialogs().askYesNo(QStringLiteral("Will you use this map ?"), QStringLiteral("Name of Map"))) {
        saveRegisteredMap(m_varn, m_varn);
    }
}
