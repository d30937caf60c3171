// What the canvas does on keys, the mouse and gestures.

#include "atlas/forms/AtlasCanvas.h"

#include <QApplication>
#include <QGestureEvent>
#include <QInputDevice>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QRubberBand>
#include <QWheelEvent>

#include <cmath>
#include <utility>

namespace {

bool isOfTouchpad(const QWheelEvent& event)
{
    return event.device()->type() == QInputDevice::DeviceType::TouchPad || event.phase() != Qt::NoScrollPhase;
}

/// How far two fingers moved, in pixels.
QPointF scrolled(const QWheelEvent& event)
{
    return event.pixelDelta().isNull() ? QPointF(event.angleDelta()) / 2 : QPointF(event.pixelDelta());
}

} // namespace

bool AtlasCanvas::event(QEvent* event)
{
    if (event->type() == QEvent::Gesture) {
        const auto* pinched =
            static_cast<QPinchGesture*>(static_cast<QGestureEvent*>(event)->gesture(Qt::PinchGesture));
        return pinched != nullptr && pinch(*pinched);
    }
    if (event->type() == QEvent::NativeGesture) {
        return gesture(*static_cast<QNativeGestureEvent*>(event));
    }
    return QWidget::event(event);
}

bool AtlasCanvas::pinch(const QPinchGesture& gesture)
{
    zoomAt(mapFromGlobal(gesture.centerPoint()), gesture.scaleFactor());
    return true;
}

bool AtlasCanvas::gesture(const QNativeGestureEvent& event)
{
    if (event.gestureType() != Qt::ZoomNativeGesture) {
        return false;
    }
    zoomAt(event.position(), 1 + event.value());
    return true;
}

void AtlasCanvas::keyPressEvent(QKeyEvent* event)
{
    constexpr double Step = 60;

    switch (event->key()) {
    case Qt::Key_Left:
        return pan({Step, 0});
    case Qt::Key_Right:
        return pan({-Step, 0});
    case Qt::Key_Up:
        return pan({0, Step});
    case Qt::Key_Down:
        return pan({0, -Step});
    case Qt::Key_Plus:
        return zoom(ZoomStep);
    case Qt::Key_Minus:
        return zoom(1 / ZoomStep);
    case Qt::Key_Escape:
        return cancelDrag();
    default:
        QWidget::keyPressEvent(event);
    }
}

/// The wheel zooms; two fingers on a touchpad move the map, and zoom with Ctrl.
void AtlasCanvas::wheelEvent(QWheelEvent* event)
{
    constexpr double Notch = 120;

    event->accept();
    if (isOfTouchpad(*event) && !event->modifiers().testFlag(Qt::ControlModifier)) {
        pan(scrolled(*event));
    } else if (event->angleDelta().y() != 0) {
        zoomAt(event->position(), std::pow(ZoomStep, event->angleDelta().y() / Notch));
    }
}

void AtlasCanvas::mousePressEvent(QMouseEvent* event)
{
    const bool drags = event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton;
    if (!drags || m_isPressed) {
        return QWidget::mousePressEvent(event);
    }
    m_isPressed = true;
    m_pressed = m_dragged = event->position();
}

void AtlasCanvas::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_isPressed) {
        return hover(event->position());
    }
    const bool isFar = (event->position() - m_pressed).manhattanLength() >= QApplication::startDragDistance();
    if (m_drag == Drag::None && isFar) {
        beginDrag(*event);
    }
    drag(event->position());
}

void AtlasCanvas::beginDrag(const QMouseEvent& event)
{
    const bool band = (event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier)) != 0;
    if (event.buttons().testFlag(Qt::MiddleButton)) {
        m_drag = Drag::Pan;
    } else if (band) {
        m_drag = Drag::Band;
        m_band->show();
    } else {
        m_drag = isOnLegend(m_pressed) && localityAt(m_pressed) == 0 ? Drag::Legend : Drag::Pan;
    }
    setCursor(m_drag == Drag::Band ? Qt::CrossCursor : Qt::ClosedHandCursor);
    if (m_drag == Drag::Legend) {
        repaintMap(); // without it
    }
}

void AtlasCanvas::drag(QPointF place)
{
    const QPointF by = place - m_dragged;
    if (m_drag != Drag::None) {
        m_dragged = place;
    }
    if (m_drag == Drag::Pan) {
        pan(by);
    } else if (m_drag == Drag::Band) {
        m_band->setGeometry(QRectF(m_pressed, place).normalized().toRect());
    } else if (m_drag == Drag::Legend) {
        update();
    }
}

void AtlasCanvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (!m_isPressed) {
        return QWidget::mouseReleaseEvent(event);
    }
    m_isPressed = false;
    endDrag(*event);
    hover(event->position());
}

void AtlasCanvas::endDrag(const QMouseEvent& event)
{
    const Drag ended = std::exchange(m_drag, Drag::None);
    const bool add = event.modifiers().testFlag(Qt::ControlModifier);
    m_band->hide();
    unsetCursor();
    if (ended == Drag::Band) {
        const QRectF area = QRectF(toDrawing(m_pressed), toDrawing(m_dragged)).normalized();
        Q_EMIT localitiesBanded(map().spots.within(area), add);
    } else if (ended == Drag::Legend) {
        repaintMap();
        Q_EMIT legendDragged((m_dragged - m_pressed) / (painterScale() * map().scale));
    } else if (ended == Drag::None && event.button() == Qt::LeftButton) {
        Q_EMIT localityClicked(localityAt(m_pressed), add);
    }
}

void AtlasCanvas::cancelDrag()
{
    m_isPressed = false;
    m_drag = Drag::None;
    m_band->hide();
    unsetCursor();
    repaintMap();
}

/// A double click beside localities fits the map; on one it is a click.
void AtlasCanvas::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && localityAt(event->position()) == 0) {
        fit();
    }
}

void AtlasCanvas::hover(QPointF place)
{
    const int locality = localityAt(place);
    setCursor(locality > 0        ? Qt::PointingHandCursor
              : isOnLegend(place) ? Qt::SizeAllCursor
                                  : Qt::ArrowCursor);
    if (std::exchange(m_hovered, locality) != locality) {
        Q_EMIT localityHovered(locality);
    }
}

void AtlasCanvas::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    if (std::exchange(m_hovered, 0) != 0) {
        Q_EMIT localityHovered(0);
    }
}
