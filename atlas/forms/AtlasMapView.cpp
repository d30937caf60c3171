#include "atlas/forms/AtlasMapView.h"

#include "atlas/AtlasDocument.h"
#include "atlas/AtlasSelection.h"
#include "shell/VarnModule.h"

AtlasMapView::AtlasMapView(VarnModule& varn, AtlasDocument& document, AtlasSelection& selection)
    : m_varn(varn), m_document(document), m_selection(selection)
{}
