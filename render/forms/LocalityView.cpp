#include "render/forms/LocalityView.h"

#include <QMouseEvent>
#include <QPainter>

LocalityView::LocalityView(QWidget* parent) : SurfaceView(parent)
{
    setCursor(Qt::CrossCursor);
    setSurface(m_map.surface(), Fit::WholePaper);
    setPlaceholder(QStringLiteral("The map has no lines and localities."));
}

void LocalityView::setMap(const BaseMap& map)
{
    m_map.draw(map);
    refresh();
}

void LocalityView::highlight(int locality)
{
    if (locality != m_locality) {
        update(spot().toAlignedRect());
        m_locality = locality;
        update(spot().toAlignedRect());
    }
}

double LocalityView::pixelsPerTwip() const
{
    const float width = m_map.surface().Width;
    return width > 0 ? paperRectangle().width() / width : 0;
}

QRectF LocalityView::spot() const
{
    constexpr double SpotRadius = 10;

    if (m_locality < 1 || m_locality > m_map.localities()) {
        return {};
    }
    const QPointF center = paperRectangle().topLeft() + m_map.position(m_locality) * pixelsPerTwip();
    return {center - QPointF(SpotRadius, SpotRadius), QSizeF(2 * SpotRadius, 2 * SpotRadius)};
}

void LocalityView::paintEvent(QPaintEvent* event)
{
    constexpr double RingWidth = 2;
    constexpr double DotRadius = 3;

    SurfaceView::paintEvent(event);
    const QRectF place = spot();
    if (place.isEmpty()) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::red, RingWidth));
    painter.drawEllipse(place.adjusted(RingWidth, RingWidth, -RingWidth, -RingWidth));
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::red);
    painter.drawEllipse(place.center(), DotRadius, DotRadius);
}

void LocalityView::mousePressEvent(QMouseEvent* event)
{
    const double scale = pixelsPerTwip();
    if (event->button() != Qt::LeftButton || scale <= 0) {
        return;
    }
    if (const int locality = m_map.nearest((event->position() - paperRectangle().topLeft()) / scale)) {
        Q_EMIT localityClicked(locality);
    }
}
