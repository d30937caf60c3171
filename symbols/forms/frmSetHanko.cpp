#include "symbols/forms/frmSetHanko.h"

#include "platform/Numbers.h"
#include "platform/forms/ColorList.h"
#include "render/SymbolSample.h"
#include "render/SymbolShapes.h"
#include "render/forms/SymbolPicker.h"
#include "render/forms/WordDelegate.h"
#include "shell/VarnModule.h"
#include "symbols/forms/SymbolPreview.h"
#include "ui_frmSetHanko.h"

#include <QCloseEvent>
#include <QMouseEvent>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

namespace {

/// Size of `area` on a surface.
void fitSurface(DrawSurface& surface, QSize area)
{
    surface.Width = static_cast<float>(area.width() * TwipsPerPixel);
    surface.Height = static_cast<float>(area.height() * TwipsPerPixel);
}

int pixels(float twips)
{
    return static_cast<int>(std::ceil(twips / TwipsPerPixel));
}

/// The stored number of the list entry that is chosen; 0 where none is.
qint16 chosenNumber(const QComboBox& box)
{
    return static_cast<qint16>(std::max(box.currentIndex(), 0));
}

} // namespace

frmSetHanko::frmSetHanko(VarnModule& varn, Dialogs& dialogs)
    : VarnForm(dialogs), m_ui(std::make_unique<Ui::frmSetHanko>()), m_varn(varn), m_editor(varn),
      m_picker(new SymbolPicker(varn, varn, this))
{
    m_ui->setupUi(this);
    fillColorList(*m_ui->cboColor);
    fillColorList(*m_ui->cboBack);
    m_ui->cboSize->addItems({QStringLiteral("Small"), QStringLiteral("Normal"), QStringLiteral("Large")});
    m_ui->cboWidth->addItems({QStringLiteral("Thin"), QStringLiteral("Normal"), QStringLiteral("Thick")});

    m_ui->lstKindWord->setItemDelegate(new WordDelegate(varn, this));
    m_ui->picHanrei->setSurface(m_preview, SurfaceView::Fit::NaturalSize);
    m_ui->picHanrei->setPlaceholder(QStringLiteral("The registered records are shown here."));
    m_ui->picHanrei->setMinimumHeight(pixels(smallestPreviewHeight()));
    m_ui->picHanrei->installEventFilter(this);
    fitSurface(m_sample, m_ui->picSample->minimumSize());
    m_ui->picSample->setSurface(m_sample, SurfaceView::Fit::WholePaper);

    connectMenus();
    connectButtons();
    connectFields();
    connectHistory();
}

frmSetHanko::~frmSetHanko() = default;

void frmSetHanko::connectMenus()
{
    handle(m_ui->mnuInputWord, &QAction::triggered, &frmSetHanko::mnuInputWord_Click);
    handle(m_ui->mnuOpenHanko, &QAction::triggered, &frmSetHanko::mnuOpenHanko_Click);
    handle(m_ui->mnuSaveHanko, &QAction::triggered, &frmSetHanko::mnuSaveHanko_Click);
    handle(m_ui->mnuHankoInit, &QAction::triggered, &frmSetHanko::mnuHankoInit_Click);
    handle(m_ui->mnuLoadMap, &QAction::triggered, &frmSetHanko::mnuLoadMap_Click);
    handle(m_ui->mnuHankoReturn, &QAction::triggered, &frmSetHanko::mnuHankoReturn_Click);
}

void frmSetHanko::connectButtons()
{
    handle(m_ui->cmdWord, &QPushButton::clicked, &frmSetHanko::cmdWord_Click);
    handle(m_ui->lstKindWord, &QListWidget::itemActivated, &frmSetHanko::cmdWord_Click);
    handle(m_ui->cmdAutoHanrei, &QPushButton::clicked, &frmSetHanko::cmdAutoHanrei_Click);
    handle(m_ui->cmdSave, &QPushButton::clicked, &frmSetHanko::cmdSave_Click);
    handle(m_ui->cmdNext, &QPushButton::clicked, &frmSetHanko::cmdNext_Click);
    handle(m_ui->cmdBefore, &QPushButton::clicked, &frmSetHanko::cmdBefore_Click);
    handle(m_ui->cmdInserte, &QPushButton::clicked, &frmSetHanko::cmdInserte_Click);
    handle(m_ui->cmdDelete, &QPushButton::clicked, &frmSetHanko::cmdDelete_Click);
    handle(m_ui->cmdUp, &QToolButton::clicked, &frmSetHanko::cmdUp_Click);
    handle(m_ui->cmdDown, &QToolButton::clicked, &frmSetHanko::cmdDown_Click);
    handle(m_ui->cmdSymbol, &QPushButton::clicked, &frmSetHanko::cmdSymbol_Click);
    connect(m_picker, &SymbolPicker::symbolChosen, this,
            [this](int number) { m_ui->txtHankoNumber->setText(QString::number(number)); });
}

void frmSetHanko::connectFields()
{
    for (QLineEdit* box : {m_ui->txtExplain, m_ui->txtWord, m_ui->txtHanrei, m_ui->txtHankoNumber}) {
        handle(box, &QLineEdit::textChanged, &frmSetHanko::drawSample);
    }
    for (QComboBox* box : {m_ui->cboColor, m_ui->cboBack, m_ui->cboSize, m_ui->cboWidth}) {
        handle(box, &QComboBox::currentIndexChanged, &frmSetHanko::drawSample);
    }
    handle(m_ui->chkPat, &QCheckBox::toggled, &frmSetHanko::drawSample);
}

void frmSetHanko::Form_Load()
{
    run([this] { SetKindWord(); });
    run([this] {
        if (m_shownReading < 0 && m_varn.NHanrei == 0) {
            showStored(m_editor.start());
            m_shownReading = m_varn.HankoReading;
            m_history.restart(state());
            DisplayHanrei();
        }
        followSet();
    });
    QMetaObject::invokeMethod(
        this, [this] { run([this] { LoadGengoDataCheck(); }); }, Qt::QueuedConnection);
}

void frmSetHanko::followSet()
{
    if (m_shownReading == m_varn.HankoReading) {
        return;
    }
    showSet();
    m_savedForItem.clear();
    m_history.restart(state());
}

void frmSetHanko::showSet()
{
    m_shownReading = m_varn.HankoReading;
    showStored(m_editor.GetData());
    m_editor.DisplayHanreiData();
    DisplayHanrei();
}

HankoFields frmSetHanko::fields() const
{
    HankoFields held;
    held.Explain = m_ui->txtExplain->text();
    held.word = m_ui->txtWord->text();
    held.caption = m_ui->txtHanrei->text();
    held.number = m_ui->txtHankoNumber->text();
    held.style.LineColor = chosenNumber(*m_ui->cboColor);
    held.style.PaintColor = chosenNumber(*m_ui->cboBack);
    held.style.PaintOn = m_ui->chkPat->isChecked() ? 1 : 0;
    held.style.SymbolSize = chosenNumber(*m_ui->cboSize);
    held.style.LineThick = chosenNumber(*m_ui->cboWidth);
    return held;
}

void frmSetHanko::showFields(const HankoFields& fields)
{
    std::vector<std::unique_ptr<QSignalBlocker>> shownAtOnce;
    for (QWidget* control : std::initializer_list<QWidget*>{
             m_ui->txtExplain, m_ui->txtWord, m_ui->txtHanrei, m_ui->txtHankoNumber, m_ui->cboColor,
             m_ui->cboBack, m_ui->chkPat, m_ui->cboSize, m_ui->cboWidth}) {
        shownAtOnce.push_back(std::make_unique<QSignalBlocker>(control));
    }
    // A value that a list does not have is shown by choosing nothing.
    const auto choose = [](QComboBox& box, int number) {
        box.setCurrentIndex(number >= 0 && number < box.count() ? number : -1);
    };
    m_ui->txtExplain->setText(fields.Explain);
    m_ui->txtWord->setText(fields.word);
    m_ui->txtHanrei->setText(fields.caption);
    m_ui->txtHankoNumber->setText(fields.number);
    choose(*m_ui->cboColor, fields.style.LineColor);
    choose(*m_ui->cboBack, fields.style.PaintColor);
    m_ui->chkPat->setChecked(fields.style.PaintOn != 0);
    choose(*m_ui->cboSize, fields.style.SymbolSize);
    choose(*m_ui->cboWidth, fields.style.LineThick);
    drawSample();
}

void frmSetHanko::showStored(const HankoFields& fields)
{
    showFields(fields);
    m_stored = this->fields();
    m_orphaned = false;
}

void frmSetHanko::drawSample()
{
    m_sample.Cls();
    HankoStyle hanko = fields().style;
    const double number = Val(m_ui->txtHankoNumber->text());
    if (number >= 0 && number <= symbolCount(m_varn)) {
        hanko.HankoNo = toInteger(number);
        drawSymbol(hanko, m_varn, m_varn, m_sample);
    }
}

void frmSetHanko::DisplayHanrei()
{
    m_previewDrawn = false;
    const float end = ::DisplayHanrei(m_varn, m_editor.firstShown(), m_editor.lastShown(), m_preview);
    m_ui->picHanrei->setMinimumWidth(pixels(end));
    m_previewDrawn = true;
}

bool frmSetHanko::hasSet() const
{
    return m_varn.NHanrei > 0 || !m_varn.SymbolFileName.isEmpty();
}

void frmSetHanko::refresh()
{
    if (m_shownReading >= 0) {
        m_history.record(state());
    }
    showTitle({QStringLiteral("Set Symbols for Kinds"), m_varn.VarnMapName.mid(1), m_varn.ItemFileName,
               m_varn.SymbolFileName},
              isSymbolSetUnsaved(m_varn));
    m_ui->lblRec->setText(m_editor.counter());
    m_ui->cmdBefore->setEnabled(m_varn.CurrentHanko > 1);
    for (QAction* entry : {m_ui->mnuSaveHanko, m_ui->mnuHankoInit, m_ui->mnuLoadMap}) {
        entry->setEnabled(hasSet());
    }
    const QLineEdit* box = typingBox();
    m_ui->mnuUndo->setEnabled(m_history.canUndo());
    m_ui->mnuRedo->setEnabled(m_history.canRedo() || (box != nullptr && box->isRedoAvailable()));
    m_ui->picHanrei->refresh();
    m_ui->picSample->refresh();
    showStatus(status());
}

QStringList frmSetHanko::status() const
{
    QStringList parts;
    if (m_orphaned) {
        parts << QStringLiteral("The fields are no longer those of record %1").arg(m_varn.CurrentHanko);
    }
    if (m_varn.CurrentHanko == 0) {
        parts << QStringLiteral("Record 0 is outside the set: type a kind, then Next leads to record 1");
    } else if (isEdited()) {
        parts << QStringLiteral("Changes not registered");
    }
    parts << (m_varn.ItemFileName.isEmpty()
                  ? QStringLiteral("No linguistic file loaded")
                  : QStringLiteral("Item: %1 (%2 kinds)").arg(m_varn.Hanrei, QString::number(m_varn.NKind)));
    const QString name = m_varn.SymbolFileName.isEmpty() ? QStringLiteral("new set") : m_varn.SymbolFileName;
    QString set = QStringLiteral("Symbols: %1 (%2 %3)")
                      .arg(name, QString::number(m_varn.NHanrei),
                           m_varn.NHanrei == 1 ? QStringLiteral("record") : QStringLiteral("records"));
    if (isSymbolSetUnsaved(m_varn)) {
        set += QStringLiteral(", not saved");
    }
    parts << set;
    return parts;
}

void frmSetHanko::followSharedState()
{
    if (m_shownReading < 0) {
        return;
    }
    followSet();
    if (m_listedReading != m_varn.ItemReading) {
        SetKindWord();
    }
}

bool frmSetHanko::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        // The form's undo comes after the text box's own, so that it has the keys.
        const QKeySequence keys(static_cast<QKeyEvent*>(event)->keyCombination());
        return m_ui->mnuUndo->shortcuts().contains(keys) || m_ui->mnuRedo->shortcuts().contains(keys);
    }
    if (watched == m_ui->picHanrei && event->type() == QEvent::Resize) {
        fitSurface(m_preview, m_ui->picHanrei->size());
        if (m_previewDrawn) {
            run([this] { DisplayHanrei(); });
        }
    } else if (watched == m_ui->picHanrei && event->type() == QEvent::MouseButtonRelease) {
        const double y = static_cast<QMouseEvent*>(event)->position().y() * TwipsPerPixel;
        run([this, y] { showRecordAt(static_cast<float>(y)); });
    }
    return VarnForm::eventFilter(watched, event);
}

void frmSetHanko::closeEvent(QCloseEvent* event)
{
    event->setAccepted(mayGiveUpWork(QStringLiteral("Close the form all the same?")));
}

void frmSetHanko::showNewState()
{
    SetKindWord();
    VarnForm::showNewState();
}
