#pragma once

#include "render/DrawnWord.h"

#include <QHash>
#include <QStyledItemDelegate>

/// Shows coded words as maps will, phonetic letters for escapes, with the code beside them; words with an
/// escape that is in no code in red. Its editor is left up and down with the arrow keys.
class WordDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    WordDelegate(VarnModule& varn, QObject* parent);

    /// Forgets how words were drawn, for another map font.
    void forget() { m_words.clear(); }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;

Q_SIGNALS:
    /// The user typed; `word` stands in the editor now.
    void typed(const QString& word) const;
    /// The user left the editor with an arrow key: by `rows` 1 down, by -1 up.
    void left(int rows);

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
    bool eventFilter(QObject* editor, QEvent* event) override;

private:
    const DrawnWord& drawn(const QString& word) const;

    VarnModule& m_varn;
    mutable QHash<QString, DrawnWord> m_words;
};
