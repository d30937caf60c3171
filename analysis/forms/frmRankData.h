#pragma once

#include "analysis/ContrastEditor.h"
#include "platform/DrawSurface.h"
#include "platform/Saved.h"
#include "platform/forms/VarnForm.h"

#include <memory>
#include <optional>

class QComboBox;
class QListWidget;
struct VarnModule;

namespace Ui {
class frmRankData;
}

/// The contrast form: groups the word forms of the cumulative table into two items, sums their counts at each
/// locality, shows the sums, and keeps the groups as a contrast file.
class frmRankData : public VarnForm
{
    Q_OBJECT

public:
    frmRankData(VarnModule& varn, Dialogs& dialogs);
    ~frmRankData() override;

    /// Prepares the form to be shown: lists the word forms of the table and the groups.
    void Form_Load();
    void refresh() override;
    QString helpSection() const override { return QStringLiteral("Contrast maps"); }
    void followSharedState() override;

Q_SIGNALS:
    /// The user wants to see the contrast map, whose data is complete.
    void toDrawMap();
    /// The user wants to go back to the form of cumulative analysis.
    void toAnalysis();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    static constexpr QLatin1String FormTitle{"Analysis for Contrast Map"};

    void connectMenus();
    void connectButtons();

    void cmdData1_Click() { addSelected(1); }
    void cmdData2_Click() { addSelected(2); }
    void cmdDel1_Click() { removeSelected(1); }
    void cmdDel2_Click() { removeSelected(2); }
    void cmdCalc_Click();
    void mnuRankOpen_Click();
    void mnuRankSave_Click();
    void mnuRankMap_Click();
    void mnuDisplayRank_Click();
    void mnuDisplayNext_Click();
    void mnuDisplayPrevious_Click();

    void addSelected(int side);
    void removeSelected(int side);
    QListWidget& groupList(int side) const;
    QComboBox& setColorBox(int side) const;
    QComboBox& fillColorBox(int side) const;

    ContrastBoxes boxes() const;
    void showBoxes(const ContrastBoxes& boxes);
    void SetRankData();
    void LoadRankFile(const QString& path);
    /// The path to save to; nothing where the user has to name it first or keeps the file that is there.
    std::optional<QString> savePath();

    /// Takes over what other forms did to the table meanwhile.
    void followTable();
    void showGroups();

    /// Shows page 1 of the result table.
    void DisplayRankData();
    /// Draws the page of the result table that is shown.
    void DisplayRank();
    void DisplayON(int page);
    void DisplayOff();

    ContrastSettings settings() const;
    bool isEdited() const { return m_prepared && m_saved.differs(settings()); }
    bool mayGiveUpWork(const QString& question);
    void showState();

    std::unique_ptr<Ui::frmRankData> m_ui;
    VarnModule& m_varn;
    ContrastEditor m_editor;
    DrawSurface m_paper;
    /// The page of the result table shown, from 1; 0 where it is hidden.
    int m_page = 0;
    bool m_prepared = false;
    Saved<ContrastSettings> m_saved;
};
