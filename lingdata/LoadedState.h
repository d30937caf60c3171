#pragma once

/// Which kinds of data are loaded.
struct LoadedState
{
    /// 0 nothing, 1 an item's data only, 3 a symbol set only, 2 data and then symbol set, 4 symbol set and
    /// then data.
    int LoadState = 0;
    /// Which kind of map the map form is set up for; 2 and 4 allow the linguistic map from the start.
    int AnalysisMode = 0;
};

/// Notes that an item's data was loaded.
void dataLoaded(LoadedState& state);
/// Notes that no item is loaded any more.
void dataDropped(LoadedState& state);
/// Notes that a symbol set was loaded.
void symbolSetLoaded(LoadedState& state);
/// Whether a linguistic map can be drawn.
bool canDrawLinguisticMap(const LoadedState& state);
