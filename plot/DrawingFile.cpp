#include "plot/DrawingFile.h"

#include "platform/DrawingPainter.h"
#include "platform/RunTimeError.h"
#include "platform/WholeFile.h"
#include "plot/PngFile.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <cmath>

namespace {

constexpr double MostPixels = 500e6;

} // namespace

QByteArray drawingSvg(const Drawing& drawing, QSizeF size)
{
    QBuffer buffer;
    QSvgGenerator svg;
    svg.setOutputDevice(&buffer);
    svg.setResolution(96);
    svg.setSize((size / TwipsPerPixel).toSize());
    svg.setViewBox(QRectF(QPointF(0, 0), size));
    svg.setTitle(QStringLiteral("Map"));
    svg.setDescription({});
    QPainter painter(&svg);
    painter.fillRect(QRectF(QPointF(0, 0), size), Qt::white);
    paintDrawing(drawing, painter, 1);
    painter.end();
    return buffer.data();
}

QImage drawingImage(const Drawing& drawing, QSizeF size, double dotsPerInch)
{
    constexpr double MetersPerInch = 0.0254;
    if (!(dotsPerInch > 0)) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall,
                           QStringLiteral("%1 is not a resolution.").arg(dotsPerInch));
    }
    const double scale = dotsPerInch / TwipsPerInch;
    const QSizeF pixels = size * scale;
    if (pixels.width() * pixels.height() > MostPixels) {
        throw RunTimeError(ErrorNumber::OutOfMemory, QStringLiteral("The picture is too large."));
    }
    QImage image(static_cast<int>(std::lround(pixels.width())),
                 static_cast<int>(std::lround(pixels.height())), QImage::Format_RGB32);
    if (image.isNull()) {
        throw RunTimeError(ErrorNumber::OutOfMemory, QStringLiteral("The picture cannot be made."));
    }
    image.fill(Qt::white);
    image.setDotsPerMeterX(static_cast<int>(std::lround(dotsPerInch / MetersPerInch)));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    QPainter painter(&image);
    paintDrawing(drawing, painter, scale);
    return image;
}

DrawingFormat drawingFormat(const QString& fileName)
{
    const QString ending = QFileInfo(fileName).suffix().toLower();
    if (ending == QLatin1String("svg")) {
        return DrawingFormat::Svg;
    }
    if (ending == QLatin1String("pdf")) {
        return DrawingFormat::Pdf;
    }
    if (ending == QLatin1String("png")) {
        return DrawingFormat::Png;
    }
    throw RunTimeError(ErrorNumber::BadFileName, QStringLiteral("The name must end in .svg, .pdf or .png."))
        .at({fileName});
}

void saveDrawing(const Drawing& drawing, QSizeF size, const QString& hostPath, double dotsPerInch)
{
    switch (drawingFormat(hostPath)) {
    case DrawingFormat::Svg:
        replaceHostFile(hostPath, hostPath, drawingSvg(drawing, size));
        break;
    case DrawingFormat::Pdf:
        savePdfPages(
            1, [&drawing](int) -> const Drawing& { return drawing; }, size, hostPath);
        break;
    case DrawingFormat::Png:
        replaceHostFile(hostPath, hostPath, pngBytes(drawingImage(drawing, size, dotsPerInch)));
        break;
    }
}

void setUpPages(QPdfWriter& pdf, QSizeF size)
{
    pdf.setResolution(static_cast<int>(TwipsPerInch));
    pdf.setPageSize(QPageSize(size / TwipsPerPoint, QPageSize::Point, {}, QPageSize::ExactMatch));
    pdf.setPageMargins(QMarginsF());
}

void savePdfPages(int pages, const std::function<const Drawing&(int)>& drawPage, QSizeF size,
                  const QString& hostPath)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter pdf(&buffer);
        pdf.setCreator(QStringLiteral("varn"));
        pdf.setTitle(QFileInfo(hostPath).completeBaseName());
        setUpPages(pdf, size);
        QPainter painter(&pdf);
        for (int page = 0; page < pages; ++page) {
            const Drawing& drawing = drawPage(page);
            if (page > 0) {
                pdf.newPage();
            }
            paintDrawing(drawing, painter, 1);
        }
    }
    replaceHostFile(hostPath, hostPath, buffer.data());
}
