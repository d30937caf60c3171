#pragma once

#include <QByteArray>

class QImage;

/// The bytes of a PNG file with an opaque image of at most 500 million pixels and its resolution. Rows stand
/// in it unfiltered: that is made faster and comes out smaller for drawings, where Qt's writer tries all
/// filters on each row. Raises out of memory.
QByteArray pngBytes(const QImage& image);
