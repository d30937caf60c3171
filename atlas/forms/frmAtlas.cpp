#include "atlas/forms/frmAtlas.h"

#include "atlas/forms/AtlasItemsPane.h"
#include "atlas/forms/AtlasLocalitiesPane.h"
#include "atlas/forms/AtlasMapView.h"
#include "atlas/forms/AtlasRecordsPane.h"
#include "atlas/forms/NoticeBar.h"
#include "atlas/forms/SurveyPane.h"
#include "platform/FileName.h"
#include "shell/VarnModule.h"

#include <QActionGroup>
#include <QLabel>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

#include <utility>

namespace {

/// Where the window keeps its size, that of its panes and the layers it shows, beside the settings of other
/// programs.
QSettings layoutSettings()
{
    return {QSettings::IniFormat, QSettings::UserScope, QStringLiteral("varn"), QStringLiteral("atlas")};
}

QString layerSetting(const QAction& layer)
{
    return QStringLiteral("layers/") + layer.objectName();
}

QString counted(std::size_t count, const QString& name, const QString& names)
{
    return count == 0 ? QString() : QStringLiteral("%1 %2").arg(count).arg(count == 1 ? name : names);
}

} // namespace

frmAtlas::frmAtlas(VarnModule& varn, Dialogs& dialogs)
    : VarnForm(dialogs), m_varn(varn), m_document(varn), m_survey(varn, m_document),
      m_items(new AtlasItemsPane(varn, m_document, m_selection)),
      m_map(new AtlasMapView(varn, m_document, m_selection)),
      m_records(new AtlasRecordsPane(varn, m_document, m_selection, dialogs)),
      m_surveyPane(new SurveyPane(varn, m_survey)),
      m_localities(new AtlasLocalitiesPane(varn, m_document, m_selection)), m_notice(new NoticeBar),
      m_panes(new QSplitter(Qt::Horizontal)), m_details(new QSplitter(Qt::Vertical)), m_selected(new QLabel),
      m_kinds(new QActionGroup(this))
{
    setObjectName(QStringLiteral("frmAtlas"));
    addPanes();
    addMenus();
    addToolBar();
    statusBar()->addPermanentWidget(m_selected);
    m_selected->setObjectName(QStringLiteral("lblSelected"));
    m_selected->setTextFormat(Qt::PlainText);
    m_selected->setContentsMargins(8, 0, 8, 0);
    m_selected->setAccessibleName(QStringLiteral("Selected"));
    statusLine().setAccessibleName(QStringLiteral("Loaded"));
    restoreLayout();
    connect(&m_document, &AtlasDocument::pageTurned, this, &frmAtlas::showPage);
    connect(m_items, &AtlasItemsPane::itemChosen, this, [this] { run([this] { showMapOfItem(); }); });
    connect(&m_document, &AtlasDocument::savedChanged, this, &frmAtlas::showLoaded);
    connect(&m_document.steps(), &QUndoStack::indexChanged, this, &frmAtlas::showSteps);
    connect(&m_selection, &AtlasSelection::localitiesChanged, this, &frmAtlas::showSelected);
    connect(&m_selection, &AtlasSelection::recordsChanged, this, &frmAtlas::showSelected);
    connect(m_map, &AtlasMapView::localityHovered, this, &frmAtlas::showHovered);
    connectSurvey();
}

frmAtlas::~frmAtlas()
{
    if (isVisible()) {
        keepLayout();
    }
    // The document tells of its end, too; whoever shows it goes first.
    m_document.steps().disconnect(this);
    m_document.disconnect(this);
    delete centralWidget();
}

void frmAtlas::addPanes()
{
    m_details->addWidget(m_records);
    m_details->addWidget(m_surveyPane);
    m_surveyPane->hide();
    m_details->addWidget(m_localities);
    m_panes->addWidget(m_items);
    m_panes->addWidget(m_map);
    m_panes->addWidget(m_details);
    m_panes->setStretchFactor(1, 1);
    m_map->setMinimumWidth(320); // in a small window the lists are the narrower ones
    m_panes->setSizes({260, 700, 340});
    auto* rows = new QVBoxLayout;
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(m_notice);
    rows->addWidget(m_panes, 1);
    auto* all = new QWidget;
    all->setLayout(rows);
    setCentralWidget(all);
}

void frmAtlas::restoreLayout()
{
    resize(1280, 720);
    const QSettings settings = layoutSettings();
    restoreGeometry(settings.value(QStringLiteral("window")).toByteArray());
    m_panes->restoreState(settings.value(QStringLiteral("panes")).toByteArray());
    m_details->restoreState(settings.value(QStringLiteral("details")).toByteArray());
    for (QAction* layer : m_map->layerActions()) {
        const QVariant shown = settings.value(layerSetting(*layer));
        if (shown.isValid() && shown.toBool() != layer->isChecked()) {
            layer->trigger();
        }
    }
}

void frmAtlas::keepLayout() const
{
    QSettings settings = layoutSettings();
    settings.setValue(QStringLiteral("window"), saveGeometry());
    settings.setValue(QStringLiteral("panes"), m_panes->saveState());
    settings.setValue(QStringLiteral("details"), m_shownDetails == Details::Records
                                                     ? m_details->saveState()
                                                     : m_detailStates.at(Details::Records));
    for (const QAction* layer : m_map->layerActions()) {
        settings.setValue(layerSetting(*layer), layer->isChecked());
    }
}

void frmAtlas::Form_Load()
{
    m_isPrepared = true;
    m_document.followSharedState();
    followTable();
    turnToFirst();
    refresh();
}

/// A window that is not shown leaves the other forms the items and symbols that they have together.
void frmAtlas::followSharedState()
{
    if (m_isPrepared && isVisible()) {
        m_document.followSharedState();
        followTable();
        m_survey.followFiles();
    }
}

void frmAtlas::refresh()
{
    showLoaded();
    showSelected();
    showSteps();
    showMapKinds();
    showNotice();
}

void frmAtlas::showLoaded()
{
    const AtlasPage& page = m_document.page();
    showTitle({QStringLiteral("VARN Atlas"), m_varn.VarnMapName.mid(1), page.item.Hanrei},
              m_document.isUnsaved());
    showStatus(m_hovered.isEmpty() ? loaded() : QStringList{m_hovered});
    m_entries.at(QStringLiteral("mnuSave"))->setEnabled(m_document.isUnsaved());
}

QStringList frmAtlas::loaded() const
{
    const QString map = m_varn.hasMap() ? QStringLiteral("Map: ") + m_varn.VarnMapName.mid(1) : QString();
    if (isOfSurvey(m_kind)) {
        return {map, nameOf(m_kind), m_survey.name()};
    }
    if (isOfTable(m_kind)) {
        return {map, QStringLiteral("%1: %2 word forms over %3 items")
                         .arg(nameOf(m_kind))
                         .arg(m_varn.NumWordforms)
                         .arg(m_varn.NumItemsAccumulated)};
    }
    if (!m_document.hasPage()) {
        return {map, QStringLiteral("No item shown")};
    }
    const AtlasPage& page = m_document.page();
    const QString symbols =
        page.symbols.NHanrei == 0
            ? QStringLiteral("No symbols")
            : QStringLiteral("Symbols: %1 (%2)").arg(page.symbols.SymbolFileName).arg(page.symbols.NHanrei);
    return {m_document.warnings().value(0),
            map,
            QStringLiteral("Item: %1 (%2 localities)").arg(stemOf(page.item.ItemPath)).arg(page.item.NLocate),
            symbols,
            m_varn.WholeWordForms ? QStringLiteral("Symbols mark whole word forms")
                                  : QStringLiteral("Symbols mark parts of word forms"),
            counted(m_document.unsavedPages().size(), QStringLiteral("item not saved"),
                    QStringLiteral("items not saved"))};
}

void frmAtlas::showSelected()
{
    const QStringList parts = {
        counted(m_selection.localities().size(), QStringLiteral("locality"), QStringLiteral("localities")),
        counted(m_selection.records().size(), QStringLiteral("symbol"), QStringLiteral("symbols"))};
    QStringList chosen = parts;
    chosen.removeAll(QString());
    m_selected->setText(chosen.isEmpty()
                            ? QStringLiteral("Nothing selected")
                            : chosen.join(QStringLiteral(" and ")) + QStringLiteral(" selected"));
}

/// A page that is read again stays behind the map that is shown.
void frmAtlas::showPage()
{
    const QString item = m_document.page().item.ItemPath;
    if (std::exchange(m_shownItem, item) != item) {
        showMapOfItem();
    }
    showLoaded();
}

void frmAtlas::showMapOfItem()
{
    if (!isOfItem(m_kind)) {
        showMapOf(AtlasMapKind::Linguistic);
    }
}

/// In the place of what is loaded, as long as the pointer is at a locality.
void frmAtlas::showHovered(const QString& answer)
{
    m_hovered = answer;
    showLoaded();
}

void frmAtlas::showNotice()
{
    QAction* newSurvey = m_entries.at(QStringLiteral("mnuNewSurvey"));
    if (!m_varn.hasMap()) {
        m_notice->showNotice(QStringLiteral("No map is open. Open one, or make one of a table of answers."),
                             {m_entries.at(QStringLiteral("mnuOpenMap")), newSurvey});
    } else if (!m_document.hasPage() && atlasItemPaths(m_varn).isEmpty()) {
        m_notice->showNotice(QStringLiteral("The map %1 has no items yet. Enter the word forms of one, or "
                                            "make a whole survey of a table of answers.")
                                 .arg(m_varn.VarnMapName.mid(1)),
                             {m_entries.at(QStringLiteral("mnuInputData")), newSurvey});
    } else {
        m_notice->hideNotice();
    }
}

void frmAtlas::hideEvent(QHideEvent* event)
{
    keepLayout();
    VarnForm::hideEvent(event);
}
