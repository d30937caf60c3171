#pragma once

#include <QByteArray>
#include <QList>

/// A PDF with nothing compressed.
QByteArray plain(const QByteArray& bytes);

/// How many shapes and texts are painted in it.
qsizetype painted(const QByteArray& plainPdf);

/// A shape or a text of a page.
struct PaintedShape
{
    /// How it is painted, its colour, and the scale.
    QByteArray painting;
    /// The numbers of its points; none of a text.
    QList<double> points;

    /// Points that differ by rounding are the same.
    bool operator==(const PaintedShape& other) const;
};

/// What a page (from 0) of a PDF paints, in its order.
QList<PaintedShape> shapesOf(const QByteArray& pdf, int page);
/// How many of `shapes` are painted as `painting` begins.
qsizetype countOf(const QList<PaintedShape>& shapes, const QByteArray& painting);
