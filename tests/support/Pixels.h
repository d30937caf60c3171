#pragma once

#include <QImage>

/// The rectangle in `area` of the pixels of `picture` whose colour `counts`.
template <typename Counts>
QRect extent(const QImage& picture, const QRect& area, Counts counts)
{
    QRect found;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            found |= counts(picture.pixelColor(x, y)) ? QRect(x, y, 1, 1) : QRect();
        }
    }
    return found;
}
