// The document and the state that all forms share.

#include "atlas/AtlasDocument.h"
#include "atlas/ItemKey.h"
#include "lingdata/ItemLoader.h"
#include "render/MadeSymbols.h"
#include "shell/VarnModule.h"

#include <utility>

namespace {

/// Symbols that a form with no item loaded has, or none yet.
bool isNothing(const SymbolSet& set)
{
    return set.NHanrei == 0 && set.Explain.isEmpty() && set.SymbolFileName.isEmpty();
}

} // namespace

/// An item that cannot be read is not loaded in the other forms.
void AtlasDocument::shareItem()
{
    if (m_page.trouble.isEmpty()) {
        const int reading = m_varn.ItemReading + 1;
        static_cast<LinguisticData&>(m_varn) = m_page.item;
        m_varn.ItemReading = reading;
        dataLoaded(m_varn);
    } else {
        dropItem(m_varn, m_varn);
    }
    m_itemReading = m_varn.ItemReading;
}

void AtlasDocument::shareSymbols()
{
    SymbolSet& shared = m_varn;
    SymbolSet set = m_page.symbols;
    if (m_page.symbolFile.isEmpty()) { // the other forms show no file that is not there
        set.SymbolFileName.clear();
        set.SymbolFilePath.clear();
    }
    if (shared == set && shared.SymbolFilePath == set.SymbolFilePath) {
        shared.SavedRecords = set.SavedRecords; // a form that edits them goes on
    } else {
        set.CurrentHanko = set.NHanrei;
        set.HankoReading = shared.HankoReading + 1;
        shared = std::move(set);
        symbolSetLoaded(m_varn);
    }
    m_symbolsReading = shared.HankoReading;
}

void AtlasDocument::followSharedState()
{
    followMap();
    followStyle();
    if (m_itemReading != m_varn.ItemReading) {
        if (hasPage() && isOfPage(m_varn)) {
            followSymbols(); // before another page is turned to
        }
        followItem();
    }
    if (hasPage()) {
        followSymbols();
    }
}

void AtlasDocument::followMap()
{
    if (m_map != MapPlace{m_varn.VarnPath, m_varn.VarnMapName}) {
        restart();
    }
    if (m_legend != legendPlace()) { // place names were imported
        m_legend = legendPlace();
        m_savedLegend.reset();
        Q_EMIT baseMapChanged();
    }
}

/// Whether the shared symbols are those of the page, changed or not, and not those of another file.
bool AtlasDocument::isOfPage(const SymbolSet& shared) const
{
    return shared.SymbolFilePath.isEmpty() ||
           itemKey(shared.SymbolFilePath) == itemKey(m_page.symbols.SymbolFilePath);
}

/// A symbol set that was loaded for the item comes along; the one of the page before stays there.
void AtlasDocument::followItem()
{
    m_itemReading = m_varn.ItemReading;
    if (m_varn.ItemPath.isEmpty()) {
        if (hasPage()) {
            shareItem(); // another form could not load what it saved
        }
        return;
    }
    if (isShown(m_varn.ItemPath)) {
        followWords();
        return;
    }
    const SymbolSet shared = m_varn;
    const bool wholeWordForms = m_varn.WholeWordForms;
    const bool isLeftOver = hasPage() && isOfPage(shared);
    turnTo(m_varn.ItemPath);
    if (!isLeftOver && !isNothing(shared)) {
        static_cast<SymbolSet&>(m_varn) = shared;
        m_varn.WholeWordForms = wholeWordForms || isMadeForWholeWordForms(shared);
    }
}

/// The item was loaded or saved by another form. Unsaved word forms are what undoing brings back.
void AtlasDocument::followWords()
{
    const LocalityWords words = localityWords(m_varn);
    m_page.savedWords.keep(words);
    noteItemFile(m_varn, m_page);
    if (!m_page.trouble.isEmpty() || m_varn.NLocate != m_page.item.NLocate) {
        m_steps.clear();
        m_page.trouble.clear();
        m_page.item = m_varn;
        Q_EMIT pageTurned();
    } else if (words != localityWords(m_page.item)) {
        WordsStep::Words changed;
        for (std::size_t i = 0; i < words.size(); ++i) {
            changed[static_cast<int>(i) + 1] = words[i];
        }
        m_steps.push(new WordsStep(*this, changed, QStringLiteral("Change in Another Form"))); // it owns it
    }
    m_page.item.Hanrei = m_varn.Hanrei;
    m_page.item.Comment = m_varn.Comment;
    Q_EMIT savedChanged();
}

void AtlasDocument::followSymbols()
{
    const SymbolSet shared = m_varn;
    const bool isOther = !isOfPage(shared);
    const bool wasRead = shared.HankoReading != m_symbolsReading && !shared.SymbolFilePath.isEmpty();
    m_symbolsReading = shared.HankoReading;
    if (isOther || (wasRead && !m_page.symbolTrouble.isEmpty())) {
        adoptSymbols(shared);
        return;
    }
    if (wasRead) { // or saved
        m_page.symbols.SavedRecords = shared.SavedRecords;
        noteSymbolFile(m_varn, m_page);
        Q_EMIT savedChanged();
    }
    if (!(m_page.symbols == shared)) {
        setSymbols(shared, QStringLiteral("Change in Another Form"));
    }
}

/// The page has the symbols of another file from now on.
void AtlasDocument::adoptSymbols(const SymbolSet& set)
{
    m_page.symbols = set;
    m_page.symbolTrouble.clear();
    noteSymbolFile(m_varn, m_page);
    m_preview.reset();
    m_steps.clear(); // they would bring the symbols of one file into another
    Q_EMIT symbolsChanged();
    Q_EMIT savedChanged();
}
