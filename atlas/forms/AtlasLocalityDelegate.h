#pragma once

#include "render/forms/WordDelegate.h"

class AtlasDocument;

/// Shows a word form as maps will, behind the symbols that mark it.
class AtlasLocalityDelegate : public WordDelegate
{
    Q_OBJECT

public:
    /// Both must outlive this.
    AtlasLocalityDelegate(VarnModule& varn, const AtlasDocument& document, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    void paintSymbol(QPainter& painter, const QRect& place, int record) const;

    VarnModule& m_varn;
    const AtlasDocument& m_document;
};
