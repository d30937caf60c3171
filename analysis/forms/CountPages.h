#pragma once

#include "analysis/CumulativeTable.h"
#include "platform/DrawSurface.h"

/// The pages that show the counts of one word form at the localities of the map, 160 on a page.
class CountPages
{
public:
    /// The pages of `table`, which must outlive them, on a map of `localities` localities.
    CountPages(const CumulativeTable& table, int localities) : m_table(table), m_localities(localities) {}

    /// Number of pages. Behind a last page that is full there is one more, which is empty.
    int count() const;
    /// The page after and before `page`; the first follows the last.
    int next(int page) const;
    int previous(int page) const;
    /// Width and height of a page in twips.
    static QSizeF area();

    /// Draws page 1..count() of word form k on `target`, its top left corner at (0, 0).
    void DisplaySum(int k, int page, DrawSurface& target) const;

private:
    void DisplaySumData(int k, int first, int last, DrawSurface& target) const;

    const CumulativeTable& m_table;
    int m_localities;
};
