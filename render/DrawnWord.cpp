#include "render/DrawnWord.h"

DrawnWord drawWord(VarnModule& varn, const MapFont& font, const QString& word)
{
    DrawSurface surface;
    surface.FontName = font.MapFontName;
    surface.FontSize = font.MapFontSize;
    surface.FontBold = font.MapFontBold;
    surface.FontItalic = font.MapFontItalic;
    DrawSurface traces;
    try {
        PhoneticText text(varn, font, varn, varn.Pictures, {surface, traces});
        const float width = text.PlotChar(0, 0, word);
        return {surface.drawing(), width, surface.TextHeight()};
    } catch (const RunTimeError&) {
        // This is drawn at every step and key stroke, when a message would be of no help.
        return {};
    }
}
