#include "atlas/forms/frmAtlas.h"

#include "atlas/forms/AtlasItemsPane.h"
#include "atlas/forms/AtlasLocalitiesPane.h"
#include "atlas/forms/AtlasMapView.h"
#include "atlas/forms/AtlasRecordsPane.h"
#include "shell/VarnModule.h"

#include <QSplitter>

frmAtlas::frmAtlas(VarnModule& varn, Dialogs& dialogs)
    : VarnForm(dialogs), m_varn(varn), m_document(varn),
      m_items(new AtlasItemsPane(varn, m_document, m_selection)),
      m_map(new AtlasMapView(varn, m_document, m_selection)),
      m_records(new AtlasRecordsPane(varn, m_document, m_selection, dialogs)),
      m_localities(new AtlasLocalitiesPane(varn, m_document, m_selection))
{
    setObjectName(QStringLiteral("frmAtlas"));
    addPanes();
    resize(1280, 720);
    connect(&m_document, &AtlasDocument::pageTurned, this, &frmAtlas::showLoaded);
    connect(&m_document, &AtlasDocument::savedChanged, this, &frmAtlas::showLoaded);
}

/// The panes go before the document that they show.
frmAtlas::~frmAtlas()
{
    delete takeCentralWidget();
}

void frmAtlas::addPanes()
{
    auto* details = new QSplitter(Qt::Vertical);
    details->addWidget(m_records);
    details->addWidget(m_localities);
    auto* panes = new QSplitter(Qt::Horizontal);
    panes->addWidget(m_items);
    panes->addWidget(m_map);
    panes->addWidget(details);
    panes->setStretchFactor(1, 1);
    panes->setSizes({260, 700, 340});
    setCentralWidget(panes);
}

void frmAtlas::Form_Load()
{
    m_isPrepared = true;
    m_document.followSharedState();
    turnToFirst();
    refresh();
}

/// A window that is not shown leaves the other forms the items and symbols that they have together.
void frmAtlas::followSharedState()
{
    if (m_isPrepared && isVisible()) {
        m_document.followSharedState();
    }
}

void frmAtlas::refresh()
{
    showLoaded();
}

void frmAtlas::showLoaded()
{
    const AtlasPage& page = m_document.page();
    showTitle({QStringLiteral("VARN Atlas"), m_varn.VarnMapName.mid(1), page.item.Hanrei},
              m_document.isUnsaved());
}
