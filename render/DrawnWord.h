#pragma once

#include "platform/Drawing.h"
#include "render/MapParts.h"

/// A coded word drawn by itself, as maps show it: with letters for its phonetic escapes.
struct DrawnWord
{
    Drawing drawing;
    /// Where the word ended and the height of its line, in twips.
    float Width = 0;
    float Height = 0;
};

/// Draws `word` from the origin in the font of `parts`. Escapes that are in no code are left out. Nothing is
/// drawn where the installation lacks a glyph.
DrawnWord drawWord(const TextParts& parts, const QString& word);
