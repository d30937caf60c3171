#pragma once

#include "analysis/ContrastData.h"
#include "analysis/DiffusionSymbols.h"
#include "analysis/Statistics.h"
#include "lingdata/LinguisticData.h"
#include "lingdata/LoadedState.h"
#include "mapdata/BaseMap.h"
#include "mapdata/Folders.h"
#include "mapdata/MapFont.h"
#include "render/MapGeometry.h"
#include "render/MapStyle.h"
#include "render/PhoneticText.h"
#include "shell/PageSetup.h"
#include "symbols/SymbolSet.h"

/// The state that all forms share: the sum of what the subsystems define. There is one, made in `main`.
struct VarnModule : Folders,
                    MapFont,
                    BaseMap,
                    MapGeometry,
                    MapStyle,
                    LinguisticData,
                    SymbolSet,
                    LoadedState,
                    PageSetup,
                    CumulativeData,
                    Statistics,
                    ContrastData,
                    DiffusionSymbols
{
    /// The surface that maps are drawn on.
    DrawSurface* DrawTarget = nullptr;
    /// Glyph bitmaps already read.
    PictureStore Pictures;
    /// The phonetic code list.
    std::vector<PhoneticSymbol> ExpSymbols;
    /// Size of the map form's drawing area at start, in twips.
    double MapFormWidth = 0;
    qint16 MapFormHeight = 0;
};
