#include "tests/support/Transcript.h"

#include "platform/DrawSurface.h"
#include "platform/StandardColors.h"

#include <QRegularExpression>

#include <cmath>
#include <map>
#include <numbers>
#include <sstream>

namespace {

/// The lines of one drawing.
class Transcript
{
public:
    Transcript(const Drawing& drawing, const std::string& expected)
        : m_drawing(drawing), m_expected(QString::fromStdString(expected).split('\n'))
    {
        m_out << '\n';
    }

    /// An operation follows.
    void begin() { ++m_lines; }

    void operator()(const PolylineOperation& line)
    {
        m_out << "line";
        for (std::size_t i = 0; i < line.points; ++i) {
            place(m_drawing.points[line.firstPoint + i].x(), m_drawing.points[line.firstPoint + i].y());
        }
        look(0, line.pen);
    }
    void operator()(const BoxOperation& box)
    {
        if (box.fill == QBColor(15) && box.pen >= 0 && penAt(box.pen).color == QBColor(15)) {
            m_out << "white box\n";
            return;
        }
        m_out << "box";
        place(box.x, box.y);
        place(box.x + box.width, box.y + box.height);
        look(box.fill, box.pen);
    }
    void operator()(const EllipseOperation& ellipse)
    {
        m_out << "ellipse";
        place(ellipse.x, ellipse.y);
        place(ellipse.halfWidth, ellipse.halfHeight);
        look(ellipse.fill, ellipse.pen);
    }
    void operator()(const ArcOperation& arc)
    {
        m_out << "arc";
        place(arc.x, arc.y);
        place(arc.halfWidth, arc.halfHeight);
        place(arc.start * 180 / std::numbers::pi, arc.span * 180 / std::numbers::pi);
        m_out << (arc.startRadius ? " start" : "") << (arc.endRadius ? " end" : "");
        look(arc.fill, arc.pen);
    }
    void operator()(const TextOperation& text)
    {
        const TextFont& font = m_drawing.fonts[static_cast<std::size_t>(text.font)];
        m_out << '"' << m_drawing.texts[text.text].toStdString() << '"';
        placeText(text, font);
        m_out << ' ' << font.size << "pt" << (font.bold ? " bold" : "") << (font.italic ? " italic" : "")
              << (text.color == QBColor(0) ? "" : " color " + color(text.color)) << '\n';
    }
    void operator()(const PictureOperation& picture)
    {
        m_out << "picture";
        place(picture.x, picture.y);
        place(picture.width, picture.height);
        m_out << '\n';
    }
    void operator()(const AreaOperation& area)
    {
        m_out << "area";
        for (std::size_t i = area.firstRing; i < area.firstRing + area.rings; ++i) {
            const PointRange& ring = m_drawing.rings[i];
            m_out << (i == area.firstRing ? "" : " and");
            for (std::size_t j = ring.first; j < ring.first + ring.count; ++j) {
                place(m_drawing.points[j].x(), m_drawing.points[j].y());
            }
        }
        if (area.pattern != FillPattern::Solid) {
            m_out << " pattern " << static_cast<int>(area.pattern);
        }
        look(area.fill, area.pen);
    }

    std::string text() const { return m_out.str(); }

private:
    const LinePen& penAt(int number) const { return m_drawing.pens[static_cast<std::size_t>(number)]; }

    static double tenths(double value) { return static_cast<double>(std::lround(10 * value)) / 10; }

    void place(double x, double y) { m_out << ' ' << tenths(x) << ',' << tenths(y); }

    /// Places a text in the way of the expected line that stands where its own will.
    void placeText(const TextOperation& text, const TextFont& font)
    {
        static const QRegularExpression Way("\" ([+>|]?)[-\\d.]+,([+~]?)[-\\d.]+ \\d+pt");
        const auto way = Way.match(m_expected.value(m_lines));
        DrawSurface ruler;
        ruler.setFont(font);
        const float end = text.x + ruler.TextWidth(m_drawing.texts[text.text]);
        const float height = ruler.TextHeight();
        const std::map<QString, float> x = {
            {"", text.x}, {">", end}, {"|", (text.x + end) / 2}, {"+", text.x - m_lastEnd}};
        const std::map<QString, float> y = {
            {"", text.y}, {"~", text.y + height / 2}, {"+", text.y - m_lastBottom}};
        m_out << ' ' << way.captured(1).toStdString() << tenths(x.at(way.captured(1))) << ','
              << way.captured(2).toStdString() << tenths(y.at(way.captured(2)));
        m_lastEnd = end;
        m_lastBottom = text.y + height;
    }

    static std::string color(QRgb color)
    {
        int number = 0;
        while (number <= 15 && QBColor(number) != color) {
            ++number;
        }
        return number <= 15 ? std::to_string(number) : QColor::fromRgb(color).name().toStdString();
    }

    void look(QRgb fill, int pen)
    {
        m_out << (fill == 0 ? "" : " filled " + color(fill));
        if (pen >= 0) {
            m_out << " pen " << penAt(pen).width << '/' << static_cast<int>(penAt(pen).style) << '/'
                  << color(penAt(pen).color);
        }
        m_out << '\n';
    }

    const Drawing& m_drawing;
    QStringList m_expected;
    qsizetype m_lines = 0;
    float m_lastEnd = 0;
    float m_lastBottom = 0;
    std::ostringstream m_out;
};

} // namespace

std::string transcript(const Drawing& drawing)
{
    return transcriptLike({}, drawing);
}

std::string transcriptLike(const std::string& expected, const Drawing& drawing)
{
    Transcript lines(drawing, expected);
    for (const DrawingOperation& operation : drawing.operations) {
        lines.begin();
        std::visit(lines, operation);
    }
    return lines.text();
}
