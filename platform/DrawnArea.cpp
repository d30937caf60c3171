#include "platform/DrawnArea.h"

#include "platform/DrawingPainter.h"

#include <QPicture>

QRectF drawnArea(const Drawing& drawing)
{
    QPicture picture;
    QPainter painter(&picture);
    paintDrawing(drawing, painter, 1);
    painter.end();
    return picture.boundingRect();
}
