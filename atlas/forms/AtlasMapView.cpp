#include "atlas/forms/AtlasMapView.h"

#include "atlas/AtlasDocument.h"
#include "atlas/AtlasExport.h"
#include "atlas/AtlasSelection.h"
#include "platform/DrawingPainter.h"
#include "platform/RunTimeError.h"
#include "render/MapSize.h"
#include "shell/VarnModule.h"

#include <QAction>
#include <QPainter>

#include <algorithm>

AtlasMapView::AtlasMapView(VarnModule& varn, AtlasDocument& document, AtlasSelection& selection)
    : m_varn(varn), m_document(document), m_selection(selection),
      m_find(new QAction(QStringLiteral("&Find on the Map..."), this)),
      m_freePlace(new QAction(QStringLiteral("Legend to a Free &Place"), this)),
      m_wholeWordForms(new QAction(QStringLiteral("Whole Word &Forms"), this))
{
    for (const char* text : {"Zoom &In", "Zoom &Out", "&Whole Map"}) {
        m_zoomActions << new QAction(QLatin1String(text), this);
    }
    for (QAction* action : findChildren<QAction*>()) {
        action->setObjectName(QStringLiteral("qt_none")); // they do nothing yet
    }
    setFocusPolicy(Qt::StrongFocus);
    connect(&document, &AtlasDocument::pageTurned, this, &AtlasMapView::draw);
    connect(&document, &AtlasDocument::symbolsChanged, this, &AtlasMapView::draw);
}

void AtlasMapView::setMapKind(std::function<void(MapSurfaces)> draw)
{
    m_draw = std::move(draw);
    this->draw();
}

QSizeF AtlasMapView::size() const
{
    return {firstArea().Width, firstArea().Height};
}

void AtlasMapView::draw()
{
    m_surface.Cls();
    const MapSurfaces surfaces{{m_surface, m_surface}, firstArea()};
    try {
        if (m_draw) {
            m_draw(surfaces);
        } else {
            drawAtlasPage(m_varn, m_document.page(), surfaces);
        }
    } catch (const RunTimeError&) {
        m_surface.Cls();
    }
    update();
}

void AtlasMapView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    paintDrawing(m_surface.drawing(), painter,
                 std::min(width() / size().width(), height() / size().height()));
}
