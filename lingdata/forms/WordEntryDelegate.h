#pragma once

#include "render/forms/WordDelegate.h"

#include <QStringList>

/// Shows words as `WordDelegate` does and edits them. While a word is typed, the kinds that begin with it are
/// listed below; one is chosen from them with the arrow keys or the mouse, and Enter takes what stands in the
/// editor. Where none is listed, the arrow keys leave the editor up and down.
class WordEntryDelegate : public WordDelegate
{
    Q_OBJECT

public:
    /// The kinds are shown by `kindDelegate`, which must outlive this.
    WordEntryDelegate(VarnModule& varn, QAbstractItemDelegate& kindDelegate, QObject* parent);

    /// The kinds that are offered.
    void setKinds(QStringList kinds);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;

Q_SIGNALS:
    /// The user typed; `text` stands in the editor now.
    void typed(const QString& text) const;
    /// The user left the editor with an arrow key: by `rows` 1 down, by -1 up.
    void left(int rows);

protected:
    bool eventFilter(QObject* editor, QEvent* event) override;

private:
    QAbstractItemDelegate& m_kindDelegate;
    QStringList m_kinds;
};
