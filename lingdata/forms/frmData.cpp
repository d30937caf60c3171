#include "lingdata/forms/frmData.h"

#include "lingdata/ItemLoader.h"
#include "lingdata/LinguisticFile.h"
#include "platform/FileKind.h"
#include "platform/Numbers.h"
#include "shell/Printing.h"
#include "ui_frmData.h"

#include <QScrollBar>

#include <utility>

namespace {

/// Paper with a margin around the area of a page.
DrawSurface paperFor(const QSizeF& area)
{
    constexpr float Margin = 300;
    DrawSurface paper;
    paper.Width = toSingle(area.width()) + 2 * Margin;
    paper.Height = toSingle(area.height()) + 2 * Margin;
    paper.ScaleLeft = -Margin;
    paper.ScaleTop = -Margin;
    return paper;
}

} // namespace

frmData::frmData(VarnModule& varn, Dialogs& dialogs)
    : VarnForm(dialogs), m_ui(std::make_unique<Ui::frmData>()), m_varn(varn),
      m_paper(paperFor(printedArea(varn)))
{
    m_ui->setupUi(this);
    m_ui->picPage->setSurface(m_paper, SurfaceView::Fit::NaturalSize);
    m_ui->picPage->setPlaceholder(QStringLiteral("File - Open shows the word forms of a survey item here."));
    m_ui->picPage->resize(SurfaceView::paperPixels(m_paper));
    const auto click = [this](QAction* action, void (frmData::*handler)()) {
        handle(action, &QAction::triggered, handler);
    };
    click(m_ui->mnuOpen, &frmData::mnuOpen_Click);
    click(m_ui->mnuSave, &frmData::mnuSave_Click);
    click(m_ui->mnuPrint, &frmData::mnuPrint_Click);
    click(m_ui->mnuData, &frmData::mnuData_Click);
    click(m_ui->mnuKind, &frmData::mnuKind_Click);
    click(m_ui->mnuNextPage, &frmData::mnuNextPage_Click);
    click(m_ui->mnuPreviousPage, &frmData::mnuPreviousPage_Click);
    click(m_ui->mnuPageNo, &frmData::mnuPageNo_Click);
    connect(m_ui->mnuToMain, &QAction::triggered, this, &frmData::toMain);
    enableMenus();
}

frmData::~frmData() = default;

void frmData::Form_Load()
{
    run([this] {
        if (!m_varn.ItemFileName.isEmpty()) {
            displayList(List::Data);
        }
    });
}

void frmData::followSharedState()
{
    if (m_shownReading == m_varn.ItemReading) {
        return;
    }
    if (m_varn.ItemFileName.isEmpty()) {
        displayNothing();
    } else {
        displayList(m_list);
    }
}

void frmData::refresh()
{
    m_ui->picPage->refresh();
    enableMenus();
    showWhatIsShown();
}

void frmData::enableMenus()
{
    const bool loaded = !m_varn.ItemFileName.isEmpty();
    const bool shown = m_pages.has_value();
    m_ui->mnuSave->setEnabled(loaded);
    m_ui->mnuData->setEnabled(loaded);
    m_ui->mnuKind->setEnabled(loaded);
    m_ui->mnuPrint->setEnabled(shown);
    m_ui->mnuNextPage->setEnabled(shown && m_page < m_pages->count());
    m_ui->mnuPreviousPage->setEnabled(shown && m_page > 1);
    m_ui->mnuPageNo->setEnabled(shown);
}

void frmData::showWhatIsShown()
{
    QStringList title = {QStringLiteral("VARN Display Data"), m_varn.VarnMapName.mid(1)};
    QStringList status;
    if (m_pages) {
        const bool isData = m_list == List::Data;
        title << m_pages->list().fileName << (isData ? QStringLiteral("Data") : QStringLiteral("Kinds"));
        status << QStringLiteral("Page %1 of %2").arg(m_page).arg(m_pages->count())
               << (isData ? QStringLiteral("Word forms: %1") : QStringLiteral("Kinds of word forms: %1"))
                      .arg(m_pages->list().lines.size());
    }
    showTitle(title);
    showStatus(status);
}

void frmData::displayList(List list)
{
    const WaitCursor wait;
    DataPages pages(m_varn, list == List::Data ? dataList(m_varn, m_varn) : kindList(m_varn));
    displayPage(pages, 1);
    m_pages.emplace(std::move(pages));
    m_list = list;
    m_shownReading = m_varn.ItemReading;
}

void frmData::displayNothing()
{
    m_pages.reset();
    m_page = 0;
    m_paper.Cls();
    m_shownReading = m_varn.ItemReading;
}

void frmData::displayPage(const DataPages& pages, int page)
{
    DrawSurface paper = paperFor(pages.area());
    pages.draw(page, paper);
    m_paper = std::move(paper);
    m_page = page;
    m_ui->picPage->resize(SurfaceView::paperPixels(m_paper));
    m_ui->scrPage->verticalScrollBar()->setValue(0);
}

void frmData::turnTo(int page)
{
    if (m_pages && page >= 1 && page <= m_pages->count()) {
        displayPage(*m_pages, page);
    }
}

void frmData::mnuOpen_Click()
{
    const auto path = askToOpen(dialogs(), m_varn.Drive, m_varn.dataFolder(),
                                QStringLiteral("Load Linguistic File"), ItemFiles.filter());
    if (!path) {
        return;
    }
    const WaitCursor wait;
    LoadWordData(m_varn, *path, m_varn, m_varn, dialogs());
    Q_EMIT itemLoaded();
    displayList(List::Data);
}

void frmData::mnuSave_Click()
{
    FileWordData(m_varn, m_varn.KindsPath, m_varn);
    displayList(List::Kinds);
}

void frmData::mnuPrint_Click()
{
    const QString title = QStringLiteral("Print");
    if (!m_varn.PrinterConnected) {
        dialogs().message(
            QStringLiteral("Printer is not connected. Please connect the printer in the Main Form."), title);
        return;
    }
    if (!dialogs().askYesNo(QStringLiteral("Print ?"), title)) {
        return;
    }
    const WaitCursor wait;
    beginDocument(m_varn, m_varn, m_pages->list().fileName);
    // Laid out on the paper of this document, which may be another than that of the pages shown.
    const DataPages pages(m_varn, m_pages->list());
    for (int page = 1; page <= pages.count(); ++page) {
        if (page > 1) {
            newPage(m_varn);
        }
        pages.draw(page, m_varn.Printer);
    }
    endDocument(m_varn);
}

void frmData::mnuData_Click()
{
    displayList(List::Data);
}

void frmData::mnuKind_Click()
{
    displayList(List::Kinds);
}

void frmData::mnuNextPage_Click()
{
    turnTo(m_page + 1);
}

void frmData::mnuPreviousPage_Click()
{
    turnTo(m_page - 1);
}

void frmData::mnuPageNo_Click()
{
    const QString title = QStringLiteral("Display Data");
    const auto answer = dialogs().input(QStringLiteral("Specify Page No."), title, QString::number(m_page));
    if (!answer) {
        return;
    }
    bool isNumber = false;
    const int page = answer->trimmed().toInt(&isNumber);
    if (!isNumber || page < 1 || page > m_pages->count()) {
        dialogs().message(QStringLiteral("Page No. must be a number from 1 to %1.").arg(m_pages->count()),
                          title);
        return;
    }
    turnTo(page);
}

void frmData::showNewState()
{
    m_pages.reset();
    m_page = 0;
    m_paper.Cls();
    refresh();
}
