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

void DrawSurface::Cls()
{
    m_drawing = {};
    m_fonts.clear();
    m_lastPen = -1;
    m_lastFont = -1;
    CurrentX = ScaleLeft;
    CurrentY = ScaleTop;
}

int DrawSurface::currentPen(QRgb color)
{
    const LinePen pen{color, DrawWidth, DrawStyle >= 1 && DrawStyle <= 4 ? DrawStyle : 0};
    std::vector<LinePen>& pens = m_drawing.pens;
    if (m_lastPen < 0 || pens[static_cast<std::size_t>(m_lastPen)] != pen) {
        const auto known = std::find(pens.begin(), pens.end(), pen);
        m_lastPen = static_cast<int>(known - pens.begin());
        if (known == pens.end()) {
            pens.push_back(pen);
        }
    }
    return m_lastPen;
}

int DrawSurface::currentFont()
{
    const TextFont font{FontName, FontSize, FontBold, FontItalic};
    if (m_lastFont < 0 || m_fonts[static_cast<std::size_t>(m_lastFont)].font != font) {
        const auto known = std::find_if(m_fonts.begin(), m_fonts.end(),
                                        [&font](const MeasuredFont& entry) { return entry.font == font; });
        m_lastFont = static_cast<int>(known - m_fonts.begin());
        if (known == m_fonts.end()) {
            m_fonts.push_back({font, QFontMetricsF(twipFont(font))});
            m_drawing.fonts.push_back(font);
        }
    }
    return m_lastFont;
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

float DrawSurface::TextWidth(const QString& text)
{
    const auto font = static_cast<std::size_t>(currentFont());
    return static_cast<float>(m_fonts[font].metrics.horizontalAdvance(text));
}

float DrawSurface::TextHeight()
{
    return static_cast<float>(m_fonts[static_cast<std::size_t>(currentFont())].metrics.height());
}

float DrawSurface::TextAscent()
{
    return static_cast<float>(m_fonts[static_cast<std::size_t>(currentFont())].metrics.ascent());
}
