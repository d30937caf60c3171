#pragma once

#include "atlas/SurveyMap.h"

#include <QAbstractTableModel>

/// What marks a group of localities: its word forms, the most important first.
class GroupMarksTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Item, WordForm, Representative, Distinctive, Columns };

    /// Lists what marks `group` (from 1) of `groups`; nothing where there is no survey.
    void setGroup(std::shared_ptr<const ComparedSurvey> survey, const std::vector<int>& groups, int group);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QString text(const FormOfGroup& mark, int column) const;

    std::shared_ptr<const ComparedSurvey> m_survey;
    std::vector<FormOfGroup> m_marks;
};
