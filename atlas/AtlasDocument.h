#pragma once

#include "atlas/AtlasPage.h"
#include "atlas/AtlasSteps.h"
#include "mapdata/MapSearch.h"
#include "render/MapStyle.h"

#include <QObject>
#include <QPointF>
#include <QUndoStack>

#include <map>
#include <optional>

struct VarnModule;

/// The pages of the current map's atlas while they are turned and edited. The page that is turned to is the
/// shared state's item and symbol set, for all forms; pages with unsaved work, or with steps to undo, are
/// kept until they are turned to again. Every edit is a step that can be undone, over pages.
class AtlasDocument : public QObject
{
    Q_OBJECT

public:
    explicit AtlasDocument(VarnModule& varn);
    ~AtlasDocument() override;

    /// Forgets all pages and steps, for another map.
    void restart();

    /// Whether there is a page; before the first one, `page` is empty.
    bool hasPage() const { return !m_page.item.ItemPath.isEmpty(); }
    const AtlasPage& page() const { return m_page; }
    /// The symbols to be shown: those of the page, or a preview of others.
    const SymbolRecords& shownSymbols() const { return m_preview ? *m_preview : m_page.symbols; }

    /// Turns to the item at `itemPath`. Raises what `readAtlasPage` raises; the page is then as it was.
    void turnTo(const QString& itemPath);
    /// Reads the page's files again; steps and unsaved work of the page are lost. Raises what reading raises.
    void readAgain();

    /// Makes `records` the page's symbols, a step called `text`.
    void setSymbols(const SymbolRecords& records, const QString& text, int merging = SymbolsStep::NoMerging);
    /// Shows `records` while the user has not decided yet; `endPreview` shows the page's own again.
    void previewSymbols(const SymbolRecords& records);
    void endPreview();

    /// Gives localities of the page their word forms, a step called `text`. Raises what `setLocalityWords`
    /// raises; nothing is changed then.
    void setWords(const WordsStep::Words& words, const QString& text);

    /// Where title and legend begin, in map units: the place of the first place name.
    QPointF legendPlace() const;
    /// Moves them there, a step; a map without place names gets one with an empty text then.
    void setLegendPlace(QPointF asked);

    /// Draws maps in another style from now on, in all forms.
    void setMapStyle(const MapStyle& style);

    QUndoStack& steps() { return m_steps; }

    bool isUnsaved() const;
    /// Paths of the items with unsaved work.
    QStringList unsavedItems() const;
    bool isLegendPlaceUnsaved() const;
    /// The pages with unsaved work.
    std::vector<const AtlasPage*> unsavedPages() const;
    /// Saves everything. Raises what writing raises; what was saved until then is.
    void save();

    /// Takes over what other forms did to the shared state: another item or symbol set is turned to, changed
    /// symbols are a step.
    void followSharedState();

Q_SIGNALS:
    /// Another page is shown, or the same was read again.
    void pageTurned();
    /// Other symbols are shown, or in another style.
    void symbolsChanged();
    void wordsChanged();
    void baseMapChanged();
    /// What is unsaved may have changed.
    void savedChanged();

private:
    friend class SymbolsStep;
    friend class WordsStep;
    friend class LegendPlaceStep;

    // What the steps do; each turns to its page first.
    void putSymbols(const QString& itemPath, const SymbolRecords& records);
    void putWords(const QString& itemPath, const WordsStep::Words& words);
    void putLegend(QPointF place);

    bool isShown(const QString& itemPath) const;
    void keepPage();
    void show(AtlasPage page);
    void shareItem();
    void shareSymbols();
    void followStyle();
    void followItem();
    void followWords();
    void followSymbols();

    VarnModule& m_varn;
    MapPlace m_map;
    AtlasPage m_page;
    /// Pages that were turned away from and are still needed, by the paths of their items.
    std::map<QString, AtlasPage> m_kept;
    std::optional<SymbolRecords> m_preview;
    /// The place of the legend as it was shown last, and as its file holds it once it was moved.
    QPointF m_legend;
    std::optional<QPointF> m_savedLegend;
    /// The style that maps were shown in last.
    MapStyle m_style;
    /// The shared state's item as it was shared or taken over last.
    int m_itemReading = -1;
    QUndoStack m_steps;
};
