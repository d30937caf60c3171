#include "plot/PngFile.h"

#include "platform/RunTimeError.h"

#include <QImage>

#include <csetjmp>
#include <new>
#include <png.h>

namespace {

/// Adds what libpng has written to the bytes. No exception may pass through libpng.
void append(png_structp png, png_bytep written, png_size_t size)
{
    auto* bytes = static_cast<QByteArray*>(png_get_io_ptr(png));
    bool isFull = false;
    try {
        bytes->append(reinterpret_cast<const char*>(written), static_cast<qsizetype>(size));
    } catch (const std::bad_alloc&) {
        isFull = true;
    }
    if (isFull) {
        png_error(png, "out of memory");
    }
}

void flush(png_structp /*png*/) {}

/// Three bytes a pixel are written, of four. An error jumps out of it.
void writeRows(png_structp png, png_infop info, const QImage& image)
{
    constexpr int Level = 3; // beyond it drawings hardly become smaller, but take longer

    png_set_compression_level(png, Level);
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
    png_set_IHDR(png, info, static_cast<png_uint_32>(image.width()), static_cast<png_uint_32>(image.height()),
                 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
                 PNG_FILTER_TYPE_DEFAULT);
    png_set_pHYs(png, info, static_cast<png_uint_32>(image.dotsPerMeterX()),
                 static_cast<png_uint_32>(image.dotsPerMeterY()), PNG_RESOLUTION_METER);
    png_write_info(png, info);
    png_set_filler(png, 0, PNG_FILLER_AFTER);
    for (int y = 0; y < image.height(); ++y) {
        png_write_row(png, image.constScanLine(y));
    }
    png_write_end(png, info);
}

/// Returns whether there was memory for it.
bool write(const QImage& image, QByteArray& bytes)
{
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png == nullptr ? nullptr : png_create_info_struct(png);
    if (info == nullptr || setjmp(png_jmpbuf(png)) != 0) {
        png_destroy_write_struct(&png, &info);
        return false;
    }
    png_set_write_fn(png, &bytes, append, flush);
    writeRows(png, info, image);
    png_destroy_write_struct(&png, &info);
    return true;
}

} // namespace

QByteArray pngBytes(const QImage& image)
{
    QByteArray bytes;
    if (!write(image.convertToFormat(QImage::Format_RGBX8888), bytes)) {
        throw RunTimeError(ErrorNumber::OutOfMemory);
    }
    return bytes;
}
