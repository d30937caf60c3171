#pragma once

#include <QByteArray>
#include <QStringList>

/// A PDF with nothing compressed.
QByteArray plain(const QByteArray& bytes);

/// How many shapes and texts are painted in it.
qsizetype painted(const QByteArray& plainPdf);

/// What a page (from 0) of a PDF paints, in its order: for each shape how it is painted, its colour, the
/// scale, and its points; of a text that there is one.
QStringList shapesOf(const QByteArray& pdf, int page);
