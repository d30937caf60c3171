#include "atlas/forms/RecordTextDelegate.h"

#include <QLineEdit>
#include <QPersistentModelIndex>

QWidget* RecordTextDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                          const QModelIndex& index) const
{
    auto* box = new QLineEdit(parent); // the view's cell owns it
    box->setObjectName(QStringLiteral("txtRecord"));
    box->setFrame(false);
    box->setAutoFillBackground(true);
    box->setAccessibleName(index.model()->headerData(index.column(), Qt::Horizontal).toString());
    connect(box, &QLineEdit::textEdited, this,
            [this, cell = QPersistentModelIndex(index)](const QString& text) { Q_EMIT typed(cell, text); });
    return box;
}
