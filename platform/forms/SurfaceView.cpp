#include "platform/forms/SurfaceView.h"

#include "platform/DrawingPainter.h"

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

SurfaceView::SurfaceView(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void SurfaceView::setSurface(const DrawSurface& surface, Fit fit)
{
    m_surface = &surface;
    m_fit = fit;
    refresh();
}

void SurfaceView::setPlaceholder(const QString& text)
{
    m_placeholder = text;
    refresh();
}

void SurfaceView::refresh()
{
    m_view = {};
    update();
}

QSize SurfaceView::paperPixels(const DrawSurface& surface)
{
    const auto pixels = [](float twips) {
        return static_cast<int>(std::clamp<double>(std::round(twips / TwipsPerPixel), 1, QWIDGETSIZE_MAX));
    };
    return {pixels(surface.Width), pixels(surface.Height)};
}

QRectF SurfaceView::paperRectangle() const
{
    const QSizeF paper(m_surface->Width / TwipsPerPixel, m_surface->Height / TwipsPerPixel);
    if (m_fit == Fit::NaturalSize || paper.isEmpty()) {
        return {QPointF(0, 0), paper};
    }
    const QSizeF fitted = paper.scaled(size(), Qt::KeepAspectRatio);
    return {QPointF((width() - fitted.width()) / 2, (height() - fitted.height()) / 2), fitted};
}

bool SurfaceView::isTooLargeToKeep() const
{
    constexpr double MostPixels = 32e6;
    return width() * devicePixelRatioF() * height() * devicePixelRatioF() > MostPixels;
}

void SurfaceView::paintPaper(QPainter& painter) const
{
    if (m_surface == nullptr) {
        return;
    }
    const QRectF paper = paperRectangle();
    painter.save();
    painter.setClipRect(paper, Qt::IntersectClip);
    painter.fillRect(paper, Qt::white);
    painter.translate(paper.topLeft());
    const double scale = m_surface->Width > 0 ? paper.width() / m_surface->Width : 1;
    paintDrawing(m_surface->drawing(), painter, scale);
    painter.restore();
    if (m_fit == Fit::WholePaper) {
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawRect(paper.adjusted(0, 0, -1, -1));
    }
    if (m_surface->drawing().operations.empty()) {
        painter.setPen(Qt::darkGray);
        painter.drawText(paper, Qt::AlignCenter | Qt::TextWordWrap, m_placeholder);
    }
}

QColor SurfaceView::surroundings() const
{
    return palette().color(m_fit == Fit::NaturalSize ? QPalette::Mid : QPalette::Window);
}

QPixmap SurfaceView::paintedView() const
{
    const double ratio = devicePixelRatioF();
    QPixmap view((QSizeF(size()) * ratio).toSize());
    view.setDevicePixelRatio(ratio);
    view.fill(surroundings());
    QPainter painter(&view);
    paintPaper(painter);
    return view;
}

void SurfaceView::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    if (isTooLargeToKeep()) {
        painter.setClipRect(event->rect());
        painter.fillRect(event->rect(), surroundings());
        paintPaper(painter);
        return;
    }
    if (m_view.isNull() || m_view.devicePixelRatio() != devicePixelRatioF()) {
        m_view = paintedView();
    }
    painter.drawPixmap(0, 0, m_view);
}

void SurfaceView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_view = {};
}
