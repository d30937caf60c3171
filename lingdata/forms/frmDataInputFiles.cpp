// The file of the data input form, and what would be lost when the form is left.

#include "lingdata/EnteredItem.h"
#include "lingdata/LinguisticFile.h"
#include "lingdata/forms/frmDataInput.h"
#include "platform/FileKind.h"
#include "platform/FileName.h"
#include "shell/VarnModule.h"
#include "ui_frmDataInput.h"

#include <QCloseEvent>
#include <QScopeGuard>

#include <utility>

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
    const QString title = QStringLiteral("Open Linguistic Data File");
    const auto path = askToOpen(dialogs(), m_varn.Drive, m_varn.dataFolder(), title, ItemFiles.filter());
    if (!path) {
        return;
    }
    OpenedItem item = openItem(m_varn, *path);
    m_mapName = m_varn.VarnMapName;
    showItem(std::move(item.editor), *path);
    if (!item.trouble.isEmpty()) {
        dialogs().message(item.trouble, title);
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
    if (!askToSave(dialogs(), m_varn.Drive, path, QStringLiteral("Re-input of File Name"),
                   QStringLiteral("File Exist. Overwrite O.K.?"))) {
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
