#pragma once

#include "atlas/AtlasDocument.h"
#include "atlas/AtlasMapKind.h"
#include "atlas/AtlasSelection.h"
#include "atlas/AtlasSurveyMaps.h"
#include "platform/forms/VarnForm.h"

#include <map>

class AtlasItemsPane;
class AtlasLocalitiesPane;
class AtlasMapView;
class AtlasRecordsPane;
class SurveyPane;
class NoticeBar;
class QActionGroup;
class QSplitter;
class QToolBar;
struct AtlasMaps;
struct ItemsQuestion;
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
    AtlasSelection& selection() { return m_selection; }

    void refresh() override;
    QString helpSection() const override { return QStringLiteral("The atlas window"); }
    void followSharedState() override;
    void showNewState() override;

    /// Turns to the item at `itemPath` of the current map.
    void showItem(const QString& itemPath);
    /// Saves everything. Raises what saving raises.
    void save();
    /// Opens the window with the pages of work that was kept.
    void showKept(const UnsavedWork& work);

Q_SIGNALS:
    /// The user wants to go back to the main form.
    void toMain();
    /// The user wants to make a survey from a table.
    void toNewSurvey();
    /// The user wants to enter an item.
    void toInputData();
    /// The user wants to open or edit the table of counts.
    void toAccumulateData();
    /// The user wants the map of that name to be the current one.
    void mapWanted(const QString& mapName);

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    /// Which panes stand over the list of localities.
    enum class Details { Records, RecordsAndSettings, Settings };

    void addPanes();
    void connectSurvey();
    void restoreLayout();
    void keepLayout() const;

    void addMenus();
    void addFileMenu();
    void addEditMenu();
    void addMapMenu();
    void addPaneMenus();
    void addHelpMenu();
    void nameForTools();
    void addToolBar();
    /// An entry of `menu`; its icon has the name `icon`, if any.
    QAction* addEntry(QMenu& menu, const char* name, const QString& text, const char* icon,
                      const QKeySequence& key, void (frmAtlas::*handler)());

    void showPage();
    void showMapOfItem();
    void showLoaded();
    /// What is loaded, for the status bar.
    QStringList loaded() const;
    void showSelected();
    void showHovered(const QString& answer);
    void showNotice();
    void showSteps();
    void showMapKinds();
    void showWordForms();

    void mnuOpenMap_Click();
    void mnuPrint_Click();
    void mnuExportMap_Click();
    void mnuExportAtlas_Click();
    void mnuUndo_Click();
    void mnuRedo_Click();
    void mnuCopyMap_Click();
    void mnuAbout_Click();

    void showMapOf(AtlasMapKind kind);
    void showSettingsOf(AtlasMapKind kind);
    void sizeDetails();
    void drawKind();
    void followTable();
    void followReference();
    void chooseItems();
    void openDistances();
    void saveDistances();
    void askForItems(const ItemsQuestion& question, std::function<void(const QStringList&)> take);
    AtlasMaps mapsToExport();
    void exportItems(const QStringList& itemPaths);
    AtlasPage pageOf(const QString& itemPath) const;
    /// What a file or a document of the map shown is called.
    QString mapName() const;
    void turnToFirst();
    bool mayClose();
    /// Asks about files that another program changed, once for each change.
    void checkFiles();
    bool mayReadAgain(const QStringList& changed);

    VarnModule& m_varn;
    AtlasDocument m_document;
    AtlasSelection m_selection;
    AtlasSurveyMaps m_survey;
    AtlasItemsPane* m_items;
    AtlasMapView* m_map;
    AtlasRecordsPane* m_records;
    SurveyPane* m_surveyPane;
    AtlasLocalitiesPane* m_localities;
    NoticeBar* m_notice;
    QSplitter* m_panes;
    QSplitter* m_details;
    Details m_shownDetails = Details::Records;
    /// How high the panes were when others were shown last.
    std::map<Details, QByteArray> m_detailStates;
    QLabel* m_selected;

    /// The entries by name.
    std::map<QString, QAction*> m_entries;
    QActionGroup* m_kinds;
    QMenu* m_editMenu = nullptr;
    QMenu* m_viewMenu = nullptr;
    QMenu* m_kindMenu = nullptr;
    QMenu* m_wordForms = nullptr;
    AtlasMapKind m_kind = AtlasMapKind::Linguistic;
    QString m_shownItem;
    /// The word form that maps of one word form show.
    int m_wordForm = 1;
    /// What is at the pointer on the map; empty where nothing is.
    QString m_hovered;
    bool m_isPrepared = false;
};
