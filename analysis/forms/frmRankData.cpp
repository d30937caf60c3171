#include "analysis/forms/frmRankData.h"

#include "analysis/forms/ContrastPages.h"
#include "platform/Numbers.h"
#include "platform/forms/ColorList.h"
#include "render/forms/WordDelegate.h"
#include "ui_frmRankData.h"

#include <QCloseEvent>

namespace {

/// Makes `words` the entries of `list`; the row chosen stays chosen.
void showWords(QListWidget& list, const QStringList& words)
{
    QStringList shown;
    for (int row = 0; row < list.count(); ++row) {
        shown << list.item(row)->text();
    }
    if (shown == words) {
        return;
    }
    const int row = std::max(list.currentRow(), 0);
    list.clear();
    list.addItems(words);
    list.setCurrentRow(std::min<int>(row, list.count() - 1));
}

} // namespace

frmRankData::frmRankData(VarnModule& varn, Dialogs& dialogs)
    : VarnForm(dialogs), m_ui(std::make_unique<Ui::frmRankData>()), m_varn(varn), m_editor(varn, varn)
{
    constexpr float Margin = 240;
    m_ui->setupUi(this);
    m_paper.Width = toSingle(ContrastPages::area().width()) + 2 * Margin;
    m_paper.Height = toSingle(ContrastPages::area().height()) + 2 * Margin;
    m_paper.ScaleLeft = -Margin;
    m_paper.ScaleTop = -Margin;
    m_ui->picRank->setSurface(m_paper, SurfaceView::Fit::WholePaper);
    m_ui->picRank->setPlaceholder(
        QStringLiteral("After an analysis, Display Data shows the sums at each locality here."));
    for (int side = 1; side <= 2; ++side) {
        for (QComboBox* box : {&setColorBox(side), &fillColorBox(side)}) {
            fillColorList(*box);
            box->setCurrentIndex(-1);
        }
    }
    for (QListWidget* list : {m_ui->lstWordList, m_ui->lstData1, m_ui->lstData2}) {
        list->setItemDelegate(new WordDelegate(varn, list));
    }
    connectMenus();
    connectButtons();
}

frmRankData::~frmRankData() = default;

void frmRankData::connectMenus()
{
    handle(m_ui->mnuRankOpen, &QAction::triggered, &frmRankData::mnuRankOpen_Click);
    handle(m_ui->mnuRankSave, &QAction::triggered, &frmRankData::mnuRankSave_Click);
    handle(m_ui->mnuRankMap, &QAction::triggered, &frmRankData::mnuRankMap_Click);
    connect(m_ui->mnuRankReturn, &QAction::triggered, this, &frmRankData::toAnalysis);
    handle(m_ui->mnuDisplayRank, &QAction::triggered, &frmRankData::mnuDisplayRank_Click);
    handle(m_ui->mnuDisplayNext, &QAction::triggered, &frmRankData::mnuDisplayNext_Click);
    handle(m_ui->mnuDisplayPrevious, &QAction::triggered, &frmRankData::mnuDisplayPrevious_Click);
}

void frmRankData::connectButtons()
{
    handle(m_ui->cmdData1, &QPushButton::clicked, &frmRankData::cmdData1_Click);
    handle(m_ui->cmdData2, &QPushButton::clicked, &frmRankData::cmdData2_Click);
    handle(m_ui->cmdDel1, &QPushButton::clicked, &frmRankData::cmdDel1_Click);
    handle(m_ui->cmdDel2, &QPushButton::clicked, &frmRankData::cmdDel2_Click);
    handle(m_ui->cmdCalc, &QPushButton::clicked, &frmRankData::cmdCalc_Click);
    for (QLineEdit* box : {m_ui->txtRankTitle, m_ui->txtStep, m_ui->txtSize, m_ui->txtRankFileName}) {
        connect(box, &QLineEdit::textChanged, this, &frmRankData::showState);
    }
    for (int side = 1; side <= 2; ++side) {
        connect(&setColorBox(side), &QComboBox::currentIndexChanged, this, &frmRankData::showState);
        connect(&fillColorBox(side), &QComboBox::currentIndexChanged, this, &frmRankData::showState);
    }
}

void frmRankData::Form_Load()
{
    run([this] {
        if (!m_prepared) {
            const bool isNew = m_varn.ContrastSteps == 0 && m_varn.ContrastMaxSize == 0;
            showBoxes(isNew ? newContrastBoxes() : boxesOf(m_varn));
            m_saved.keep(settings());
            m_prepared = true;
        }
        followTable();
    });
}

void frmRankData::followTable()
{
    m_editor.followTable(m_varn.NLocality);
    showGroups();
}

void frmRankData::showGroups()
{
    showWords(*m_ui->lstWordList, wordformNames(m_varn));
    for (int side = 1; side <= 2; ++side) {
        showWords(groupList(side), m_editor.wordforms(side));
    }
}

void frmRankData::followSharedState()
{
    if (m_prepared) {
        followTable();
    }
}

void frmRankData::closeEvent(QCloseEvent* event)
{
    event->setAccepted(mayGiveUpWork(QStringLiteral("Close the form all the same?")));
}

void frmRankData::refresh()
{
    const bool analysed = m_varn.ContrastAnalysed;
    if (!analysed) {
        DisplayOff();
    }
    const int pages = ContrastPages(m_varn, QString()).count();
    m_ui->mnuRankMap->setEnabled(analysed);
    m_ui->mnuDisplay->setEnabled(analysed);
    m_ui->mnuDisplayRank->setEnabled(analysed);
    m_ui->mnuDisplayNext->setEnabled(m_page > 0 && m_page < pages);
    m_ui->mnuDisplayPrevious->setEnabled(m_page > 1);
    const bool hasTable = m_varn.NumWordforms > 0;
    m_ui->cmdData1->setEnabled(hasTable);
    m_ui->cmdData2->setEnabled(hasTable);
    m_ui->mnuRankOpen->setEnabled(hasTable);
    m_ui->cmdDel1->setEnabled(m_varn.ContrastCount(1) > 0);
    m_ui->cmdDel2->setEnabled(m_varn.ContrastCount(2) > 0);
    m_ui->cmdCalc->setEnabled(m_varn.ContrastCount(1) + m_varn.ContrastCount(2) > 0);
    m_ui->picRank->refresh();
    showState();
}

void frmRankData::showState()
{
    const QString name = m_ui->txtRankFileName->text().trimmed();
    showTitle({FormTitle, m_varn.VarnMapName.mid(1), name.isEmpty() ? name : name + ContrastFiles.ending},
              isEdited());

    QStringList parts;
    if (m_varn.NumWordforms == 0) {
        parts << QStringLiteral("No cumulative data: open it in the form Accumulate Data");
    } else {
        parts << QStringLiteral("Cumulative data: %1 word forms, %2 items")
                     .arg(m_varn.NumWordforms)
                     .arg(m_varn.NumItemsAccumulated);
        parts << (m_varn.ContrastAnalysed ? QStringLiteral("Analysed") : QStringLiteral("Not analysed yet"));
    }
    if (m_page > 0) {
        parts << QStringLiteral("Page %1 of %2").arg(m_page).arg(ContrastPages(m_varn, QString()).count());
    }
    showStatus(parts);
}

QListWidget& frmRankData::groupList(int side) const
{
    return side == 1 ? *m_ui->lstData1 : *m_ui->lstData2;
}

// The boxes

QComboBox& frmRankData::setColorBox(int side) const
{
    return side == 1 ? *m_ui->txtSetColor1 : *m_ui->txtSetColor2;
}

QComboBox& frmRankData::fillColorBox(int side) const
{
    return side == 1 ? *m_ui->txtFillColor1 : *m_ui->txtFillColor2;
}

ContrastBoxes frmRankData::boxes() const
{
    ContrastBoxes held;
    held.title = m_ui->txtRankTitle->text();
    held.steps = m_ui->txtStep->text();
    held.size = m_ui->txtSize->text();
    for (int side = 1; side <= 2; ++side) {
        held.setColor(side) = setColorBox(side).currentIndex();
        held.fillColor(side) = fillColorBox(side).currentIndex();
    }
    return held;
}

ContrastSettings frmRankData::settings() const
{
    return settingsOf(boxes(), m_varn);
}

void frmRankData::showBoxes(const ContrastBoxes& boxes)
{
    m_ui->txtRankTitle->setText(boxes.title);
    m_ui->txtStep->setText(boxes.steps);
    m_ui->txtSize->setText(boxes.size);
    for (int side = 1; side <= 2; ++side) {
        setColorBox(side).setCurrentIndex(boxes.setColor(side));
        fillColorBox(side).setCurrentIndex(boxes.fillColor(side));
    }
}

void frmRankData::SetRankData()
{
    ContrastBoxes held = boxes();
    ::SetRankData(held, m_varn);
    showBoxes(held);
}
