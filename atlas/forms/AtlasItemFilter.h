#pragma once

#include <QSortFilterProxyModel>

class AtlasItemTable;

/// The items in which a text stands: in the caption, the name of the file or a word form.
class AtlasItemFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    /// The word forms that the text was found in, where caption and name do not have it.
    static constexpr int Found = Qt::UserRole + 100;

    AtlasItemFilter(AtlasItemTable& table, QObject* parent);

    void setText(const QString& text);
    QVariant data(const QModelIndex& index, int role) const override;

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    const AtlasItemTable& m_table;
    QString m_text;
};
