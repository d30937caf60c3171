#include "atlas/forms/AtlasHoverCard.h"

#include "platform/DrawingPainter.h"
#include "render/SymbolSample.h"
#include "shell/MapParts.h"
#include "shell/VarnModule.h"

#include <QPainter>

#include <algorithm>

namespace {

// In pixels.
constexpr int Margin = 8;
constexpr int RowHeight = 28;
constexpr int MostWidth = 420;
constexpr int SymbolWidth = 28;
/// How far the card stands beside the locality.
constexpr int Distance = 18;

} // namespace

AtlasHoverCard::AtlasHoverCard(VarnModule& varn, QWidget* map) : QWidget(map), m_varn(varn)
{
    setObjectName(QStringLiteral("hoverCard"));
    setAccessibleName(QStringLiteral("Locality pointed at"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void AtlasHoverCard::showAnswer(const LocalityAnswer& answer, const SymbolRecords& symbols, QPointF place)
{
    m_title = answer.title;
    m_rows.clear();
    for (const MarkedWord& word : answer.words) {
        m_rows.push_back(rowOf(word, symbols));
    }
    setAccessibleDescription(answer.line());
    resize(sizeOfContents());
    const QSize room = parentWidget()->size() - size();
    const QPoint corner = place.toPoint() + QPoint(Distance, Distance);
    const int left = corner.x() > room.width() ? corner.x() - width() - 2 * Distance : corner.x();
    const int top = corner.y() > room.height() ? corner.y() - height() - 2 * Distance : corner.y();
    move(std::max(0, left), std::max(0, top));
    update();
    show();
}

AtlasHoverCard::Row AtlasHoverCard::rowOf(const MarkedWord& word, const SymbolRecords& symbols) const
{
    Row row{{}, drawWord(textParts(m_varn), word.word), word.word};
    for (const int k : word.records) {
        DrawSurface surface;
        surface.Width = static_cast<float>(SymbolWidth * TwipsPerPixel);
        surface.Height = static_cast<float>(RowHeight * TwipsPerPixel);
        MapGeometry geometry;
        drawSymbol(symbols.Hanko(k), m_varn, geometry, surface);
        row.symbols.push_back(surface.drawing());
    }
    return row;
}

double AtlasHoverCard::wordScale(const Row& row) const
{
    return row.word.Height > 0 ? fontMetrics().height() / static_cast<double>(row.word.Height) : 0;
}

int AtlasHoverCard::widthOf(const Row& row) const
{
    const double word =
        row.word.Width > 0 ? row.word.Width * wordScale(row) : fontMetrics().horizontalAdvance(row.code);
    return static_cast<int>(row.symbols.size()) * SymbolWidth + static_cast<int>(word) + 2;
}

QSize AtlasHoverCard::sizeOfContents() const
{
    QFont bold = font();
    bold.setBold(true);
    int width = QFontMetrics(bold).horizontalAdvance(m_title);
    for (const Row& row : m_rows) {
        width = std::max(width, widthOf(row));
    }
    return {std::min(width, MostWidth) + 2 * Margin,
            fontMetrics().height() + 2 * Margin + static_cast<int>(m_rows.size()) * RowHeight};
}

/// Like the map it is black on white in every theme.
void AtlasHoverCard::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.setPen(Qt::gray);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const QRect inner = rect().adjusted(Margin, Margin, -Margin, -Margin);
    painter.setClipRect(inner);
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(Qt::black);
    painter.drawText(inner, Qt::AlignLeft | Qt::AlignTop, m_title);
    painter.setFont(font());
    int top = inner.top() + fontMetrics().height();
    for (const Row& row : m_rows) {
        paintRow(painter, row, top);
        top += RowHeight;
    }
}

void AtlasHoverCard::paintRow(QPainter& painter, const Row& row, int top) const
{
    int left = Margin;
    painter.save();
    painter.translate(left, top);
    for (const Drawing& symbol : row.symbols) {
        paintDrawing(symbol, painter, 1 / TwipsPerPixel);
        painter.translate(SymbolWidth, 0);
        left += SymbolWidth;
    }
    const double scale = wordScale(row);
    painter.translate(2, (RowHeight - row.word.Height * scale) / 2);
    paintDrawing(row.word.drawing, painter, scale);
    painter.restore();
    if (row.word.drawing.operations.empty()) { // a letter is missing
        painter.drawText(QRect(left, top, width(), RowHeight), Qt::AlignVCenter, row.code);
    }
}
