#include "symbols/SymbolSet.h"

bool SymbolRecords::operator==(const SymbolRecords& other) const
{
    bool same = Explain == other.Explain && NHanrei == other.NHanrei;
    for (int k = 1; same && k <= NHanrei; ++k) {
        same = HankoWord(k) == other.HankoWord(k) && HankoCaption(k) == other.HankoCaption(k) &&
               Hanko(k) == other.Hanko(k);
    }
    return same;
}

bool isSymbolSetUnsaved(const SymbolSet& set)
{
    const bool isEmpty = set.NHanrei == 0 && set.Explain.isEmpty(); // nothing to lose
    return !isEmpty && set.SavedRecords.differs(set);
}
