#include "plot/MapPlot.h"

#include "analysis/ContrastMap.h"
#include "analysis/DiffusionGraphs.h"
#include "lingdata/LinguisticFile.h"
#include "lingdata/LocalityMismatch.h"
#include "mapdata/MapFiles.h"
#include "mapdata/MapSearch.h"
#include "render/BlankMap.h"
#include "render/LinguisticMap.h"
#include "render/MadeSymbols.h"
#include "render/MapSize.h"
#include "render/SymbolCatalogue.h"
#include "shell/MapParts.h"
#include "symbols/SymbolFile.h"

#include <algorithm>

MapPlot::MapPlot(const PlotOptions& options, PlotListener& listener)
    : m_area(firstArea()), m_wholeWordForms(options.wholeWordForms), m_listener(listener)
{
    m_varn.VarnPath = m_varn.Drive.varnPath(options.installation);
    m_varn.VarnMapName = QLatin1Char('\\') + options.map;
    m_varn.LingFolder = QStringLiteral("\\VarnData") + m_varn.VarnMapName + QStringLiteral("\\Ling");
    m_varn.PlotDots = options.localityDots;
    m_varn.WholeWordForms = m_wholeWordForms;
    m_varn.HankoPosition = options.location;
    if (options.height > 0) {
        m_area = withHeight(m_area, options.height);
    }
    LoadSquareData(m_varn.Drive, m_varn.VarnPath, m_varn);
    loadBaseMap(m_varn.Drive, {m_varn.VarnPath, m_varn.VarnMapName}, {}, m_varn);
}

void MapPlot::load(const QString& dataPath, const QString& symbolPath)
{
    static_cast<ItemAnswers&>(m_varn) = readSequentialFile(m_varn.Drive, dataPath, readItem);
    if (const QString mismatch = localityMismatch(m_varn.NLocate, m_varn.NLocality); !mismatch.isEmpty()) {
        m_listener.warning(m_varn.Drive.hostPath(dataPath) + QStringLiteral(": ") + mismatch);
    }
    LoadHankoData(m_varn.Drive, symbolPath, m_varn);
}

void MapPlot::loadAsMade(const QString& dataPath, const QString& symbolPath)
{
    load(dataPath, symbolPath);
    m_varn.WholeWordForms = m_wholeWordForms || isMadeForWholeWordForms(m_varn);
}

const Drawing& MapPlot::linguisticMap(const QString& dataPath, const QString& symbolPath)
{
    load(dataPath, symbolPath);
    drawLinguisticMap(linguisticMapParts(m_varn), surfaces());
    return m_frmMap.drawing();
}

ItemLayers MapPlot::itemOfMap(const QString& dataPath, const QString& symbolPath, const LocalityCells& cells,
                              const ItemMapSettings& settings)
{
    if (settings.kind == ItemMapKind::Symbols) {
        load(dataPath, symbolPath);
    } else {
        loadAsMade(dataPath, symbolPath);
    }
    return itemLayers(linguisticMapParts(m_varn), cells, settings, surfaces());
}

const Drawing& MapPlot::diffusionMap(DiffusionGraph graph, bool layered, int wordForm)
{
    if (layered) {
        drawLayeredGraph(countMapParts(m_varn), graph, surfaces());
    } else {
        m_varn.CurrentWordform = std::max(1, wordForm);
        drawSingleGraph(countMapParts(m_varn), graph, m_varn.CurrentWordform, surfaces());
    }
    return m_frmMap.drawing();
}

const Drawing& MapPlot::symbolDiffusionMap(const QString& symbolPath, int wordForm)
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

const Drawing& MapPlot::contrastMap(const QString& contrastPath)
{
    LoadRankFile(m_varn.Drive, contrastPath, m_varn);
    analyseContrast(m_varn, m_varn.NLocality, m_varn);
    drawContrastMap(countMapParts(m_varn), surfaces());
    return m_frmMap.drawing();
}

const Drawing& MapPlot::blankMap()
{
    DrawBlankMap(blankMapParts(m_varn), surfaces());
    return m_frmMap.drawing();
}

const Drawing& MapPlot::otherMap(const std::function<void(MapSurfaces)>& draw)
{
    draw(surfaces());
    return m_frmMap.drawing();
}

const Drawing& MapPlot::symbolPage(int page)
{
    PlotSymbol(m_varn, m_varn, page, surfaces());
    return m_frmMap.drawing();
}

int MapPlot::symbolPages() const
{
    return LastSymbolPage(m_varn);
}
