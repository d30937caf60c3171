#pragma once

#include <QWidget>

class AtlasDocument;
class AtlasSelection;
struct VarnModule;

/// The records of the item's symbol set, and the word forms that they do not mark, or mark twice.
class AtlasRecordsPane : public QWidget
{
    Q_OBJECT

public:
    AtlasRecordsPane(VarnModule& varn, AtlasDocument& document, AtlasSelection& selection);

private:
    VarnModule& m_varn;
    AtlasDocument& m_document;
    AtlasSelection& m_selection;
};
