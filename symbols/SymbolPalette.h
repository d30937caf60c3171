#pragma once

#include "symbols/SymbolSet.h"

#include <vector>

/// The symbols that made symbol sets take, those first that are told apart best. Shape and fill alone tell
/// the first forty apart; later ones are the same shapes in another colour.
class SymbolPalette
{
public:
    /// Of an installation with that many polygon designs.
    explicit SymbolPalette(int polygons);

    /// How many symbols there are: more than a symbol set has records.
    int size() const;
    /// Symbol n, from 0.
    HankoStyle symbol(int n) const;

    /// The small grey dot that stands for all other kinds.
    static HankoStyle dot();

private:
    std::vector<HankoStyle> m_shapes;
};
