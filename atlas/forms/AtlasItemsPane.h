#pragma once

#include <QWidget>

class AtlasDocument;
class AtlasSelection;
struct VarnModule;

/// The list of the map's items, with a filter.
class AtlasItemsPane : public QWidget
{
    Q_OBJECT

public:
    AtlasItemsPane(VarnModule& varn, AtlasDocument& document, AtlasSelection& selection);

    /// Turn to the item below, and above, in the list.
    QAction* nextItem() { return m_next; }
    QAction* previousItem() { return m_previous; }

private:
    VarnModule& m_varn;
    AtlasDocument& m_document;
    AtlasSelection& m_selection;
    QAction* m_next;
    QAction* m_previous;
};
