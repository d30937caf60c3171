#pragma once

#include "atlas/AtlasPage.h"
#include "dialectometry/ItemMaps.h"
#include "render/MapGeometry.h"

#include <QStringList>

#include <functional>

struct VarnModule;

/// What becomes of the items that an atlas is made of.
struct AtlasExport
{
    /// False where it was stopped.
    bool saved = false;
    int pages = 0;
    /// The items without a page, each with its reason.
    QStringList leftOut;
};

/// Gives the page of the item at a path; raises what reading it raises.
using PageOfItem = std::function<AtlasPage(const QString& itemPath)>;
/// What the pages of an atlas show: the items as they are now, and which map of them.
struct AtlasMaps
{
    PageOfItem pageOf;
    ItemMapSettings settings;
    /// Of the base map; linguistic maps need none.
    LocalityCells cells;
};

/// Is told how many of all items are drawn and the name of the next one, then of the pages that are painted;
/// false stops.
using ExportProgress = std::function<bool(int done, int total, const QString& item)>;

/// Saves the maps of the items at `itemPaths` as a PDF at `hostPath`, a path of this machine, a page an item
/// with the paper of `area`; symbols that were made for whole word forms mark these. An item that cannot be
/// read or drawn is left out. The file is complete, or as it was where it is stopped or ends with an error.
/// Raises file not found where no item can be drawn, and what writing raises.
AtlasExport exportAtlas(const VarnModule& varn, const QStringList& itemPaths, const AtlasMaps& maps,
                        const FormArea& area, const QString& hostPath, const ExportProgress& progress);
