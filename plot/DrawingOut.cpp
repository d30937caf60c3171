#include "plot/DrawingOut.h"

#include "platform/Dialogs.h"
#include "platform/DrawingPainter.h"
#include "platform/Numbers.h"
#include "plot/DrawingFile.h"

#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>

std::optional<DrawingTarget> askForDrawingFile(Dialogs& dialogs, const QString& title, const QString& folder,
                                               const QString& name)
{
    const auto file = dialogs.saveFile(
        title, folder,
        QStringLiteral("PDF Files (*.pdf)|*.pdf|SVG Files (*.svg)|*.svg|PNG Files (*.png)|*.png"), name);
    if (!file) {
        return std::nullopt;
    }
    if (drawingFormat(*file) != DrawingFormat::Png) {
        return DrawingTarget{*file, DefaultResolution};
    }
    const auto answer = dialogs.input(QStringLiteral("Resolution of the picture in dots per inch"), title,
                                      QString::number(DefaultResolution));
    return answer ? std::optional(DrawingTarget{*file, Val(*answer)}) : std::nullopt;
}

std::unique_ptr<QMimeData> copiedDrawing(const Drawing& drawing, QSizeF size)
{
    auto copied = std::make_unique<QMimeData>();
    copied->setImageData(drawingImage(drawing, size, DefaultResolution));
    copied->setData(QStringLiteral("image/svg+xml"), drawingSvg(drawing, size));
    return copied;
}

void paintOnPage(const Drawing& drawing, QSizeF size, QPainter& painter, const QPagedPaintDevice& device)
{
    const double dotsPerTwip = device.logicalDpiX() / TwipsPerInch;
    const QSizeF room = device.pageLayout().paintRectPixels(device.logicalDpiX()).size();
    const double scale = std::min({dotsPerTwip, room.width() / size.width(), room.height() / size.height()});
    paintDrawing(drawing, painter, scale);
}
