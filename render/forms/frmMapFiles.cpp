// The files of the map form: drawings that are saved or copied, items and symbols that are loaded.

#include "lingdata/ItemLoader.h"
#include "lingdata/LinguisticFile.h"
#include "platform/FileKind.h"
#include "platform/Numbers.h"
#include "plot/DrawingFile.h"
#include "render/forms/frmMap.h"
#include "shell/VarnModule.h"
#include "symbols/SymbolFile.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>

#include <memory>

void frmMap::mnuSaveMapAs_Click()
{
    const auto file = dialogs().saveFile(
        QStringLiteral("Save Map As"), m_varn.Drive.hostPath(m_varn.dataFolder()),
        QStringLiteral("PDF Files (*.pdf)|*.pdf|SVG Files (*.svg)|*.svg|PNG Files (*.png)|*.png"),
        QFileInfo(m_varn.ItemFileName).completeBaseName());
    if (!file) {
        return;
    }
    double dotsPerInch = DefaultResolution;
    if (drawingFormat(*file) == DrawingFormat::Png) {
        const auto answer = dialogs().input(QStringLiteral("Resolution of the picture in dots per inch"),
                                            QStringLiteral("Save Map As"), QString::number(dotsPerInch));
        if (!answer) {
            return;
        }
        dotsPerInch = Val(*answer);
    }
    const WaitCursor wait;
    saveDrawing(m_surface.drawing(), {m_surface.Width, m_surface.Height}, *file, dotsPerInch);
}

void frmMap::mnuCopyMap_Click()
{
    const WaitCursor wait;
    const QSizeF size(m_surface.Width, m_surface.Height);
    auto copied = std::make_unique<QMimeData>();
    copied->setImageData(drawingImage(m_surface.drawing(), size, DefaultResolution));
    copied->setData(QStringLiteral("image/svg+xml"), drawingSvg(m_surface.drawing(), size));
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
