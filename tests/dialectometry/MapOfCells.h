#pragma once

#include "dialectometry/AreaFill.h"
#include "platform/DrawingPainter.h"
#include "shell/MapParts.h"
#include "tests/support/TestDrive.h"

#include <QPainter>

/// A map of localities at given places, on lines that are a frame of 1000 x 800 map units; a unit is 11
/// twips.
struct MapOfCells
{
    explicit MapOfCells(const std::vector<QPointF>& places)
    {
        for (const QPointF place : places) {
            ++varn.NLocality;
            varn.LocXY(varn.NLocality, 0) = static_cast<float>(place.x());
            varn.LocXY(varn.NLocality, 1) = static_cast<float>(place.y());
        }
        const QPointF corners[] = {{0, 0}, {1000, 0}, {1000, 800}, {0, 800}, {0, 0}};
        varn.NLine = 1;
        for (const QPointF corner : corners) {
            const int j = ++varn.LinePoints(1);
            varn.LineXY(1, j, 0) = static_cast<float>(corner.x());
            varn.LineXY(1, j, 1) = static_cast<float>(corner.y());
        }
        varn.HanreiX = 700;
        cells = localityCells(varn, varn);
    }

    AreaMapParts parts() { return {blankMapParts(varn), textParts(varn), cells}; }
    MapSurfaces surfaces() { return {{surface, surface}, firstArea()}; }

    /// The drawing's pixels at 96 dpi.
    QImage painted() const
    {
        QImage image(800, 600, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        paintDrawing(surface.drawing(), painter, 1 / TwipsPerPixel);
        return image;
    }
    /// Where locality i (from 0) lies in those pixels.
    QPoint pixelOf(int i) const
    {
        const QPointF place(varn.toScreen(varn.LocXY(i + 1, 0)), varn.toScreen(varn.LocXY(i + 1, 1)));
        return (place / TwipsPerPixel).toPoint();
    }

    VarnModule varn;
    LocalityCells cells;
    DrawSurface surface;
};

/// Four by four localities, 100 map units apart, numbered row by row.
inline std::vector<QPointF> gridOfPlaces()
{
    std::vector<QPointF> places;
    for (int i = 0; i < 16; ++i) {
        places.emplace_back(100 + i % 4 * 100, 200 + i / 4 * 100);
    }
    return places;
}

/// The texts of a drawing in drawing order.
inline QStringList textsOf(const Drawing& drawing)
{
    QStringList texts;
    for (const TextOperation& text : operationsOf<TextOperation>(drawing)) {
        texts << drawing.texts[text.text];
    }
    return texts;
}
