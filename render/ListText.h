#pragma once

#include "render/PhoneticText.h"

/// Writes the texts of a list on a surface: plain ones, and coded ones with their phonetic glyphs. The font
/// is the map font at 10 points, whatever the size on maps, so that a line is as high as a glyph; the surface
/// has its own font and colour again when the writer is gone.
class ListText
{
public:
    /// How a text is to be read.
    enum class Coding { Plain, Phonetic };

    ListText(const TextParts& parts, DrawSurface& target);
    ~ListText();
    ListText(const ListText&) = delete;
    ListText& operator=(const ListText&) = delete;

    void setColor(QRgb color) { m_target.ForeColor = color; }

    /// Writes `text` from (x, y), its top left corner in twips.
    void write(float x, float y, const QString& text, Coding coding = Coding::Plain);
    /// Writes a plain text that ends at x.
    void writeRight(float x, float y, const QString& text);

    float width(const QString& text, Coding coding = Coding::Plain);
    /// `text`, or as much of its start as fits in `width`, followed by dots.
    QString shortened(const QString& text, float width, Coding coding = Coding::Plain);

private:
    /// Font and colour of a surface.
    struct Look
    {
        TextFont font;
        QRgb color;
    };

    static Look lookOf(const DrawSurface& surface);
    static void apply(const Look& look, DrawSurface& surface);

    MapFont m_font;
    MapStyle m_style;
    DrawSurface& m_target;
    Look m_targetLook;
    /// Texts are measured by writing them here. It also takes the traces of codes that are none.
    DrawSurface m_ruler;
    PhoneticText m_written;
    PhoneticText m_measured;
};
