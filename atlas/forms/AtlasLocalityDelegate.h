#pragma once

#include "lingdata/forms/WordEntryDelegate.h"

class AtlasDocument;

/// Shows a word form as maps will, behind the symbols that mark it. While one is typed, those of the item
/// that begin with it are listed.
class AtlasLocalityDelegate : public WordEntryDelegate
{
    Q_OBJECT

public:
    /// All must outlive this.
    AtlasLocalityDelegate(VarnModule& varn, const AtlasDocument& document,
                          QAbstractItemDelegate& kindDelegate, QObject* parent);

    /// Offers the kinds of the page.
    void showKinds();

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    void paintSymbol(QPainter& painter, const QRect& place, int record) const;

    VarnModule& m_varn;
    const AtlasDocument& m_document;
};
