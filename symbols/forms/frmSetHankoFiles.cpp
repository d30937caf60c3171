// The file of the symbol set-up form, and what would be lost when the set or the form is left.

#include "platform/FileKind.h"
#include "platform/FileName.h"
#include "shell/VarnModule.h"
#include "symbols/SymbolFile.h"
#include "symbols/forms/frmSetHanko.h"
#include "ui_frmSetHanko.h"

bool frmSetHanko::mayGiveUpWork(const QString& question)
{
    if (!isSymbolSetUnsaved(m_varn)) {
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

std::optional<QString> frmSetHanko::askForFile(const QString& title, const QString& filter)
{
    return askToOpen(dialogs(), m_varn.Drive, m_varn.dataFolder(), title, filter);
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
        if (askToSave(dialogs(), m_varn.Drive, path, QStringLiteral("Re Input File Name"))) {
            return path;
        }
    }
}

void frmSetHanko::mnuOpenHanko_Click()
{
    if (!mayGiveUpWork(QStringLiteral("Open a symbol file and lose them?"))) {
        return;
    }
    run([this] { SetKindWord(); }); // a set can be worked on without the list
    if (const auto path = askForFile(QStringLiteral("Open Symbol File"), SymbolFiles.filter())) {
        LoadHankoData(*path);
        followSet();
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
