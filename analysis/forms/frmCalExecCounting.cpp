// The counting of the execution form: one item, or those of a folder.

#include "analysis/CumulativeFile.h"
#include "analysis/ExecuteCommands.h"
#include "analysis/forms/frmCalExec.h"
#include "shell/VarnModule.h"

#include <QApplication>
#include <QProgressDialog>

namespace {

const QString AnalysisTitle = QStringLiteral("Analysis of Linguistic Data.");

} // namespace

TotalState frmCalExec::state()
{
    return {m_varn, m_varn.NLocality, m_varn, m_varn};
}

void frmCalExec::mnuExecCalc_Click()
{
    executeLoadedItem(m_varn, state(), dialogs());
    draw();
}

void frmCalExec::mnuExecAll_Click()
{
    if (!mayExecute(state(), dialogs())) {
        return;
    }
    if (const auto folder = dialogs().chooseFolder(QStringLiteral("Folder of the Items to Accumulate"),
                                                   m_varn.Drive.hostPath(m_varn.dataFolder()))) {
        report(accumulate(itemsToCount(m_varn.Drive.varnPath(*folder), state(), dialogs())));
    }
}

AccumulationResult frmCalExec::accumulate(const ItemsToCount& items)
{
    QProgressDialog progress(this);
    progress.setWindowTitle(AnalysisTitle);
    progress.setCancelButtonText(QStringLiteral("Stop"));
    progress.setWindowModality(Qt::ApplicationModal);
    progress.setMinimumDuration(0);
    progress.setMinimumWidth(360);
    const auto mayProceed = [&progress](int done, int number, const QString& name) {
        progress.setMaximum(number);
        progress.setLabelText(
            QStringLiteral("%1 (%2 of %3)").arg(name, QString::number(done + 1), QString::number(number)));
        progress.setValue(done);
        QApplication::processEvents(); // a click on Stop
        return !progress.wasCanceled();
    };
    outdateSums(m_varn);
    return accumulateItems({m_varn.Drive, totalFilePath(m_varn.dataFolder(), m_varn)}, items,
                           m_varn.NLocality, m_varn, mayProceed);
}

void frmCalExec::report(const AccumulationResult& done)
{
    m_uncounted.clear();
    for (const UncountedItem& item : done.uncounted) {
        m_uncounted << item.name + QLatin1Char(':');
        for (const QString& line : item.reason.split(QLatin1Char('\n'))) {
            m_uncounted << QStringLiteral("    ") + line;
        }
    }
    if (!m_uncounted.isEmpty()) {
        m_shown = Shown::Uncounted;
        m_uncounted.prepend(QStringLiteral("These files were not counted:"));
    }
    draw();
    refresh();
    dialogs().message(accumulationText(done), AnalysisTitle);
}

void frmCalExec::mnuExecSave_Click()
{
    if (saveTotal(state(), dialogs())) {
        dialogs().message(QStringLiteral("Linguistic Data File is saved."),
                          QStringLiteral("Save of Linguistic Data"));
    }
}
