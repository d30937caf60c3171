#include "lingdata/LoadedState.h"

// What is loaded again changes nothing: states 2 and 4 keep telling what came first.

void dataLoaded(LoadedState& state)
{
    if (state.LoadState == 0) {
        state.LoadState = 1;
    } else if (state.LoadState == 3) {
        state.LoadState = 4;
    }
}

void dataDropped(LoadedState& state)
{
    if (state.LoadState == 1) {
        state.LoadState = 0;
    } else if (state.LoadState == 2 || state.LoadState == 4) {
        state.LoadState = 3;
    }
}

void symbolSetLoaded(LoadedState& state)
{
    if (state.LoadState == 1) {
        state.LoadState = 2;
    } else if (state.LoadState == 0) {
        state.LoadState = 3;
    }
}

bool canDrawLinguisticMap(const LoadedState& state)
{
    return state.LoadState == 2 || state.LoadState == 4;
}
