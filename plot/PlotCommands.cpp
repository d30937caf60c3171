#include "plot/PlotCommands.h"

#include "lingdata/LinguisticFile.h"
#include "mapdata/MapFiles.h"
#include "plot/DrawingFile.h"
#include "render/BlankMap.h"
#include "render/LinguisticMap.h"
#include "render/MapSize.h"
#include "render/SymbolCatalogue.h"
#include "symbols/SymbolFile.h"

#include <QDir>
#include <QFileInfo>

namespace {

/// A map and the surface that plays the map form.
class MapPlot
{
public:
    explicit MapPlot(const PlotOptions& options)
    {
        m_varn.VarnPath = m_varn.Drive.varnPath(options.installation);
        m_varn.VarnMapName = QLatin1Char('\\') + options.map;
        m_varn.LingFolder = QStringLiteral("\\VarnData") + m_varn.VarnMapName + QStringLiteral("\\Ling");
        m_varn.PlotDots = options.localityDots;
        m_varn.HankoPosition = options.location;
        setFirstSize(m_frmMap);
        if (options.height > 0) {
            setMapHeight(m_frmMap, options.height);
        }
        LoadSquareData(m_varn.Drive, m_varn.VarnPath, m_varn);
        LoadLineData(m_varn.Drive, m_varn.VarnPath, m_varn.VarnMapName, m_varn);
        LoadLocateData(m_varn.Drive, m_varn.VarnPath, m_varn.VarnMapName, m_varn);
        LoadKanjiData(m_varn.Drive, m_varn.VarnPath, m_varn.VarnMapName, m_varn);
    }

    const Drawing& linguisticMap(const QString& dataPath, const QString& symbolPath)
    {
        static_cast<ItemAnswers&>(m_varn) = readSequentialFile(m_varn.Drive, dataPath, readItem);
        LoadHankoData(m_varn.Drive, symbolPath, m_varn);
        drawLinguisticMap(m_varn, surfaces());
        return m_frmMap.drawing();
    }

    const Drawing& blankMap()
    {
        DrawBlankMap(m_varn, surfaces());
        return m_frmMap.drawing();
    }

    const Drawing& symbolPage(int page)
    {
        PlotSymbol(m_varn, page, surfaces());
        return m_frmMap.drawing();
    }

    int symbolPages() const { return LastSymbolPage(m_varn); }
    QSizeF size() const { return {m_frmMap.Width, m_frmMap.Height}; }
    const Folders& folders() const { return m_varn; }

private:
    MapSurfaces surfaces() { return {m_frmMap, m_frmMap}; }

    VarnModule m_varn;
    DrawSurface m_frmMap;
};

/// The items of a map that have a symbol file of the same name, in name order, without their endings.
QStringList itemsWithSymbols(const Folders& folders)
{
    const QDir folder(folders.Drive.hostPath(folders.dataFolder()));
    if (!folder.exists()) {
        throw RunTimeError(ErrorNumber::PathNotFound).at({folders.dataFolder()});
    }
    QStringList names;
    for (const QString& file : folder.entryList({QStringLiteral("*.dbs")}, QDir::Files, QDir::Name)) {
        const QString name = QFileInfo(file).completeBaseName();
        if (QFileInfo(folders.Drive.hostPath(folders.dataFolder() + QLatin1Char('\\') + name +
                                             QStringLiteral(".han")))
                .isFile()) {
            names << name;
        }
    }
    return names;
}

void plotAtlas(MapPlot& map, const QString& output, const PlotProgress& progress)
{
    const QStringList names = itemsWithSymbols(map.folders());
    if (names.isEmpty()) {
        throw RunTimeError(ErrorNumber::FileNotFound,
                           QStringLiteral("No item there has a symbol file of its name."))
            .at({map.folders().dataFolder()});
    }
    const auto pages = static_cast<int>(names.size());
    const auto drawPage = [&](int page) -> const Drawing& {
        const QString& name = names[page];
        progress(page + 1, pages, name);
        const QString path = map.folders().dataFolder() + QLatin1Char('\\') + name;
        return map.linguisticMap(path + QStringLiteral(".dbs"), path + QStringLiteral(".han"));
    };
    savePdfPages(pages, drawPage, map.size(), output);
}

} // namespace

void plot(const PlotOptions& options, const PlotProgress& progress)
{
    MapPlot map(options);
    const DriveC drive;
    switch (options.command) {
    case PlotOptions::Command::LinguisticMap:
        saveDrawing(map.linguisticMap(drive.varnPath(options.data), drive.varnPath(options.symbols)),
                    map.size(), options.output, options.dotsPerInch);
        break;
    case PlotOptions::Command::BlankMap:
        saveDrawing(map.blankMap(), map.size(), options.output, options.dotsPerInch);
        break;
    case PlotOptions::Command::Symbols:
        savePdfPages(
            map.symbolPages(), [&map](int page) -> const Drawing& { return map.symbolPage(page + 1); },
            map.size(), options.output);
        break;
    case PlotOptions::Command::Atlas:
        plotAtlas(map, options.output, progress);
        break;
    }
}
