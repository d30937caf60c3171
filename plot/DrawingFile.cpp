#include "plot/DrawingFile.h"

#include "platform/DrawingPainter.h"
#include "platform/RunTimeError.h"
#include "platform/WholeFile.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QImageWriter>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <cmath>

namespace {

/// Lets `write` fill a device in memory and puts what it wrote into the file at `hostPath`.
template <typename Write>
void writeWhole(const QString& hostPath, Write write)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    write(buffer);
    replaceHostFile(hostPath, hostPath, buffer.data());
}

void writeSvg(const Drawing& drawing, QSizeF size, QIODevice& device)
{
    QSvgGenerator svg;
    svg.setOutputDevice(&device);
    svg.setResolution(96);
    svg.setSize((size / TwipsPerPixel).toSize());
    svg.setViewBox(QRectF(QPointF(0, 0), size));
    svg.setTitle(QStringLiteral("Map"));
    svg.setDescription({});
    QPainter painter(&svg);
    painter.fillRect(QRectF(QPointF(0, 0), size), Qt::white);
    paintDrawing(drawing, painter, 1);
}

void writePng(const Drawing& drawing, QSizeF size, double dotsPerInch, QIODevice& device)
{
    constexpr double MetersPerInch = 0.0254;
    constexpr int FastCompression = 30; // for a drawing as small as the default and twice as fast
    const double scale = dotsPerInch / TwipsPerInch;
    QImage image(static_cast<int>(std::lround(size.width() * scale)),
                 static_cast<int>(std::lround(size.height() * scale)), QImage::Format_RGB32);
    if (image.isNull()) {
        throw RunTimeError(ErrorNumber::OutOfMemory, QStringLiteral("The picture is too large."));
    }
    image.fill(Qt::white);
    image.setDotsPerMeterX(static_cast<int>(std::lround(dotsPerInch / MetersPerInch)));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    QPainter painter(&image);
    paintDrawing(drawing, painter, scale);
    painter.end();
    QImageWriter writer(&device, "png");
    writer.setCompression(FastCompression);
    writer.write(image);
}

} // namespace

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
        writeWhole(hostPath, [&](QIODevice& device) { writeSvg(drawing, size, device); });
        break;
    case DrawingFormat::Pdf:
        savePdfPages(
            1, [&drawing](int) -> const Drawing& { return drawing; }, size, hostPath);
        break;
    case DrawingFormat::Png:
        writeWhole(hostPath, [&](QIODevice& device) { writePng(drawing, size, dotsPerInch, device); });
        break;
    }
}

void savePdfPages(int pages, const std::function<const Drawing&(int)>& drawPage, QSizeF size,
                  const QString& hostPath)
{
    writeWhole(hostPath, [&](QIODevice& device) {
        QPdfWriter pdf(&device);
        pdf.setCreator(QStringLiteral("varn"));
        pdf.setTitle(QFileInfo(hostPath).completeBaseName());
        pdf.setResolution(static_cast<int>(TwipsPerInch));
        pdf.setPageSize(QPageSize(size / TwipsPerPoint, QPageSize::Point, {}, QPageSize::ExactMatch));
        pdf.setPageMargins(QMarginsF());
        QPainter painter(&pdf);
        for (int page = 0; page < pages; ++page) {
            const Drawing& drawing = drawPage(page);
            if (page > 0) {
                pdf.newPage();
            }
            paintDrawing(drawing, painter, 1);
        }
    });
}
