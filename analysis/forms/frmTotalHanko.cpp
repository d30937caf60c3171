#include "analysis/forms/frmTotalHanko.h"

#include "analysis/DiffusionEditor.h"
#include "analysis/forms/DiffusionPreview.h"
#include "platform/Numbers.h"
#include "platform/forms/ColorList.h"
#include "render/SymbolSample.h"
#include "render/SymbolShapes.h"
#include "render/forms/SymbolPicker.h"
#include "render/forms/WordDelegate.h"
#include "ui_frmTotalHanko.h"

#include <QCloseEvent>
#include <QIntValidator>
#include <QScopeGuard>

#include <algorithm>
#include <limits>

namespace {

void fitSurface(DrawSurface& surface, QSize area)
{
    surface.Width = static_cast<float>(area.width() * TwipsPerPixel);
    surface.Height = static_cast<float>(area.height() * TwipsPerPixel);
}

/// Shows `text`; the cursor stays where that is shown already.
void showText(QLineEdit& box, const QString& text)
{
    if (box.text() != text) {
        box.setText(text);
    }
}

/// Chooses the entry of that number; none where the list has no such entry.
void choose(QComboBox& box, int number)
{
    box.setCurrentIndex(number >= 0 && number < box.count() ? number : -1);
}

} // namespace

frmTotalHanko::frmTotalHanko(VarnModule& varn, Dialogs& dialogs)
    : VarnForm(dialogs), m_ui(std::make_unique<Ui::frmTotalHanko>()), m_varn(varn),
      m_picker(new SymbolPicker(varn, varn, this))
{
    constexpr float BlockMargin = 120;
    m_ui->setupUi(this);
    fillColorList(*m_ui->cboColor);
    fillColorList(*m_ui->cboBack);
    m_ui->cboSize->addItems({QStringLiteral("Small"), QStringLiteral("Normal"), QStringLiteral("Large")});
    m_ui->cboWidth->addItems({QStringLiteral("Thin"), QStringLiteral("Normal"), QStringLiteral("Thick")});
    const int most = std::numeric_limits<qint16>::max();
    m_ui->txtHankoNumber->setValidator(new QIntValidator(0, most, this));
    m_ui->txtMinimum->setValidator(new QIntValidator(0, most, this));
    m_ui->lstWordform->setItemDelegate(new WordDelegate(varn, this));

    m_ui->picHanko->setSurface(m_preview, SurfaceView::Fit::NaturalSize);
    m_ui->picHanko->setPlaceholder(QStringLiteral("The symbols of the word forms are shown here."));
    m_ui->picHanko->setMinimumHeight(static_cast<int>(diffusionPreviewHeight() / TwipsPerPixel));
    m_ui->picHanko->installEventFilter(this);
    fitSurface(m_sample, m_ui->picSample->minimumSize());
    m_ui->picSample->setSurface(m_sample, SurfaceView::Fit::WholePaper);
    m_block.ScaleLeft = -BlockMargin;
    m_block.ScaleTop = -BlockMargin;
    m_ui->picStatistics->setSurface(m_block, SurfaceView::Fit::NaturalSize);
    m_ui->picStatistics->setPlaceholder(
        QStringLiteral("Statistics shows the figures of the word form here."));
    m_ui->picStatistics->installEventFilter(this);
    connectControls();
    connectFields();
}

frmTotalHanko::~frmTotalHanko() = default;

void frmTotalHanko::connectControls()
{
    handle(m_ui->mnuTotalHankoOpen, &QAction::triggered, &frmTotalHanko::mnuTotalHankoOpen_Click);
    handle(m_ui->mnuTotalHankoSave, &QAction::triggered, &frmTotalHanko::mnuTotalHankoSave_Click);
    connect(m_ui->mnuTotalHankoMap, &QAction::triggered, this, &frmTotalHanko::toDrawMap);
    connect(m_ui->mnuTotalHankoReturn, &QAction::triggered, this, &frmTotalHanko::toAnalysis);
    handle(m_ui->cmdBefore, &QPushButton::clicked, &frmTotalHanko::cmdBefore_Click);
    handle(m_ui->cmdNext, &QPushButton::clicked, &frmTotalHanko::cmdNext_Click);
    handle(m_ui->cmdSymbol, &QPushButton::clicked, &frmTotalHanko::cmdSymbol_Click);
    handle(m_ui->cmdStatistics, &QPushButton::clicked, &frmTotalHanko::cmdStatistics_Click);
    handle(m_ui->lstWordform, &QListWidget::currentRowChanged, &frmTotalHanko::lstWordform_Click);
    connect(m_picker, &SymbolPicker::symbolChosen, this,
            [this](int number) { m_ui->txtHankoNumber->setText(QString::number(number)); });
}

void frmTotalHanko::connectFields()
{
    connect(m_ui->txtExplain, &QLineEdit::textChanged, this,
            [this](const QString& text) { edit([&] { m_varn.DiffusionComment = text; }); });
    connect(m_ui->txtHanrei, &QLineEdit::textChanged, this,
            [this](const QString& text) { edit([&] { m_varn.DiffusionCaption(m_wordform) = text; }); });
    connect(m_ui->txtFileName, &QLineEdit::textChanged, this, &frmTotalHanko::showState);
    connect(m_ui->chkPat, &QCheckBox::toggled, this,
            [this](bool painted) { edit([&] { hanko().PaintOn = painted ? 1 : 0; }); });
    storeNumber(m_ui->txtHankoNumber, &frmTotalHanko::hankoNumber);
    storeNumber(m_ui->txtMinimum, &frmTotalHanko::minimumPoints);
    storeChoice(m_ui->cboColor, &HankoStyle::LineColor);
    storeChoice(m_ui->cboBack, &HankoStyle::PaintColor);
    storeChoice(m_ui->cboSize, &HankoStyle::SymbolSize);
    storeChoice(m_ui->cboWidth, &HankoStyle::LineThick);
}

void frmTotalHanko::storeChoice(QComboBox* box, qint16 HankoStyle::*member)
{
    connect(box, &QComboBox::currentIndexChanged, this,
            [this, member](int number) { edit([&] { hanko().*member = static_cast<qint16>(number); }); });
}

void frmTotalHanko::storeNumber(QLineEdit* box, qint16& (frmTotalHanko::*stored)())
{
    connect(box, &QLineEdit::textChanged, this,
            [this, stored](const QString& text) { edit([&] { (this->*stored)() = toInteger(Val(text)); }); });
}

void frmTotalHanko::edit(const std::function<void()>& store)
{
    if (!m_showing && m_wordform > 0) {
        run([&] {
            store();
            drawSymbols();
        });
    }
}

HankoStyle& frmTotalHanko::hanko()
{
    return m_varn.DiffusionHanko(m_wordform);
}

qint16& frmTotalHanko::minimumPoints()
{
    return m_varn.MinimumPoints(m_wordform);
}

void frmTotalHanko::Form_Load()
{
    run([this] {
        const bool isFirst = !m_prepared;
        m_prepared = true;
        m_block.Cls();
        followTable();
        if (isFirst) {
            m_saved.keep(m_varn);
        }
    });
}

void frmTotalHanko::followTable()
{
    const bool wasEdited = isEdited();
    const bool isOther = m_names != wordformNames(m_varn);
    followWordforms(m_varn, m_names, m_varn);
    m_names = wordformNames(m_varn);
    if (!wasEdited) {
        m_saved.keep(m_varn);
    }
    m_wordform = std::clamp(m_wordform, std::min(1, m_varn.NumWordforms), m_varn.NumWordforms);
    if (isOther) {
        m_block.Cls();
    }
    showList();
    showWordform();
}

void frmTotalHanko::followSharedState()
{
    if (m_prepared) {
        followTable();
    }
}

bool frmTotalHanko::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize) {
        fitSurface(m_preview, m_ui->picHanko->size());
        fitSurface(m_block, m_ui->picStatistics->size());
        if (watched == m_ui->picHanko) {
            run([this] { drawSymbols(); });
        }
    }
    return VarnForm::eventFilter(watched, event);
}

void frmTotalHanko::closeEvent(QCloseEvent* event)
{
    event->setAccepted(mayGiveUpWork(QStringLiteral("Close the form all the same?")));
}

void frmTotalHanko::refresh()
{
    const bool hasTable = m_wordform > 0;
    for (QWidget* part : {static_cast<QWidget*>(m_ui->fraRecord), static_cast<QWidget*>(m_ui->txtExplain),
                          static_cast<QWidget*>(m_ui->cmdStatistics)}) {
        part->setEnabled(hasTable);
    }
    for (QAction* entry : {m_ui->mnuTotalHankoOpen, m_ui->mnuTotalHankoSave, m_ui->mnuTotalHankoMap}) {
        entry->setEnabled(hasTable);
    }
    m_ui->cmdBefore->setEnabled(m_wordform > 1);
    m_ui->cmdNext->setEnabled(m_wordform < m_varn.NumWordforms);
    m_ui->picHanko->refresh();
    m_ui->picSample->refresh();
    m_ui->picStatistics->refresh();
    showState();
}

void frmTotalHanko::showState()
{
    const QString name = m_ui->txtFileName->text().trimmed();
    showTitle(
        {FormTitle, m_varn.VarnMapName.mid(1), name.isEmpty() ? name : name + DiffusionSymbolFiles.ending},
        isEdited());
    if (m_wordform == 0) {
        showStatus({QStringLiteral("No cumulative data: open it in the form Accumulate Data")});
        return;
    }
    showStatus(
        {QStringLiteral("Word form %1 of %2").arg(m_wordform).arg(m_varn.NumWordforms),
         QStringLiteral("%1 items, %2 localities").arg(m_varn.NumItemsAccumulated).arg(m_varn.NLocality),
         isEdited() ? QStringLiteral("Not saved") : QString()});
}

void frmTotalHanko::showList()
{
    const auto shown = qScopeGuard([this, was = m_showing] { m_showing = was; });
    m_showing = true;
    m_ui->lstWordform->clear();
    m_ui->lstWordform->addItems(m_names);
    m_ui->lstWordform->setCurrentRow(m_wordform - 1);
}

void frmTotalHanko::showWordform()
{
    const auto shown = qScopeGuard([this, was = m_showing] { m_showing = was; });
    m_showing = true;
    showText(*m_ui->txtExplain, m_varn.DiffusionComment);
    if (m_wordform > 0) {
        m_ui->fraRecord->setTitle(QStringLiteral("Word form %1/%2").arg(m_wordform).arg(m_varn.NumWordforms));
        showText(*m_ui->txtHanrei, m_varn.DiffusionCaption(m_wordform));
        showText(*m_ui->txtHankoNumber, QString::number(hanko().HankoNo));
        showText(*m_ui->txtMinimum, QString::number(minimumPoints()));
        m_ui->chkPat->setChecked(hanko().PaintOn != 0);
        choose(*m_ui->cboColor, hanko().LineColor);
        choose(*m_ui->cboBack, hanko().PaintColor);
        choose(*m_ui->cboSize, hanko().SymbolSize);
        choose(*m_ui->cboWidth, hanko().LineThick);
    }
    drawSymbols();
}

void frmTotalHanko::drawSymbols()
{
    drawDiffusionPreview(m_varn, m_wordform, m_preview);
    m_sample.Cls();
    if (m_wordform > 0) {
        drawSymbol(hanko(), m_varn, m_varn, m_sample);
    }
}
