#include "atlas/AtlasDocument.h"

#include "lingdata/ItemLoader.h"
#include "mapdata/MapFiles.h"
#include "platform/Numbers.h"
#include "shell/VarnModule.h"

#include <algorithm>
#include <limits>
#include <tuple>
#include <utility>

namespace {

QString key(const QString& itemPath)
{
    return itemPath.toCaseFolded();
}

/// Symbols that a form with no item loaded has, or none yet.
bool isNothing(const SymbolSet& set)
{
    return set.NHanrei == 0 && set.Explain.isEmpty() && set.SymbolFileName.isEmpty();
}

/// The place as a map can hold it, whose y is a 16-bit whole number.
QPointF storable(QPointF place)
{
    using Limits = std::numeric_limits<qint16>;
    return {static_cast<double>(static_cast<float>(place.x())),
            static_cast<double>(toInteger(std::clamp<double>(place.y(), Limits::min(), Limits::max())))};
}

/// Whether maps look the same in both styles; the atlas has its own dots.
bool looksLike(const MapStyle& a, const MapStyle& b)
{
    const auto key = [](const MapStyle& style) {
        return std::tuple(style.WriteFileName, style.HankoPosition, style.WholeWordForms, style.PhoneticBold);
    };
    return key(a) == key(b);
}

/// Gives a map without place names one for the legend, with no text; the scale bar stays behind the last.
void makeFirstName(PlaceNames& map)
{
    if (map.NKanji == 0) {
        map.NKanji = 1;
        map.KanjiText(1).clear();
        for (const int axis : {0, 1}) {
            map.KanjiXY(2, axis) = map.KanjiXY(1, axis);
        }
    }
}

} // namespace

AtlasDocument::AtlasDocument(VarnModule& varn) : m_varn(varn)
{
    connect(&m_steps, &QUndoStack::indexChanged, this, &AtlasDocument::savedChanged);
}

AtlasDocument::~AtlasDocument() = default;

void AtlasDocument::restart()
{
    m_map = {m_varn.VarnPath, m_varn.VarnMapName};
    m_page = {};
    m_kept.clear();
    m_preview.reset();
    m_steps.clear();
    m_legend = legendPlace();
    m_savedLegend.reset();
    m_itemReading = -1;
    Q_EMIT pageTurned();
    Q_EMIT baseMapChanged();
    Q_EMIT savedChanged();
}

bool AtlasDocument::isShown(const QString& itemPath) const
{
    return hasPage() && key(itemPath) == key(m_page.item.ItemPath);
}

void AtlasDocument::turnTo(const QString& itemPath)
{
    if (isShown(itemPath)) {
        return;
    }
    const auto kept = m_kept.find(key(itemPath));
    AtlasPage page = kept == m_kept.end() ? readAtlasPage(m_varn, itemPath) : kept->second;
    keepPage();
    show(std::move(page));
}

void AtlasDocument::readAgain()
{
    AtlasPage page = readAtlasPage(m_varn, m_page.item.ItemPath);
    m_steps.clear(); // they lead from what was there before
    show(std::move(page));
}

/// A page with steps stays, too: undoing them turns back to it.
void AtlasDocument::keepPage()
{
    if (!hasPage()) {
        return;
    }
    const QString path = key(m_page.item.ItemPath);
    if (m_page.isUnsaved() || m_steps.count() > 0) {
        m_kept.insert_or_assign(path, std::move(m_page));
    } else {
        m_kept.erase(path);
    }
}

void AtlasDocument::show(AtlasPage page)
{
    m_page = std::move(page);
    m_preview.reset();
    shareItem();
    shareSymbols();
    Q_EMIT pageTurned();
    Q_EMIT savedChanged();
}

/// An item that the other forms cannot show is not loaded there.
void AtlasDocument::shareItem()
{
    const bool hasKinds = m_page.item.NKind > 0 || m_page.item.WordTotal == 0;
    const int reading = m_varn.ItemReading + 1;
    if (hasKinds) {
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
        return; // a form that edits them goes on
    }
    set.CurrentHanko = set.NHanrei;
    set.HankoReading = shared.HankoReading + 1;
    shared = std::move(set);
    symbolSetLoaded(m_varn);
}

void AtlasDocument::setSymbols(const SymbolRecords& records, const QString& text, int merging)
{
    m_preview.reset();
    if (m_page.symbols == records) {
        Q_EMIT symbolsChanged();
        return;
    }
    m_steps.push(new SymbolsStep(*this, records, text, merging)); // the stack owns it
}

void AtlasDocument::previewSymbols(const SymbolRecords& records)
{
    m_preview = records;
    Q_EMIT symbolsChanged();
}

void AtlasDocument::endPreview()
{
    if (m_preview) {
        m_preview.reset();
        Q_EMIT symbolsChanged();
    }
}

void AtlasDocument::setWords(const WordsStep::Words& words, const QString& text)
{
    ItemAnswers tried = m_page.item;
    for (const auto& [locality, forms] : words) {
        setLocalityWords(tried, locality, forms);
    }
    if (localityWords(tried) != localityWords(m_page.item)) {
        m_steps.push(new WordsStep(*this, words, text)); // the stack owns it
    }
}

QPointF AtlasDocument::legendPlace() const
{
    return {m_varn.HanreiX, static_cast<double>(m_varn.HanreiY)};
}

void AtlasDocument::setLegendPlace(QPointF asked)
{
    const QPointF place = storable(asked);
    if (place != legendPlace()) {
        m_steps.push(new LegendPlaceStep(*this, place)); // the stack owns it
    }
}

void AtlasDocument::setMapStyle(const MapStyle& style)
{
    static_cast<MapStyle&>(m_varn) = style;
    followStyle();
}

void AtlasDocument::followStyle()
{
    if (!looksLike(std::exchange(m_style, m_varn), m_varn)) {
        Q_EMIT symbolsChanged();
    }
}

void AtlasDocument::putSymbols(const QString& itemPath, const SymbolRecords& records)
{
    turnTo(itemPath);
    m_preview.reset();
    static_cast<SymbolRecords&>(m_page.symbols) = records;
    shareSymbols();
    Q_EMIT symbolsChanged();
}

void AtlasDocument::putWords(const QString& itemPath, const WordsStep::Words& words)
{
    turnTo(itemPath);
    for (const auto& [locality, forms] : words) {
        setLocalityWords(m_page.item, locality, forms);
    }
    renewKinds(m_page);
    shareItem();
    Q_EMIT wordsChanged();
}

void AtlasDocument::putLegend(QPointF place)
{
    m_savedLegend = m_savedLegend.value_or(legendPlace());
    makeFirstName(m_varn);
    m_varn.KanjiXY(1, 0) = static_cast<float>(place.x());
    m_varn.KanjiXY(1, 1) = static_cast<float>(place.y());
    m_varn.HanreiX = m_varn.KanjiXY(1, 0);
    m_varn.HanreiY = toInteger(m_varn.KanjiXY(1, 1));
    m_legend = legendPlace();
    Q_EMIT baseMapChanged();
}

std::vector<const AtlasPage*> AtlasDocument::unsavedPages() const
{
    std::vector<const AtlasPage*> pages;
    for (const auto& [path, page] : m_kept) {
        if (!isShown(path) && page.isUnsaved()) {
            pages.push_back(&page);
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
    for (auto& [path, page] : m_kept) {
        if (!isShown(path)) {
            saveAtlasPage(m_varn, page);
        }
    }
    if (hasPage()) {
        saveAtlasPage(m_varn, m_page);
        m_varn.SavedRecords = m_page.symbols.SavedRecords;
    }
    if (isLegendPlaceUnsaved()) {
        writeSequentialFile(m_varn.Drive,
                            mapFolder(m_varn.VarnPath, m_varn.VarnMapName) + QStringLiteral("\\kanji.map"),
                            [&](SequentialWriter& file) { writePlaceNames(file, m_varn); });
        m_savedLegend = legendPlace();
    }
    Q_EMIT savedChanged();
}

void AtlasDocument::followSharedState()
{
    if (m_map != MapPlace{m_varn.VarnPath, m_varn.VarnMapName}) {
        restart();
    }
    if (m_legend != legendPlace()) { // place names were imported
        m_legend = legendPlace();
        m_savedLegend.reset();
        Q_EMIT baseMapChanged();
    }
    followStyle();
    if (m_itemReading != m_varn.ItemReading) {
        m_itemReading = m_varn.ItemReading;
        followItem();
    }
    if (hasPage() && !isNothing(m_varn)) {
        followSymbols();
    }
}

void AtlasDocument::followItem()
{
    if (m_varn.ItemPath.isEmpty()) {
        return;
    }
    if (isShown(m_varn.ItemPath)) {
        followWords();
        return;
    }
    const SymbolSet shared = m_varn;
    const auto kept = m_kept.find(key(m_varn.ItemPath));
    AtlasPage page = kept == m_kept.end() ? readAtlasPage(m_varn, m_varn.ItemPath) : kept->second;
    if (!isNothing(shared)) {
        page.symbols = shared; // whatever its file; it may be unsaved
        noteSymbolFile(m_varn, page);
    }
    keepPage();
    show(std::move(page));
}

/// The item was saved by another form. Unsaved word forms are what undoing brings back.
void AtlasDocument::followWords()
{
    const LocalityWords words = localityWords(m_varn);
    m_page.savedWords.keep(words);
    noteItemFile(m_varn, m_page);
    if (m_varn.NLocate != m_page.item.NLocate) {
        m_steps.clear();
        static_cast<LinguisticData&>(m_page.item) = m_varn;
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
    const SymbolSet& shared = m_varn;
    const bool sameFile =
        shared.SymbolFilePath.isEmpty() || key(m_page.symbols.SymbolFilePath) == key(shared.SymbolFilePath);
    const bool sameRecords = m_page.symbols == shared;
    if (sameFile && sameRecords && m_page.areSymbolsUnsaved() == isSymbolSetUnsaved(shared)) {
        return;
    }
    if (!sameFile) {
        m_steps.clear(); // they would bring the symbols of one file into another
        m_page.symbols = shared;
    } else {
        m_page.symbols.SavedRecords = shared.SavedRecords;
        if (!sameRecords) {
            m_steps.push(new SymbolsStep(*this, shared, QStringLiteral("Change in Another Form"),
                                         SymbolsStep::NoMerging)); // the stack owns it
        }
    }
    noteSymbolFile(m_varn, m_page);
    Q_EMIT symbolsChanged();
    Q_EMIT savedChanged();
}
