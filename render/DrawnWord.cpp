#include "render/DrawnWord.h"

DrawnWord drawWord(VarnModule& varn, const QString& word)
{
    DrawSurface surface;
    surface.FontName = varn.MapFontName;
    surface.FontSize = varn.MapFontSize;
    surface.FontBold = varn.MapFontBold;
    surface.FontItalic = varn.MapFontItalic;
    DrawSurface traces;
    try {
        PhoneticText text(varn, varn, varn, varn.Pictures, {surface, traces});
        const float width = text.PlotChar(0, 0, word);
        return {surface.drawing(), width, surface.TextHeight()};
    } catch (const RunTimeError&) {
        // This is drawn at every step and key stroke, when a message would be of no help.
        return {};
    }
}
