#pragma once

#include <QStyledItemDelegate>

/// Shows an item of the atlas in two lines: its caption, with an asterisk for unsaved work and a circle that
/// is filled where there is a symbol file, and its figures; or why it cannot be read, or the word forms by
/// which it was found.
class AtlasItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
