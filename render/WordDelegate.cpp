#include "render/WordDelegate.h"

#include "platform/DrawingPainter.h"
#include "render/PhoneticCheck.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int Margin = 4;

/// Draws the cell without its text.
void paintCell(QPainter& painter, QStyleOptionViewItem cell)
{
    cell.text.clear();
    const QStyle* style = cell.widget != nullptr ? cell.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, &painter, cell.widget);
}

/// Paints the word on paper of its own, so that its ink is seen on any background; returns the place it took.
QRect paintDrawnWord(QPainter& painter, const DrawnWord& word, const QRect& area)
{
    const double scale = std::min(1 / TwipsPerPixel, area.height() / static_cast<double>(word.Height));
    const QSizeF size = QSizeF(word.Width, word.Height) * scale;
    const int width = std::min(static_cast<int>(size.width()) + 2 * Margin, area.width());
    const QRect paper(area.left(), area.top(), width, area.height());
    painter.setClipRect(paper, Qt::IntersectClip);
    painter.translate(paper.left() + Margin, paper.top() + (paper.height() - size.height()) / 2);
    paintDrawing(word.drawing, painter, scale);
    return paper;
}

} // namespace

WordDelegate::WordDelegate(VarnModule& varn, QObject* parent) : QStyledItemDelegate(parent), m_varn(varn) {}

const DrawnWord& WordDelegate::drawn(const QString& word) const
{
    const auto known = m_words.constFind(word);
    if (known != m_words.constEnd()) {
        return *known;
    }
    DrawnWord drawing;
    try {
        drawing = drawWord(m_varn, word);
    } catch (const RunTimeError&) {
        // Without its glyphs the word shows its code alone; a cell being painted cannot tell the user more.
    }
    return *m_words.insert(word, std::move(drawing));
}
