#include "render/DrawnWord.h"

#include "render/PhoneticText.h"

DrawnWord drawWord(const TextParts& parts, const QString& word)
{
    DrawSurface surface;
    surface.setFont(textFont(parts.font));
    DrawSurface traces;
    try {
        PhoneticText text(parts, {surface, traces});
        const float width = text.PlotChar(0, 0, word);
        return {surface.drawing(), width, surface.TextHeight()};
    } catch (const RunTimeError&) {
        // This is drawn at every step and key stroke, when a message would be of no help.
        return {};
    }
}
