#include "render/forms/WordView.h"

#include "platform/DrawingPainter.h"

#include <QPainter>

#include <algorithm>
#include <utility>

void WordView::setWord(DrawnWord word)
{
    m_word = std::move(word);
    update();
}

void WordView::paintEvent(QPaintEvent*)
{
    constexpr int Margin = 6;

    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const QRect area = rect().adjusted(Margin, Margin, -Margin, -Margin);
    if (m_word.Width <= 0 || m_word.Height <= 0 || area.isEmpty()) {
        return;
    }
    const double scale = std::min(area.height() / static_cast<double>(m_word.Height),
                                  area.width() / static_cast<double>(m_word.Width));
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(area.left(), area.top() + (area.height() - m_word.Height * scale) / 2);
    paintDrawing(m_word.drawing, painter, scale);
}
