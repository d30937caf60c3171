#pragma once

#include <QWidget>

class AtlasDocument;
class AtlasSelection;
struct VarnModule;

/// The map of the item shown, which answers to the mouse.
class AtlasMapView : public QWidget
{
    Q_OBJECT

public:
    AtlasMapView(VarnModule& varn, AtlasDocument& document, AtlasSelection& selection);

private:
    VarnModule& m_varn;
    AtlasDocument& m_document;
    AtlasSelection& m_selection;
};
