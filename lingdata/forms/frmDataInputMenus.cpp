// What the menus and buttons of the data input form do.

#include "lingdata/EnteredItem.h"
#include "lingdata/forms/WordEntryDelegate.h"
#include "lingdata/forms/frmDataInput.h"
#include "platform/FileName.h"
#include "platform/WholeFile.h"
#include "shell/VarnModule.h"
#include "ui_frmDataInput.h"

#include <QCloseEvent>
#include <QScopeGuard>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

// Files

bool frmDataInput::mayOpen()
{
    const QString text = QStringLiteral("Data proccessed will be lost if Linguistic File is opened.");
    const QString title = QStringLiteral("Open Linguistic Data File");
    if (m_editor.isUnsaved()) {
        return dialogs().confirmLoss(text, title);
    }
    dialogs().message(text, title);
    return true;
}

void frmDataInput::mnuOpen_Click()
{
    m_ui->tblWords->commitEdit();
    if (mayOpen()) {
        LoadWordData();
    }
}

void frmDataInput::LoadWordData()
{
    const auto file = dialogs().openFile(QStringLiteral("Open Linguistic Data File"),
                                         m_varn.Drive.hostPath(m_varn.dataFolder()),
                                         QStringLiteral("DBS Files (*.dbs)|*.dbs"));
    if (!file) {
        return;
    }
    const QString path = m_varn.Drive.varnPath(*file);
    OpenedItem item = openItem(m_varn, path);
    m_mapName = m_varn.VarnMapName;
    showItem(std::move(item.editor), path);
    if (!item.trouble.isEmpty()) {
        dialogs().message(item.trouble, QStringLiteral("Open Linguistic Data File"));
    }
}

void frmDataInput::mnuSave_Click()
{
    m_ui->tblWords->commitEdit();
    SaveWord();
}

void frmDataInput::SaveWord()
{
    const QString path = enteredItemPath(m_varn, m_ui->txtFileName->text());
    if (path.isEmpty()) {
        dialogs().message(QStringLiteral("Input File Name "),
                          QStringLiteral("Input File Name of Linguistic Data"));
        m_ui->txtFileName->setFocus();
        return;
    }
    if (fileExists(m_varn.Drive, path) &&
        !dialogs().confirmLoss(QStringLiteral("File Exist. Overwrite O.K.?"),
                               QStringLiteral("Re-input of File Name"))) {
        m_ui->txtFileName->setFocus();
        m_ui->txtFileName->selectAll();
        return;
    }
    saveItem(m_varn, path, m_editor);
    m_fileName = fileNameOf(path);
    statusBar()->showMessage(QStringLiteral("Saved as %1").arg(path), 5000);
    renewKinds(path);
}

void frmDataInput::renewKinds(const QString& itemPath)
{
    if (!isLoadedItem(itemPath, m_varn)) {
        renewKindsFile(m_varn, itemPath, m_editor);
        return;
    }
    const auto tell = qScopeGuard([this] { Q_EMIT itemReloaded(); });
    reloadItem(m_varn, itemPath, m_varn, m_varn, dialogs());
}

void frmDataInput::mnuInitialize_Click()
{
    m_ui->tblWords->commitEdit();
    const QString text =
        QStringLiteral("Data, kinds, captions and comments will be emptied. Initialize O.K.?");
    const QString unsaved = QStringLiteral("Linguistic data is not saved.\r\n");
    if (dialogs().confirmLoss(m_editor.isUnsaved() ? unsaved + text : text, QStringLiteral("Initialize"))) {
        newItem();
    }
}

bool frmDataInput::mayLeave()
{
    m_ui->tblWords->commitEdit();
    return !m_editor.isUnsaved() ||
           dialogs().confirmLoss(QStringLiteral("Linguistic data is not saved. Leave without saving O.K.?"),
                                 QStringLiteral("Input Linguistic Data"));
}

void frmDataInput::mnuToMain_Click()
{
    if (mayLeave()) {
        Q_EMIT toMain();
    }
}

void frmDataInput::mnuToAccumulate_Click()
{
    if (mayLeave()) {
        Q_EMIT toAccumulateData();
    }
}

void frmDataInput::closeEvent(QCloseEvent* event)
{
    event->setAccepted(mayLeave());
}

// Kinds

void frmDataInput::cmdKindToData_Click()
{
    const int kind = m_ui->lstKind->currentRow();
    WordTableView& words = *m_ui->tblWords;
    words.commitEdit();
    if (kind >= 0 && words.currentIndex().isValid()) {
        m_editor.setCell(WordTable::place(words.currentIndex()), m_editor.kinds()[kind]);
        m_table.showChanges();
        words.goToNextLocality();
    }
}

void frmDataInput::cmdDataToKind_Click()
{
    m_ui->tblWords->commitEdit();
    m_editor.collectKinds();
    showKinds();
}

void frmDataInput::cmdSetKind_Click()
{
    const WordCell kind = typedCell(m_ui->txtKind->text());
    m_ui->txtKind->setFocus();
    if (kind) {
        m_editor.addKind(*kind);
        showKinds();
        m_ui->lstKind->setCurrentRow(static_cast<int>(m_editor.kinds().indexOf(*kind)));
        m_ui->txtKind->selectAll();
    }
}

void frmDataInput::cmdDelKind_Click()
{
    const int row = m_ui->lstKind->currentRow();
    if (row >= 0) {
        m_editor.removeKind(row);
        showKinds();
    }
}

void frmDataInput::showKinds()
{
    const int row = std::min(m_ui->lstKind->currentRow(), static_cast<int>(m_editor.kinds().size()) - 1);
    m_ui->lstKind->clear();
    for (const QString& kind : m_editor.kinds()) {
        auto* entry = new QListWidgetItem(cellText(kind), m_ui->lstKind);
        if (kind.isEmpty()) {
            entry->setForeground(palette().placeholderText());
        }
    }
    m_ui->lstKind->setCurrentRow(row);
    m_delegate->setKinds(m_editor.kinds());
}

// Codes

void frmDataInput::cmdCheckCode_Click()
{
    m_ui->tblWords->commitEdit();
    showFaults();
    if (m_faults.empty()) {
        hideFaults();
        dialogs().message(QStringLiteral("All codes are right."), QStringLiteral("Check Code"));
        return;
    }
    m_ui->fraCheck->show();
    m_ui->lstCheck->setCurrentRow(0);
    m_ui->lstCheck->setFocus();
}

void frmDataInput::showFaults()
{
    std::vector<FaultyWord> faults = m_editor.checkCodes();
    if (faults == m_faults) {
        return;
    }
    m_faults = std::move(faults);
    const QSignalBlocker silent(m_ui->lstCheck);
    m_ui->lstCheck->clear();
    for (const FaultyWord& faulty : m_faults) {
        m_ui->lstCheck->addItem(QStringLiteral("Locality %1, word %2:   %3   (%4)")
                                    .arg(QString::number(faulty.place.locality),
                                         QString::number(faulty.place.column), faulty.word,
                                         faultText(faulty.fault)));
    }
    m_ui->lblCheck->setText(QStringLiteral("Word forms with illegal codes: %1").arg(m_faults.size()));
}

void frmDataInput::goToFault(int index)
{
    if (index >= 0 && index < static_cast<int>(m_faults.size())) {
        const FaultyWord& faulty = m_faults[static_cast<std::size_t>(index)];
        m_ui->tblWords->goTo(faulty.place.locality, faulty.place.column, QAbstractItemView::PositionAtCenter);
    }
}

void frmDataInput::hideFaults()
{
    m_ui->fraCheck->hide();
}

// Unsaved work

void frmDataInput::showNewState()
{
    if (m_mapName != m_varn.VarnMapName) {
        newItem();
    }
    refresh();
}

std::optional<UnsavedItem> frmDataInput::unsavedItem() const
{
    return m_editor.isUnsaved() ? std::optional(UnsavedItem{m_fileName, m_editor.answers(), m_editor.kinds()})
                                : std::nullopt;
}

void frmDataInput::enterUnsaved(const UnsavedItem& item)
{
    ItemEditor editor(item.answers, item.kinds);
    editor.markUnsaved();
    m_mapName = m_varn.VarnMapName;
    showItem(std::move(editor), item.fileName);
    refresh();
}
