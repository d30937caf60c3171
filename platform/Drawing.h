#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPointF>
#include <QString>

#include <cstddef>
#include <variant>
#include <vector>

/// Drawing units. 15 twips are one pixel at 96 dpi on every target.
constexpr double TwipsPerPixel = 15;
constexpr double TwipsPerPoint = 20;
constexpr double TwipsPerInch = 1440;
/// Every conversion from millimetres uses this rounded factor.
constexpr double TwipsPerMm = 56.7;

/// The styles of lines, with their numbers in files; `None` draws nothing.
enum class PenStyle { Solid = 0, Dash = 1, Dot = 2, DashDot = 3, DashDotDot = 4, None = 5 };

/// The style of a number; numbers of no style are solid.
PenStyle penStyle(int number);

/// A line's colour, width in pixels of 96 dpi, and style.
struct LinePen
{
    QRgb color = qRgb(0, 0, 0);
    int width = 1;
    PenStyle style = PenStyle::Solid;

    bool operator==(const LinePen&) const = default;
};

/// A font by name, size in points, and style.
struct TextFont
{
    QString name;
    int size = 0;
    bool bold = false;
    bool italic = false;

    bool operator==(const TextFont&) const = default;
};

/// The font to write and measure with in twips: its pixel is one twip.
QFont twipFont(const TextFont& font);

/// What an area is full of: its colour all over, or lines or dots of it that the ground shows between. The
/// lines are at fixed places of the drawing, so that those of neighbouring areas run on; dense ones lie twice
/// as close. Each can be told from all others in print without colours.
enum class FillPattern {
    Solid,
    Horizontal,
    Rising,
    Vertical,
    Falling,
    Cross,
    DiagonalCross,
    Dots,
    DenseHorizontal,
    DenseRising,
    DenseVertical,
    DenseFalling,
    DenseCross,
    DenseDiagonalCross,
    DenseDots
};

/// The outline of an area: points around it, the first one not repeated.
using Ring = std::vector<QPointF>;
/// An area: what lies in an odd number of rings, so that a ring in another one is a hole.
using Rings = std::vector<Ring>;

/// One recorded drawing operation; coordinates in twips. Pens, fonts, points, texts and pictures are numbers
/// of entries in the drawing's tables; a fill is a colour, 0 (fully transparent) for none.
struct PolylineOperation
{
    int pen;
    std::size_t firstPoint;
    std::size_t points;
};

struct BoxOperation
{
    int pen;
    QRgb fill;
    float x;
    float y;
    float width;
    float height;
};

struct EllipseOperation
{
    int pen;
    QRgb fill;
    float x;
    float y;
    float halfWidth;
    float halfHeight;
};

/// An arc from `start` over `span`, in radians counter-clockwise as seen from three o'clock. `closed` makes
/// it a slice with both radii, which alone is filled; otherwise each radius is drawn where it is asked for.
struct ArcOperation
{
    int pen;
    QRgb fill;
    float x;
    float y;
    float halfWidth;
    float halfHeight;
    float start;
    float span;
    bool startRadius;
    bool endRadius;

    bool closed() const { return startRadius && endRadius; }
};

/// A text whose top left corner is at (x, y).
struct TextOperation
{
    int font;
    QRgb color;
    float x;
    float y;
    std::size_t text;
};

/// A picture at its natural size, its top left corner at (x, y).
struct PictureOperation
{
    std::size_t picture;
    float x;
    float y;
    float width;
    float height;
};

/// An area, which needs neither fill nor pen (-1 for none). Its rings follow each other in the drawing's
/// table.
struct AreaOperation
{
    int pen;
    QRgb fill;
    FillPattern pattern;
    std::size_t firstRing;
    std::size_t rings;
};

using DrawingOperation = std::variant<PolylineOperation, BoxOperation, EllipseOperation, ArcOperation,
                                      TextOperation, PictureOperation, AreaOperation>;

/// Points of a drawing that follow each other.
struct PointRange
{
    std::size_t first = 0;
    std::size_t count = 0;
};

/// What has been drawn on a surface, in drawing order, to be painted on any target.
struct Drawing
{
    std::vector<DrawingOperation> operations;
    std::vector<LinePen> pens;
    std::vector<TextFont> fonts;
    std::vector<QPointF> points;
    /// Of areas.
    std::vector<PointRange> rings;
    std::vector<QString> texts;
    std::vector<QImage> pictures;
};

/// `drawing` with `ink` for black in its texts and in its pictures of ink on a transparent ground.
Drawing inInk(Drawing drawing, QRgb ink);
