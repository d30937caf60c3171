#include "atlas/AtlasExport.h"

#include "atlas/AtlasItem.h"
#include "exchange/MadeSymbols.h"
#include "platform/FileName.h"
#include "platform/WholeFile.h"
#include "plot/DrawingFile.h"
#include "render/LinguisticMap.h"
#include "shell/VarnModule.h"

#include <QFileInfo>

namespace {

/// The pages of an atlas, one after the other.
class AtlasPages
{
public:
    AtlasPages(const VarnModule& varn, const QStringList& itemPaths, const PageOfItem& pageOf,
               const FormArea& area, const ExportProgress& progress)
        : m_varn(varn), m_paths(itemPaths), m_pageOf(pageOf), m_area(area), m_progress(progress)
    {
        m_surface.setFont(textFont(varn));
    }

    /// The drawing of the next item that can be drawn; null after the last one and where it is stopped.
    const Drawing* next()
    {
        while (m_done < m_paths.size()) {
            const QString& path = m_paths[m_done];
            m_isStopped =
                !m_progress(static_cast<int>(m_done), static_cast<int>(m_paths.size()), stemOf(path));
            if (m_isStopped) {
                return nullptr;
            }
            ++m_done;
            if (draws(path)) {
                ++result.pages;
                return &m_surface.drawing();
            }
        }
        return nullptr;
    }

    bool isStopped() const { return m_isStopped; }

    AtlasExport result;

private:
    bool draws(const QString& path)
    {
        try {
            const AtlasPage page = m_pageOf(path);
            const QString trouble = page.trouble.isEmpty() ? page.symbolTrouble : page.trouble;
            if (!trouble.isEmpty()) {
                leaveOut(path, trouble);
                return false;
            }
            drawAtlasPage(m_varn, page, {{m_surface, m_surface}, m_area});
            return true;
        } catch (const RunTimeError& error) {
            leaveOut(path, error.text());
            return false;
        }
    }

    void leaveOut(const QString& path, const QString& reason)
    {
        result.leftOut << QStringLiteral("%1: %2").arg(stemOf(path), reason);
    }

    const VarnModule& m_varn;
    const QStringList& m_paths;
    const PageOfItem& m_pageOf;
    FormArea m_area;
    const ExportProgress& m_progress;
    DrawSurface m_surface;
    qsizetype m_done = 0;
    bool m_isStopped = false;
};

} // namespace

void drawAtlasPage(const VarnModule& varn, const AtlasPage& page, MapSurfaces surfaces)
{
    MapGeometry geometry; // that of the map form stays as it is
    MapStyle style = varn;
    style.WholeWordForms = isMadeForWholeWordForms(page.symbols);
    const TextParts text{varn, varn, style, varn.Pictures};
    drawLinguisticMap({{varn, style, page.symbols.SymbolFileName, geometry}, text, page.item, page.symbols},
                      surfaces);
}

AtlasExport exportAtlas(const VarnModule& varn, const QStringList& itemPaths, const PageOfItem& pageOf,
                        const FormArea& area, const QString& hostPath, const ExportProgress& progress)
{
    AtlasPages pages(varn, itemPaths, pageOf, area, progress);
    const QByteArray pdf = drawingPdf([&] { return pages.next(); }, QSizeF(area.Width, area.Height),
                                      QFileInfo(hostPath).completeBaseName());
    if (pages.isStopped()) {
        return pages.result;
    }
    if (pages.result.pages == 0) {
        throw RunTimeError(ErrorNumber::FileNotFound,
                           QStringLiteral("There is no item that can be drawn.\n") +
                               pages.result.leftOut.join(QLatin1Char('\n')));
    }
    replaceHostFile(hostPath, hostPath, pdf);
    pages.result.saved = true;
    return pages.result;
}
