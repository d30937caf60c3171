#pragma once

#include "atlas/AtlasDocument.h"
#include "atlas/AtlasSelection.h"
#include "platform/forms/VarnForm.h"

class AtlasItemsPane;
class AtlasLocalitiesPane;
class AtlasMapView;
class AtlasRecordsPane;
class QSplitter;
struct VarnModule;

/// The atlas window: the items of the current map, the map of one of them, its symbols and its localities, in
/// which the map can be explored and everything edited in place.
class frmAtlas : public VarnForm
{
    Q_OBJECT

public:
    frmAtlas(VarnModule& varn, Dialogs& dialogs);
    ~frmAtlas() override;

    /// Shows the item that is loaded, or the first one of the current map.
    void Form_Load();
    AtlasDocument& document() { return m_document; }

    void refresh() override;
    QString helpSection() const override { return QStringLiteral("The atlas window"); }
    void followSharedState() override;

Q_SIGNALS:
    /// The user wants to go back to the main form.
    void toMain();
    /// The user wants to make a survey from a table.
    void toNewSurvey();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void addPanes();
    void showLoaded();
    bool mayClose();

    VarnModule& m_varn;
    AtlasDocument m_document;
    AtlasSelection m_selection;
    AtlasItemsPane* m_items;
    AtlasMapView* m_map;
    AtlasRecordsPane* m_records;
    AtlasLocalitiesPane* m_localities;
    bool m_isPrepared = false;
};
