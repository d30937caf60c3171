#include "analysis/forms/StatisticsPages.h"

#include "analysis/StatisticsLines.h"
#include "platform/StandardColors.h"

#include <algorithm>

namespace {

// All lengths are twips, fonts are in points.
constexpr int BlocksOfColumn = 3;
constexpr int BlocksOfOverview = 9;
constexpr float BlockWidth = 2000;
constexpr float BlockHeight = 1600;
constexpr float BlockGap = 80;
constexpr int SmallestFont = 4;

constexpr int LevelsOfColumn = 20;
constexpr float ColumnStep = 1000;
constexpr float RowStep = 200;
constexpr float DistributionY = 600;
/// The least that the counts of a level are indented from it, and the gap between two numbers.
constexpr float CumCountIndent = 280;
constexpr float FreqCountIndent = 620;
constexpr float NumberGap = 60;
constexpr float DeviationX = 400;
constexpr float DeviationY = 200;
constexpr float GapOnLine = 300;

/// The font whose lines are not higher than a row.
constexpr int PageFontSize = 8;

} // namespace

QSizeF StatisticsPages::overviewArea()
{
    return {BlockWidth * BlocksOfOverview / BlocksOfColumn, BlockHeight * BlocksOfColumn};
}

QSizeF StatisticsPages::tableArea(int items)
{
    constexpr float WidthOfLines = 7000;
    const int columns = items / LevelsOfColumn + 1;
    return {std::max(WidthOfLines, static_cast<float>(columns) * ColumnStep),
            DistributionY + LevelsOfColumn * RowStep};
}

void StatisticsPages::DisplayStats(int k)
{
    const int place = (k - 1) % BlocksOfOverview;
    const int column = place / BlocksOfColumn;
    const int row = place % BlocksOfColumn;
    m_target.CurrentX = BlockWidth * static_cast<float>(column);
    m_target.CurrentY = BlockHeight * static_cast<float>(row);
    DisplayStatsOne(k);
}

void StatisticsPages::DisplayStatsOne(int k)
{
    const float left = m_target.CurrentX;
    for (const QString& line : statisticsLines(m_table, m_statistics, k)) {
        m_target.FontSize = PageFontSize;
        const float height = m_target.TextHeight();
        while (m_target.TextWidth(line) > BlockWidth - BlockGap && m_target.FontSize > SmallestFont) {
            --m_target.FontSize; // a long name keeps clear of the next column
        }
        const float y = m_target.CurrentY;
        m_target.CurrentX = left;
        m_target.Print(line);
        m_target.CurrentY = y + height;
    }
    m_target.FontSize = PageFontSize;
}

void StatisticsPages::DisplayStatsTable(int k)
{
    m_target.Cls();
    m_target.FontSize = PageFontSize;
    printLine(0, 0, QStringList(QStringLiteral("Kt=%1").arg(k)) + averageTexts(m_statistics, k));
    printLine(DeviationX, DeviationY, deviationTexts(m_statistics, k, QStringLiteral("Standard Deviation")));
    while (indents(k).end > ColumnStep && m_target.FontSize > SmallestFont) {
        --m_target.FontSize; // large numbers keep clear of the next column
    }
    const int items = m_statistics.StatsItems;
    for (int column = 0; column <= items / LevelsOfColumn; ++column) {
        const int first = column * LevelsOfColumn;
        DisplayOut(ColumnStep * static_cast<float>(column), k, first,
                   std::min(first + LevelsOfColumn - 1, items));
    }
    m_target.FontSize = PageFontSize;
}

StatisticsPages::Indents StatisticsPages::indents(int k) const
{
    const auto width = [this](int number) { return m_target.TextWidth(QString::number(number)) + NumberGap; };
    int mostLocalities = 0;
    for (int v = 0; v <= m_statistics.StatsItems; ++v) {
        mostLocalities = std::max<int>(mostLocalities, m_statistics.FreqCount(v, k));
    }
    const float cumCount = std::max(CumCountIndent, width(m_statistics.StatsItems));
    const float freqCount = std::max(FreqCountIndent, cumCount + width(m_statistics.CumCount(0, k)));
    return {cumCount, freqCount, freqCount + width(mostLocalities)};
}

void StatisticsPages::DisplayOut(float x, int k, int first, int last)
{
    const Indents place = indents(k);
    for (int v = first; v <= last; ++v) {
        const float y = DistributionY + RowStep * static_cast<float>(v - first);
        printNumber(x, y, v, QBColor(StandardColor::Gray));
        printNumber(x + place.cumCount, y, m_statistics.CumCount(v, k), QBColor(StandardColor::Black));
        printNumber(x + place.freqCount, y, m_statistics.FreqCount(v, k), QBColor(StandardColor::Black));
    }
}

void StatisticsPages::printLine(float x, float y, const QStringList& texts)
{
    m_target.CurrentX = x;
    m_target.CurrentY = y;
    for (const QString& text : texts) {
        m_target.Print(text, DrawSurface::LineEnd::Stay);
        m_target.CurrentX += GapOnLine;
    }
}

void StatisticsPages::printNumber(float x, float y, int number, QRgb color)
{
    m_target.CurrentX = x;
    m_target.CurrentY = y;
    m_target.ForeColor = color;
    m_target.Print(QString::number(number), DrawSurface::LineEnd::Stay);
    m_target.ForeColor = QBColor(StandardColor::Black);
}
