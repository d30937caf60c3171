#include "render/ListText.h"

#include <algorithm>
#include <vector>

namespace {

constexpr qint16 ListFontSize = 10;

MapFont listFont(const MapFont& mapFont)
{
    MapFont font = mapFont;
    font.MapFontSize = ListFontSize;
    font.MapFontBold = false;
    font.MapFontItalic = false;
    return font;
}

/// Where the first units of `text` end, no more of them than any line of a list can show.
std::vector<qsizetype> unitEnds(const QString& text, ListText::Coding coding)
{
    constexpr std::size_t MostUnits = 300;
    std::vector<qsizetype> ends;
    for (qsizetype end = 0; end < text.size() && ends.size() < MostUnits;) {
        const QStringView rest = QStringView(text).mid(end);
        end += coding == ListText::Coding::Phonetic ? decodePhonetic(rest).consumed : 1;
        ends.push_back(end);
    }
    return ends;
}

} // namespace

ListText::ListText(const TextParts& parts, DrawSurface& target)
    : m_font(listFont(parts.font)), m_target(target), m_targetLook(lookOf(target)),
      m_written({parts.folders, m_font, m_style, parts.pictures}, {m_target, m_ruler}),
      m_measured({parts.folders, m_font, m_style, parts.pictures}, {m_ruler, m_ruler})
{
    const Look look{textFont(m_font), qRgb(0, 0, 0)};
    apply(look, m_target);
    apply(look, m_ruler);
}

ListText::~ListText()
{
    apply(m_targetLook, m_target);
}

ListText::Look ListText::lookOf(const DrawSurface& surface)
{
    return {surface.font(), surface.ForeColor};
}

void ListText::apply(const Look& look, DrawSurface& surface)
{
    surface.setFont(look.font);
    surface.ForeColor = look.color;
}

void ListText::write(float x, float y, const QString& text, Coding coding)
{
    if (coding == Coding::Phonetic) {
        m_written.PlotChar(x, y, text);
        return;
    }
    m_target.CurrentX = x;
    m_target.CurrentY = y;
    m_target.Print(text, DrawSurface::LineEnd::Stay);
}

void ListText::writeRight(float x, float y, const QString& text)
{
    write(x - width(text), y, text);
}

float ListText::width(const QString& text, Coding coding)
{
    return coding == Coding::Phonetic ? m_measured.PlotChar(0, 0, text) : m_ruler.TextWidth(text);
}

QString ListText::shortened(const QString& text, float width, Coding coding)
{
    if (this->width(text, coding) <= width) {
        return text;
    }
    const auto start = [&](qsizetype end) { return text.left(end) + QStringLiteral("..."); };
    const auto fits = [&](qsizetype end) { return this->width(start(end), coding) <= width; };
    const std::vector<qsizetype> ends = unitEnds(text, coding);
    const auto tooLong = std::partition_point(ends.begin(), ends.end(), fits);
    return tooLong == ends.begin() ? QString() : start(*(tooLong - 1));
}
