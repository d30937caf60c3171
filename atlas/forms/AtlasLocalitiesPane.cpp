#include "atlas/forms/AtlasLocalitiesPane.h"

#include "atlas/AtlasDocument.h"
#include "atlas/AtlasSelection.h"
#include "shell/VarnModule.h"

AtlasLocalitiesPane::AtlasLocalitiesPane(VarnModule& varn, AtlasDocument& document, AtlasSelection& selection)
    : m_varn(varn), m_document(document), m_selection(selection)
{}
