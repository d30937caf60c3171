#pragma once

#include "atlas/AtlasSelection.h"

#include <QSortFilterProxyModel>

#include <optional>

/// The localities in which a text stands, in the number, the name or a word form, and, where asked for, only
/// those of a selection.
class AtlasLocalityFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setText(const QString& text);
    /// Shows only `localities`; nothing shows all.
    void setOnly(const std::optional<AtlasSelection::Numbers>& localities);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    QString m_text;
    std::optional<AtlasSelection::Numbers> m_only;
};
