#include "analysis/forms/CountPages.h"

#include "platform/StandardColors.h"

#include <algorithm>

namespace {

constexpr int LocalitiesOfPage = 160;
constexpr int Columns = 10;

// All lengths are twips.
constexpr float ColumnStep = 800;
constexpr float RowStep = 200;
constexpr float RowsBelow = 400;
/// Where a count starts, from the number of its locality.
constexpr float CountIndent = 370;
/// Font, in points, whose lines are not higher than a row.
constexpr int PageFontSize = 8;

void printAt(float x, const QString& text, QRgb color, DrawSurface& target)
{
    target.CurrentX = x;
    target.ForeColor = color;
    target.Print(text, DrawSurface::LineEnd::Stay);
}

} // namespace

int CountPages::count() const
{
    return m_localities / LocalitiesOfPage + 1;
}

int CountPages::next(int page) const
{
    return page < count() ? page + 1 : 1;
}

int CountPages::previous(int page) const
{
    return page > 1 ? page - 1 : count();
}

QSizeF CountPages::area()
{
    constexpr int Rows = LocalitiesOfPage / Columns;
    return {Columns * ColumnStep, RowsBelow + (Rows + 1) * RowStep};
}

void CountPages::DisplaySum(int k, int page, DrawSurface& target) const
{
    target.FontSize = PageFontSize;
    DisplaySumData(k, (page - 1) * LocalitiesOfPage + 1, std::min(page * LocalitiesOfPage, m_localities),
                   target);
}

void CountPages::DisplaySumData(int k, int first, int last, DrawSurface& target) const
{
    target.Cls();
    target.CurrentY = 0;
    printAt(
        0,
        QStringLiteral("Item No.%1  Characteristis of Words %2 ").arg(m_table.NumItemsAccumulated).arg(k) +
            m_table.WordformName(k),
        QBColor(StandardColor::Black), target);
    target.CurrentY = RowsBelow;
    for (int j = first; j <= last; ++j) {
        const int column = (j - 1) % Columns;
        if (column == 0) {
            target.CurrentY += RowStep;
        }
        const float x = ColumnStep * static_cast<float>(column);
        printAt(x, QString::number(j), QBColor(StandardColor::Gray), target);
        printAt(x + CountIndent, QString::number(m_table.Counts(k, j)), QBColor(StandardColor::Black),
                target);
    }
    target.ForeColor = QBColor(StandardColor::Black);
}
