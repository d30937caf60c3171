#pragma once

#include "analysis/CumulativeTable.h"
#include "lingdata/UnsavedItem.h"
#include "mapdata/MapSearch.h"
#include "symbols/SymbolSet.h"

#include <QPointF>

#include <optional>
#include <vector>

struct VarnModule;

/// What is unsaved of a page of the atlas: of an item at its path, and of the symbols for it.
struct UnsavedPage
{
    QString itemPath;
    std::optional<ItemAnswers> answers;
    std::optional<SymbolSet> symbols;
};

/// Work on a map that no file of the survey holds yet.
struct UnsavedWork
{
    MapPlace map;
    /// Number of localities of the map.
    int localities = 0;
    std::optional<UnsavedItem> item;
    std::optional<SymbolSet> symbols;
    std::optional<CumulativeData> table;
    std::vector<UnsavedPage> pages;
    /// Where title and legend were moved to, in map units.
    std::optional<QPointF> legendPlace;

    bool isOfAtlas() const { return !pages.empty() || legendPlace; }
    bool isEmpty() const { return !item && !symbols && !table && !isOfAtlas(); }
};

/// The unsaved work in the shared state; `item` is what is being entered.
UnsavedWork unsavedWork(const VarnModule& varn, std::optional<UnsavedItem> item);

/// What the work consists of, such as "item rain.dbs, cumulative data of 3 word forms".
QString describe(const UnsavedWork& work);

/// Makes the map of `work` the current one, and its symbol set and cumulative table those that are loaded, as
/// unsaved as they were. The item and the pages are left to the forms that they are edited in. Raises what
/// `changeMap` raises; everything is then as it was.
void restoreWork(const UnsavedWork& work, VarnModule& varn);
