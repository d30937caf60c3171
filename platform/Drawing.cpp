#include "platform/Drawing.h"

#include <QPainter>

namespace {

/// A picture of one colour that is as opaque as `picture`.
QImage tinted(QImage picture, QRgb color)
{
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), QColor::fromRgb(color));
    return picture;
}

} // namespace

PenStyle penStyle(int number)
{
    return number >= 0 && number <= static_cast<int>(PenStyle::None) ? static_cast<PenStyle>(number)
                                                                     : PenStyle::Solid;
}

QFont twipFont(const TextFont& font)
{
    QFont result(font.name);
    result.setPixelSize(qMax(1, static_cast<int>(font.size * TwipsPerPoint)));
    result.setBold(font.bold);
    result.setItalic(font.italic);
    result.setHintingPreference(QFont::PreferNoHinting);
    result.setStyleStrategy(QFont::PreferAntialias);
    return result;
}

Drawing inInk(Drawing drawing, QRgb ink)
{
    for (DrawingOperation& operation : drawing.operations) {
        auto* text = std::get_if<TextOperation>(&operation);
        if (text != nullptr && text->color == qRgb(0, 0, 0)) {
            text->color = ink;
        }
    }
    for (QImage& picture : drawing.pictures) {
        if (picture.hasAlphaChannel()) {
            picture = tinted(picture, ink);
        }
    }
    return drawing;
}
