#include "atlas/AtlasDocument.h"

#include "atlas/ItemKey.h"
#include "platform/Numbers.h"
#include "render/MadeSymbols.h"
#include "shell/VarnModule.h"

#include <QSet>

#include <algorithm>
#include <limits>
#include <tuple>
#include <utility>

namespace {

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
    constexpr int MostSteps = 500;
    m_steps.setUndoLimit(MostSteps);
    connect(&m_steps, &QUndoStack::indexChanged, this, &AtlasDocument::savedChanged);
}

AtlasDocument::~AtlasDocument() = default;

void AtlasDocument::restart()
{
    m_map = {m_varn.VarnPath, m_varn.VarnMapName};
    m_page = {};
    m_kept.clear();
    m_preview.reset();
    m_legend = legendPlace();
    m_savedLegend.reset();
    m_itemReading = -1;
    m_steps.clear();
    Q_EMIT pageTurned();
    Q_EMIT baseMapChanged();
    Q_EMIT savedChanged();
}

bool AtlasDocument::isShown(const QString& itemPath) const
{
    return hasPage() && itemKey(itemPath) == itemKey(m_page.item.ItemPath);
}

QStringList AtlasDocument::warnings() const
{
    return hasPage() ? warningsOf(m_page, m_varn.NLocality) : QStringList();
}

AtlasPage AtlasDocument::keptOrRead(const QString& itemPath) const
{
    const auto kept = m_kept.find(itemKey(itemPath));
    return kept == m_kept.end() ? readAtlasPage(m_varn, itemPath) : kept->second.page;
}

void AtlasDocument::turnTo(const QString& itemPath)
{
    if (isShown(itemPath)) {
        return;
    }
    const bool isFirst = !hasPage();
    const SymbolSet shared = m_varn;
    AtlasPage page = keptOrRead(itemPath);
    keepPage();
    m_varn.WholeWordForms = m_style.WholeWordForms = isMadeForWholeWordForms(page.symbols);
    show(std::move(page));
    if (isFirst && isSymbolSetUnsaved(shared)) {
        static_cast<SymbolSet&>(m_varn) = shared;
        followSymbols();
    }
}

/// A page with steps stays, too: undoing them turns back to it. So does one with the symbols of another file.
void AtlasDocument::keepPage()
{
    if (hasPage()) {
        KeptPage& kept = m_kept[itemKey(m_page.item.ItemPath)];
        kept.isUnsaved = m_page.isUnsaved();
        kept.page = std::move(m_page);
    }
    dropNeedless();
}

void AtlasDocument::dropNeedless()
{
    QSet<QString> withSteps;
    for (int i = 0; i < m_steps.count(); ++i) {
        if (const auto* step = dynamic_cast<const PageStep*>(m_steps.command(i))) {
            withSteps.insert(itemKey(step->itemPath()));
        }
    }
    std::erase_if(m_kept, [&](const auto& entry) {
        const auto& [path, kept] = entry;
        return !kept.isUnsaved && !withSteps.contains(path) && hasOwnSymbols(kept.page);
    });
}

void AtlasDocument::show(AtlasPage page)
{
    m_kept.erase(itemKey(page.item.ItemPath));
    m_page = std::move(page);
    m_preview.reset();
    shareItem();
    shareSymbols();
    Q_EMIT pageTurned();
    Q_EMIT savedChanged();
}

void AtlasDocument::setSymbols(const SymbolRecords& records, const QString& text, int merging)
{
    m_preview.reset();
    if (m_page.symbols == records || !m_page.symbolTrouble.isEmpty()) {
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
    if (isMadeForWholeWordForms(records) != isMadeForWholeWordForms(m_page.symbols)) {
        m_varn.WholeWordForms = m_style.WholeWordForms = isMadeForWholeWordForms(records);
    }
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
