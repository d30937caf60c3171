#pragma once

#include "platform/Drawing.h"

#include <QMimeData>
#include <QSizeF>

#include <memory>
#include <optional>

class Dialogs;
class QPagedPaintDevice;
class QPainter;

/// The file that a drawing is to be saved to.
struct DrawingTarget
{
    /// Path of this machine.
    QString file;
    /// For a picture.
    double dotsPerInch;
};

/// Asks for the file to save a drawing to, `name` in `folder` of this machine proposed, and where it is a
/// picture, for its resolution. Nothing where the user does not go on. Raises bad file name for a name of no
/// format.
std::optional<DrawingTarget> askForDrawingFile(Dialogs& dialogs, const QString& title, const QString& folder,
                                               const QString& name);

/// The drawing, `size` twips large, for the clipboard: as a picture and as SVG.
std::unique_ptr<QMimeData> copiedDrawing(const Drawing& drawing, QSizeF size);

/// Paints the drawing, `size` twips large, on the page of `device`, which `painter` paints on: at its size
/// where it fits between the margins, otherwise as large as it can be.
void paintOnPage(const Drawing& drawing, QSizeF size, QPainter& painter, const QPagedPaintDevice& device);
