#pragma once

#include "atlas/SurveyMap.h"

#include <QAbstractTableModel>

#include <array>

/// What marks a group of localities: its word forms or the items that it is known by, the first ones the
/// most.
class GroupMarksTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    static constexpr int Columns = 4;

    /// Lists nothing.
    void clear();
    /// Lists the word forms of `group` (from 1) of `groups`.
    void setForms(const ComparedSurvey& survey, const std::vector<int>& groups, int group);
    /// Lists the items that a group is known by.
    void setItems(const ComparedSurvey& survey, const ItemsOfGroup& items);

    /// How many columns at the left are texts; numbers follow.
    int textColumns() const { return m_areItems ? 1 : 2; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    /// The texts of a row.
    using Row = std::array<QString, Columns>;

    void setRows(bool areItems, std::vector<Row> rows);

    bool m_areItems = false;
    std::vector<Row> m_rows;
};
