#include "dialectometry/ItemMaps.h"

#include "render/BlankMap.h"
#include "render/Legend.h"
#include "render/LinguisticMap.h"

namespace {

/// Isoglosses run where the records change.
BorderChanges changesOfRecords(const LinguisticMapParts& parts, const LocalityCells& cells)
{
    return borderChanges(cells,
                         recordsOfLocalities(parts.item, parts.symbols, parts.base.style.WholeWordForms,
                                             parts.base.map.NLocality));
}

/// Begins the map by what lies under the base map.
void drawUnder(const LinguisticMapParts& parts, const LocalityCells& cells, const ItemMapSettings& settings,
               MapSurfaces surfaces)
{
    switch (settings.kind) {
    case ItemMapKind::Symbols:
        surfaces.frmMap.Cls();
        break;
    case ItemMapKind::Areas:
        drawAreas(parts, cells, settings.areas.look, surfaces);
        break;
    case ItemMapKind::Isoglosses:
        drawIsoglosses({parts.base, parts.text, cells}, changesOfRecords(parts, cells), settings.isoglosses,
                       surfaces);
        break;
    }
}

void drawOver(const LinguisticMapParts& parts, const LocalityCells& cells, const ItemMapSettings& settings,
              MapSurfaces surfaces)
{
    switch (settings.kind) {
    case ItemMapKind::Symbols:
        PlotLinguisticData(parts, surfaces);
        PlotHanrei(parts, surfaces);
        break;
    case ItemMapKind::Areas:
        drawOverAreas(parts, cells, settings.areas, surfaces);
        break;
    case ItemMapKind::Isoglosses:
        drawIsoglossLegend({parts.base, parts.text, cells}, parts.item.Hanrei, changesOfRecords(parts, cells),
                           surfaces);
        break;
    }
}

} // namespace

void drawItemMap(const LinguisticMapParts& parts, const LocalityCells& cells, const ItemMapSettings& settings,
                 MapSurfaces surfaces)
{
    switch (settings.kind) {
    case ItemMapKind::Symbols:
        drawLinguisticMap(parts, surfaces);
        break;
    case ItemMapKind::Areas:
        drawAreaMap(parts, cells, settings.areas, surfaces);
        break;
    case ItemMapKind::Isoglosses:
        drawIsoglossMap({parts.base, parts.text, cells}, parts.item.Hanrei, changesOfRecords(parts, cells),
                        settings.isoglosses, surfaces);
        break;
    }
}

ItemLayers itemLayers(const LinguisticMapParts& parts, const LocalityCells& cells,
                      const ItemMapSettings& settings, MapSurfaces surfaces)
{
    ItemLayers layers;
    drawUnder(parts, cells, settings, surfaces);
    layers.under = surfaces.DrawTarget.drawing();
    DrawBlankMap(parts.base, surfaces); // sets the scale, and leaves the font of the map
    surfaces.DrawTarget.Cls();
    drawOver(parts, cells, settings, surfaces);
    layers.over = surfaces.DrawTarget.drawing();
    return layers;
}
