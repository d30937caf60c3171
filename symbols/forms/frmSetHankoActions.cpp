// What the buttons and menu entries of the symbol set-up form do.

#include "lingdata/ItemLoader.h"
#include "platform/FileName.h"
#include "platform/Numbers.h"
#include "render/forms/SymbolPicker.h"
#include "shell/VarnModule.h"
#include "symbols/SymbolFile.h"
#include "symbols/forms/SymbolPreview.h"
#include "symbols/forms/frmSetHanko.h"
#include "ui_frmSetHanko.h"

#include <limits>

// The kinds of the item

void frmSetHanko::SetKindWord()
{
    m_ui->lstKindWord->clear();
    m_listedReading = m_varn.ItemReading;
    LoadSrtData();
    for (int k = 1; k <= m_varn.NKind; ++k) {
        m_ui->lstKindWord->addItem(QString::number(m_varn.KindCount(k)) + QLatin1Char(' ') +
                                   m_varn.KindWord(k));
    }
    m_ui->lstKindWord->setCurrentRow(0);
}

void frmSetHanko::LoadSrtData()
{
    if (m_varn.ItemFileName.isEmpty()) {
        return;
    }
    const QString path = kindsFilePath(m_varn, m_varn.ItemFileName);
    if (fileExists(m_varn.Drive, path)) {
        InputWordData(m_varn, path, m_varn);
    } else {
        FileWordData(m_varn, path, m_varn);
    }
}

void frmSetHanko::LoadGengoDataCheck()
{
    if (m_varn.NKind == 0) {
        dialogs().message(QStringLiteral("Specify Linguistic Data"), QStringLiteral("Input Ling. Data"));
        Q_EMIT toMain();
    }
}

void frmSetHanko::cmdWord_Click()
{
    if (const QListWidgetItem* entry = m_ui->lstKindWord->currentItem()) {
        m_ui->txtWord->setText(entry->text().section(QLatin1Char(' '), 1));
    }
}

void frmSetHanko::cmdAutoHanrei_Click()
{
    m_ui->txtHanrei->setText(m_ui->txtWord->text());
}

void frmSetHanko::cmdSymbol_Click()
{
    HankoStyle style = fields().style;
    const double number = Val(m_ui->txtHankoNumber->text());
    if (number >= 0 && number <= std::numeric_limits<qint16>::max()) {
        style.HankoNo = toInteger(number);
    }
    m_picker->openWith(style);
}

// The records

void frmSetHanko::cmdSave_Click()
{
    showStored(m_editor.registerRecord(fields()));
    DisplayHanrei();
}

void frmSetHanko::cmdNext_Click()
{
    const int before = m_varn.CurrentHanko;
    const std::optional<HankoFields> record = m_editor.next(fields());
    if (!record) {
        dialogs().message(QStringLiteral("Caption Data exceed Maximum."), QStringLiteral("Set Symbols"));
    } else if (m_varn.CurrentHanko != before) {
        showStored(*record);
        DisplayHanrei();
    }
}

void frmSetHanko::cmdBefore_Click()
{
    showStored(m_editor.previous(fields()));
    DisplayHanrei();
}

void frmSetHanko::cmdInserte_Click()
{
    const auto answer = dialogs().input(QStringLiteral("Specify Number of Insert Data."),
                                        QStringLiteral("Insert"), QString());
    if (!answer) {
        return;
    }
    if (const auto record = m_editor.insertRecord(toInteger(Val(*answer)), fields().Explain)) {
        showStored(*record);
    }
    DisplayHanrei();
}

void frmSetHanko::cmdDelete_Click()
{
    const auto answer = dialogs().input(QStringLiteral("Specify Number of Delete Data."),
                                        QStringLiteral("Delete"), QString());
    if (answer) {
        m_orphaned = m_editor.deleteRecord(toInteger(Val(*answer))) || m_orphaned;
        DisplayHanrei();
    }
}

void frmSetHanko::cmdUp_Click()
{
    m_editor.scrollUp();
    DisplayHanrei();
}

void frmSetHanko::cmdDown_Click()
{
    m_editor.scrollDown();
    DisplayHanrei();
}

void frmSetHanko::showRecordAt(float y)
{
    const auto record = recordAt(y, m_editor.firstShown(), m_editor.lastShown(), m_preview);
    if (record && mayGiveUpFields(QStringLiteral("Show record %1 and lose them?").arg(*record))) {
        showStored(m_editor.goTo(*record, fields().Explain));
        DisplayHanrei();
    }
}

// What leaving the fields, the set or the form would lose

bool frmSetHanko::mayGiveUpFields(const QString& question)
{
    return !isEdited() || dialogs().confirmLoss(
                              QStringLiteral("The fields hold changes that are not registered. ") + question,
                              QStringLiteral("Set Symbols for Kinds"));
}

bool frmSetHanko::mayGiveUpWork(const QString& question)
{
    if (!m_varn.HankoUnsaved) {
        return mayGiveUpFields(question);
    }
    return dialogs().confirmLoss(QStringLiteral("The symbol set has changes that are not saved. ") + question,
                                 QStringLiteral("Set Symbols for Kinds"));
}

void frmSetHanko::mnuHankoReturn_Click()
{
    if (mayGiveUpFields(QStringLiteral("Leave the form without registering them?"))) {
        Q_EMIT toMain();
    }
}

// The files

std::optional<QString> frmSetHanko::askForFile(const QString& title, const QString& filter)
{
    const QString folder = m_varn.Drive.hostPath(m_varn.dataFolder());
    const std::optional<QString> file = dialogs().openFile(title, folder, filter);
    return file ? std::optional(m_varn.Drive.varnPath(*file)) : std::nullopt;
}

QString frmSetHanko::proposedName() const
{
    const QString name = symbolFileStem(m_varn.SymbolFileName);
    const QString item = stemOf(m_varn.ItemFileName);
    const bool isOfItem = m_savedForItem == m_varn.ItemFileName || name.startsWith(item, Qt::CaseInsensitive);
    return isOfItem && !name.isEmpty() ? name : item;
}

std::optional<QString> frmSetHanko::askForSavePath()
{
    QString name = proposedName();
    for (;;) {
        const auto answer = dialogs().input(QStringLiteral("Input File Name of Symbol Data"),
                                            QStringLiteral("Save Symbol File"), name);
        if (!answer || symbolFileStem(*answer).trimmed().isEmpty()) {
            return std::nullopt;
        }
        name = symbolFileStem(*answer);
        const QString path = symbolFilePath(m_varn, name);
        if (!fileExists(m_varn.Drive, path) ||
            dialogs().confirmLoss(QStringLiteral("File already exist. Overwrite O.K.? "),
                                  QStringLiteral("Re Input File Name"))) {
            return path;
        }
    }
}

void frmSetHanko::mnuInputWord_Click()
{
    if (const auto path =
            askForFile(QStringLiteral("Load Linguistic File"), QStringLiteral("DBS Files (*.dbs)|*.dbs"))) {
        LoadWordData(m_varn, *path, m_varn, m_varn, dialogs());
        SetKindWord();
    }
}

void frmSetHanko::mnuOpenHanko_Click()
{
    if (!mayGiveUpWork(QStringLiteral("Open a symbol file and lose them?"))) {
        return;
    }
    run([this] { SetKindWord(); }); // a set can be worked on without the list
    if (const auto path =
            askForFile(QStringLiteral("Open Symbol File"), QStringLiteral("HAN files (*.han)|*.han"))) {
        LoadHankoData(*path);
        followSharedState();
    }
}

void frmSetHanko::LoadHankoData(const QString& path)
{
    ::LoadHankoData(m_varn.Drive, path, m_varn);
    symbolSetLoaded(m_varn);
}

void frmSetHanko::mnuSaveHanko_Click()
{
    const HankoFields record = fields();
    HankoFields commentStored = record;
    commentStored.Explain = m_stored.Explain;
    if (commentStored != m_stored &&
        !dialogs().confirmLoss(QStringLiteral("The fields hold changes that are not registered and will not "
                                              "be in the file. Save without them?"),
                               QStringLiteral("Save Symbol File"))) {
        return;
    }
    if (const auto path = askForSavePath()) {
        m_varn.Explain = record.Explain;
        SaveHankoData(m_varn.Drive, *path, m_varn);
        ResetHankoData(*path);
    }
}

void frmSetHanko::ResetHankoData(const QString& path)
{
    LoadHankoData(path);
    showSet();
    m_history.noteSaved(m_varn);
    m_savedForItem = m_varn.ItemFileName;
}

void frmSetHanko::mnuHankoInit_Click()
{
    if (!mayGiveUpWork(QStringLiteral("Empty the set and lose them?"))) {
        return;
    }
    showStored(m_editor.initialize());
    DisplayHanrei();
}

void frmSetHanko::mnuLoadMap_Click()
{
    if (!mayGiveUpFields(QStringLiteral("Leave the form without registering them?"))) {
        return;
    }
    if (m_varn.NHanrei > 0) {
        symbolSetLoaded(m_varn);
    }
    Q_EMIT toDrawMap();
}
