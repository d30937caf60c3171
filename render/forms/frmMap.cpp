#include "render/forms/frmMap.h"

#include "lingdata/LocalityMismatch.h"
#include "render/MapSize.h"
#include "shell/Printing.h"
#include "ui_frmMap.h"

#include <QButtonGroup>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

frmMap::frmMap(VarnModule& varn, Dialogs& dialogs)
    : VarnForm(dialogs), m_ui(std::make_unique<Ui::frmMap>()), m_varn(varn), m_places(new QButtonGroup(this)),
      m_lblInsatsumode(new QPushButton(this))
{
    m_ui->setupUi(this);
    m_ui->fraStyle->hide();
    setSize(firstArea().Width, firstArea().Height);
    m_varn.DrawTarget = &m_surface; // until another is asked for
    m_ui->picMap->setSurface(m_surface, SurfaceView::Fit::NaturalSize);
    m_ui->scrMap->viewport()->installEventFilter(this);
    m_lblInsatsumode->setObjectName(QStringLiteral("lblInsatsumode"));
    m_lblInsatsumode->setFlat(true);
    frameFocus(*m_lblInsatsumode);
    m_lblInsatsumode->setToolTip(QStringLiteral("Turn printing on or off"));
    statusBar()->addPermanentWidget(m_lblInsatsumode);
    nameControls();
    connectMenus();
    connectOptions();
    move(screen()->availableGeometry().topLeft());
    showArea();
}

frmMap::~frmMap() = default;

void frmMap::nameControls()
{
    statusLine().setAccessibleName(QStringLiteral("Loaded files"));
    m_lblInsatsumode->setAccessibleDescription(m_lblInsatsumode->toolTip());
    setTabOrder(m_ui->optHankoDown, m_lblInsatsumode);
}

void frmMap::connectMenus()
{
    const auto click = [this](QAction* action, void (frmMap::*handler)()) {
        handle(action, &QAction::triggered, handler);
    };
    click(m_ui->mnuSaveMapAs, &frmMap::mnuSaveMapAs_Click);
    click(m_ui->mnuCopyMap, &frmMap::mnuCopyMap_Click);
    click(m_ui->mnuFilePrint, &frmMap::mnuFilePrint_Click);
    handle(m_lblInsatsumode, &QPushButton::clicked, &frmMap::lblInsatsumode_Click);
    click(m_ui->mnuInputWord, &frmMap::mnuInputWord_Click);
    click(m_ui->mnuHankoInput, &frmMap::mnuHankoInput_Click);
    click(m_ui->mnuMapLing, &frmMap::mnuMapLing_Click);
    click(m_ui->mnuMapBlank, &frmMap::mnuMapBlank_Click);
    click(m_ui->mnuHanrei, &frmMap::mnuHanrei_Click);
    click(m_ui->mnuSymbols, &frmMap::mnuSymbols_Click);
    click(m_ui->mnuWholeWordForms, &frmMap::mnuWholeWordForms_Click);
    click(m_ui->mnuTotalBar, &frmMap::mnuTotalBar_Click);
    click(m_ui->mnuTotalSBar, &frmMap::mnuTotalSBar_Click);
    click(m_ui->mnuTotalCircle, &frmMap::mnuTotalCircle_Click);
    click(m_ui->mnuTotalSCircle, &frmMap::mnuTotalSCircle_Click);
    click(m_ui->mnuTotalHanko, &frmMap::mnuTotalHanko_Click);
    click(m_ui->mnuRank, &frmMap::mnuRank_Click);
    click(m_ui->mnuHpos, &frmMap::mnuHpos_Click);
    click(m_ui->mnuChiten, &frmMap::mnuChiten_Click);
    click(m_ui->mnuStyle, &frmMap::mnuStyle_Click);
    click(m_ui->mnuMapSize, &frmMap::mnuMapSize_Click);
    click(m_ui->mnuHankoList, &frmMap::mnuHankoList_Click);
    click(m_ui->mnuHankoNext, &frmMap::mnuHankoNext_Click);
    click(m_ui->mnuHankoPrevious, &frmMap::mnuHankoPrevious_Click);
    connect(m_ui->mnuToMain, &QAction::triggered, this, &frmMap::toMain);
}

void frmMap::connectOptions()
{
    m_places->addButton(m_ui->optHankoCenter, HankoCenter);
    m_places->addButton(m_ui->optHankoRight, HankoRight);
    m_places->addButton(m_ui->optHankoLeft, HankoLeft);
    m_places->addButton(m_ui->optHankoUp, HankoUp);
    m_places->addButton(m_ui->optHankoDown, HankoDown);
    connect(m_places, &QButtonGroup::idToggled, this, [this](int place, bool chosen) {
        if (chosen) {
            m_varn.HankoPosition = static_cast<qint16>(place);
        }
    });
}

void frmMap::Form_Load()
{
    m_varn.DrawTarget = &m_surface;
    applyMapFont();
    refresh();
}

void frmMap::applyMapFont()
{
    m_surface.setFont(textFont(m_varn));
}

MapSurfaces frmMap::surfaces()
{
    return {{*m_varn.DrawTarget, m_surface}, areaOnScreen(m_surface.Width, m_surface.Height)};
}

void frmMap::refresh()
{
    m_ui->picMap->refresh();
    m_ui->mnuWholeWordForms->setChecked(m_varn.WholeWordForms);
    m_places->button(m_varn.HankoPosition)->setChecked(true);
    showLoaded();
    DisplayInsatsu();
    enableMapLing();
    enableTotal();
}

void frmMap::showLoaded()
{
    showTitle(
        {QStringLiteral("VARN Map"), m_varn.VarnMapName.mid(1), m_varn.ItemFileName, m_varn.SymbolFileName});

    const bool haveItem = !m_varn.ItemFileName.isEmpty();
    const QString mismatch = haveItem ? localityMismatch(m_varn.NLocate, m_varn.NLocality) : QString();
    const QString item =
        !haveItem
            ? QStringLiteral("No linguistic file loaded")
            : QStringLiteral("Item: %1 (%2 localities)").arg(m_varn.Hanrei, QString::number(m_varn.NLocate));
    const QString symbols = m_varn.SymbolFileName.isEmpty()
                                ? QStringLiteral("No symbol file loaded")
                                : QStringLiteral("Symbols: %1 (%2 captions)")
                                      .arg(m_varn.SymbolFileName, QString::number(m_varn.NHanrei));
    showStatus({mismatch, item, symbols});
}

void frmMap::enableTotal()
{
    const bool haveTable = m_varn.NumWordforms > 0;
    for (QAction* graph :
         {m_ui->mnuTotalBar, m_ui->mnuTotalSBar, m_ui->mnuTotalCircle, m_ui->mnuTotalSCircle}) {
        graph->setEnabled(haveTable);
    }
    m_ui->mnuTotalHanko->setEnabled(haveTable && m_varn.NDiffusion > 0);
    m_ui->mnuRank->setEnabled(m_varn.ContrastAnalysed);
}

void frmMap::DisplayInsatsu()
{
    m_lblInsatsumode->setText(printModeLabel(m_varn));
}

void frmMap::setSize(float width, float height)
{
    m_surface.Width = width;
    m_surface.Height = height;
}

void frmMap::showArea()
{
    const QSize area = SurfaceView::paperPixels(m_surface);
    m_ui->picMap->resize(area);
    if (isMaximized() || isFullScreen()) {
        m_sizeOfArea = size();
        return;
    }
    const QSize bars(0, menuBar()->sizeHint().height() + statusBar()->sizeHint().height());
    m_sizeOfArea = (area + bars).boundedTo(roomOnScreen()).expandedTo(minimumSizeHint());
    resize(m_sizeOfArea);
}

void frmMap::followWindow()
{
    if (size() == m_sizeOfArea) {
        return;
    }
    m_sizeOfArea = QSize();
    const QSize area = m_ui->scrMap->maximumViewportSize();
    setSize(static_cast<float>(area.width() * TwipsPerPixel),
            static_cast<float>(area.height() * TwipsPerPixel));
    m_ui->picMap->resize(area);
}

bool frmMap::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_ui->scrMap->viewport() && event->type() == QEvent::Resize) {
        followWindow();
    }
    return VarnForm::eventFilter(watched, event);
}

void frmMap::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        hideStyle();
    } else {
        VarnForm::keyPressEvent(event);
    }
}

void frmMap::showNewState()
{
    m_surface.Cls();
    VarnForm::showNewState();
}
