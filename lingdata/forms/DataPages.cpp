#include "lingdata/forms/DataPages.h"

#include "platform/StandardColors.h"
#include "render/ListText.h"
#include "shell/MapParts.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int LinesOfPage = 64;

// All lengths are twips.
constexpr float LineStep = 288;
constexpr float ColumnTitlesY = 400;
constexpr float FirstLineY = 760;
constexpr float Gap = 180;
constexpr float ColumnGap = 480;

const QString LocalityHeading = QStringLiteral("Locality");
const QString WordTitle = QStringLiteral("Word");
const QString CodeTitle = QStringLiteral("Code");

/// Whether a word is drawn otherwise than it is written.
bool isCoded(const QString& word)
{
    return word.contains(QLatin1Char('\\'));
}

QString titleOf(const LinguisticData& item)
{
    QStringList parts = {item.Komoku, item.Hanrei};
    parts.removeAll(QString());
    return parts.join(QStringLiteral("  "));
}

} // namespace

DataList dataList(const LinguisticData& item, const LocalityNames& names)
{
    DataList list{titleOf(item),
                  item.ItemFileName,
                  {QStringLiteral("No."), QStringLiteral("Loc."), QStringLiteral("Sub")},
                  {}};
    for (int n = 1; n <= item.WordTotal; ++n) {
        const int locality = item.WordLocate(n);
        list.lines.push_back(
            {{n, locality, item.WordSub(n)}, localityName(names, locality), item.WordList(n)});
    }
    return list;
}

DataList kindList(const LinguisticData& item)
{
    DataList list{titleOf(item), item.ItemFileName, {QStringLiteral("No."), QStringLiteral("Count")}, {}};
    for (int k = 1; k <= item.NKind; ++k) {
        list.lines.push_back({{k, item.KindCount(k)}, {}, item.KindWord(k)});
    }
    return list;
}

int pageCount(int lines)
{
    const int pages = lines / LinesOfPage + 1;
    return pages % LinesOfPage == 0 ? pages - 1 : pages;
}

QSizeF printedArea(const PageLayout& layout)
{
    return {std::max(0.0, (layout.PaperWidth - layout.LeftMargin - layout.RightMargin) * TwipsPerMm),
            std::max(0.0, (layout.PaperHeight - layout.TopMargin - layout.BottomMargin) * TwipsPerMm)};
}

DataPages::DataPages(VarnModule& varn, DataList list)
    : m_varn(varn), m_list(std::move(list)), m_area(printedArea(varn))
{
    DrawSurface surface;
    ListText text(textParts(varn), surface);
    placeParts(text);
    placeColumns();
}

/// Gives every part of a line the width of its widest text.
void DataPages::placeParts(ListText& text)
{
    float x = 0;
    for (qsizetype c = 0; c < m_list.columns.size(); ++c) {
        float width = text.width(m_list.columns[c]);
        for (const DataList::Line& line : m_list.lines) {
            width = std::max(width, text.width(QString::number(line.numbers[static_cast<std::size_t>(c)])));
        }
        x += width;
        m_places.numberEnds.push_back(x);
        x += Gap;
    }
    m_places.locality = x;
    placeLocality(text);
    m_places.word = m_places.localityWidth > 0 ? x + m_places.localityWidth + Gap : x;
    m_places.wordWidth = text.width(WordTitle);
    for (const DataList::Line& line : m_list.lines) {
        const float width = text.width(line.word, ListText::Coding::Phonetic);
        m_places.wordWidth = std::max(m_places.wordWidth, width);
        if (isCoded(line.word)) {
            m_places.codeWidth = std::max({m_places.codeWidth, text.width(line.word), text.width(CodeTitle)});
        }
    }
}

/// Gives the names of localities, where there are any, the room of the widest, but not too much.
void DataPages::placeLocality(ListText& text)
{
    constexpr float Widest = 1800;

    float widest = 0;
    for (const DataList::Line& line : m_list.lines) {
        widest = std::max(widest, text.width(line.locality));
    }
    m_places.localityWidth = widest > 0 ? std::clamp(widest, text.width(LocalityHeading), Widest) : 0;
}

/// Sets as many columns as fit side by side, but so many that they are not too high; where that makes them
/// too narrow, words and their codes share what room there is.
void DataPages::placeColumns()
{
    const auto width = static_cast<float>(m_area.width());
    const auto height = static_cast<float>(m_area.height());
    const float codes = m_places.codeWidth > 0 ? Gap + m_places.codeWidth : 0;
    const float widest = m_places.word + m_places.wordWidth + codes;
    const float fitting = (width + ColumnGap) / (widest + ColumnGap);
    const float linesThatFit = std::max(1.0F, std::floor((height - FirstLineY) / LineStep));
    const float fewest = std::ceil(LinesOfPage / linesThatFit);
    m_columns = static_cast<int>(std::clamp(std::max(fitting, fewest), 1.0F, 1.0F * LinesOfPage));
    m_columnStep = (width + ColumnGap) / static_cast<float>(m_columns);

    const float room = std::max(0.0F, m_columnStep - ColumnGap - m_places.word);
    m_places.wordWidth = std::min(m_places.wordWidth, std::max(room - codes, (room - Gap) / 2));
    m_places.code = m_places.word + m_places.wordWidth + Gap;
    m_places.codeWidth =
        std::clamp(room - m_places.wordWidth - Gap, 0.0F, std::max(0.0F, m_places.codeWidth));
}

void DataPages::draw(int page, DrawSurface& target) const
{
    ListText text(textParts(m_varn), target);
    drawHeading(page, text, target);
    const int linesOfColumn = (LinesOfPage + m_columns - 1) / m_columns;
    const int first = (page - 1) * LinesOfPage;
    const int last = std::min(first + LinesOfPage, static_cast<int>(m_list.lines.size()));
    for (int n = first; n < last; ++n) {
        const int column = (n - first) / linesOfColumn;
        const int row = (n - first) % linesOfColumn;
        const float left = static_cast<float>(column) * m_columnStep;
        if (row == 0) {
            drawColumnTitles(left, text);
        }
        drawLine(m_list.lines[static_cast<std::size_t>(n)], left,
                 FirstLineY + static_cast<float>(row) * LineStep, text);
    }
}

void DataPages::drawHeading(int page, ListText& text, DrawSurface& target) const
{
    const QRgb gray = QBColor(StandardColor::Gray);
    const auto width = static_cast<float>(m_area.width());
    const QString pageNumber = QStringLiteral("** PAGE = %1 / %2").arg(page).arg(count());
    const float titleX = text.width(pageNumber) + 2 * ColumnGap;
    const QString file = text.shortened(m_list.fileName, width / 3);
    const float titleWidth = width - text.width(file) - ColumnGap - titleX;

    text.setColor(QBColor(StandardColor::Black));
    text.write(0, 0, pageNumber);
    text.write(titleX, 0, text.shortened(m_list.title, titleWidth, ListText::Coding::Phonetic),
               ListText::Coding::Phonetic);
    text.writeRight(width, 0, file);
    target.Line(0, LineStep, width, LineStep, gray);
}

void DataPages::drawColumnTitles(float left, ListText& text) const
{
    text.setColor(QBColor(StandardColor::Gray));
    for (qsizetype c = 0; c < m_list.columns.size(); ++c) {
        text.writeRight(left + m_places.numberEnds[static_cast<std::size_t>(c)], ColumnTitlesY,
                        m_list.columns[c]);
    }
    if (m_places.localityWidth > 0) {
        text.write(left + m_places.locality, ColumnTitlesY, LocalityHeading);
    }
    text.write(left + m_places.word, ColumnTitlesY, text.shortened(WordTitle, m_places.wordWidth));
    if (m_places.codeWidth > 0) {
        text.write(left + m_places.code, ColumnTitlesY, text.shortened(CodeTitle, m_places.codeWidth));
    }
    text.setColor(QBColor(StandardColor::Black));
}

void DataPages::drawLine(const DataList::Line& line, float left, float y, ListText& text) const
{
    for (std::size_t c = 0; c < line.numbers.size(); ++c) {
        text.writeRight(left + m_places.numberEnds[c], y, QString::number(line.numbers[c]));
    }
    if (!line.locality.isEmpty()) {
        text.write(left + m_places.locality, y, text.shortened(line.locality, m_places.localityWidth));
    }
    text.write(left + m_places.word, y,
               text.shortened(line.word, m_places.wordWidth, ListText::Coding::Phonetic),
               ListText::Coding::Phonetic);
    if (isCoded(line.word)) {
        text.write(left + m_places.code, y, text.shortened(line.word, m_places.codeWidth));
    }
}
