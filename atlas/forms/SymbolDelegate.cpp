#include "atlas/forms/SymbolDelegate.h"

#include "platform/DrawingPainter.h"
#include "platform/DrawnArea.h"
#include "platform/forms/ThemeColors.h"
#include "render/SymbolSample.h"

#include <QPainter>

#include <algorithm>

SymbolDelegate::SymbolDelegate(const PolygonTable& polygons, int styleRole, QObject* parent)
    : QStyledItemDelegate(parent), m_polygons(polygons), m_styleRole(styleRole)
{}

void SymbolDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->palette.setColor(QPalette::Highlight, chosenCell(option->palette));
}

void SymbolDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const
{
    constexpr int Frame = 3;

    QStyledItemDelegate::paint(painter, option, index);
    const QVariant style = index.data(m_styleRole);
    if (style.isValid()) {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(option.state & QStyle::State_Selected
                            ? QPen(option.palette.color(QPalette::Highlight), 2)
                            : QPen(Qt::NoPen));
        paintSymbol(*painter, style.value<HankoStyle>(),
                    QRectF(option.rect).adjusted(Frame, Frame, -Frame, -Frame));
        painter->restore();
    }
}

void SymbolDelegate::paintSymbol(QPainter& painter, const HankoStyle& hanko, const QRectF& paper) const
{
    constexpr double Corner = 3;
    constexpr double PixelsPerTwip = 1.0 / TwipsPerPixel;

    painter.setBrush(Qt::white);
    painter.drawRoundedRect(paper, Corner, Corner);
    if (!canDraw(hanko, m_polygons)) {
        painter.setPen(Qt::darkRed);
        painter.drawText(paper, Qt::AlignCenter, QStringLiteral("?"));
        return;
    }
    DrawSurface surface; // its middle is the origin
    drawSymbol(hanko, m_polygons, m_geometry, surface);
    const QRectF area = drawnArea(surface.drawing());
    const double reach = 2 * std::max({-area.left(), area.right(), -area.top(), area.bottom()});
    const double room = std::min(paper.width(), paper.height()) - 2;
    painter.setClipRect(paper);
    painter.translate(paper.center());
    paintDrawing(surface.drawing(), painter,
                 reach > 0 ? std::min(PixelsPerTwip, room / reach) : PixelsPerTwip);
}
