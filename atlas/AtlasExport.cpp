#include "atlas/AtlasExport.h"

#include "atlas/AtlasItem.h"
#include "platform/FileName.h"
#include "platform/WholeFile.h"
#include "plot/AtlasPdf.h"
#include "render/BlankMap.h"
#include "render/MadeSymbols.h"
#include "shell/VarnModule.h"

#include <QFileInfo>

#include <thread>

namespace {

/// Ends the painting.
struct Stopped
{
};

/// Draws the pages of an atlas.
class AtlasDrawer
{
public:
    AtlasDrawer(const VarnModule& varn, const AtlasMaps& maps, const FormArea& area)
        : m_varn(varn), m_maps(maps), m_area(area)
    {
        m_surface.setFont(textFont(varn));
    }

    Drawing base()
    {
        const QString noStamp;
        MapGeometry geometry; // that of the map form stays as it is
        DrawBlankMap({m_varn, m_varn, noStamp, geometry}, surfaces());
        return m_surface.drawing();
    }

    /// Raises what reading the page and drawing it raise.
    AtlasSheet sheet(const QString& path)
    {
        const AtlasPage page = m_maps.pageOf(path);
        const QString trouble = page.trouble.isEmpty() ? page.symbolTrouble : page.trouble;
        if (!trouble.isEmpty()) {
            throw RunTimeError(ErrorNumber::TypeMismatch, trouble);
        }
        MapGeometry geometry;
        MapStyle style = m_varn;
        style.WholeWordForms = isMadeForWholeWordForms(page.symbols);
        ItemLayers layers = itemLayers({{m_varn, style, page.symbols.SymbolFileName, geometry},
                                        {m_varn, m_varn, style, m_varn.Pictures},
                                        page.item,
                                        page.symbols},
                                       m_maps.cells, m_maps.settings, surfaces());
        return {page.item.Hanrei.isEmpty() ? stemOf(path) : page.item.Hanrei, std::move(layers.under),
                std::move(layers.over)};
    }

private:
    MapSurfaces surfaces() { return {{m_surface, m_surface}, m_area}; }

    const VarnModule& m_varn;
    const AtlasMaps& m_maps;
    FormArea m_area;
    DrawSurface m_surface;
};

QString reasonOf(const RunTimeError& error)
{
    return error.detail().isEmpty() ? error.text() : error.detail();
}

/// Draws the items that can be drawn; returns false where it is stopped.
bool drawSheets(AtlasDrawer& drawer, const QStringList& paths, const ExportProgress& progress,
                AtlasSheets& atlas, AtlasExport& result)
{
    int done = 0;
    for (const QString& path : paths) {
        if (!progress(done++, static_cast<int>(paths.size()), stemOf(path))) {
            return false;
        }
        try {
            atlas.sheets.push_back(drawer.sheet(path));
            ++result.pages;
        } catch (const RunTimeError& error) {
            result.leftOut << QStringLiteral("%1: %2").arg(stemOf(path), reasonOf(error));
        }
    }
    return true;
}

/// The bytes of the file; nothing where the painting is stopped.
std::optional<QByteArray> paintedAtlas(AtlasSheets atlas, const ExportProgress& progress)
{
    const auto pages = static_cast<int>(atlas.sheets.size());
    const auto tell = [&](int page, const QString& caption) {
        if (!progress(page, pages, caption)) {
            throw Stopped();
        }
    };
    try {
        return atlasPdf(std::move(atlas), static_cast<int>(std::thread::hardware_concurrency()), tell);
    } catch (const Stopped&) {
        return std::nullopt;
    }
}

} // namespace

AtlasExport exportAtlas(const VarnModule& varn, const QStringList& itemPaths, const AtlasMaps& maps,
                        const FormArea& area, const QString& hostPath, const ExportProgress& progress)
{
    AtlasExport result;
    AtlasDrawer drawer(varn, maps, area);
    AtlasSheets atlas{
        QFileInfo(hostPath).completeBaseName(), QSizeF(area.Width, area.Height), drawer.base(), {}};
    if (!drawSheets(drawer, itemPaths, progress, atlas, result)) {
        return result;
    }
    if (result.pages == 0) {
        throw RunTimeError(ErrorNumber::FileNotFound,
                           QStringLiteral("There is no item that can be drawn.\n") +
                               result.leftOut.join(QLatin1Char('\n')));
    }
    if (const auto pdf = paintedAtlas(std::move(atlas), progress)) {
        replaceHostFile(hostPath, hostPath, *pdf);
        result.saved = true;
    }
    return result;
}
