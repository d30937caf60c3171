#pragma once

#include "platform/Drawing.h"

#include <QByteArray>
#include <QImage>
#include <QSizeF>
#include <QString>

#include <functional>

class QPdfWriter;

/// The kinds of file that a drawing can be saved as.
enum class DrawingFormat { Svg, Pdf, Png };

/// The format that the ending of `fileName` asks for. Raises bad file name for any other ending.
DrawingFormat drawingFormat(const QString& fileName);

/// Dots per inch of a PNG unless another resolution is asked for.
constexpr double DefaultResolution = 192;

/// The drawing, `size` twips large, on white paper. Raises out of memory for a picture too large, and invalid
/// procedure call for a resolution that is not above 0.
QImage drawingImage(const Drawing& drawing, QSizeF size, double dotsPerInch);

/// The drawing, `size` twips large, as the text of an SVG file.
QByteArray drawingSvg(const Drawing& drawing, QSizeF size);

/// Gives a PDF pages of `size` twips without margins, on which a twip is a unit.
void setUpPages(QPdfWriter& pdf, QSizeF size);

/// Saves a drawing of `size` twips to the file at `hostPath`, a path of this machine: as SVG or PDF of that
/// size, or as PNG at `dotsPerInch`. The file is complete or as it was. Raises path not found, permission
/// denied, disk full, device I/O error, and out of memory for a picture too large.
void saveDrawing(const Drawing& drawing, QSizeF size, const QString& hostPath, double dotsPerInch);

/// Saves a PDF of `pages` pages, each of `size` twips; `drawPage` gives the drawing of a page, 0..pages - 1.
/// An error that it raises leaves the file as it was.
void savePdfPages(int pages, const std::function<const Drawing&(int)>& drawPage, QSizeF size,
                  const QString& hostPath);
