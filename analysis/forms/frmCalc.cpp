#include "analysis/forms/frmCalc.h"

#include "analysis/AnalysisFileName.h"
#include "analysis/CumulativeFile.h"
#include "platform/forms/ColorList.h"
#include "platform/forms/ThemeColors.h"
#include "render/forms/WordDelegate.h"
#include "shell/VarnModule.h"
#include "ui_frmCalc.h"

#include <QCloseEvent>
#include <QSignalBlocker>

namespace {

const QString FormTitle = QStringLiteral("Accumulate Data");

/// Makes `entries` the entries of `list`, the one in `row` chosen.
void fillList(QListWidget& list, const QStringList& entries, int row)
{
    const QSignalBlocker blocker(list);
    list.clear();
    list.addItems(entries);
    list.setCurrentRow(row);
}

/// Shows `text` in `box`; the cursor stays where it is if the text does.
void showText(QLineEdit& box, const QString& text)
{
    if (box.text() != text) {
        box.setText(text);
    }
}

/// The entry that stands for colour `number`; -1 for a number that is none.
int colorEntry(const QComboBox& box, int number)
{
    return number >= 0 && number < box.count() ? number : -1;
}

} // namespace

frmCalc::frmCalc(VarnModule& varn, Dialogs& dialogs)
    : VarnForm(dialogs), m_ui(std::make_unique<Ui::frmCalc>()), m_varn(varn)
{
    m_ui->setupUi(this);
    fillColorList(*m_ui->cboForeColor);
    fillColorList(*m_ui->cboFillColor);
    for (QListWidget* list : {m_ui->lstTotal, m_ui->lstDisplay}) {
        list->setItemDelegate(new WordDelegate(varn, list));
    }
    m_ui->fraChars->edit(varn, dialogs, *this);
    showAsReadOnly(*m_ui->txtWordFileName);
    connectMenus();
    connectButtons();
    connectFields();
}

frmCalc::~frmCalc() = default;

void frmCalc::connectMenus()
{
    const auto click = [this](QAction* action, void (frmCalc::*handler)()) {
        handle(action, &QAction::triggered, handler);
    };
    click(m_ui->mnuFileOpen, &frmCalc::mnuFileOpen_Click);
    click(m_ui->mnuFileSave, &frmCalc::mnuFileSave_Click);
    click(m_ui->mnuGengoOpen, &frmCalc::mnuGengoOpen_Click);
    click(m_ui->mnuSetFileLoad, &frmCalc::mnuSetFileLoad_Click);
    click(m_ui->mnuInitialize, &frmCalc::mnuInitialize_Click);
    connect(m_ui->mnuTotalForm, &QAction::triggered, this, &frmCalc::toExecute);
    connect(m_ui->mnuMap, &QAction::triggered, this, &frmCalc::toDrawMap);
    connect(m_ui->mnuFileReturn, &QAction::triggered, this, &frmCalc::toMain);
    connect(m_ui->mnuRankExe, &QAction::triggered, this, &frmCalc::toContrast);
}

void frmCalc::connectButtons()
{
    const auto click = [this](QPushButton* button, void (frmCalc::*handler)()) {
        handle(button, &QPushButton::clicked, handler);
    };
    click(m_ui->cmdTotalNumber, &frmCalc::cmdTotalNumber_Click);
    click(m_ui->cmdSetInput, &frmCalc::cmdSetInput_Click);
    click(m_ui->cmdTotalFileSave, &frmCalc::cmdTotalFileSave_Click);
    click(m_ui->cmdNext, &frmCalc::cmdNext_Click);
    click(m_ui->cmdPrevious, &frmCalc::cmdPrevious_Click);
    click(m_ui->cmdSet, &frmCalc::cmdSet_Click);
    click(m_ui->cmdSetWord, &frmCalc::cmdSetWord_Click);
}

void frmCalc::connectFields()
{
    handle(m_ui->lstDisplay, &QListWidget::currentRowChanged, &frmCalc::lstDisplay_Click);
    handle(m_ui->lstDisplay, &QListWidget::itemActivated, &frmCalc::cmdSetWord_Click);
    // A question is asked only when the click on the list is over.
    connect(
        m_ui->lstTotal, &QListWidget::currentRowChanged, this,
        [this](int row) { run([this, row] { lstTotal_Click(row); }); }, Qt::QueuedConnection);
    connect(m_ui->txtExplain, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_varn.MapCaption = text;
        showState();
    });
    handle(m_ui->txtTotalFileName, &QLineEdit::textChanged, &frmCalc::takeFileName);
    connect(m_ui->txtTotalName, &QLineEdit::textChanged, this, &frmCalc::showState);
    for (const QComboBox* box : {m_ui->cboForeColor, m_ui->cboFillColor}) {
        connect(box, &QComboBox::currentIndexChanged, this, &frmCalc::showState);
    }
}

void frmCalc::Form_Load()
{
    run([this] {
        if (!m_prepared) {
            m_prepared = true;
            showTable();
            m_ui->fraChars->showFile();
        }
        followSharedState();
        SetKindWord();
    });
}

void frmCalc::followSharedState()
{
    if (!m_prepared) {
        return;
    }
    if (m_shownItems != m_varn.NumItemsAccumulated) {
        SetTotal();
    }
    showText(*m_ui->txtTotalFileName, m_varn.TotalFileName);
    if (m_shownWordform != m_varn.CurrentWordform && isEdited()) {
        m_varn.CurrentWordform = m_shownWordform; // what is typed here belongs to this word form
    } else if (m_shownWordform != m_varn.CurrentWordform) {
        TotalSet(m_varn.CurrentWordform);
    }
    if (m_listedReading != m_varn.ItemReading) {
        SetKindWord();
    }
}

void frmCalc::closeEvent(QCloseEvent* event)
{
    const QString question = QStringLiteral("Close the form all the same?");
    event->setAccepted(mayGiveUpFields(question) && mayGiveUpTable(question) && mayGiveUpStrings(question));
}

// What is shown

void frmCalc::SetTotal()
{
    m_shownItems = m_varn.NumItemsAccumulated;
    m_ui->txtTotalItems->setText(QString::number(m_shownItems));
    showText(*m_ui->txtExplain, m_varn.MapCaption);
}

void frmCalc::TotalDataSpecified()
{
    m_ui->lblTotal->setText(
        m_varn.NumWordforms == 0
            ? QStringLiteral("No wordforms")
            : QStringLiteral("Wordform %1 of %2").arg(m_varn.CurrentWordform).arg(m_varn.NumWordforms));
}

void frmCalc::TotalSet(int k)
{
    m_varn.CurrentWordform = k;
    m_shownWordform = k;
    m_ui->txtTotalName->setText(m_varn.WordformName(k));
    m_ui->cboForeColor->setCurrentIndex(colorEntry(*m_ui->cboForeColor, m_varn.WordformSymbolColor(k)));
    m_ui->cboFillColor->setCurrentIndex(colorEntry(*m_ui->cboFillColor, m_varn.WordformPaintColor(k)));
    m_stored = fields();
    SetTotal();
    TotalDataSpecified();
    SetTotalList();
    m_ui->fraChars->showWordform();
}

void frmCalc::SetTotalList()
{
    QStringList entries;
    int k = 0;
    for (const QString& name : wordformNames(m_varn)) {
        entries << QString::number(++k) + QLatin1Char(' ') + name;
    }
    fillList(*m_ui->lstTotal, entries, m_varn.NumWordforms > 0 ? m_varn.CurrentWordform - 1 : -1);
}

void frmCalc::SetKindWord()
{
    m_listedReading = m_varn.ItemReading;
    m_ui->txtWordFileName->setText(m_varn.ItemFileName);
    QStringList entries;
    for (int w = 1; w <= m_varn.NKind; ++w) {
        entries << QString::number(w) + QLatin1Char(' ') + m_varn.KindWord(w);
    }
    fillList(*m_ui->lstDisplay, entries, 0);
    lstDisplay_Click();
}

void frmCalc::showTable()
{
    m_ui->txtTotalNumber->setText(m_varn.NumWordforms == 0 ? QString()
                                                           : QString::number(m_varn.NumWordforms));
    showText(*m_ui->txtTotalFileName, m_varn.TotalFileName);
    TotalSet(m_varn.CurrentWordform);
}

frmCalc::WordformFields frmCalc::fields() const
{
    return {m_ui->txtTotalName->text(), m_ui->cboForeColor->currentIndex(),
            m_ui->cboFillColor->currentIndex()};
}

void frmCalc::refresh()
{
    const int k = m_varn.CurrentWordform;
    const bool hasWordforms = m_varn.NumWordforms > 0;
    for (QWidget* control : std::initializer_list<QWidget*>{
             m_ui->lstTotal, m_ui->txtTotalName, m_ui->cboForeColor, m_ui->cboFillColor, m_ui->cmdSet}) {
        control->setEnabled(hasWordforms);
    }
    m_ui->cmdPrevious->setEnabled(hasWordforms && k > 1);
    m_ui->cmdNext->setEnabled(k < m_varn.NumWordforms);
    m_ui->cmdSetWord->setEnabled(hasWordforms && m_varn.NKind > 0);
    m_ui->fraChars->refresh();
    showState();
}

void frmCalc::showState()
{
    const QString& name = m_varn.TotalFileName;
    const QString file = name.isEmpty() ? name : name + TotalFiles.ending;
    showTitle({FormTitle, m_varn.VarnMapName.mid(1), file},
              isTableUnsaved(m_varn) || areCharsUnsaved(m_varn) || isEdited());
    showStatus(status());
}

QStringList frmCalc::status() const
{
    QStringList parts;
    if (m_varn.NumWordforms == 0) {
        parts << QStringLiteral("Open a cumulative file, or type the number of word forms and press O.K.");
    } else {
        parts << QStringLiteral("Counts of %1 word forms over %2 items%3")
                     .arg(m_varn.NumWordforms)
                     .arg(m_varn.NumItemsAccumulated)
                     .arg(isTableUnsaved(m_varn) ? QStringLiteral(", not saved") : QString());
        const QString file = analysisFileStem(m_varn.SpecifyFileName, StringFiles);
        parts << QStringLiteral("Strings: %1%2")
                     .arg(file.isEmpty() ? QStringLiteral("no file") : file + StringFiles.ending,
                          areCharsUnsaved(m_varn) ? QStringLiteral(", not saved") : QString());
    }
    if (isEdited()) {
        parts << QStringLiteral("Changes not registered");
    }
    return parts;
}

void frmCalc::showNewState()
{
    if (m_prepared) {
        showTable();
        m_ui->fraChars->showFile();
        SetKindWord();
    }
    VarnForm::showNewState();
}
