#pragma once

#include "platform/Drawing.h"

#include <QFontMetricsF>
#include <QImage>
#include <QString>

#include <optional>

/// A surface that the program draws on: a form's drawing area or the printer's page. It has pen, fill, font
/// and position state and records what is drawn as a list of operations; it paints nothing itself.
///
/// All lengths are twips. y grows downwards.
class DrawSurface
{
public:
    /// How a text ends: at the start of the next line, or where the text ended.
    enum class LineEnd { NewLine, Stay };
    /// Whether a shape is full of the fill colour.
    enum class Fill { Solid, Transparent };

    /// Size of the surface, for those who show it or fill it.
    float Width = 0;
    float Height = 0;

    /// The coordinate that lies at the left and the top edge.
    float ScaleLeft = 0;
    float ScaleTop = 0;

    /// Where the next text is printed (its top left corner).
    float CurrentX = 0;
    float CurrentY = 0;

    /// Width of lines in pixels of 96 dpi.
    int DrawWidth = 1;
    /// Style of lines and outlines.
    PenStyle DrawStyle = PenStyle::Solid;
    /// Whether boxes, circles, slices and areas are filled with `FillColor`.
    Fill FillStyle = Fill::Transparent;
    QRgb FillColor = qRgb(0, 0, 0);
    /// Colour of texts.
    QRgb ForeColor = qRgb(0, 0, 0);

    QString FontName = QStringLiteral("Arial");
    int FontSize = 10;
    bool FontBold = false;
    bool FontItalic = false;

    /// The font of texts as a whole.
    TextFont font() const { return {FontName, FontSize, FontBold, FontItalic}; }
    void setFont(const TextFont& font);

    /// Empties the surface; printing starts again at its origin.
    void Cls();

    /// A straight line. A line that begins where the last one ended continues it.
    void Line(float x1, float y1, float x2, float y2, QRgb color);
    /// A box with two opposite corners, filled as the fill style says.
    void Box(float x1, float y1, float x2, float y2, QRgb color);
    /// A box filled with its own colour.
    void FilledBox(float x1, float y1, float x2, float y2, QRgb color);

    /// A circle, or an ellipse where `aspect` (height / width) is not 1; `radius` is the longer half-axis.
    void Circle(float x, float y, float radius, QRgb color, float aspect = 1);
    /// An arc of that circle from `start` to `end`, radians counter-clockwise from three o'clock. A negative
    /// angle draws its radius too; two negative angles make a slice, filled as the fill style says.
    void Arc(float x, float y, float radius, QRgb color, float start, float end, float aspect = 1);

    /// An area, filled as the fill style says; its outline is drawn in `color`. Rings of fewer than three
    /// points are passed over.
    void Area(const Rings& rings, QRgb color, FillPattern pattern = FillPattern::Solid);

    /// Writes `text` at the current position.
    void Print(const QString& text, LineEnd lineEnd = LineEnd::NewLine);
    /// Writes `text` at (x, y).
    void PrintAt(float x, float y, const QString& text);
    /// Paints `picture` at its natural size (its own resolution, else 96 dpi), top left corner at (x, y).
    void PaintPicture(const QImage& picture, float x, float y);

    /// Advance of `text` and height of a line in the current font.
    float TextWidth(const QString& text) const;
    float TextHeight() const;
    /// From the top of a text to its baseline in the current font.
    float TextAscent() const;

    const Drawing& drawing() const { return m_drawing; }

private:
    /// A font and its measures in twips.
    struct MeasuredFont
    {
        TextFont font;
        QFontMetricsF metrics;
    };

    bool drawsLines() const { return DrawStyle != PenStyle::None; }
    int currentPen(QRgb color);
    QRgb currentFill() const { return FillStyle == Fill::Solid ? FillColor : 0; }
    int currentFont();
    const QFontMetricsF& metrics() const;
    float originX(float x) const { return x - ScaleLeft; }
    float originY(float y) const { return y - ScaleTop; }

    Drawing m_drawing;
    std::size_t m_lastPen = 0;
    std::size_t m_lastFont = 0;
    /// The font that was measured last: its measures are costly to find.
    mutable std::optional<MeasuredFont> m_measured;
};

/// The fill of a shape that is `painted` or left empty.
constexpr DrawSurface::Fill fillOf(bool painted)
{
    return painted ? DrawSurface::Fill::Solid : DrawSurface::Fill::Transparent;
}

/// The size of `picture` in twips by its own resolution; 96 dpi where it states none.
QSizeF naturalSize(const QImage& picture);
