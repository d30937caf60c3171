// The menus and the tool bar of the atlas window.

#include "atlas/forms/AtlasItemsPane.h"
#include "atlas/forms/AtlasMapView.h"
#include "atlas/forms/AtlasRecordsPane.h"
#include "atlas/forms/frmAtlas.h"
#include "exchange/Credits.h"
#include "platform/forms/AboutDialog.h"
#include "platform/forms/ThemeIcon.h"
#include "shell/VarnModule.h"

#include <QActionGroup>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

#include <array>
#include <tuple>

QAction* frmAtlas::addEntry(QMenu& menu, const char* name, const QString& text, const char* icon,
                            const QKeySequence& key, void (frmAtlas::*handler)())
{
    QAction* entry = menu.addAction(text);
    entry->setObjectName(QLatin1String(name));
    entry->setShortcut(key);
    if (icon != nullptr) {
        entry->setIcon(themeIcon(QLatin1String(icon)));
    }
    handle(entry, &QAction::triggered, handler);
    m_entries[entry->objectName()] = entry;
    return entry;
}

void frmAtlas::addMenus()
{
    addFileMenu();
    addEditMenu();
    addPaneMenus();
    addMapMenu();
    addHelpMenu();
    m_map->addAction(m_entries.at(QStringLiteral("mnuCopyMap")));
}

void frmAtlas::addFileMenu()
{
    QMenu& menu = *menuBar()->addMenu(QStringLiteral("&File"));
    addEntry(menu, "mnuNewSurvey", QStringLiteral("&New Survey..."), "new-survey", QKeySequence::New,
             &frmAtlas::toNewSurvey);
    addEntry(menu, "mnuInputData", QStringLiteral("&Input Data"), nullptr, {}, &frmAtlas::toInputData);
    addEntry(menu, "mnuOpenMap", QStringLiteral("&Open Map..."), "open-map", QKeySequence::Open,
             &frmAtlas::mnuOpenMap_Click);
    addEntry(menu, "mnuSave", QStringLiteral("&Save"), "save", QKeySequence::Save, &frmAtlas::save);
    menu.addSeparator();
    addEntry(menu, "mnuPrint", QStringLiteral("&Print..."), "print", QKeySequence::Print,
             &frmAtlas::mnuPrint_Click);
    addEntry(menu, "mnuExportMap", QStringLiteral("&Export Map..."), "export-map",
             QKeySequence(Qt::CTRL | Qt::Key_E), &frmAtlas::mnuExportMap_Click);
    addEntry(menu, "mnuExportAtlas", QStringLiteral("Export &Atlas..."), "export-atlas",
             QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E), &frmAtlas::mnuExportAtlas_Click);
    menu.addSeparator();
    addEntry(menu, "mnuToMain", QStringLiteral("To &Main"), nullptr, QKeySequence(Qt::CTRL | Qt::Key_Q),
             &frmAtlas::toMain);
    QAction* close = menu.addAction(QStringLiteral("&Close"));
    close->setObjectName(QStringLiteral("mnuClose"));
    close->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_W));
    connect(close, &QAction::triggered, this, &frmAtlas::close);
}

void frmAtlas::addEditMenu()
{
    m_editMenu = menuBar()->addMenu(QStringLiteral("&Edit"));
    QMenu& menu = *m_editMenu;
    addEntry(menu, "mnuUndo", QStringLiteral("&Undo"), "undo", QKeySequence::Undo, &frmAtlas::mnuUndo_Click);
    addEntry(menu, "mnuRedo", QStringLiteral("&Redo"), "redo", {}, &frmAtlas::mnuRedo_Click)
        ->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});
    menu.addSeparator();
    addEntry(menu, "mnuCopyMap", QStringLiteral("&Copy Map"), "copy", QKeySequence::Copy,
             &frmAtlas::mnuCopyMap_Click)
        ->setShortcutContext(Qt::WidgetWithChildrenShortcut); // in a list the key copies what is chosen there
}

void frmAtlas::addMapMenu()
{
    m_kindMenu = menuBar()->addMenu(QStringLiteral("&Map"));
    m_kindMenu->setToolTipsVisible(true); // they say what a map needs
    for (const AtlasMapKind kind : AtlasMapKinds) {
        if (kind == AtlasMapKind::Bars || kind == AtlasMapKind::Bundles) {
            m_kindMenu->addSeparator(); // maps of the table, and of the survey as a whole
        }
        QAction* entry = m_kindMenu->addAction(nameOf(kind));
        entry->setObjectName(QStringLiteral("mnuKind") + nameOf(kind).remove(QLatin1Char(' ')));
        entry->setCheckable(true);
        entry->setData(static_cast<int>(kind));
        m_kinds->addAction(entry);
        connect(entry, &QAction::triggered, this, [this, kind] { run([&] { showMapOf(kind); }); });
    }
    m_kinds->actions().first()->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_M));
    m_kindMenu->addSeparator();
    m_wordForms = m_kindMenu->addMenu(QStringLiteral("&Word Form"));
    connect(m_wordForms, &QMenu::aboutToShow, this, &frmAtlas::showWordForms);
    m_kindMenu->addSeparator();
    addEntry(*m_kindMenu, "mnuSumUp", QStringLiteral("&Accumulate Data"), nullptr, {},
             &frmAtlas::toAccumulateData);
}

/// What the panes offer.
void frmAtlas::addPaneMenus()
{
    m_editMenu->addAction(m_map->findAction());
    m_editMenu->addSeparator();
    m_editMenu->addAction(m_map->freePlaceAction());

    m_viewMenu = menuBar()->addMenu(QStringLiteral("&View"));
    QMenu& view = *m_viewMenu;
    view.addActions({m_items->previousItem(), m_items->nextItem()});
    view.addSeparator();
    view.addActions(m_map->zoomActions());
    view.addSeparator();
    view.addActions(m_map->layerActions());
    view.addSeparator();
    view.addAction(m_map->wholeWordFormsAction());
    view.addMenu(QStringLiteral("F&urther Word Forms"))->addActions(m_map->placeActions());

    menuBar()->addMenu(QStringLiteral("&Symbols"))->addActions(m_records->actions());
}

/// Icons of what the panes offer, and short names for the tool bar.
void frmAtlas::nameForTools()
{
    const QList<QAction*>& zoom = m_map->zoomActions();
    using ToolName = std::tuple<QAction*, const char*, const char*>;
    const std::array<ToolName, 7> names = {{
        {m_items->previousItem(), "previous-item", "Previous"},
        {m_items->nextItem(), "next-item", "Next"},
        {m_map->findAction(), "find", "Find"},
        {zoom.at(0), "zoom-in", "Zoom In"},
        {zoom.at(1), "zoom-out", "Zoom Out"},
        {zoom.at(2), "zoom-fit", "Whole Map"},
        {&manualEntry(), "manual", "Manual"},
    }};
    for (const auto& [action, icon, text] : names) {
        action->setIcon(themeIcon(QLatin1String(icon)));
        action->setIconText(QLatin1String(text));
    }
}

void frmAtlas::addHelpMenu()
{
    QMenu& menu = *menuBar()->addMenu(QStringLiteral("&Help"));
    menu.addAction(&manualEntry());
    addEntry(menu, "mnuAbout", QStringLiteral("&About"), "about", {}, &frmAtlas::mnuAbout_Click);
}

void frmAtlas::addToolBar()
{
    nameForTools();
    QToolBar& tools = *QMainWindow::addToolBar(QStringLiteral("&Tool Bar"));
    tools.setObjectName(QStringLiteral("tools"));
    tools.toggleViewAction()->setObjectName(QStringLiteral("mnuToolBar"));
    m_viewMenu->addSeparator();
    m_viewMenu->addAction(tools.toggleViewAction());
    tools.setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    tools.setMovable(false);
    const auto add = [&](const char* name, const char* text) {
        m_entries.at(QLatin1String(name))->setIconText(QLatin1String(text));
        tools.addAction(m_entries.at(QLatin1String(name)));
    };
    add("mnuNewSurvey", "New Survey");
    add("mnuOpenMap", "Open Map");
    add("mnuSave", "Save");
    tools.addSeparator();
    add("mnuUndo", "Undo");
    add("mnuRedo", "Redo");
    tools.addSeparator();
    tools.addActions({m_items->previousItem(), m_items->nextItem(), m_map->findAction()});
    tools.addActions(m_map->zoomActions().mid(0, 3));
    QAction* kinds = tools.addAction(themeIcon(QStringLiteral("map-kind")), QStringLiteral("Kind of Map"));
    kinds->setMenu(m_kindMenu);
    qobject_cast<QToolButton*>(tools.widgetForAction(kinds))->setPopupMode(QToolButton::InstantPopup);
    tools.addSeparator();
    add("mnuPrint", "Print");
    add("mnuExportMap", "Export Map");
    add("mnuExportAtlas", "Export Atlas");
    tools.addAction(&manualEntry());
}

void frmAtlas::showSteps()
{
    const QUndoStack& steps = m_document.steps();
    const auto show = [this](const char* name, const QString& verb, const QString& step, bool isPossible) {
        QAction* entry = m_entries.at(QLatin1String(name));
        const QString icon = entry->iconText();
        entry->setText(step.isEmpty() ? verb : verb + QLatin1Char(' ') + step);
        entry->setIconText(icon);
        entry->setToolTip(entry->text().remove(QLatin1Char('&')));
        entry->setEnabled(isPossible);
    };
    show("mnuUndo", QStringLiteral("&Undo"), steps.undoText(), steps.canUndo());
    show("mnuRedo", QStringLiteral("&Redo"), steps.redoText(), steps.canRedo());
}

void frmAtlas::mnuUndo_Click()
{
    m_document.steps().undo();
}

void frmAtlas::mnuRedo_Click()
{
    m_document.steps().redo();
}

void frmAtlas::mnuAbout_Click()
{
    auto* about = new AboutDialog(creditsText(), this);
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->open();
}
