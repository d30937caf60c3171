#include "atlas/forms/AtlasItemsPane.h"

#include "atlas/AtlasDocument.h"
#include "atlas/AtlasSelection.h"
#include "shell/VarnModule.h"

#include <QAction>

AtlasItemsPane::AtlasItemsPane(VarnModule& varn, AtlasDocument& document, AtlasSelection& selection)
    : m_varn(varn), m_document(document), m_selection(selection),
      m_next(new QAction(QStringLiteral("Next Item"), this)),
      m_previous(new QAction(QStringLiteral("Previous Item"), this))
{
    for (QAction* action : {m_next, m_previous}) {
        action->setObjectName(QStringLiteral("qt_none")); // they do nothing yet
    }
}
