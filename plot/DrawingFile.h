#pragma once

#include "platform/Drawing.h"

#include <QSizeF>
#include <QString>

#include <functional>

/// The kinds of file that a drawing can be saved as.
enum class DrawingFormat { Svg, Pdf, Png };

/// The format that the ending of `fileName` asks for. Raises bad file name for any other ending.
DrawingFormat drawingFormat(const QString& fileName);

/// Saves a drawing of `size` twips to the file at `hostPath`, a path of this machine: as SVG or PDF of that
/// size, or as PNG at `dotsPerInch`. The file is complete or as it was. Raises path not found, permission
/// denied, disk full, device I/O error, and out of memory for a picture too large.
void saveDrawing(const Drawing& drawing, QSizeF size, const QString& hostPath, double dotsPerInch);

/// Saves a PDF of `pages` pages, each of `size` twips; `drawPage` gives the drawing of a page, 0..pages - 1.
/// An error that it raises leaves the file as it was.
void savePdfPages(int pages, const std::function<const Drawing&(int)>& drawPage, QSizeF size,
                  const QString& hostPath);
