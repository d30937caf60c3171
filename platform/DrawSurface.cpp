#include "platform/DrawSurface.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

/// Half the width and half the height of a circle drawn with an aspect.
struct HalfAxes
{
    float width;
    float height;
};

HalfAxes halfAxes(float radius, float aspect)
{
    return aspect > 1 ? HalfAxes{radius / aspect, radius} : HalfAxes{radius, radius * aspect};
}

/// `text` on one line: line breaks and other control characters become blanks.
QString onOneLine(QString text)
{
    const auto isControl = [](QChar character) { return character.category() == QChar::Other_Control; };
    std::replace_if(text.begin(), text.end(), isControl, QChar(QChar::Space));
    return text;
}

/// The number of `entry` in `table`, which takes it where it lacks it. `last` is the number found last.
template <typename Entry>
int numberIn(std::vector<Entry>& table, const Entry& entry, std::size_t& last)
{
    if (last >= table.size() || table[last] != entry) {
        const auto known = std::find(table.begin(), table.end(), entry);
        last = static_cast<std::size_t>(known - table.begin());
        if (known == table.end()) {
            table.push_back(entry);
        }
    }
    return static_cast<int>(last);
}

} // namespace

QSizeF naturalSize(const QImage& picture)
{
    constexpr double InchesPerMeter = 1000 / 25.4;
    const auto twips = [](int pixels, int dotsPerMeter) {
        const double dotsPerInch = dotsPerMeter > 0 ? dotsPerMeter / InchesPerMeter : 96;
        return pixels / dotsPerInch * TwipsPerInch;
    };
    return {twips(picture.width(), picture.dotsPerMeterX()),
            twips(picture.height(), picture.dotsPerMeterY())};
}

void DrawSurface::setFont(const TextFont& font)
{
    FontName = font.name;
    FontSize = font.size;
    FontBold = font.bold;
    FontItalic = font.italic;
}

void DrawSurface::Cls()
{
    m_drawing = {};
    CurrentX = ScaleLeft;
    CurrentY = ScaleTop;
}

int DrawSurface::currentPen(QRgb color)
{
    const LinePen pen{color, DrawWidth, DrawStyle};
    return numberIn(m_drawing.pens, pen, m_lastPen);
}

int DrawSurface::currentFont()
{
    return numberIn(m_drawing.fonts, font(), m_lastFont);
}

const QFontMetricsF& DrawSurface::metrics() const
{
    const TextFont current = font();
    if (!m_measured || m_measured->font != current) {
        m_measured = {current, QFontMetricsF(twipFont(current))};
    }
    return m_measured->metrics;
}

void DrawSurface::Line(float x1, float y1, float x2, float y2, QRgb color)
{
    if (!drawsLines()) {
        return;
    }
    const int pen = currentPen(color);
    std::vector<QPointF>& points = m_drawing.points;
    const QPointF start(originX(x1), originY(y1));
    const QPointF end(originX(x2), originY(y2));
    auto* last =
        m_drawing.operations.empty() ? nullptr : std::get_if<PolylineOperation>(&m_drawing.operations.back());
    if (last != nullptr && last->pen == pen && points.back() == start) {
        points.push_back(end);
        ++last->points;
        return;
    }
    m_drawing.operations.emplace_back(PolylineOperation{pen, points.size(), 2});
    points.push_back(start);
    points.push_back(end);
}

void DrawSurface::Box(float x1, float y1, float x2, float y2, QRgb color)
{
    m_drawing.operations.emplace_back(BoxOperation{drawsLines() ? currentPen(color) : -1, currentFill(),
                                                   originX(std::min(x1, x2)), originY(std::min(y1, y2)),
                                                   std::abs(x2 - x1), std::abs(y2 - y1)});
}

void DrawSurface::FilledBox(float x1, float y1, float x2, float y2, QRgb color)
{
    m_drawing.operations.emplace_back(BoxOperation{drawsLines() ? currentPen(color) : -1, color,
                                                   originX(std::min(x1, x2)), originY(std::min(y1, y2)),
                                                   std::abs(x2 - x1), std::abs(y2 - y1)});
}

void DrawSurface::Circle(float x, float y, float radius, QRgb color, float aspect)
{
    const HalfAxes axes = halfAxes(radius, aspect);
    m_drawing.operations.emplace_back(EllipseOperation{drawsLines() ? currentPen(color) : -1, currentFill(),
                                                       originX(x), originY(y), axes.width, axes.height});
}

void DrawSurface::Arc(float x, float y, float radius, QRgb color, float start, float end, float aspect)
{
    constexpr float FullTurn = 2 * std::numbers::pi_v<float>;
    const HalfAxes axes = halfAxes(radius, aspect);
    const float from = std::abs(start);
    const float to = std::abs(end);
    m_drawing.operations.emplace_back(
        ArcOperation{drawsLines() ? currentPen(color) : -1, currentFill(), originX(x), originY(y), axes.width,
                     axes.height, from, to < from ? to - from + FullTurn : to - from, start < 0, end < 0});
}

void DrawSurface::Area(const Rings& rings, QRgb color, FillPattern pattern)
{
    const std::size_t firstRing = m_drawing.rings.size();
    for (const Ring& ring : rings) {
        if (ring.size() >= 3) {
            m_drawing.rings.push_back({m_drawing.points.size(), ring.size()});
            for (const QPointF point : ring) {
                m_drawing.points.emplace_back(point.x() - ScaleLeft, point.y() - ScaleTop);
            }
        }
    }
    if (m_drawing.rings.size() > firstRing) {
        m_drawing.operations.emplace_back(AreaOperation{drawsLines() ? currentPen(color) : -1, currentFill(),
                                                        pattern, firstRing,
                                                        m_drawing.rings.size() - firstRing});
    }
}

void DrawSurface::Print(const QString& text, LineEnd lineEnd)
{
    const QString line = onOneLine(text);
    if (!line.isEmpty()) {
        const int font = currentFont();
        m_drawing.operations.emplace_back(
            TextOperation{font, ForeColor, originX(CurrentX), originY(CurrentY), m_drawing.texts.size()});
        m_drawing.texts.push_back(line);
    }
    if (lineEnd == LineEnd::Stay) {
        CurrentX += TextWidth(line);
    } else {
        CurrentX = ScaleLeft;
        CurrentY += TextHeight();
    }
}

void DrawSurface::PrintAt(float x, float y, const QString& text)
{
    CurrentX = x;
    CurrentY = y;
    Print(text);
}

void DrawSurface::PaintPicture(const QImage& picture, float x, float y)
{
    std::vector<QImage>& pictures = m_drawing.pictures;
    const auto known = std::find_if(pictures.begin(), pictures.end(), [&picture](const QImage& entry) {
        return entry.cacheKey() == picture.cacheKey();
    });
    const auto index = static_cast<std::size_t>(known - pictures.begin());
    if (known == pictures.end()) {
        pictures.push_back(picture);
    }
    const QSizeF size = naturalSize(picture);
    m_drawing.operations.emplace_back(PictureOperation{
        index, originX(x), originY(y), static_cast<float>(size.width()), static_cast<float>(size.height())});
}

float DrawSurface::TextWidth(const QString& text) const
{
    return static_cast<float>(metrics().horizontalAdvance(text));
}

float DrawSurface::TextHeight() const
{
    return static_cast<float>(metrics().height());
}

float DrawSurface::TextAscent() const
{
    return static_cast<float>(metrics().ascent());
}
