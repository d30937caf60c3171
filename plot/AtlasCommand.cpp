#include "plot/AtlasCommand.h"

#include "lingdata/ItemFolder.h"
#include "platform/FileName.h"
#include "platform/WholeFile.h"
#include "plot/AtlasPdf.h"
#include "plot/HostError.h"
#include "plot/MapPlot.h"
#include "symbols/SymbolFile.h"

#include <algorithm>
#include <future>
#include <optional>
#include <thread>

namespace {

/// Keeps what a thread has to say, for the others not to be interrupted.
class QuietListener : public PlotListener
{
public:
    void page(int /*page*/, int /*pages*/, const QString& /*name*/) override {}
    void report(const QString& /*text*/) override {}
    void warning(const QString& text) override { m_warnings << text; }

    QStringList takeWarnings() { return std::exchange(m_warnings, {}); }

private:
    QStringList m_warnings;
};

/// What became of an item.
struct RecordedItem
{
    AtlasSheet sheet;
    QStringList warnings;
    std::optional<RunTimeError> error;
};

using RecordedItems = std::vector<RecordedItem>;

/// The items of a map that have a symbol file of the same name, in name order.
QStringList itemsWithSymbols(const Folders& folders)
{
    QStringList paths = itemFiles(folders.Drive, folders.dataFolder());
    paths.removeIf([&folders](const QString& path) {
        return !fileExists(folders.Drive, withEnding(path, SymbolFiles.ending));
    });
    if (paths.isEmpty()) {
        throw RunTimeError(ErrorNumber::FileNotFound,
                           QStringLiteral("No item there has a symbol file of its name."))
            .at({folders.dataFolder()});
    }
    return paths;
}

QStringList chosenItems(const PlotOptions& options, const Folders& folders)
{
    QStringList paths;
    for (const QString& item : options.items) {
        paths << folders.Drive.varnPath(item);
    }
    return paths.isEmpty() ? itemsWithSymbols(folders) : paths;
}

/// Records the maps of items one after the other.
class ItemRecorder
{
public:
    ItemRecorder(const PlotOptions& options, const LocalityCells& cells)
        : m_settings(options.survey.items), m_cells(cells), m_map(options, m_listener)
    {}

    RecordedItem record(const QString& path)
    {
        RecordedItem item;
        try {
            item.sheet = sheet(path);
        } catch (const RunTimeError& error) {
            item.error = error;
        }
        item.warnings = m_listener.takeWarnings();
        return item;
    }

private:
    AtlasSheet sheet(const QString& path)
    {
        ItemLayers layers = m_map.itemOfMap(path, withEnding(path, SymbolFiles.ending), m_cells, m_settings);
        const QString& caption = m_map.varn().Hanrei;
        return {caption.isEmpty() ? stemOf(path) : caption, std::move(layers.under), std::move(layers.over)};
    }

    const ItemMapSettings& m_settings;
    const LocalityCells& m_cells;
    QuietListener m_listener;
    MapPlot m_map;
};

RecordedItems recordPart(const PlotOptions& options, const LocalityCells& cells, const QStringList& paths)
{
    ItemRecorder recorder(options, cells);
    RecordedItems items;
    for (const QString& path : paths) {
        items.push_back(recorder.record(path));
    }
    return items;
}

/// Records the maps of all items, an even share a thread.
RecordedItems recordItems(const PlotOptions& options, const LocalityCells& cells, const QStringList& paths,
                          int jobs)
{
    const qsizetype parts = std::clamp<qsizetype>(jobs, 1, paths.size());
    std::vector<std::future<RecordedItems>> recording;
    for (qsizetype part = 0; part < parts; ++part) {
        const qsizetype first = paths.size() * part / parts;
        const QStringList own = paths.mid(first, paths.size() * (part + 1) / parts - first);
        recording.push_back(
            std::async(std::launch::async, recordPart, std::cref(options), std::cref(cells), own));
    }
    RecordedItems items;
    for (auto& part : recording) {
        std::ranges::move(part.get(), std::back_inserter(items));
    }
    return items;
}

/// The cells of the map, which linguistic maps need none of.
LocalityCells cellsFor(ItemMapKind kind, const BaseMap& map)
{
    return kind == ItemMapKind::Symbols ? LocalityCells() : localityCells(map, map);
}

/// Takes the sheets of the items that could be drawn; returns whether these were all.
bool takeSheets(RecordedItems& items, const QStringList& paths, const PlotOptions& options,
                PlotListener& listener, AtlasSheets& atlas)
{
    bool areAll = true;
    for (std::size_t i = 0; i < items.size(); ++i) {
        RecordedItem& item = items[i];
        for (const QString& warning : item.warnings) {
            listener.warning(warning);
        }
        if (!item.error) {
            atlas.sheets.push_back(std::move(item.sheet));
        } else if (!options.keepGoing) {
            throw *item.error;
        } else {
            listener.warning(
                QStringLiteral("%1 is left out: %2")
                    .arg(fileNameOf(paths[static_cast<qsizetype>(i)]), onThisMachine(*item.error).message()));
            areAll = false;
        }
    }
    return areAll;
}

} // namespace

bool plotAtlas(const PlotOptions& options, PlotListener& listener)
{
    MapPlot map(options, listener);
    const QStringList paths = chosenItems(options, map.varn());
    const int jobs = options.jobs > 0 ? options.jobs : static_cast<int>(std::thread::hardware_concurrency());
    RecordedItems items = recordItems(options, cellsFor(options.survey.items.kind, map.varn()), paths, jobs);
    AtlasSheets atlas{options.map, map.size(), map.blankMap(), {}};
    const bool areAll = takeSheets(items, paths, options, listener, atlas);
    if (atlas.sheets.empty()) {
        throw RunTimeError(ErrorNumber::FileNotFound, QStringLiteral("No item can be drawn."))
            .at({map.varn().dataFolder()});
    }
    const auto pages = static_cast<int>(atlas.sheets.size());
    const auto progress = [&](int page, const QString& caption) { listener.page(page, pages, caption); };
    const QByteArray pdf = atlasPdf(std::move(atlas), jobs, progress);
    replaceHostFile(options.output, options.output, pdf);
    return areAll;
}
