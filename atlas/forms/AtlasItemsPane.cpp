#include "atlas/forms/AtlasItemsPane.h"

#include "atlas/AtlasDocument.h"
#include "atlas/forms/AtlasItemDelegate.h"
#include "atlas/forms/AtlasItemFilter.h"
#include "shell/VarnModule.h"

#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <algorithm>

AtlasItemsPane::AtlasItemsPane(VarnModule& varn, AtlasDocument& document, AtlasSelection&)
    : m_varn(varn), m_document(document), m_table(varn), m_filter(new AtlasItemFilter(m_table, this)),
      m_filterBox(new QLineEdit), m_list(new QListView), m_state(new QLabel),
      m_next(turning("mnuNextItem", QStringLiteral("Next Item"), Qt::Key_PageDown, 1)),
      m_previous(turning("mnuPreviousItem", QStringLiteral("Previous Item"), Qt::Key_PageUp, -1))
{
    addControls();
    connectDocument();
    connect(m_filterBox, &QLineEdit::textChanged, this, &AtlasItemsPane::filter);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &AtlasItemsPane::turnToCurrent);
    for (auto chosen : {&QListView::clicked, &QListView::activated}) {
        connect(m_list, chosen, this, &AtlasItemsPane::itemChosen);
    }
    connect(&m_reading, &QTimer::timeout, this, &AtlasItemsPane::readSome);
    m_filterBox->installEventFilter(this);
}

AtlasItemsPane::~AtlasItemsPane() = default;

void AtlasItemsPane::addControls()
{
    m_filterBox->setObjectName(QStringLiteral("txtItemFilter"));
    m_filterBox->setPlaceholderText(QStringLiteral("Caption, file or word form"));
    m_filterBox->setAccessibleName(QStringLiteral("Filter items by caption, file or word form"));
    m_filterBox->setClearButtonEnabled(true);
    m_list->setObjectName(QStringLiteral("lstItems"));
    m_list->setAccessibleName(QStringLiteral("Items of the map"));
    m_list->setModel(m_filter);
    m_list->setItemDelegate(new AtlasItemDelegate(this));
    m_list->setUniformItemSizes(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_state->setObjectName(QStringLiteral("lblItems"));
    m_state->setWordWrap(true);
    m_state->setTextFormat(Qt::PlainText);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(m_filterBox);
    layout->addWidget(m_list);
    layout->addWidget(m_state);
}

QAction* AtlasItemsPane::turning(const char* name, const QString& text, Qt::Key key, int rows)
{
    auto* action = new QAction(text, this);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    action->setShortcutContext(Qt::WindowShortcut);
    addAction(action);
    connect(action, &QAction::triggered, this, [this, rows] { turnBy(rows); });
    return action;
}

void AtlasItemsPane::connectDocument()
{
    connect(&m_document, &AtlasDocument::pageTurned, this, &AtlasItemsPane::showPage);
    connect(&m_document, &AtlasDocument::wordsChanged, this,
            [this] { changeList([this] { m_table.showPage(m_document.page()); }); });
    connect(&m_document, &AtlasDocument::savedChanged, this, &AtlasItemsPane::showUnsaved);
    // Files come and go in bursts, as while a survey is written.
    constexpr int Settled = 300; // ms
    auto* settled = new QTimer(this);
    settled->setSingleShot(true);
    settled->setInterval(Settled);
    connect(&m_folder, &QFileSystemWatcher::directoryChanged, settled, qOverload<>(&QTimer::start));
    connect(settled, &QTimer::timeout, this, &AtlasItemsPane::refreshItems);
}

/// Whatever changes rows may move the current one; the page stays all the same.
template <typename Change>
void AtlasItemsPane::changeList(Change change)
{
    {
        const QScopedValueRollback following(m_isFollowing, true);
        change();
        const QModelIndex page =
            m_filter->mapFromSource(m_table.index(m_table.rowOf(m_document.page().item.ItemPath)));
        if (page != m_list->currentIndex()) {
            m_list->setCurrentIndex(page);
        }
        if (!page.isValid()) {
            m_list->clearSelection();
        }
    }
    showState();
}

void AtlasItemsPane::refreshItems()
{
    const QString folder = m_varn.Drive.hostPath(m_varn.dataFolder());
    if (m_folder.directories() != QStringList(folder)) {
        if (!m_folder.directories().isEmpty()) {
            m_folder.removePaths(m_folder.directories());
        }
        m_folder.addPath(folder); // one that is not there is looked for when the window comes to the front
    }
    changeList([this] { m_table.refresh(); });
    m_reading.start(0);
}

void AtlasItemsPane::readSome()
{
    constexpr int ReadingTime = 8; // ms; the map answers meanwhile
    bool isMore = false;
    changeList([&] { isMore = m_table.readSome(ReadingTime); });
    if (!isMore) {
        m_reading.stop();
    }
}

void AtlasItemsPane::filter(const QString& text)
{
    changeList([&] { m_filter->setText(text); });
}

void AtlasItemsPane::turnBy(int rows)
{
    const int last = m_filter->rowCount() - 1;
    if (last < 0) {
        return;
    }
    const QModelIndex current = m_list->currentIndex();
    const int first = rows > 0 ? 0 : last;
    const int row = current.isValid() ? std::clamp(current.row() + rows, 0, last) : first;
    m_list->setCurrentIndex(m_filter->index(row, 0));
}

void AtlasItemsPane::turnToCurrent()
{
    const QModelIndex current = m_list->currentIndex();
    if (!m_isFollowing && current.isValid()) {
        m_document.turnTo(current.data(AtlasItemTable::Path).toString());
    }
}

void AtlasItemsPane::showPage()
{
    if (m_document.hasPage() && m_table.rowOf(m_document.page().item.ItemPath) < 0) {
        refreshItems();
    }
    changeList([this] { m_table.showPage(m_document.page()); });
    m_list->scrollTo(m_list->currentIndex());
}

void AtlasItemsPane::showUnsaved()
{
    changeList([this] { m_table.showUnsaved(m_document.unsavedItems()); });
}

void AtlasItemsPane::showState()
{
    const int all = m_table.rowCount();
    const int shown = m_filter->rowCount();
    if (all == 0) {
        m_state->setText(
            QStringLiteral("The map has no items yet. New Survey makes them from a table, and Input "
                           "Data on the main form enters one."));
    } else if (shown == 0) {
        m_state->setText(QStringLiteral("No item has this text. Empty the box to see all %1.").arg(all));
    } else if (shown < all) {
        m_state->setText(QStringLiteral("%1 of %2 items").arg(shown).arg(all));
    } else {
        m_state->setText(all == 1 ? QStringLiteral("1 item") : QStringLiteral("%1 items").arg(all));
    }
}

bool AtlasItemsPane::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Down || key == Qt::Key_Up) {
            turnBy(key == Qt::Key_Down ? 1 : -1);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
