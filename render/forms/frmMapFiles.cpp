// The files of the map form: drawings that are saved or copied, items and symbols that are loaded.

#include "lingdata/ItemLoader.h"
#include "lingdata/LinguisticFile.h"
#include "platform/FileKind.h"
#include "plot/DrawingFile.h"
#include "plot/DrawingOut.h"
#include "render/forms/frmMap.h"
#include "shell/VarnModule.h"
#include "symbols/SymbolFile.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>

void frmMap::mnuSaveMapAs_Click()
{
    const auto target = askForDrawingFile(dialogs(), QStringLiteral("Save Map As"),
                                          m_varn.Drive.hostPath(m_varn.dataFolder()),
                                          QFileInfo(m_varn.ItemFileName).completeBaseName());
    if (target) {
        const WaitCursor wait;
        saveDrawing(m_surface.drawing(), {m_surface.Width, m_surface.Height}, target->file,
                    target->dotsPerInch);
    }
}

void frmMap::mnuCopyMap_Click()
{
    const WaitCursor wait;
    auto copied = copiedDrawing(m_surface.drawing(), {m_surface.Width, m_surface.Height});
    QGuiApplication::clipboard()->setMimeData(copied.release()); // the clipboard owns it
}

std::optional<QString> frmMap::askForFile(const QString& title, const QString& filter)
{
    return askToOpen(dialogs(), m_varn.Drive, m_varn.dataFolder(), title, filter);
}

void frmMap::mnuInputWord_Click()
{
    if (const auto path = askForFile(QStringLiteral("Load Linguistic File"), ItemFiles.filter())) {
        LoadWordData(m_varn, *path, m_varn, m_varn, dialogs());
    }
}

void frmMap::mnuHankoInput_Click()
{
    if (isSymbolSetUnsaved(m_varn) &&
        !dialogs().askYesNo(QStringLiteral("The symbol set is not saved and will be lost. Go on ?"),
                            QStringLiteral("Load Symbol File"))) {
        return;
    }
    if (const auto path = askForFile(QStringLiteral("Load Symbol File"), SymbolFiles.filter())) {
        LoadHankoData(m_varn.Drive, *path, m_varn);
        symbolSetLoaded(m_varn);
    }
}
