#include "atlas/AtlasItem.h"
#include "atlas/forms/frmAtlas.h"
#include "shell/VarnModule.h"

#include <QCloseEvent>

bool frmAtlas::mayClose()
{
    if (!m_document.isUnsaved()) {
        return true;
    }
    const QStringList items = m_document.unsavedItems();
    return dialogs().confirmLoss(
        QStringLiteral("%1 items are not saved. Close without saving O.K.?").arg(items.size()),
        QStringLiteral("Atlas"));
}

void frmAtlas::closeEvent(QCloseEvent* event)
{
    event->setAccepted(mayClose());
}

void frmAtlas::save()
{
    m_document.save();
}

void frmAtlas::turnToFirst()
{
    if (!m_document.hasPage()) {
        const QStringList items = atlasItemPaths(m_varn);
        if (!items.isEmpty()) {
            m_document.turnTo(items.first());
        }
    }
}
