#include "atlas/forms/AtlasItemsPane.h"

#include "atlas/AtlasDocument.h"
#include "atlas/AtlasSelection.h"
#include "shell/VarnModule.h"

AtlasItemsPane::AtlasItemsPane(VarnModule& varn, AtlasDocument& document, AtlasSelection& selection)
    : m_varn(varn), m_document(document), m_selection(selection)
{}
