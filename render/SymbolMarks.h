#pragma once

#include "symbols/SymbolSet.h"

#include <QSet>

/// Which word forms the records of a symbol set mark.
class SymbolMarks
{
public:
    /// A record marks the word forms that contain its kind or, with `wholeWordForms`, those that equal it; a
    /// record with an empty kind then marks those that no other record marks. `symbols` must outlive this.
    SymbolMarks(const SymbolRecords& symbols, bool wholeWordForms);

    /// Whether record k marks `word`. An empty word form contains no kind, not even the empty one.
    bool operator()(int k, const QString& word) const;

private:
    const SymbolRecords& m_symbols;
    bool m_wholeWordForms;
    /// The kinds of all records, where word forms are to equal them.
    QSet<QString> m_kinds;
};
