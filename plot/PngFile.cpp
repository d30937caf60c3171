#include "plot/PngFile.h"

#include "platform/RunTimeError.h"

#include <QImage>
#include <QtEndian>

#include <array>
#include <utility>
#include <zlib.h>

namespace {

const Bytef* zlibBytes(const QByteArray& bytes)
{
    return reinterpret_cast<const Bytef*>(bytes.constData());
}

/// Compresses bytes as they come.
class Compressor
{
public:
    Compressor()
    {
        constexpr int Level = 3; // beyond it drawings hardly become smaller, but take longer
        if (deflateInit(&m_stream, Level) != Z_OK) {
            throw RunTimeError(ErrorNumber::OutOfMemory);
        }
    }
    ~Compressor() { deflateEnd(&m_stream); }
    Compressor(const Compressor&) = delete;
    Compressor& operator=(const Compressor&) = delete;

    void add(const QByteArray& bytes) { deflateAll(bytes, Z_NO_FLUSH); }
    QByteArray finish()
    {
        deflateAll({}, Z_FINISH);
        return std::move(m_compressed);
    }

private:
    void deflateAll(const QByteArray& bytes, int flush)
    {
        std::array<Bytef, 32768> room;
        m_stream.next_in = const_cast<Bytef*>(zlibBytes(bytes)); // it is only read
        m_stream.avail_in = static_cast<uInt>(bytes.size());
        do {
            m_stream.next_out = room.data();
            m_stream.avail_out = static_cast<uInt>(room.size());
            deflate(&m_stream, flush);
            m_compressed.append(reinterpret_cast<const char*>(room.data()),
                                static_cast<qsizetype>(room.size() - m_stream.avail_out));
        } while (m_stream.avail_out == 0);
    }

    z_stream m_stream{};
    QByteArray m_compressed;
};

/// A number as the format has it, the most significant byte first.
QByteArray numberBytes(qint64 number)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(static_cast<quint32>(number), bytes.data());
    return bytes;
}

QByteArray chunk(const char* type, const QByteArray& data)
{
    const QByteArray named = type + data;
    const uLong sum = crc32_z(0, zlibBytes(named), static_cast<z_size_t>(named.size()));
    return numberBytes(data.size()) + named + numberBytes(static_cast<qint64>(sum));
}

/// Three bytes a pixel, and before each row that it is not filtered.
QByteArray compressedRows(const QImage& image)
{
    Compressor compressor;
    QByteArray row(1 + qsizetype{3} * image.width(), '\0');
    for (int y = 0; y < image.height(); ++y) {
        const auto* pixels = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        char* byte = row.data() + 1;
        for (int x = 0; x < image.width(); ++x) {
            *byte++ = static_cast<char>(qRed(pixels[x]));
            *byte++ = static_cast<char>(qGreen(pixels[x]));
            *byte++ = static_cast<char>(qBlue(pixels[x]));
        }
        compressor.add(row);
    }
    return compressor.finish();
}

} // namespace

QByteArray pngBytes(const QImage& image)
{
    const QByteArray eightBitColours("\x08\x02\x00\x00\x00", 5);
    const QByteArray inMetres("\x01", 1);
    const QImage opaque = image.convertToFormat(QImage::Format_RGB32);
    return QByteArray("\x89PNG\r\n\x1A\n", 8) +
           chunk("IHDR", numberBytes(opaque.width()) + numberBytes(opaque.height()) + eightBitColours) +
           chunk("pHYs",
                 numberBytes(opaque.dotsPerMeterX()) + numberBytes(opaque.dotsPerMeterY()) + inMetres) +
           chunk("IDAT", compressedRows(opaque)) + chunk("IEND", {});
}
