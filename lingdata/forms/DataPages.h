#pragma once

#include "shell/VarnModule.h"

#include <QSizeF>
#include <QStringList>

#include <vector>

class ListText;

/// A list of the loaded item: word forms with their numbers.
struct DataList
{
    struct Line
    {
        /// One number for each of `columns`.
        std::vector<int> numbers;
        /// The name of the locality; empty in a map without names.
        QString locality;
        /// The word form, coded.
        QString word;
    };

    /// What the headings say of the item; coded.
    QString title;
    /// Name of the item's file.
    QString fileName;
    /// Titles of the columns of numbers.
    QStringList columns;
    std::vector<Line> lines;
};

/// The word forms in file order, each with its locality and its number there.
DataList dataList(const LinguisticData& item, const LocalityNames& names);
/// The kinds of word forms with their counts.
DataList kindList(const LinguisticData& item);

/// How many pages of 64 lines a list has: one more than the full ones, so that 64 lines have an empty second
/// page; one less where that makes a multiple of 64 pages.
int pageCount(int lines);

/// Width and height between the margins of printed pages, in twips.
QSizeF printedArea(const PageLayout& layout);

/// Draws a list in pages. A page has 64 lines, in as many columns as fit side by side; words that are too
/// long for them are shortened.
class DataPages
{
public:
    /// The pages of `list`, laid out in the area of printed pages.
    DataPages(VarnModule& varn, DataList list);

    int count() const { return pageCount(static_cast<int>(m_list.lines.size())); }
    const DataList& list() const { return m_list; }
    /// Width and height of a page in twips.
    QSizeF area() const { return m_area; }

    /// Draws page 1..count() on `target`, its top left corner at (0, 0).
    void draw(int page, DrawSurface& target) const;

private:
    /// Where the parts of a line stand in its column, in twips from the column's left edge.
    struct Places
    {
        std::vector<float> numberEnds;
        float locality = 0;
        /// 0 where no locality has a name.
        float localityWidth = 0;
        float word = 0;
        float wordWidth = 0;
        float code = 0;
        float codeWidth = 0;
    };

    void placeParts(ListText& text);
    void placeLocality(ListText& text);
    void placeColumns();
    void drawHeading(int page, ListText& text, DrawSurface& target) const;
    void drawColumnTitles(float left, ListText& text) const;
    void drawLine(const DataList::Line& line, float left, float y, ListText& text) const;

    VarnModule& m_varn;
    DataList m_list;
    QSizeF m_area;
    Places m_places;
    int m_columns = 1;
    /// From the left edge of a column to that of the next.
    float m_columnStep = 0;
};
