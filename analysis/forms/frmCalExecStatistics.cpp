// The statistics of the execution form and their file.

#include "analysis/ExecuteCommands.h"
#include "analysis/Statistics.h"
#include "analysis/forms/frmCalExec.h"
#include "platform/FileKind.h"
#include "shell/VarnModule.h"

void frmCalExec::Stats()
{
    ::Stats(m_varn, m_varn.NLocality, m_varn);
    DisplayStatsTbl();
}

void frmCalExec::DisplayStatsTbl()
{
    m_shown = Shown::StatisticsOfOne;
    draw();
}

void frmCalExec::mnuStatsDisplayAll_Click()
{
    m_shown = Shown::StatisticsOfAll;
    draw();
}

void frmCalExec::SaveStats()
{
    saveStatistics(m_varn, m_varn, m_varn, dialogs());
}

void frmCalExec::mnuStatsOpen_Click()
{
    if (const auto path = askToOpen(dialogs(), m_varn.Drive, m_varn.dataFolder(),
                                    QStringLiteral("Open Statistics File"), StatisticsFiles.filter())) {
        LoadStats(*path);
    }
}

void frmCalExec::LoadStats(const QString& path)
{
    ::LoadStats(m_varn.Drive, path, m_varn);
    DisplayStatsTbl();
    if (m_varn.StatsWordforms != m_varn.NumWordforms || m_varn.StatsItems != m_varn.NumItemsAccumulated) {
        refresh();
        dialogs().message(QStringLiteral("The statistics are of %1 word forms and %2 items, the cumulative "
                                         "data has %3 and %4.")
                              .arg(m_varn.StatsWordforms)
                              .arg(m_varn.StatsItems)
                              .arg(m_varn.NumWordforms)
                              .arg(m_varn.NumItemsAccumulated),
                          QStringLiteral("Open Statistics File"));
    }
}
