// The maps of the atlas window on paper, in files, and on the clipboard.

#include "atlas/AtlasExport.h"
#include "atlas/AtlasItem.h"
#include "atlas/AtlasOtherMap.h"
#include "atlas/forms/AtlasMapView.h"
#include "atlas/forms/ItemsDialog.h"
#include "atlas/forms/frmAtlas.h"
#include "platform/FileName.h"
#include "plot/DrawingFile.h"
#include "plot/DrawingOut.h"
#include "render/MapSize.h"
#include "shell/VarnModule.h"

#include <QApplication>
#include <QClipboard>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QProgressDialog>

namespace {

/// What each page of an atlas shows of its item.
QString mapOf(ItemMapKind kind)
{
    switch (kind) {
    case ItemMapKind::Areas:
        return QStringLiteral("the areas");
    case ItemMapKind::Isoglosses:
        return QStringLiteral("the isoglosses");
    default:
        return QStringLiteral("the linguistic map");
    }
}

} // namespace

QString frmAtlas::mapName() const
{
    QString item = stemOf(m_document.page().item.ItemPath);
    if (m_kind == AtlasMapKind::Linguistic) {
        return item;
    }
    return isOfItem(m_kind) ? QStringLiteral("%1 - %2").arg(item, nameOf(m_kind)) : nameOf(m_kind);
}

void frmAtlas::mnuCopyMap_Click()
{
    const WaitCursor wait;
    auto copied = copiedDrawing(m_map->drawing(), m_map->paperSize());
    QGuiApplication::clipboard()->setMimeData(copied.release()); // the clipboard owns it
}

void frmAtlas::mnuExportMap_Click()
{
    const auto target = askForDrawingFile(dialogs(), QStringLiteral("Export Map"),
                                          m_varn.Drive.hostPath(m_varn.dataFolder()), mapName());
    if (target) {
        const WaitCursor wait;
        saveDrawing(m_map->drawing(), m_map->paperSize(), target->file, target->dotsPerInch);
    }
}

void frmAtlas::mnuPrint_Click()
{
    auto* preview = new QPrintPreviewDialog(this);
    preview->setAttribute(Qt::WA_DeleteOnClose);
    QPrinter& printer = *preview->printer();
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(m_varn.PaperOrientation == PageOrientation::Landscape ? QPageLayout::Landscape
                                                                                     : QPageLayout::Portrait);
    printer.setPageMargins(
        QMarginsF(m_varn.LeftMargin, m_varn.TopMargin, m_varn.RightMargin, m_varn.BottomMargin),
        QPageLayout::Millimeter); // a printer may refuse them
    printer.setDocName(QStringLiteral("%1 - %2").arg(m_varn.VarnMapName.mid(1), mapName()));
    printer.setCreator(QStringLiteral("varn"));
    connect(preview, &QPrintPreviewDialog::paintRequested, this,
            [drawing = m_map->drawing(), size = m_map->paperSize()](QPrinter* page) {
                QPainter painter(page);
                paintOnPage(drawing, size, painter, *page);
            });
    preview->resize(900, 680);
    preview->open();
}

void frmAtlas::mnuExportAtlas_Click()
{
    const ItemMapKind kind = itemMapSettings(m_kind, m_survey).kind;
    askForItems({QStringLiteral("Export Atlas"),
                 QStringLiteral("A PDF with %1 of each of these &items:").arg(mapOf(kind)),
                 QStringLiteral("&Export 1 Page..."),
                 QStringLiteral("&Export %1 Pages..."),
                 {}},
                [this](const QStringList& paths) { exportItems(paths); });
}

void frmAtlas::askForItems(const ItemsQuestion& question, std::function<void(const QStringList&)> take)
{
    const WaitCursor wait;
    std::vector<AtlasItem> items;
    for (const QString& path : atlasItemPaths(m_varn)) {
        items.push_back(readAtlasItem(m_varn, path));
    }
    auto* choice = new ItemsDialog(std::move(items), question, this);
    choice->setAttribute(Qt::WA_DeleteOnClose);
    connect(choice, &ItemsDialog::chosen, this,
            [this, take = std::move(take)](const QStringList& paths) { run([&] { take(paths); }); });
    choice->open();
}

/// A page with unsaved work as it is now; others as they are on disk.
AtlasPage frmAtlas::pageOf(const QString& itemPath) const
{
    for (const AtlasPage* page : m_document.unsavedPages()) {
        if (page->item.ItemPath.compare(itemPath, Qt::CaseInsensitive) == 0) {
            return *page;
        }
    }
    return readAtlasPage(m_varn, itemPath);
}

/// Pages show what is shown of the item, and linguistic maps where that is something else.
AtlasMaps frmAtlas::mapsToExport()
{
    const ItemMapSettings settings = itemMapSettings(m_kind, m_survey);
    const bool needCells = settings.kind != ItemMapKind::Symbols;
    return {[this](const QString& path) { return pageOf(path); }, settings,
            needCells ? m_survey.cellMap().cells : LocalityCells()};
}

void frmAtlas::exportItems(const QStringList& itemPaths)
{
    const QString title = QStringLiteral("Export Atlas");
    const auto file =
        dialogs().saveFile(title, m_varn.Drive.hostPath(m_varn.dataFolder()),
                           QStringLiteral("PDF Files (*.pdf)|*.pdf"), m_varn.VarnMapName.mid(1));
    if (!file) {
        return;
    }
    QProgressDialog progress(title, QStringLiteral("Stop"), 0, static_cast<int>(itemPaths.size()), this);
    progress.setWindowTitle(title);
    progress.setWindowModality(Qt::WindowModal);
    const AtlasExport done = exportAtlas(m_varn, itemPaths, mapsToExport(), firstArea(), *file,
                                         [&](int number, int, const QString& item) {
                                             progress.setLabelText(item);
                                             progress.setValue(number);
                                             QApplication::processEvents(); // a click on Stop
                                             return !progress.wasCanceled();
                                         });
    progress.reset();
    if (done.saved) {
        QStringList lines = {QStringLiteral("%1 pages are saved.").arg(done.pages)};
        if (!done.leftOut.isEmpty()) {
            lines << QStringLiteral("Left out:") << done.leftOut;
        }
        dialogs().message(lines.join(QStringLiteral("\r\n")), title);
    }
}
