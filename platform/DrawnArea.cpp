#include "platform/DrawnArea.h"

#include "platform/DrawingPainter.h"

#include <QFontMetricsF>
#include <QPicture>

namespace {

/// The rectangle that holds the texts among `part` of the drawing; a recorded picture knows nothing of
/// theirs.
QRectF areaOfTexts(const Drawing& drawing, const PaintedOperations& part)
{
    std::vector<QFontMetricsF> metrics;
    for (const TextFont& font : drawing.fonts) {
        metrics.emplace_back(twipFont(font));
    }
    QRectF area;
    for (std::size_t i = part.first; i < part.end; ++i) {
        if (const auto* text = std::get_if<TextOperation>(&drawing.operations[i])) {
            const QFontMetricsF& font = metrics[static_cast<std::size_t>(text->font)];
            area |=
                QRectF(text->x, text->y, font.horizontalAdvance(drawing.texts[text->text]), font.height());
        }
    }
    return area;
}

} // namespace

QRectF drawnArea(const Drawing& drawing)
{
    return drawnArea(drawing, 0, drawing.operations.size());
}

QRectF drawnArea(const Drawing& drawing, std::size_t first, std::size_t end)
{
    const PaintedOperations part{first, end};
    QPicture picture;
    QPainter painter(&picture);
    paintDrawing(drawing, painter, 1, {&part, 1});
    painter.end();
    return areaOfTexts(drawing, part) | QRectF(picture.boundingRect());
}
