#include "platform/DrawnArea.h"

#include "platform/DrawingPainter.h"

#include <QFontMetricsF>
#include <QPicture>

namespace {

/// The rectangle that holds the texts of `drawing`; a recorded picture knows nothing of theirs.
QRectF areaOfTexts(const Drawing& drawing)
{
    std::vector<QFontMetricsF> metrics;
    for (const TextFont& font : drawing.fonts) {
        metrics.emplace_back(twipFont(font));
    }
    QRectF area;
    for (const DrawingOperation& operation : drawing.operations) {
        if (const auto* text = std::get_if<TextOperation>(&operation)) {
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
    QPicture picture;
    QPainter painter(&picture);
    paintDrawing(drawing, painter, 1);
    painter.end();
    return areaOfTexts(drawing) | QRectF(picture.boundingRect());
}
