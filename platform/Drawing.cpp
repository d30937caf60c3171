#include "platform/Drawing.h"

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
