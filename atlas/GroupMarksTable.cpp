#include "atlas/GroupMarksTable.h"

#include "dialectometry/GlyphLetters.h"

#include <array>

void GroupMarksTable::setGroup(std::shared_ptr<const ComparedSurvey> survey, const std::vector<int>& groups,
                               int group)
{
    constexpr std::size_t Most = 200;

    beginResetModel();
    m_survey = std::move(survey);
    m_marks = m_survey ? formsOfGroup(m_survey->answers, groups, group) : std::vector<FormOfGroup>();
    m_marks.resize(std::min(m_marks.size(), Most));
    endResetModel();
}

int GroupMarksTable::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_marks.size());
}

int GroupMarksTable::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : Columns;
}

QString GroupMarksTable::text(const FormOfGroup& mark, int column) const
{
    const ComparedItem& item = m_survey->answers.items[static_cast<std::size_t>(mark.item)];
    switch (column) {
    case Item:
        return inLetters(item.caption);
    case WordForm:
        return inLetters(item.forms[mark.form]);
    case Representative:
        return QString::number(mark.representativeness, 'f', 2);
    default:
        return QString::number(mark.distinctiveness, 'f', 2);
    }
}

QVariant GroupMarksTable::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
        return text(m_marks[static_cast<std::size_t>(index.row())], index.column());
    }
    if (role == Qt::TextAlignmentRole && index.column() >= Representative) {
        return (Qt::AlignRight | Qt::AlignVCenter).toInt();
    }
    return {};
}

QVariant GroupMarksTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    constexpr std::array Names = {"Item", "Word Form", "Represents", "Marks Off"};
    constexpr std::array Explained = {"The item", "Its word form or kind",
                                      "The share of the group's localities that have it",
                                      "How far it is found in the group only: 1 for nowhere else"};
    if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
        return {};
    }
    const auto column = static_cast<std::size_t>(section);
    return QLatin1String(role == Qt::DisplayRole ? Names.at(column) : Explained.at(column));
}
