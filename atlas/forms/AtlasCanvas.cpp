#include "atlas/forms/AtlasCanvas.h"

#include <QPainter>
#include <QRubberBand>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// How far from a locality the pointer may be, in pixels.
constexpr double PointerReach = 14;

} // namespace

AtlasCanvas::AtlasCanvas(DrawMap drawMap)
    : m_drawMap(std::move(drawMap)), m_band(new QRubberBand(QRubberBand::Rectangle, this))
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    grabGesture(Qt::PinchGesture);
    setMinimumSize(200, 150);
}

void AtlasCanvas::renew()
{
    m_isStale = true;
    repaintMap();
}

void AtlasCanvas::repaintMap()
{
    m_picture = {};
    update();
}

const AtlasDrawing& AtlasCanvas::map()
{
    const auto zoom = [this] { return m_symbolsKeepSize ? m_viewport.zoom() : 1; };
    while (m_isStale || m_map.zoom != zoom()) {
        m_isStale = false;
        m_map = m_drawMap(zoom());
        m_viewport.setRoom(size(), m_map.paper.translated(-DrawingCorner));
    }
    return m_map;
}

void AtlasCanvas::setSymbolsKeepSize(bool keep)
{
    m_symbolsKeepSize = keep;
    showView();
}

void AtlasCanvas::setSelected(const std::set<int>& localities)
{
    m_selected = localities;
    update();
}

void AtlasCanvas::setStandingOut(const std::set<int>& records)
{
    m_standingOut = records;
    repaintMap();
}

void AtlasCanvas::fit()
{
    m_viewport.fit();
    showView();
}

void AtlasCanvas::zoom(double factor)
{
    zoomAt(rect().center(), factor);
}

void AtlasCanvas::zoomAt(QPointF point, double factor)
{
    m_viewport.zoomAt(point, factor);
    showView();
}

void AtlasCanvas::pan(QPointF pixels)
{
    m_viewport.pan(pixels);
    showView();
}

void AtlasCanvas::showView()
{
    m_hovered = 0; // another locality may be at the pointer
    repaintMap();
    Q_EMIT viewChanged();
}

void AtlasCanvas::bringIntoView(int locality)
{
    if (locality < 1 || locality > static_cast<int>(map().localities.size())) {
        return;
    }
    const MapViewport before = m_viewport;
    m_viewport.bringIntoView(m_viewport.toMap(placeOf(locality)));
    if (before.toView({}) != m_viewport.toView({})) {
        showView();
    }
}

QPointF AtlasCanvas::toDrawing(QPointF view)
{
    return map().zoom * m_viewport.toMap(view) + DrawingCorner;
}

QPointF AtlasCanvas::toView(QPointF drawing)
{
    return m_viewport.toView((drawing - DrawingCorner) / map().zoom);
}

QPointF AtlasCanvas::placeOf(int locality)
{
    return toView(map().localities.at(static_cast<std::size_t>(locality - 1)));
}

QRectF AtlasCanvas::legendRectangle()
{
    const QRectF box = map().legendBox;
    return {toView(box.topLeft()), box.size() * painterScale()};
}

int AtlasCanvas::localityAt(QPointF view)
{
    return map().spots.nearest(toDrawing(view), PointerReach / painterScale());
}

bool AtlasCanvas::isOnLegend(QPointF view)
{
    return map().legendBox.contains(toDrawing(view));
}

QPixmap AtlasCanvas::paintedMap()
{
    const double ratio = devicePixelRatioF();
    QPixmap picture((QSizeF(size()) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(palette().color(QPalette::Window));
    QPainter painter(&picture);
    const AtlasDrawing& drawn = map();
    const QRectF paper = drawn.paper.translated(-DrawingCorner);
    painter.fillRect(QRectF(m_viewport.toView(paper.topLeft()), m_viewport.toView(paper.bottomRight())),
                     Qt::white);
    painter.translate(toView({0, 0}));
    paintAtlasMap(drawn, painter,
                  {painterScale(),
                   QRectF(toDrawing({0, 0}), toDrawing({static_cast<double>(width()), height() * 1.0})),
                   m_standingOut, m_drag != Drag::Legend});
    return picture;
}

void AtlasCanvas::paintEvent(QPaintEvent*)
{
    map(); // it may change what is in view
    if (m_picture.isNull() || m_picture.devicePixelRatio() != devicePixelRatioF()) {
        m_picture = paintedMap();
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_picture);
    painter.setRenderHint(QPainter::Antialiasing);
    paintSelected(painter);
    if (m_drag == Drag::Legend) {
        paintDraggedLegend(painter);
    }
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(palette().color(QPalette::Highlight));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void AtlasCanvas::paintSelected(QPainter& painter)
{
    constexpr double Radius = 11;

    const auto count = static_cast<int>(map().localities.size());
    painter.setBrush(Qt::NoBrush);
    for (const auto& [color, width] :
         {std::pair(QColor(Qt::white), 5.0), std::pair(palette().color(QPalette::Highlight), 2.5)}) {
        painter.setPen(QPen(color, width));
        for (const int locality : m_selected) {
            if (locality >= 1 && locality <= count) {
                painter.drawEllipse(placeOf(locality), Radius, Radius);
            }
        }
    }
}

void AtlasCanvas::paintDraggedLegend(QPainter& painter)
{
    painter.save();
    painter.translate(toView({0, 0}) + m_dragged - m_pressed);
    paintLegend(map(), painter, painterScale());
    painter.restore();
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(legendRectangle().translated(m_dragged - m_pressed));
}

void AtlasCanvas::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const QRectF paper = map().paper;
    m_viewport.setRoom(size(), paper.translated(-DrawingCorner));
    showView();
}
