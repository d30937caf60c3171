#include "plot/PlotCommands.h"

#include "analysis/AccumulateItems.h"
#include "analysis/CumulativeFile.h"
#include "analysis/Statistics.h"
#include "plot/AtlasCommand.h"
#include "plot/DrawingFile.h"
#include "plot/ExportCommand.h"
#include "plot/ImportCommand.h"
#include "plot/MapPlot.h"
#include "plot/SurveyCommands.h"

namespace {

void loadCounts(VarnModule& varn, const QString& counts)
{
    LoadTotalFile(varn.Drive, varn.Drive.varnPath(counts), varn.NLocality, varn);
}

void loadCharacters(VarnModule& varn, const QString& characters)
{
    const int wordforms = varn.NumWordforms;
    LoadSetData(varn.Drive, varn.Drive.varnPath(characters), varn);
    if (varn.NumWordforms != wordforms) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("The table has %1 word forms, the identifying strings %2.")
                               .arg(wordforms)
                               .arg(varn.NumWordforms))
            .at({characters});
    }
}

/// Adds the items to the table, which is saved after each; returns whether all were counted.
bool accumulate(VarnModule& varn, const PlotOptions& options, PlotListener& listener)
{
    loadCharacters(varn, options.characters);
    ItemsToCount items;
    items.countAgain = options.countAgain;
    for (const QString& item : options.data) {
        items.paths << varn.Drive.varnPath(item);
    }
    const auto goOn = [](int, int, const QString&) { return true; };
    const AccumulationResult done =
        accumulateItems({varn.Drive, varn.TotalFilePath}, items, varn.NLocality, varn, goOn);
    for (const UncountedItem& item : done.uncounted) {
        listener.warning(QStringLiteral("%1 is left out: %2").arg(item.name, item.reason));
    }
    for (const QString& name : done.countedBefore) {
        listener.warning(QStringLiteral("%1 is left out: the table holds it already.").arg(name));
    }
    if (done.counted < done.items) {
        listener.warning(
            QStringLiteral("%1 of %2 items counted and saved.").arg(done.counted).arg(done.items));
    }
    return done.counted == done.items;
}

void saveStatistics(VarnModule& varn, const QString& output)
{
    Stats(varn, varn.NLocality, varn);
    writeSequentialFile(varn.Drive, varn.Drive.varnPath(output),
                        [&varn](SequentialWriter& file) { writeStatistics(file, varn, varn); });
}

} // namespace

bool plot(const PlotOptions& options, PlotListener& listener)
{
    if (options.command == PlotOptions::Command::Import) {
        importSurvey(options, listener);
        return true;
    }
    if (options.command == PlotOptions::Command::Atlas) {
        return plotAtlas(options, listener);
    }
    MapPlot map(options, listener);
    const DriveC drive;
    const auto save = [&](const Drawing& drawing) {
        saveDrawing(drawing, map.size(), options.output, options.dotsPerInch);
    };
    if (!options.counts.isEmpty()) {
        loadCounts(map.varn(), options.counts);
    }
    switch (options.command) {
    case PlotOptions::Command::Import:
    case PlotOptions::Command::Atlas:
    case PlotOptions::Command::Help:
    case PlotOptions::Command::Version:
        break;
    case PlotOptions::Command::LinguisticMap:
        save(map.linguisticMap(drive.varnPath(options.data.value(0)), drive.varnPath(options.symbols)));
        break;
    case PlotOptions::Command::BlankMap:
        save(map.blankMap());
        break;
    case PlotOptions::Command::Symbols:
        savePdfPages(
            map.symbolPages(), [&map](int page) -> const Drawing& { return map.symbolPage(page + 1); },
            map.size(), options.output);
        break;
    case PlotOptions::Command::Accumulate:
        return accumulate(map.varn(), options, listener);
    case PlotOptions::Command::Statistics:
        saveStatistics(map.varn(), options.output);
        break;
    case PlotOptions::Command::DiffusionMap:
        save(map.diffusionMap(options.graph, options.layered, options.wordForm));
        break;
    case PlotOptions::Command::SymbolDiffusionMap:
        save(map.symbolDiffusionMap(drive.varnPath(options.symbols), options.wordForm));
        break;
    case PlotOptions::Command::ContrastMap:
        save(map.contrastMap(drive.varnPath(options.contrast)));
        break;
    case PlotOptions::Command::Export:
        return exportMap(map.varn(), options.output, listener);
    case PlotOptions::Command::AreaMap:
    case PlotOptions::Command::IsoglossMap:
    case PlotOptions::Command::Distances:
    case PlotOptions::Command::ReferenceMap:
    case PlotOptions::Command::BeamMap:
    case PlotOptions::Command::ClusterMap:
    case PlotOptions::Command::Dendrogram:
    case PlotOptions::Command::MdsMap:
    case PlotOptions::Command::MdsPlot:
    case PlotOptions::Command::DistancePlot:
    case PlotOptions::Command::GroupMarks:
        return plotSurvey(map, options, listener);
    }
    return true;
}
