#pragma once

#include "lingdata/PhoneticCode.h"
#include "render/MapParts.h"

#include <vector>

/// Writes coded texts: plain characters in the target's font, phonetic escapes as glyph bitmaps.
class PhoneticText
{
public:
    PhoneticText(const TextParts& parts, const TracedTarget& target);

    /// Writes `text` from (x, y), its top left corner in twips, and returns the x where it ended. An escape
    /// in no code is written with a message on the map form itself. Raises file not found for a missing
    /// bitmap.
    float PlotChar(float x, float y, QStringView text);

    /// Writes the first unit of `text` and returns the x where it ended; `consumed` is how many characters
    /// the unit took, 0 where the text is empty.
    float One(float x, float y, QStringView text, int& consumed);

private:
    float PlotWord(float x, float y, QStringView text);
    float PlotOneSymbol(float x, float y, GlyphSeries series, int number);
    QString glyphFolder() const;

    TextParts m_parts;
    DrawSurface& m_target;
    DrawSurface& m_frmMap;
};

/// One entry of the code list: a code, the letter that it stands for, and its name.
struct PhoneticSymbol
{
    QString code;
    QString letter;
    QString name;
};

/// Reads the code list `ExpSymbol.txt` of the installation.
std::vector<PhoneticSymbol> LoadSymbols(const Folders& folders);
