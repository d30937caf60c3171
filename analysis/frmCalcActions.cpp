// What the buttons and menu entries of the set-up form of cumulative analysis do.

#include "analysis/AnalysisFileName.h"
#include "analysis/CumulativeFile.h"
#include "analysis/OpenTotal.h"
#include "analysis/frmCalc.h"
#include "lingdata/ItemLoader.h"
#include "platform/Numbers.h"
#include "shell/VarnModule.h"
#include "ui_frmCalc.h"

#include <algorithm>

namespace {

const QString FormTitle = QStringLiteral("Accumulate Data");

/// The word forms whose strings a file of identifying strings cannot hold; empty where it holds all.
QString wordformsWithoutLine(const CumulativeData& data)
{
    constexpr int MostStrings = 10;
    QStringList names;
    for (int k = 1; k <= data.NumWordforms; ++k) {
        const int strings = data.NumSpecifyChars(k);
        if (strings < 1 || strings > MostStrings) {
            names << QStringLiteral("%1 %2 (%3 strings)")
                         .arg(QString::number(k), data.WordformName(k), QString::number(strings));
        }
    }
    return names.join(QLatin1Char('\n'));
}

} // namespace

// The number of word forms and of items

void frmCalc::cmdTotalNumber_Click()
{
    const qint16 number = toInteger(Val(m_ui->txtTotalNumber->text()));
    if (number == 0) {
        dialogs().message(QStringLiteral("No. of Specify Data is inadequate."), FormTitle);
        return;
    }
    if (mayGiveUpFields(QStringLiteral("Show the first word form without them?"))) {
        changeNumWordforms(number, state(), dialogs());
        showTable();
    }
}

void frmCalc::cmdSetInput_Click()
{
    const qint16 items = toInteger(Val(m_ui->txtTotalItems->text()));
    if (items < 0) {
        dialogs().message(QStringLiteral("No. of Items Accumulated must not be negative."), FormTitle);
        return;
    }
    m_varn.NumItemsAccumulated = items;
    SetTotal();
}

// The word forms

bool frmCalc::mayGiveUpFields(const QString& question)
{
    return !isEdited() ||
           dialogs().confirmLoss(
               QStringLiteral("Name or colors of word form %1 are changed and not registered. ")
                       .arg(m_shownWordform) +
                   question,
               FormTitle);
}

void frmCalc::moveTo(int k)
{
    if (k < 1 || k > m_varn.NumWordforms) {
        return;
    }
    if (mayGiveUpFields(QStringLiteral("Leave it without them?"))) {
        TotalSet(k);
    } else {
        SetTotalList();
    }
}

void frmCalc::cmdNext_Click()
{
    moveTo(m_varn.CurrentWordform + 1);
}

void frmCalc::cmdPrevious_Click()
{
    moveTo(m_varn.CurrentWordform - 1);
}

void frmCalc::lstTotal_Click(int row)
{
    if (row >= 0 && row + 1 != m_varn.CurrentWordform) {
        moveTo(row + 1);
    }
}

void frmCalc::cmdSet_Click()
{
    const WordformFields held = fields();
    const int k = m_varn.CurrentWordform;
    m_varn.WordformName(k) = held.name;
    if (held.symbolColor >= 0) {
        m_varn.WordformSymbolColor(k) = held.symbolColor;
    }
    if (held.paintColor >= 0) {
        m_varn.WordformPaintColor(k) = static_cast<qint16>(held.paintColor);
    }
    m_stored = held;
    SetTotalList();
}

// The item

void frmCalc::mnuGengoOpen_Click()
{
    const auto path =
        askForFile(QStringLiteral("Open Linguistic Data"), QStringLiteral("DBS Files (*.dbs)|*.dbs"));
    if (!path) {
        return;
    }
    LoadWordData(m_varn, *path, m_varn, m_varn, dialogs());
    SetKindWord();
    if (m_varn.NKind == 0) {
        dialogs().message(QStringLiteral("Specify Linguistic Data."), QStringLiteral("Input Wordform Data."));
    }
}

void frmCalc::lstDisplay_Click()
{
    const int kinds = m_ui->lstDisplay->count();
    m_ui->lblWordNumber->setText(
        kinds == 0
            ? QStringLiteral("No kinds of words")
            : QStringLiteral("Kind of word %1 of %2").arg(m_ui->lstDisplay->currentRow() + 1).arg(kinds));
}

void frmCalc::cmdSetWord_Click()
{
    if (const QListWidgetItem* entry = m_ui->lstDisplay->currentItem()) {
        m_ui->txtInputWord->setText(entry->text().section(QLatin1Char(' '), 1));
        m_ui->txtInputWord->setFocus();
    }
}

// The identifying strings

bool frmCalc::mayRegister(const QString& text)
{
    return !text.isEmpty() ||
           dialogs().askYesNo(QStringLiteral("An empty string is found in every answer. Register it?"),
                              FormTitle);
}

void frmCalc::cmdWordSelect_Click()
{
    const QString text = m_ui->txtInputWord->text();
    if (mayRegister(text)) {
        m_editor.add(text);
        SetTotalWordList();
    }
}

void frmCalc::cmdWordRewrite_Click()
{
    const QString text = m_ui->txtInputWord->text();
    if (mayRegister(text)) {
        m_editor.rewrite(text);
        SetTotalWordList();
    }
}

void frmCalc::cmdWordDelete_Click()
{
    m_editor.remove();
    SetTotalWordList();
    showString();
}

void frmCalc::cmdWordReset_Click()
{
    m_editor.reset();
    SetTotalWordList();
    showString();
}

void frmCalc::cmdWordNext_Click()
{
    m_editor.next();
    showString();
}

void frmCalc::cmdWordBefore_Click()
{
    m_editor.previous();
    showString();
}

void frmCalc::LstWord_Click()
{
    m_editor.choose(m_ui->LstWord->currentRow() + 1);
    showString();
}

// The cumulative file

std::optional<QString> frmCalc::askForFile(const QString& title, const QString& filter)
{
    const QString folder = m_varn.Drive.hostPath(m_varn.dataFolder());
    const std::optional<QString> file = dialogs().openFile(title, folder, filter);
    return file ? std::optional(m_varn.Drive.varnPath(*file)) : std::nullopt;
}

bool frmCalc::mayGiveUpTable(const QString& question)
{
    return !isTableUnsaved(m_varn, m_varn.NLocality) ||
           dialogs().confirmLoss(
               QStringLiteral("The cumulative data has changes that are not saved. ") + question, FormTitle);
}

bool frmCalc::mayGiveUpStrings(const QString& question)
{
    return !areCharsUnsaved(m_varn) ||
           dialogs().confirmLoss(QStringLiteral("The identifying strings have changes that are not saved. ") +
                                     question,
                                 FormTitle);
}

void frmCalc::takeFileName()
{
    m_varn.TotalFileName = m_ui->txtTotalFileName->text().trimmed();
    if (m_varn.TotalFileName.endsWith(QStringLiteral(".ttl"), Qt::CaseInsensitive)) {
        m_varn.TotalFileName.chop(4);
    }
}

void frmCalc::mnuFileOpen_Click()
{
    const QString question = QStringLiteral("Open a cumulative file and lose them?");
    if (!mayGiveUpFields(question) || !mayGiveUpTable(question)) {
        return;
    }
    if (const auto path = askForFile(QStringLiteral("Open Cumulative Data File"),
                                     QStringLiteral("Total Files (*.ttl)|*.ttl"))) {
        LoadTotalFile(*path);
    }
}

void frmCalc::LoadTotalFile(const QString& path)
{
    openTotal(path, state(), dialogs());
    showTable();
    showFileOfStrings();
}

void frmCalc::SaveTotalFile()
{
    if (!mayGiveUpFields(QStringLiteral("Save the file without them?"))) {
        return;
    }
    if (saveTotal(state(), dialogs())) {
        m_ui->txtTotalFileName->setText(m_varn.TotalFileName);
    } else {
        m_ui->txtTotalFileName->setFocus();
    }
}

void frmCalc::Initialize()
{
    initializeTotal(state(), dialogs());
    SetTotal();
}

// The file of identifying strings

void frmCalc::LoadSetData()
{
    const QString question = QStringLiteral("Open a file of strings and lose them?");
    if (!mayGiveUpFields(question) || !mayGiveUpStrings(question)) {
        return;
    }
    const auto path =
        askForFile(QStringLiteral("Open Specify Char File"), QStringLiteral("Sum Files (*.sum)|*.sum"));
    if (path && openStrings(*path, state(), dialogs())) {
        showTable();
        showFileOfStrings();
    }
}

void frmCalc::SaveSetData()
{
    const QString name = m_ui->txtSetFileName->text().trimmed();
    const QString title = QStringLiteral("Save Specify Char File");
    if (analysisFileStem(name, QStringLiteral(".sum")).isEmpty()) {
        dialogs().message(QStringLiteral("Input Name of Specify Characters."), title);
        m_ui->txtSetFileName->setFocus();
        return;
    }
    const QString path = analysisFilePath(m_varn, name, QStringLiteral(".sum"));
    const bool isOwn = path.compare(m_varn.SpecifyFileName, Qt::CaseInsensitive) == 0;
    if (!isOwn && fileExists(m_varn.Drive, path) &&
        !dialogs().confirmLoss(QStringLiteral("File already exist. Overwrite O.K.? "), title)) {
        return;
    }
    ::SaveSetData(m_varn.Drive, path, m_varn);
    showFileOfStrings();
    if (const QString left = wordformsWithoutLine(m_varn); !left.isEmpty()) {
        dialogs().message(
            QStringLiteral("The file holds word forms with 1 to 10 strings. It cannot be opened "
                           "as long as one has none or more:\n\n") +
                left,
            title);
    }
}
