#include "atlas/forms/AtlasLocalityDelegate.h"

#include "atlas/AtlasDocument.h"
#include "atlas/AtlasLocalityTable.h"
#include "platform/DrawingPainter.h"
#include "render/SymbolSample.h"
#include "shell/VarnModule.h"

#include <QApplication>
#include <QPainter>

namespace {

constexpr int SymbolSide = 20; // pixels

QVariantList marksOf(const QModelIndex& index)
{
    return index.data(AtlasLocalityTable::Marks).toList();
}

} // namespace

AtlasLocalityDelegate::AtlasLocalityDelegate(VarnModule& varn, const AtlasDocument& document,
                                             QAbstractItemDelegate& kindDelegate, QObject* parent)
    : WordEntryDelegate(varn, kindDelegate, parent), m_varn(varn), m_document(document)
{}

void AtlasLocalityDelegate::showKinds()
{
    const WordKinds& kinds = m_document.page().item;
    QStringList words;
    for (int k = 1; k <= kinds.NKind; ++k) {
        words << kinds.KindWord(k);
    }
    setKinds(words);
}

/// Symbols stand on white, as on the map, in a dark theme, too.
void AtlasLocalityDelegate::paintSymbol(QPainter& painter, const QRect& place, int record) const
{
    DrawSurface surface;
    surface.Width = surface.Height = static_cast<float>(SymbolSide * TwipsPerPixel);
    drawSymbol(m_document.shownSymbols().Hanko(record), m_varn, m_varn, surface);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(place, Qt::IntersectClip);
    painter.fillRect(place, Qt::white);
    painter.translate(place.topLeft());
    paintDrawing(surface.drawing(), painter, 1 / TwipsPerPixel);
    painter.restore();
}

void AtlasLocalityDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const
{
    const QVariantList marks = marksOf(index);
    QStyleOptionViewItem cell = option;
    if (!marks.isEmpty()) {
        initStyleOption(&cell, index);
        cell.text.clear();
        const QStyle* style = cell.widget != nullptr ? cell.widget->style() : QApplication::style();
        style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
        cell = option;
    }
    for (const QVariant& record : marks) {
        const int top = cell.rect.top() + (cell.rect.height() - SymbolSide) / 2;
        paintSymbol(*painter, {cell.rect.left() + 1, top, SymbolSide, SymbolSide}, record.toInt());
        cell.rect.adjust(SymbolSide + 2, 0, 0, 0);
    }
    WordEntryDelegate::paint(painter, cell, index);
}

QSize AtlasLocalityDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QSize word = WordEntryDelegate::sizeHint(option, index);
    const auto symbols = static_cast<int>(marksOf(index).size());
    return {word.width() + symbols * (SymbolSide + 2), std::max(word.height(), SymbolSide + 2)};
}
