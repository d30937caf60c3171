#pragma once

#include "analysis/Statistics.h"
#include "platform/DrawSurface.h"

/// Draws the statistics of word forms: blocks of figures for an overview of all, and for one word form a page
/// with the distribution of its counts. The top left corner of a page is (0, 0).
class StatisticsPages
{
public:
    /// Draws `statistics` on `target`; the names are those of `table`. All must outlive the pages.
    StatisticsPages(const CumulativeTable& table, const Statistics& statistics, DrawSurface& target)
        : m_table(table), m_statistics(statistics), m_target(target)
    {}

    /// Draws the block of word form k in its place of the overview; the tenth falls on the first.
    void DisplayStats(int k);
    /// Draws the page of word form k.
    void DisplayStatsTable(int k);

    /// Width and height of the overview, and of a page with levels up to `items`, in twips.
    static QSizeF overviewArea();
    static QSizeF tableArea(int items);

private:
    /// Where both counts of a level start and where its row ends, from the level.
    struct Indents
    {
        float cumCount;
        float freqCount;
        float end;
    };

    void DisplayStatsOne(int k);
    void DisplayOut(float x, int k, int first, int last);
    Indents indents(int k) const;
    void printLine(float x, float y, const QStringList& texts);
    void printNumber(float x, float y, int number, QRgb color);

    const CumulativeTable& m_table;
    const Statistics& m_statistics;
    DrawSurface& m_target;
};
