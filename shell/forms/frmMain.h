#pragma once

#include "platform/DrawSurface.h"
#include "platform/forms/VarnForm.h"

#include <memory>
#include <vector>

class WorkKeeper;
class frmNewSurvey;
struct UnsavedWork;
struct VarnModule;
struct WorkingForms;

namespace Ui {
class frmMain;
}

/// The main form: shows which map is current, and opens the working forms.
class frmMain : public VarnForm
{
    Q_OBJECT

public:
    frmMain(VarnModule& varn, Dialogs& dialogs);
    ~frmMain() override;

    /// Starts the program: lays down the installation tree from `installation`, reads or asks for the current
    /// map and the map font, and loads the base map. What fails is shown, and the start-up goes on.
    void Form_Load(const QString& installation);

    void refresh() override;
    QString helpSection() const override { return QStringLiteral("The first start"); }

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void SetMapName();
    void drawPreview();

    /// The forms that this one opens; after the first question of the start, which need not wait for them.
    void makeForms();
    void connectButtons();
    void connectForms();
    void connectAnalysisForms();
    template <typename Form>
    void open(Form& form)
    {
        form.Form_Load();
        form.bringToFront();
    }
    void openChizu();
    void openMap();
    void openCalc();
    void openCalExec();
    void openRankData();
    void openTotalHanko();
    void drawContrastMap();
    void drawDiffusionSymbols();
    /// Shows the current map in all forms, after it was changed.
    void showNewMap();
    void showReloadedItem();
    UnsavedWork unsavedWork();
    /// Offers the work that was kept, and shows it in the forms that it is edited in.
    void offerKeptWork();
    std::vector<VarnForm*> workingForms();

    void cmdRegMap_Click();
    void cmdMapName_Click();
    void cmdInputData_Click();
    void cmdData_Click();
    void cmdHanko_Click();
    void cmdMap_Click();
    void cmdSumUp_Click();
    void cmdAtlas_Click();
    void cmdExit_Click();

    void mnuImportLocalities_Click();
    void mnuImportLines_Click();
    void mnuImportPlaceNames_Click();
    void mnuImportPolygons_Click();
    void mnuNewSurvey_Click();
    void mnuExportSurvey_Click();

    /// Opens the wizard with the source at `path`, a path of this machine; empty for none yet.
    void openNewSurvey(const QString& path);
    /// Makes a new map the current one, for the next start too, and shows an item of it.
    void showSurvey(const QString& mapName, const QString& item);
    /// Makes the map of that name the current one, for the next start too, and shows it in the atlas window.
    void openAtlas(const QString& mapName);
    /// Makes the map of that name the current one where no unsaved work is in the way; returns whether it is.
    /// Questions have the title `title`.
    bool takeMap(const QString& mapName, const QString& title);
    bool mayLoseSymbols(const QString& title);

    std::unique_ptr<Ui::frmMain> m_ui;
    VarnModule& m_varn;
    std::unique_ptr<WorkingForms> m_forms;
    /// The form's own drawing: the preview of the map.
    DrawSurface m_preview;
    WorkKeeper* m_keeper;
    frmNewSurvey* m_newSurvey = nullptr;
};
