#include "analysis/forms/frmCalExec.h"

#include "analysis/CumulativeFile.h"
#include "analysis/forms/CountPages.h"
#include "analysis/forms/StatisticsPages.h"
#include "platform/Numbers.h"
#include "shell/VarnModule.h"
#include "ui_frmCalExec.h"

#include <QScrollBar>

#include <algorithm>

namespace {

const QString FormTitle = QStringLiteral("Execution of Cumulative Analysis");
constexpr double ListLineHeight = 240;

QString nameOfItem(int k, const VarnModule& varn)
{
    return QStringLiteral("Wordform %1 ").arg(k) + varn.WordformName(k);
}

} // namespace

frmCalExec::frmCalExec(VarnModule& varn, Dialogs& dialogs)
    : VarnForm(dialogs), m_ui(std::make_unique<Ui::frmCalExec>()), m_varn(varn)
{
    m_ui->setupUi(this);
    clearPaper(CountPages::area());
    m_ui->picPage->setSurface(m_paper, SurfaceView::Fit::WholePaper);
    m_ui->picPage->setPlaceholder(
        QStringLiteral("Display Results shows the counts here, Execute Statistics their statistics."));
    connectMenus();
}

frmCalExec::~frmCalExec() = default;

void frmCalExec::connectMenus()
{
    const auto click = [this](QAction* action, void (frmCalExec::*handler)()) {
        handle(action, &QAction::triggered, handler);
    };
    click(m_ui->mnuExecCalc, &frmCalExec::mnuExecCalc_Click);
    click(m_ui->mnuExecAll, &frmCalExec::mnuExecAll_Click);
    click(m_ui->mnuExecSave, &frmCalExec::mnuExecSave_Click);
    click(m_ui->mnuItemNext, &frmCalExec::mnuItemNext_Click);
    click(m_ui->mnuItemPrevious, &frmCalExec::mnuItemPrevious_Click);
    click(m_ui->mnuDisplay, &frmCalExec::mnuDisplay_Click);
    click(m_ui->mnuDisplayNext, &frmCalExec::mnuDisplayNext_Click);
    click(m_ui->mnuDisplayPrevious, &frmCalExec::mnuDisplayPrevious_Click);
    click(m_ui->mnuStatsExec, &frmCalExec::mnuStatsExec_Click);
    click(m_ui->mnuStatsDisplay, &frmCalExec::mnuStatsDisplay_Click);
    click(m_ui->mnuStatsDisplayAll, &frmCalExec::mnuStatsDisplayAll_Click);
    click(m_ui->mnuStatsSave, &frmCalExec::mnuStatsSave_Click);
    click(m_ui->mnuStatsOpen, &frmCalExec::mnuStatsOpen_Click);
    connect(m_ui->mnuStatsSymbols, &QAction::triggered, this, &frmCalExec::toSymbols);
    connect(m_ui->mnuExecMap, &QAction::triggered, this, &frmCalExec::toDrawMap);
    connect(m_ui->mnuReturn, &QAction::triggered, this, &frmCalExec::toAccumulateData);
    connect(m_ui->mnuRankData, &QAction::triggered, this, &frmCalExec::toContrast);
    connect(m_ui->mnuRankReturn, &QAction::triggered, this, &frmCalExec::toMain);
}

void frmCalExec::Form_Load()
{
    run([this] { draw(); });
}

void frmCalExec::followSharedState()
{
    draw();
}

void frmCalExec::refresh()
{
    enableMenus();
    m_ui->picPage->setMinimumSize(SurfaceView::paperPixels(m_paper));
    m_ui->picPage->refresh();
    const QString& name = m_varn.TotalFileName;
    const QString file = name.isEmpty() ? name : name + TotalFiles.ending;
    showTitle({FormTitle, m_varn.VarnMapName.mid(1), file});
    showStatus(status());
}

void frmCalExec::enableMenus()
{
    const bool hasTable = m_varn.NumWordforms > 0;
    for (QAction* entry : {m_ui->mnuItemNext, m_ui->mnuItemPrevious, m_ui->mnuDisplay, m_ui->mnuStatsExec}) {
        entry->setEnabled(hasTable);
    }
    m_ui->mnuDisplayNext->setEnabled(m_shown == Shown::Counts);
    m_ui->mnuDisplayPrevious->setEnabled(m_shown == Shown::Counts);
    m_ui->mnuStatsDisplay->setEnabled(hasStatistics(m_varn.CurrentWordform));
    m_ui->mnuStatsDisplayAll->setEnabled(m_varn.StatsWordforms > 0);
    m_ui->mnuStatsSave->setEnabled(hasTable && areCurrent(m_varn, m_varn, m_varn.NLocality));
}

QStringList frmCalExec::status() const
{
    QStringList parts;
    const int k = m_varn.CurrentWordform;
    if (m_shown == Shown::Counts) {
        parts
            << nameOfItem(k, m_varn)
            << QStringLiteral("Page %1 of %2").arg(m_page).arg(CountPages(m_varn, m_varn.NLocality).count());
    }
    if (m_shown == Shown::StatisticsOfOne) {
        parts << nameOfItem(k, m_varn)
              << QStringLiteral("Columns: count, localities with at least that, with exactly that");
    }
    if (m_shown == Shown::StatisticsOfOne || m_shown == Shown::StatisticsOfAll) {
        parts << QStringLiteral("Statistics of %1 items").arg(m_varn.StatsItems);
        if (!areCurrent(m_varn, m_varn, m_varn.NLocality)) {
            parts << QStringLiteral("The counts are others now");
        }
        return parts;
    }
    parts << (m_varn.NumWordforms == 0 ? QStringLiteral("No cumulative data: open it in Accumulate Data")
                                       : QStringLiteral("Counts of %1 word forms over %2 items")
                                             .arg(m_varn.NumWordforms)
                                             .arg(m_varn.NumItemsAccumulated));
    parts << (m_varn.ItemFileName.isEmpty() ? QStringLiteral("No linguistic file loaded")
                                            : QStringLiteral("Item: ") + m_varn.ItemFileName);
    return parts;
}

// The pages

void frmCalExec::clearPaper(const QSizeF& area)
{
    constexpr float Margin = 300;
    m_paper.Width = toSingle(area.width()) + 2 * Margin;
    m_paper.Height = toSingle(area.height()) + 2 * Margin;
    m_paper.ScaleLeft = -Margin;
    m_paper.ScaleTop = -Margin;
    m_paper.Cls();
}

bool frmCalExec::hasStatistics(int k) const
{
    return k <= m_varn.StatsWordforms;
}

void frmCalExec::draw()
{
    const int k = m_varn.CurrentWordform;
    const CountPages pages(m_varn, m_varn.NLocality);
    clearPaper(CountPages::area());
    if (m_shown == Shown::Counts && m_varn.NumWordforms > 0) {
        m_page = std::min(m_page, pages.count());
        pages.DisplaySum(k, m_page, m_paper);
    } else if (m_shown == Shown::StatisticsOfOne && hasStatistics(k)) {
        clearPaper(StatisticsPages::tableArea(m_varn.StatsItems));
        StatisticsPages(m_varn, m_varn, m_paper).DisplayStatsTable(k);
    } else if (m_shown == Shown::StatisticsOfAll && m_varn.StatsWordforms > 0) {
        drawStatisticsOfAll();
    } else if (m_shown == Shown::Uncounted) {
        const double height = ListLineHeight * static_cast<double>(m_uncounted.size());
        clearPaper({CountPages::area().width(), std::max(CountPages::area().height(), height)});
        m_paper.CurrentY = 0;
        for (const QString& line : m_uncounted) {
            m_paper.CurrentX = 0;
            m_paper.Print(line);
        }
    } else {
        m_shown = Shown::Nothing;
    }
}

void frmCalExec::drawStatisticsOfAll()
{
    clearPaper(StatisticsPages::overviewArea());
    for (int k = 1; k <= m_varn.StatsWordforms; ++k) {
        StatisticsPages(m_varn, m_varn, m_paper).DisplayStats(k);
    }
}

void frmCalExec::showCounts(int page)
{
    m_shown = Shown::Counts;
    m_page = page;
    draw();
    m_ui->scrPage->verticalScrollBar()->setValue(0);
}

void frmCalExec::mnuDisplay_Click()
{
    showCounts(1);
}

void frmCalExec::mnuDisplayNext_Click()
{
    showCounts(CountPages(m_varn, m_varn.NLocality).next(m_page));
}

void frmCalExec::mnuDisplayPrevious_Click()
{
    showCounts(CountPages(m_varn, m_varn.NLocality).previous(m_page));
}

void frmCalExec::mnuItemNext_Click()
{
    m_varn.CurrentWordform = m_varn.CurrentWordform < m_varn.NumWordforms ? m_varn.CurrentWordform + 1 : 1;
    showCounts(1);
}

void frmCalExec::mnuItemPrevious_Click()
{
    m_varn.CurrentWordform = m_varn.CurrentWordform > 1 ? m_varn.CurrentWordform - 1 : m_varn.NumWordforms;
    showCounts(1);
}
