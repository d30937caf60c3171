#include "plot/PlotCommands.h"

#include "analysis/AccumulateItems.h"
#include "analysis/ContrastMap.h"
#include "analysis/CumulativeFile.h"
#include "analysis/DiffusionGraphs.h"
#include "lingdata/LinguisticFile.h"
#include "lingdata/LocalityMismatch.h"
#include "mapdata/MapFiles.h"
#include "mapdata/MapSearch.h"
#include "plot/DrawingFile.h"
#include "plot/ExportCommand.h"
#include "plot/ImportCommand.h"
#include "render/BlankMap.h"
#include "render/LinguisticMap.h"
#include "render/MapSize.h"
#include "render/SymbolCatalogue.h"
#include "shell/MapParts.h"
#include "shell/VarnModule.h"
#include "symbols/SymbolFile.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace {

/// A map, and the surface and the area that play the map form.
class MapPlot
{
public:
    MapPlot(const PlotOptions& options, PlotListener& listener) : m_listener(listener)
    {
        m_varn.VarnPath = m_varn.Drive.varnPath(options.installation);
        m_varn.VarnMapName = QLatin1Char('\\') + options.map;
        m_varn.LingFolder = QStringLiteral("\\VarnData") + m_varn.VarnMapName + QStringLiteral("\\Ling");
        m_varn.PlotDots = options.localityDots;
        m_varn.WholeWordForms = options.wholeWordForms;
        m_varn.HankoPosition = options.location;
        if (options.height > 0) {
            m_area = withHeight(m_area, options.height);
        }
        LoadSquareData(m_varn.Drive, m_varn.VarnPath, m_varn);
        loadBaseMap(m_varn.Drive, {m_varn.VarnPath, m_varn.VarnMapName}, {}, m_varn);
    }

    const Drawing& linguisticMap(const QString& dataPath, const QString& symbolPath)
    {
        static_cast<ItemAnswers&>(m_varn) = readSequentialFile(m_varn.Drive, dataPath, readItem);
        if (const QString mismatch = localityMismatch(m_varn.NLocate, m_varn.NLocality);
            !mismatch.isEmpty()) {
            m_listener.warning(m_varn.Drive.hostPath(dataPath) + QStringLiteral(": ") + mismatch);
        }
        LoadHankoData(m_varn.Drive, symbolPath, m_varn);
        drawLinguisticMap(linguisticMapParts(m_varn), surfaces());
        return m_frmMap.drawing();
    }

    const Drawing& diffusionMap(DiffusionGraph graph, bool layered, int wordForm)
    {
        if (layered) {
            drawLayeredGraph(countMapParts(m_varn), graph, surfaces());
        } else {
            m_varn.CurrentWordform = std::max(1, wordForm);
            drawSingleGraph(countMapParts(m_varn), graph, m_varn.CurrentWordform, surfaces());
        }
        return m_frmMap.drawing();
    }

    const Drawing& symbolDiffusionMap(const QString& symbolPath, int wordForm)
    {
        static_cast<DiffusionSymbols&>(m_varn) =
            readSequentialFile(m_varn.Drive, symbolPath, readDiffusionSymbols);
        if (wordForm == 0) {
            drawLayeredGraph(countMapParts(m_varn), DiffusionGraph::Symbol, surfaces());
        } else {
            DrawBlankMap(blankMapParts(m_varn), surfaces());
            DrawHankoMap(countMapParts(m_varn), wordForm, 1, surfaces());
        }
        return m_frmMap.drawing();
    }

    const Drawing& contrastMap(const QString& contrastPath)
    {
        LoadRankFile(m_varn.Drive, contrastPath, m_varn);
        analyseContrast(m_varn, m_varn.NLocality, m_varn);
        drawContrastMap(countMapParts(m_varn), surfaces());
        return m_frmMap.drawing();
    }

    const Drawing& blankMap()
    {
        DrawBlankMap(blankMapParts(m_varn), surfaces());
        return m_frmMap.drawing();
    }

    const Drawing& symbolPage(int page)
    {
        PlotSymbol(m_varn, m_varn, page, surfaces());
        return m_frmMap.drawing();
    }

    int symbolPages() const { return LastSymbolPage(m_varn); }
    QSizeF size() const { return {m_area.Width, m_area.Height}; }
    const Folders& folders() const { return m_varn; }
    VarnModule& varn() { return m_varn; }

private:
    MapSurfaces surfaces() { return {{m_frmMap, m_frmMap}, m_area}; }

    VarnModule m_varn;
    DrawSurface m_frmMap;
    FormArea m_area = firstArea();
    PlotListener& m_listener;
};

/// The items of a map that have a symbol file of the same name, in name order, without their endings.
QStringList itemsWithSymbols(const Folders& folders)
{
    const QDir folder(folders.Drive.hostPath(folders.dataFolder()));
    if (!folder.exists()) {
        throw RunTimeError(ErrorNumber::PathNotFound).at({folders.dataFolder()});
    }
    QStringList names;
    for (const QString& file : folder.entryList({ItemFiles.pattern()}, QDir::Files, QDir::Name)) {
        const QString name = QFileInfo(file).completeBaseName();
        if (QFileInfo(
                folders.Drive.hostPath(folders.dataFolder() + QLatin1Char('\\') + name + SymbolFiles.ending))
                .isFile()) {
            names << name;
        }
    }
    return names;
}

void plotAtlas(MapPlot& map, const QString& output, PlotListener& listener)
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
        listener.page(page + 1, pages, name);
        const QString path = map.folders().dataFolder() + QLatin1Char('\\') + name;
        return map.linguisticMap(path + ItemFiles.ending, path + SymbolFiles.ending);
    };
    savePdfPages(pages, drawPage, map.size(), output);
}

void loadCounts(VarnModule& varn, const QString& counts)
{
    LoadTotalFile(varn.Drive, varn.Drive.varnPath(counts), varn.NLocality, varn);
}

void loadCharacters(VarnModule& varn, const QString& characters)
{
    const int wordforms = varn.NumWordforms;
    LoadSetData(varn.Drive, varn.Drive.varnPath(characters), varn);
    if (varn.NumWordforms != wordforms) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("The table has %1 word forms, the identifying strings %2.")
                               .arg(wordforms)
                               .arg(varn.NumWordforms))
            .at({characters});
    }
}

/// Adds the items to the table, which is saved after each; returns whether all were counted.
bool accumulate(VarnModule& varn, const PlotOptions& options, PlotListener& listener)
{
    loadCharacters(varn, options.characters);
    ItemsToCount items;
    items.countAgain = options.countAgain;
    for (const QString& item : options.data) {
        items.paths << varn.Drive.varnPath(item);
    }
    const auto goOn = [](int, int, const QString&) { return true; };
    const AccumulationResult done =
        accumulateItems({varn.Drive, varn.TotalFilePath}, items, varn.NLocality, varn, goOn);
    for (const UncountedItem& item : done.uncounted) {
        listener.warning(QStringLiteral("%1 is left out: %2").arg(item.name, item.reason));
    }
    for (const QString& name : done.countedBefore) {
        listener.warning(QStringLiteral("%1 is left out: the table holds it already.").arg(name));
    }
    if (done.counted < done.items) {
        listener.warning(
            QStringLiteral("%1 of %2 items counted and saved.").arg(done.counted).arg(done.items));
    }
    return done.counted == done.items;
}

void saveStatistics(VarnModule& varn, const QString& output)
{
    Stats(varn, varn.NLocality, varn);
    writeSequentialFile(varn.Drive, varn.Drive.varnPath(output),
                        [&varn](SequentialWriter& file) { writeStatistics(file, varn, varn); });
}

} // namespace

bool plot(const PlotOptions& options, PlotListener& listener)
{
    if (options.command == PlotOptions::Command::Import) {
        importSurvey(options, listener);
        return true;
    }
    MapPlot map(options, listener);
    const DriveC drive;
    const auto save = [&](const Drawing& drawing) {
        saveDrawing(drawing, map.size(), options.output, options.dotsPerInch);
    };
    if (!options.counts.isEmpty()) {
        loadCounts(map.varn(), options.counts);
    }
    switch (options.command) {
    case PlotOptions::Command::Import:
        break;
    case PlotOptions::Command::LinguisticMap:
        save(map.linguisticMap(drive.varnPath(options.data.value(0)), drive.varnPath(options.symbols)));
        break;
    case PlotOptions::Command::BlankMap:
        save(map.blankMap());
        break;
    case PlotOptions::Command::Symbols:
        savePdfPages(
            map.symbolPages(), [&map](int page) -> const Drawing& { return map.symbolPage(page + 1); },
            map.size(), options.output);
        break;
    case PlotOptions::Command::Atlas:
        plotAtlas(map, options.output, listener);
        break;
    case PlotOptions::Command::Accumulate:
        return accumulate(map.varn(), options, listener);
    case PlotOptions::Command::Statistics:
        saveStatistics(map.varn(), options.output);
        break;
    case PlotOptions::Command::DiffusionMap:
        save(map.diffusionMap(options.graph, options.layered, options.wordForm));
        break;
    case PlotOptions::Command::SymbolDiffusionMap:
        save(map.symbolDiffusionMap(drive.varnPath(options.symbols), options.wordForm));
        break;
    case PlotOptions::Command::ContrastMap:
        save(map.contrastMap(drive.varnPath(options.contrast)));
        break;
    case PlotOptions::Command::Export:
        return exportMap(map.folders(), options.output, listener);
    }
    return true;
}
