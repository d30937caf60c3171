#include "analysis/forms/ContrastPages.h"

#include "platform/StandardColors.h"
#include "render/ListText.h"
#include "shell/MapParts.h"

#include <algorithm>
#include <array>

namespace {

constexpr int RowsOfPage = 40;
constexpr int ColumnsOfPage = 3;
constexpr int LocalitiesOfPage = RowsOfPage * ColumnsOfPage;

// All lengths are twips.
constexpr float PageWidth = 10200;
constexpr float LineStep = 240;
constexpr float GroupsY = 300;
constexpr float RuleY = 840;
constexpr float ColumnTitlesY = 900;
constexpr float FirstRowY = 1180;
constexpr float ColumnStep = 3480;
constexpr float GroupIndent = 750;
/// Where the numbers of a locality end, from the left edge of its column.
constexpr std::array NumberEnds = {480.0F, 1320.0F, 2160.0F, 3000.0F};

} // namespace

int ContrastPages::count() const
{
    return std::max(1, (m_varn.NLocality + LocalitiesOfPage - 1) / LocalitiesOfPage);
}

QSizeF ContrastPages::area()
{
    return {PageWidth, FirstRowY + RowsOfPage * LineStep};
}

void ContrastPages::draw(int page, DrawSurface& target) const
{
    ListText text(textParts(m_varn), target);
    drawHeading(page, text, target);
    const int first = (page - 1) * LocalitiesOfPage + 1;
    const int last = std::min<int>(page * LocalitiesOfPage, m_varn.NLocality);
    for (int j = first; j <= last; ++j) {
        const int place = j - first;
        const int column = place / RowsOfPage;
        const float left = ColumnStep * static_cast<float>(column);
        const float y = FirstRowY + LineStep * static_cast<float>(place % RowsOfPage);
        drawLocality(j, left, y, text);
    }
}

void ContrastPages::drawHeading(int page, ListText& text, DrawSurface& target) const
{
    const QString pageNumber = QStringLiteral("PAGE = %1 / %2").arg(page).arg(count());
    const float room = PageWidth - text.width(pageNumber) - LineStep;
    text.setColor(QBColor(StandardColor::Black));
    text.write(0, 0, text.shortened(QStringLiteral("Contrast Analysis File Name ") + m_fileName, room));
    text.writeRight(PageWidth, 0, pageNumber);
    drawGroup(1, GroupsY, text);
    drawGroup(2, GroupsY + LineStep, text);
    target.Line(0, RuleY, PageWidth, RuleY, QBColor(StandardColor::Gray));

    text.setColor(QBColor(StandardColor::Gray));
    const std::array titles = {QStringLiteral("Loc."), QStringLiteral("Item 1"), QStringLiteral("Item 2"),
                               QStringLiteral("Diff.")};
    const int places = m_varn.NLocality - (page - 1) * LocalitiesOfPage;
    for (int column = 0; column < ColumnsOfPage && column * RowsOfPage < places; ++column) {
        for (std::size_t number = 0; number < titles.size(); ++number) {
            text.writeRight(ColumnStep * static_cast<float>(column) + NumberEnds[number], ColumnTitlesY,
                            titles[number]);
        }
    }
}

/// Writes which word forms a side sums.
void ContrastPages::drawGroup(int side, float y, ListText& text) const
{
    QStringList names;
    for (int t = 1; t <= m_varn.ContrastCount(side); ++t) {
        names << m_varn.ContrastWordName(side, t);
    }
    text.setColor(QBColor(StandardColor::Gray));
    text.write(0, y, QStringLiteral("Item %1").arg(side));
    text.setColor(QBColor(StandardColor::Black));
    text.write(GroupIndent, y,
               text.shortened(names.join(QStringLiteral(" + ")), PageWidth - GroupIndent,
                              ListText::Coding::Phonetic),
               ListText::Coding::Phonetic);
}

void ContrastPages::drawLocality(int j, float left, float y, ListText& text) const
{
    text.setColor(QBColor(StandardColor::Gray));
    text.writeRight(left + NumberEnds[0], y, QString::number(j));
    text.setColor(QBColor(StandardColor::Black));
    std::size_t number = 1;
    for (const int sum : {1, 2, 0}) {
        text.writeRight(left + NumberEnds[number++], y, QString::number(m_varn.ContrastSum(sum, j)));
    }
}
