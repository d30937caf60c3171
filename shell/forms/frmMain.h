#pragma once

#include "analysis/forms/frmCalExec.h"
#include "analysis/forms/frmCalc.h"
#include "analysis/forms/frmRankData.h"
#include "analysis/forms/frmTotalHanko.h"
#include "lingdata/forms/frmData.h"
#include "lingdata/forms/frmDataInput.h"
#include "mapdata/forms/frmChizu.h"
#include "platform/forms/VarnForm.h"
#include "render/forms/frmMap.h"
#include "symbols/forms/frmSetHanko.h"

#include <QTimer>

#include <array>
#include <utility>

class QLineEdit;
class Recovery;
struct UnsavedWork;
struct MapFont;
struct PageLayout;

namespace Ui {
class frmMain;
}

/// The main form: starts the program, shows which map is current, and opens the working forms.
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

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void InputVarnDrive();
    void VarnDrive();
    void askForFont(MapFont& font);
    void loadStartMap();
    void loadParts(const QStringList& missing);
    void offerToMakeMap();
    void SetMapName();
    void drawPreview();

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
    std::vector<VarnForm*> workingForms();

    // Unsaved work.
    void startKeeping();
    void keepWork();
    void offerKeptWork();
    bool openKeptWork(const QString& folder);
    void showKept(const UnsavedWork& work);
    bool mayChangeMap();

    // Page set-up.
    void prepareSetMergin();
    void recomputePaper();
    void displayPaper();
    using MarginBox = std::pair<QLineEdit*, qint16 PageLayout::*>;
    std::array<MarginBox, 4> marginBoxes() const;
    void displayMargins();
    void SetPrinter();
    void txtMergin_Change(const QLineEdit& box, qint16 PageLayout::*margin);
    void cboPaper_Click();
    void lblDisplayPaperSize_Click();
    void cmdSettingPrinter_Click();
    void cmdExitSetMergin_Click();

    void cmdRegMap_Click();
    void cmdMapName_Click();
    void cmdInputData_Click();
    void cmdData_Click();
    void cmdHanko_Click();
    void cmdMap_Click();
    void cmdSumUp_Click();
    void cmdExit_Click();

    void mnuImportLocalities_Click();
    void mnuImportLines_Click();
    void mnuImportPlaceNames_Click();
    void mnuImportPolygons_Click();

    std::unique_ptr<Ui::frmMain> m_ui;
    VarnModule& m_varn;
    frmMap m_map;
    frmChizu m_chizu;
    frmDataInput m_dataInput;
    frmData m_data;
    frmSetHanko m_setHanko;
    frmCalc m_calc;
    frmCalExec m_calExec;
    frmRankData m_rankData;
    frmTotalHanko m_totalHanko;
    /// The form's own drawing: the preview of the map.
    DrawSurface m_preview;
    std::unique_ptr<Recovery> m_recovery;
    QTimer m_keeping{this};
};
