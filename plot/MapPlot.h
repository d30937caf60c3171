#pragma once

#include "dialectometry/ItemMaps.h"
#include "plot/PlotListener.h"
#include "plot/PlotOptions.h"
#include "shell/VarnModule.h"

#include <functional>

/// A map, and the surface and the area that play the map form. Each function draws a map anew and returns its
/// drawing; they raise the run-time's errors.
class MapPlot
{
public:
    /// Loads the base map that `options` name.
    MapPlot(const PlotOptions& options, PlotListener& listener);

    /// Reads an item and its symbols, which mark whole word forms where they were made for these. Paths of
    /// the program.
    void loadAsMade(const QString& dataPath, const QString& symbolPath);
    /// Paths of the program.
    const Drawing& linguisticMap(const QString& dataPath, const QString& symbolPath);
    /// Of the map of an item what lies under the base map and what stands over it. Areas and isoglosses are
    /// of whole word forms where its symbols were made for these.
    ItemLayers itemOfMap(const QString& dataPath, const QString& symbolPath, const LocalityCells& cells,
                         const ItemMapSettings& settings);
    const Drawing& diffusionMap(DiffusionGraph graph, bool layered, int wordForm);
    const Drawing& symbolDiffusionMap(const QString& symbolPath, int wordForm);
    const Drawing& contrastMap(const QString& contrastPath);
    const Drawing& blankMap();
    /// A map that `draw` draws.
    const Drawing& otherMap(const std::function<void(MapSurfaces)>& draw);
    const Drawing& symbolPage(int page);
    int symbolPages() const;

    /// Of the drawings, in twips.
    QSizeF size() const { return {m_area.Width, m_area.Height}; }
    const FormArea& area() const { return m_area; }
    VarnModule& varn() { return m_varn; }

private:
    void load(const QString& dataPath, const QString& symbolPath);
    MapSurfaces surfaces() { return {{m_frmMap, m_frmMap}, m_area}; }

    VarnModule m_varn;
    DrawSurface m_frmMap;
    FormArea m_area;
    /// What the user asks for, of all items.
    bool m_wholeWordForms;
    PlotListener& m_listener;
};
