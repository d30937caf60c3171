#pragma once

#include "platform/Drawing.h"

#include <QString>

/// The font of texts on maps.
struct MapFont
{
    QString MapFontName = QStringLiteral("Arial");
    /// In points.
    qint16 MapFontSize = 10;
    bool MapFontBold = false;
    bool MapFontItalic = false;
    /// Vertical shift of phonetic glyphs in points; smaller moves them up.
    float SpecialFontShift = 0;
};

/// The map font as the font of a drawing surface.
inline TextFont textFont(const MapFont& font)
{
    return {font.MapFontName, font.MapFontSize, font.MapFontBold, font.MapFontItalic};
}
