#include "platform/PictureStore.h"

#include "platform/RunTimeError.h"
#include "platform/WholeFile.h"

namespace {

/// The same ink with white turned transparent, so that what was drawn before shows between the strokes.
QImage inkOnly(const QImage& picture)
{
    QImage ink(picture.size(), QImage::Format_ARGB32);
    ink.setDotsPerMeterX(picture.dotsPerMeterX());
    ink.setDotsPerMeterY(picture.dotsPerMeterY());
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ink.setPixel(x, y, qRgba(0, 0, 0, 255 - qGray(picture.pixel(x, y))));
        }
    }
    return ink;
}

} // namespace

const QImage& PictureStore::picture(const DriveC& drive, const QString& path) const
{
    const auto known = m_pictures.constFind(path);
    if (known != m_pictures.constEnd()) {
        return *known;
    }
    const QImage image = QImage::fromData(readBytes(drive, path));
    if (image.isNull()) {
        throw RunTimeError(ErrorNumber::TypeMismatch, QStringLiteral("The file is not a picture."))
            .at({path});
    }
    return *m_pictures.insert(path, image.allGray() ? inkOnly(image) : image);
}
