#pragma once

#include <QWidget>

class AtlasDocument;
class AtlasSelection;
struct VarnModule;

/// The localities of the map with their word forms of the item shown.
class AtlasLocalitiesPane : public QWidget
{
    Q_OBJECT

public:
    AtlasLocalitiesPane(VarnModule& varn, AtlasDocument& document, AtlasSelection& selection);

private:
    VarnModule& m_varn;
    AtlasDocument& m_document;
    AtlasSelection& m_selection;
};
