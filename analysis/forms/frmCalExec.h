#pragma once

#include "analysis/AccumulateItems.h"
#include "analysis/TotalCommands.h"
#include "platform/DrawSurface.h"
#include "platform/forms/VarnForm.h"

#include <memory>

struct VarnModule;

namespace Ui {
class frmCalExec;
}

/// The execution form of cumulative analysis: adds items to the counts, shows the counts in pages, computes
/// and shows their statistics, and keeps them as a file.
class frmCalExec : public VarnForm
{
    Q_OBJECT

public:
    frmCalExec(VarnModule& varn, Dialogs& dialogs);
    ~frmCalExec() override;

    /// Prepares the form to be shown: draws what it shows with the counts as they are now.
    void Form_Load();
    void refresh() override;
    QString helpSection() const override { return QStringLiteral("Counting over many items"); }
    void followSharedState() override;
    /// What is drawn.
    const DrawSurface& surface() const { return m_paper; }

Q_SIGNALS:
    /// The user wants to go back to the main form.
    void toMain();
    /// The user wants to go back to the set-up form of cumulative analysis.
    void toAccumulateData();
    /// The user wants to draw a map.
    void toDrawMap();
    /// The user wants to set the symbols of the diffusion map.
    void toSymbols();
    /// The user wants to contrast two groups of word forms.
    void toContrast();

private:
    enum class Shown { Nothing, Counts, StatisticsOfOne, StatisticsOfAll, Uncounted };

    void connectMenus();

    void mnuExecCalc_Click();
    void mnuExecAll_Click();
    void mnuExecSave_Click();
    void mnuItemNext_Click();
    void mnuItemPrevious_Click();
    void mnuDisplay_Click();
    void mnuDisplayNext_Click();
    void mnuDisplayPrevious_Click();
    void mnuStatsExec_Click() { Stats(); }
    void mnuStatsDisplay_Click() { DisplayStatsTbl(); }
    void mnuStatsDisplayAll_Click();
    void mnuStatsSave_Click() { SaveStats(); }
    void mnuStatsOpen_Click();

    TotalState state();
    AccumulationResult accumulate(const ItemsToCount& items);
    void report(const AccumulationResult& done);
    void Stats();
    void DisplayStatsTbl();
    void SaveStats();
    void LoadStats(const QString& path);

    void showCounts(int page);
    /// Draws what is shown.
    void draw();
    void drawStatisticsOfAll();
    /// Empties the paper and gives it room for `area`.
    void clearPaper(const QSizeF& area);
    bool hasStatistics(int k) const;
    void enableMenus();
    QStringList status() const;

    std::unique_ptr<Ui::frmCalExec> m_ui;
    VarnModule& m_varn;
    DrawSurface m_paper;
    Shown m_shown = Shown::Nothing;
    /// The page of counts shown, from 1.
    int m_page = 1;
    /// The item files that were not counted, as they are listed.
    QStringList m_uncounted;
};
