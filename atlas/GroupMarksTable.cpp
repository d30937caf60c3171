#include "atlas/GroupMarksTable.h"

#include "dialectometry/GlyphLetters.h"

#include <algorithm>

namespace {

/// As many rows as somebody reads.
constexpr std::size_t MostRows = 200;

struct Column
{
    const char* name;
    const char* explained;
};
using ColumnsOfTable = std::array<Column, GroupMarksTable::Columns>;

constexpr ColumnsOfTable OfForms = {
    {{"Item", "The item"},
     {"Form", "Its word form or kind"},
     {"Represents", "The share of the group's localities that have it"},
     {"Marks Off", "How far it is found in the group only: 1 for nowhere else"}}};
constexpr ColumnsOfTable OfItems = {
    {{"Item", "The item"},
     {"Within", "The mean distance within the group"},
     {"Between", "The mean distance between the group and all others"},
     {"Score", "How much farther the others are, in standard deviations of the item's distances"}}};

QString itemOf(const ComparedSurvey& survey, int item)
{
    return inLetters(survey.answers.items[static_cast<std::size_t>(item)].caption);
}

QString inDigits(double value)
{
    return QString::number(value, 'f', 2);
}

} // namespace

void GroupMarksTable::clear()
{
    setRows(m_areItems, {});
}

void GroupMarksTable::setForms(const ComparedSurvey& survey, const std::vector<int>& groups, int group)
{
    std::vector<FormOfGroup> marks = formsOfGroup(survey.answers, groups, group);
    marks.resize(std::min(marks.size(), MostRows));
    std::vector<Row> rows;
    for (const FormOfGroup& mark : marks) {
        const ComparedItem& item = survey.answers.items[static_cast<std::size_t>(mark.item)];
        rows.push_back({itemOf(survey, mark.item), inLetters(item.forms[mark.form]),
                        inDigits(mark.representativeness), inDigits(mark.distinctiveness)});
    }
    setRows(false, std::move(rows));
}

void GroupMarksTable::setItems(const ComparedSurvey& survey, const ItemsOfGroup& items)
{
    std::vector<Row> rows;
    for (const ItemOfGroup& mark : items) {
        rows.push_back(
            {itemOf(survey, mark.item), inDigits(mark.within), inDigits(mark.between), inDigits(mark.score)});
    }
    rows.resize(std::min(rows.size(), MostRows));
    setRows(true, std::move(rows));
}

void GroupMarksTable::setRows(bool areItems, std::vector<Row> rows)
{
    beginResetModel();
    m_areItems = areItems;
    m_rows = std::move(rows);
    endResetModel();
}

int GroupMarksTable::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int GroupMarksTable::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : Columns;
}

QVariant GroupMarksTable::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
        return m_rows[static_cast<std::size_t>(index.row())][static_cast<std::size_t>(index.column())];
    }
    if (role == Qt::TextAlignmentRole && index.column() >= textColumns()) {
        return (Qt::AlignRight | Qt::AlignVCenter).toInt();
    }
    return {};
}

QVariant GroupMarksTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
        return {};
    }
    const Column& column = (m_areItems ? OfItems : OfForms).at(static_cast<std::size_t>(section));
    return QLatin1String(role == Qt::DisplayRole ? column.name : column.explained);
}
