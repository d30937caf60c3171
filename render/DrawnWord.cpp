#include "render/DrawnWord.h"

DrawnWord drawWord(VarnModule& varn, const QString& word)
{
    DrawSurface surface;
    surface.FontName = varn.MapFontName;
    surface.FontSize = varn.MapFontSize;
    surface.FontBold = varn.MapFontBold;
    surface.FontItalic = varn.MapFontItalic;
    DrawSurface traces;
    const float width =
        PhoneticText(varn, varn, varn, varn.Pictures, {surface, traces}).PlotChar(0, 0, word);
    return {surface.drawing(), width, surface.TextHeight()};
}
