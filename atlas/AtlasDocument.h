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

struct UnsavedWork;
struct VarnModule;

/// The pages of the current map's atlas while they are turned and edited. The page that is turned to is the
/// shared state's item and symbol set, for all forms; pages with unsaved work, or with steps of their own to
/// undo, are kept until they are turned to again, and others are read from their files. Every edit is a step
/// that can be undone, over pages.
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

    /// Turns to the item at `itemPath`. One that cannot be read is a page with its `trouble`. An unsaved
    /// symbol set of another form becomes a change of the first page, so that it is not lost.
    void turnTo(const QString& itemPath);
    /// Why there is nothing to be drawn of the page; empty where it can be.
    const QString& trouble() const { return m_page.trouble; }
    /// What else the user is to know of the page, a sentence each, the trouble among it.
    QStringList warnings() const;

    /// Makes `records` the page's symbols, a step called `text`. Symbols whose file cannot be read stay as
    /// they are.
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
    /// Gives up everything that is unsaved, with all steps: the pages are as their files, for all forms.
    void discard();

    /// Adds the unsaved pages and the place of the legend to the work that is kept, and the other way round:
    /// makes pages of work on the current map, as unsaved as they were, and turns to one of them.
    void addTo(UnsavedWork& work) const;
    void restore(const UnsavedWork& work);

    /// Names of the files of the pages that are here which another program changed or deleted since.
    QStringList changedFiles() const;
    /// Reads the pages of such files again; all steps, and the unsaved work on them, are lost.
    void readChanged();
    /// Keeps these pages as they are, for saving to replace the files.
    void keepChanged();

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

    struct KeptPage
    {
        AtlasPage page;
        bool isUnsaved = false;
    };

    bool isShown(const QString& itemPath) const;
    bool isOfPage(const SymbolSet& shared) const;
    AtlasPage keptOrRead(const QString& itemPath) const;
    void keepPage();
    void dropNeedless();
    void show(AtlasPage page);
    void shareItem();
    void shareSymbols();
    void followMap();
    void followStyle();
    void followItem();
    void followWords();
    void followSymbols();
    void adoptSymbols(const SymbolSet& set);

    VarnModule& m_varn;
    MapPlace m_map;
    AtlasPage m_page;
    /// Pages that were turned away from and are still needed, by the paths of their items.
    std::map<QString, KeptPage> m_kept;
    std::optional<SymbolRecords> m_preview;
    /// The place of the legend as it was shown last, and as its file holds it once it was moved.
    QPointF m_legend;
    std::optional<QPointF> m_savedLegend;
    /// The style that maps were shown in last.
    MapStyle m_style;
    /// The shared state's item and symbol set as they were shared or taken over last.
    int m_itemReading = -1;
    int m_symbolsReading = -1;
    QUndoStack m_steps;
};
