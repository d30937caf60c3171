#pragma once

#include "render/DrawnWord.h"

#include <QHash>
#include <QStyledItemDelegate>

struct VarnModule;

/// Shows coded words as maps will, phonetic letters for escapes, with the code beside them; words with an
/// escape that is in no code in red.
class WordDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    WordDelegate(VarnModule& varn, QObject* parent);

    /// Shows codes beside their letters, as at first, or the letters alone.
    void showCodes(bool shown) { m_showsCodes = shown; }
    /// Forgets how words were drawn, for another map font.
    void forget() { m_words.clear(); }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    const DrawnWord& drawn(const QString& word) const;

    VarnModule& m_varn;
    mutable QHash<QString, DrawnWord> m_words;
    bool m_showsCodes = true;
};
