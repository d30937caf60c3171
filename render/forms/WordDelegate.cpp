#include "render/forms/WordDelegate.h"

#include "lingdata/PhoneticCheck.h"
#include "platform/DrawingPainter.h"
#include "platform/forms/ThemeColors.h"
#include "shell/VarnModule.h"

#include <QApplication>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int Margin = 4;

/// The map font in the size in which phonetic letters are as large as the others.
MapFont listFont(const MapFont& mapFont)
{
    constexpr qint16 SizeOfLetters = 10;
    MapFont font = mapFont;
    font.MapFontSize = SizeOfLetters;
    return font;
}

/// Draws the cell without its text.
void paintCell(QPainter& painter, QStyleOptionViewItem cell)
{
    cell.text.clear();
    const QStyle* style = cell.widget != nullptr ? cell.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, &painter, cell.widget);
}

/// Paints the word at the left of `area`, centered upright, in the height and colour of the painter's text;
/// returns the room that it leaves.
QRect paintDrawnWord(QPainter& painter, const DrawnWord& word, const QRect& area)
{
    if (word.Height <= 0) {
        return area;
    }
    const double scale = painter.fontMetrics().height() / static_cast<double>(word.Height);
    const QSizeF size = QSizeF(word.Width, word.Height) * scale;
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
    painter.translate(area.left(), area.top() + (area.height() - size.height()) / 2);
    paintDrawing(inInk(word.drawing, painter.pen().color().rgb()), painter, scale);
    painter.restore();
    return area.adjusted(static_cast<int>(size.width()), 0, 0, 0);
}

void paintText(QPainter& painter, const QString& text, const QRect& area, Qt::Alignment side,
               const QColor& color)
{
    painter.setPen(color);
    const QString line = painter.fontMetrics().elidedText(text, Qt::ElideRight, area.width());
    painter.drawText(area, static_cast<int>(side | Qt::AlignVCenter) | Qt::TextSingleLine, line);
}

} // namespace

WordDelegate::WordDelegate(VarnModule& varn, QObject* parent) : QStyledItemDelegate(parent), m_varn(varn) {}

const DrawnWord& WordDelegate::drawn(const QString& word) const
{
    const auto known = m_words.constFind(word);
    if (known != m_words.constEnd()) {
        return *known;
    }
    const MapFont font = listFont(m_varn);
    return *m_words.insert(word, drawWord({m_varn, font, m_varn, m_varn.Pictures}, word));
}

void WordDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    // The colours of codes and of what is wrong can be read in chosen cells, too.
    option->palette.setColor(QPalette::Highlight, chosenCell(option->palette));
    option->palette.setColor(QPalette::HighlightedText, option->palette.color(QPalette::Text));
}

void WordDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const
{
    const QString word = index.data().toString();
    if (!word.contains(QLatin1Char('\\'))) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    painter->save();
    painter->setFont(cell.font);
    painter->setPen(cell.palette.color(QPalette::Text));
    paintCell(*painter, cell);
    const QRect area = cell.rect.adjusted(Margin, 1, -Margin, -1);
    if (findCodeFault(word)) {
        paintText(*painter, word, area, Qt::AlignLeft, warningText(cell.palette));
    } else {
        const QRect room = paintDrawnWord(*painter, drawn(word), area);
        if (m_showsCodes) {
            paintText(*painter, word, room.adjusted(2 * Margin, 0, 0, 0), Qt::AlignRight,
                      quietText(cell.palette));
        }
    }
    painter->restore();
}

QSize WordDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QSize hint = QStyledItemDelegate::sizeHint(option, index);
    return {hint.width(), std::max(hint.height(), option.fontMetrics.height() + 2 * Margin)};
}
