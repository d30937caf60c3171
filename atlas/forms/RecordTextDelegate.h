#pragma once

#include "render/forms/WordDelegate.h"

/// Shows kinds and captions with phonetic letters, and tells what is typed while one is edited.
class RecordTextDelegate : public WordDelegate
{
    Q_OBJECT

public:
    using WordDelegate::WordDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;

Q_SIGNALS:
    /// The user typed on in the cell at `index`, which holds `text` now.
    void typed(const QModelIndex& index, const QString& text) const;
};
