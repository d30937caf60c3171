#pragma once

#include "platform/forms/VarnForm.h"
#include "render/MapGeometry.h"

#include <memory>

class QButtonGroup;
class QPushButton;
struct VarnModule;

namespace Ui {
class frmMap;
}

/// The map form: loads an item and its symbols and draws maps, captions and the lists of symbols and codes.
class frmMap : public VarnForm
{
    Q_OBJECT

public:
    frmMap(VarnModule& varn, Dialogs& dialogs);
    ~frmMap() override;

    /// Makes the form the drawing target and prepares it for the map font and the kind of map.
    void Form_Load();
    /// Enables the linguistic map where an item and a symbol set are loaded.
    void enableMapLing();
    /// Draws the map of the diffusion symbols, and the contrast map.
    void mnuTotalHanko_Click();
    void mnuRank_Click();
    /// The form's own surface.
    const DrawSurface& surface() const { return m_surface; }
    /// The surfaces of a drawing command, with the form's place and size as they are now.
    MapSurfaces surfaces();
    void refresh() override;
    QString helpSection() const override { return QStringLiteral("Drawing the map"); }
    void showNewState() override;

Q_SIGNALS:
    /// The user wants to go back to the main form.
    void toMain();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void connectMenus();
    void connectOptions();

    void mnuSaveMapAs_Click();
    void mnuCopyMap_Click();
    void mnuFilePrint_Click();
    void lblInsatsumode_Click();
    void mnuInputWord_Click();
    void mnuHankoInput_Click();
    void mnuMapLing_Click();
    void mnuMapBlank_Click();
    void mnuHanrei_Click();
    void mnuSymbols_Click();
    void mnuWholeWordForms_Click();
    void mnuTotalBar_Click();
    void mnuTotalSBar_Click();
    void mnuTotalCircle_Click();
    void mnuTotalSCircle_Click();
    void mnuHpos_Click();
    void mnuChiten_Click();
    void mnuStyle_Click();
    void mnuMapSize_Click();
    void mnuHankoList_Click();
    void mnuHankoNext_Click();
    void mnuHankoPrevious_Click();

    /// Runs `draw` on the form or, in print mode, on a document of its own, named for the map and `subject`.
    void drawOnTarget(const QString& subject, const std::function<void()>& draw);
    void printDocument(const QString& name);
    void DisplayInsatsu();
    void enableTotal();
    void hideStyle();
    void plotSymbolPage();
    std::optional<QString> askForFile(const QString& title, const QString& filter);

    void applyMapFont();
    void nameControls();
    void setSize(float width, float height);
    void showArea();
    void followWindow();
    void showLoaded();

    std::unique_ptr<Ui::frmMap> m_ui;
    VarnModule& m_varn;
    DrawSurface m_surface;
    QButtonGroup* m_places;
    /// Shows the print switch; a click turns it.
    QPushButton* m_lblInsatsumode;
    /// The window's size that shows the drawing area as it was set; empty once the user resized the window.
    QSize m_sizeOfArea;
    int m_symbolPage = 1;
};
