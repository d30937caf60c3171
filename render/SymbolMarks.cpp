#include "render/SymbolMarks.h"

SymbolMarks::SymbolMarks(const SymbolRecords& symbols, bool wholeWordForms)
    : m_symbols(symbols), m_wholeWordForms(wholeWordForms)
{
    for (int k = 1; wholeWordForms && k <= symbols.NHanrei; ++k) {
        m_kinds.insert(symbols.HankoWord(k));
    }
}

bool SymbolMarks::operator()(int k, const QString& word) const
{
    const QString& kind = m_symbols.HankoWord(k);
    if (word.isEmpty() || !m_wholeWordForms) {
        return !word.isEmpty() && word.contains(kind);
    }
    return kind.isEmpty() ? !m_kinds.contains(word) : word == kind;
}
