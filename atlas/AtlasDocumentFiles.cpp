// What the document saves, gives up and keeps, and what becomes of its files meanwhile.

#include "atlas/AtlasDocument.h"
#include "atlas/ItemKey.h"
#include "mapdata/MapFiles.h"
#include "platform/FileName.h"
#include "shell/UnsavedWork.h"
#include "shell/VarnModule.h"

#include <utility>

namespace {

UnsavedPage unsavedPart(const AtlasPage& page)
{
    UnsavedPage part;
    part.itemPath = page.item.ItemPath;
    if (page.areWordsUnsaved()) {
        part.answers = page.item;
    }
    if (page.areSymbolsUnsaved()) {
        part.symbols = page.symbols;
    }
    return part;
}

AtlasPage restoredPage(const Folders& folders, const UnsavedPage& part)
{
    AtlasPage page = readAtlasPage(folders, part.itemPath);
    if (part.answers) {
        static_cast<ItemAnswers&>(page.item) = *part.answers;
        page.trouble.clear();
        renewKinds(page);
    }
    if (part.symbols) {
        static_cast<SymbolRecords&>(page.symbols) = *part.symbols;
        page.symbols.SymbolFileName = part.symbols->SymbolFileName;
        page.symbols.SymbolFilePath = part.symbols->SymbolFilePath;
        page.symbolTrouble.clear();
        page.symbols.SavedRecords.forget();
        noteSymbolFile(folders, page);
    }
    return page;
}

} // namespace

std::vector<const AtlasPage*> AtlasDocument::unsavedPages() const
{
    std::vector<const AtlasPage*> pages;
    for (const auto& [path, kept] : m_kept) {
        if (kept.isUnsaved) {
            pages.push_back(&kept.page);
        }
    }
    if (hasPage() && m_page.isUnsaved()) {
        pages.push_back(&m_page);
    }
    return pages;
}

QStringList AtlasDocument::unsavedItems() const
{
    QStringList paths;
    for (const AtlasPage* page : unsavedPages()) {
        paths << page->item.ItemPath;
    }
    return paths;
}

bool AtlasDocument::isLegendPlaceUnsaved() const
{
    return m_savedLegend && legendPlace() != *m_savedLegend;
}

bool AtlasDocument::isUnsaved() const
{
    return isLegendPlaceUnsaved() || !unsavedPages().empty();
}

void AtlasDocument::save()
{
    for (auto& [path, kept] : m_kept) {
        saveAtlasPage(m_varn, kept.page);
        kept.isUnsaved = false;
    }
    if (hasPage()) {
        saveAtlasPage(m_varn, m_page);
        shareSymbols(); // with their file, which may be new
    }
    if (isLegendPlaceUnsaved()) {
        writeSequentialFile(m_varn.Drive,
                            mapFolder(m_varn.VarnPath, m_varn.VarnMapName) + QStringLiteral("\\kanji.map"),
                            [&](SequentialWriter& file) { writePlaceNames(file, m_varn); });
        m_savedLegend = legendPlace();
    }
    Q_EMIT savedChanged();
}

void AtlasDocument::discard()
{
    std::erase_if(m_kept, [](const auto& entry) { return entry.second.isUnsaved; });
    if (isLegendPlaceUnsaved()) {
        putLegend(*m_savedLegend);
    }
    m_steps.clear();
    if (hasPage() && m_page.isUnsaved()) {
        show(readAtlasPage(m_varn, m_page.item.ItemPath));
    }
    Q_EMIT savedChanged();
}

void AtlasDocument::addTo(UnsavedWork& work) const
{
    for (const AtlasPage* page : unsavedPages()) {
        work.pages.push_back(unsavedPart(*page));
        const bool isSame = work.symbols && page->areSymbolsUnsaved() && page->symbols == *work.symbols;
        if (isSame) { // the shared set is the page's
            work.symbols.reset();
        }
    }
    if (isLegendPlaceUnsaved()) {
        work.legendPlace = legendPlace();
    }
}

void AtlasDocument::restore(const UnsavedWork& work)
{
    restart();
    for (const UnsavedPage& part : work.pages) {
        m_kept[itemKey(part.itemPath)] = {restoredPage(m_varn, part), true};
    }
    if (work.legendPlace) {
        putLegend(*work.legendPlace);
    }
    if (!work.pages.empty()) {
        turnTo(work.pages.back().itemPath);
    }
}

QStringList AtlasDocument::changedFiles() const
{
    QStringList changed;
    for (const auto& [path, kept] : m_kept) {
        changed << filesChanged(m_varn, kept.page);
    }
    return hasPage() ? changed + filesChanged(m_varn, m_page) : changed;
}

void AtlasDocument::readChanged()
{
    std::erase_if(m_kept,
                  [&](const auto& entry) { return !filesChanged(m_varn, entry.second.page).isEmpty(); });
    m_steps.clear(); // they lead from what was there before
    if (hasPage() && !filesChanged(m_varn, m_page).isEmpty()) {
        show(readAtlasPage(m_varn, m_page.item.ItemPath));
    }
    Q_EMIT savedChanged();
}

void AtlasDocument::keepChanged()
{
    for (auto& [path, kept] : m_kept) {
        keepAgainstFiles(m_varn, kept.page);
        kept.isUnsaved = kept.page.isUnsaved();
    }
    if (hasPage()) {
        keepAgainstFiles(m_varn, m_page);
        shareSymbols();
    }
    Q_EMIT savedChanged();
}
