#include "atlas/forms/AtlasItemDelegate.h"

#include "atlas/AtlasItemTable.h"
#include "atlas/forms/AtlasItemFilter.h"
#include "platform/forms/ThemeColors.h"

#include <QApplication>
#include <QPainter>

namespace {

constexpr int Margin = 6;

/// The line under the caption, and its colour.
struct Note
{
    QString text;
    QColor color;
};

Note noteOf(const QModelIndex& index, const QPalette& palette)
{
    const QString trouble = index.data(AtlasItemTable::Trouble).toString();
    const QStringList found = index.data(AtlasItemFilter::Found).toStringList();
    if (!trouble.isEmpty()) {
        return {trouble.simplified(), warningText(palette)};
    }
    if (!found.isEmpty()) {
        return {QStringLiteral("with ") + found.join(QStringLiteral(", ")), palette.color(QPalette::Link)};
    }
    return {index.data(AtlasItemTable::Figures).toString(), quietText(palette)};
}

void paintLine(QPainter& painter, const QRect& area, const QString& text, const QColor& color)
{
    painter.setPen(color);
    painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(text, Qt::ElideRight, area.width()));
}

/// A small circle, filled where there is a symbol file, at the right of `line`; returns the room that it
/// leaves.
QRect paintMark(QPainter& painter, const QRect& line, const QColor& color, bool hasSymbols)
{
    const double side = line.height() * 0.5;
    const QRectF circle(line.right() - side, line.center().y() - side / 2, side, side);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 1.5));
    painter.setBrush(hasSymbols ? QBrush(color) : QBrush(Qt::NoBrush));
    painter.drawEllipse(circle);
    painter.restore();
    return line.adjusted(0, 0, static_cast<int>(-side) - Margin, 0);
}

} // namespace

void AtlasItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QString caption = cell.text;
    cell.text.clear();
    cell.palette.setColor(QPalette::Highlight, chosenCell(cell.palette));
    const QStyle* style = cell.widget != nullptr ? cell.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);

    const QRect area = cell.rect.adjusted(Margin, Margin / 2, -Margin, -Margin / 2);
    QRect first(area.topLeft(), QSize(area.width(), area.height() / 2));
    const QRect second = area.adjusted(0, first.height(), 0, 0);
    const QColor text = cell.palette.color(QPalette::Text);
    const Note note = noteOf(index, cell.palette);
    painter->save();
    painter->setFont(cell.font);
    const bool isUnsaved = index.data(AtlasItemTable::IsUnsaved).toBool();
    first =
        paintMark(*painter, first, quietText(cell.palette), index.data(AtlasItemTable::HasSymbols).toBool());
    paintLine(*painter, first, isUnsaved ? QStringLiteral("* ") + caption : caption, text);
    paintLine(*painter, second, note.text, note.color);
    painter->restore();
}

QSize AtlasItemDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const
{
    constexpr int Narrow = 120; // longer lines are cut
    return {Narrow, 2 * option.fontMetrics.height() + 2 * Margin};
}
