#pragma once

#include "dialectometry/AreaFill.h"

/// A row of a legend: what is shown before its text, and the text.
struct AreaLegendRow
{
    /// A box full of these; none where there is none.
    std::vector<AreaFill> fills;
    /// A line of this pen instead of a box, or a symbol.
    LinePen line = {0, 0, PenStyle::None};
    /// Number of the symbol of a group (from 1); 0 for none.
    int groupSymbol = 0;
    /// Coded as the captions of symbols are; empty for a row without text.
    QString text;
};

/// The legend of a map of areas.
struct AreaLegend
{
    /// One or more lines.
    QString title;
    std::vector<AreaLegendRow> rows;
    /// Of the symbols.
    AreaLook look = AreaLook::Colored;
};

/// "caption (12)": a caption and how many localities it stands for.
QString withCount(const QString& caption, std::ptrdiff_t count);

/// Draws the legend where the map's captions stand, on a white ground, its rows in as many columns as the
/// height of the map asks for.
void drawAreaLegend(const AreaMapParts& parts, const AreaLegend& legend, MapSurfaces surfaces);
