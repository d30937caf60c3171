#include "exchange/MakeSurvey.h"

#include "exchange/ItemFileNames.h"
#include "exchange/LegendPlace.h"
#include "exchange/NewMap.h"
#include "exchange/SurveyLimits.h"
#include "lingdata/LinguisticData.h"
#include "mapdata/MapFiles.h"
#include "render/LegendText.h"
#include "render/MadeSymbols.h"

#include <utility>

namespace {

constexpr auto MostRecords = static_cast<size_t>(decltype(SymbolRecords::HankoWord)::last());
constexpr auto MostKinds = static_cast<size_t>(decltype(WordKinds::KindWord)::last());

void keepChosenItems(SourceSurvey& source, const QStringList& chosen)
{
    if (!chosen.isEmpty()) {
        std::erase_if(source.items, [&](const SourceItem& item) { return !chosen.contains(item.name); });
    }
}

void requireLocalities(const SourceSurvey& source)
{
    if (source.localities.empty()) {
        throw RunTimeError(ErrorNumber::InputPastEndOfFile,
                           QStringLiteral("The source has no locality whose place is known.\n") +
                               source.report.text());
    }
}

void noteManyKinds(const std::vector<KindFrequency>& kinds, const QString& item, ImportReport& report)
{
    if (kinds.size() > MostRecords) {
        report.note(QStringLiteral("Items of more than %1 kinds, in which a grey dot stands for the rarest")
                        .arg(MostRecords),
                    item);
    }
    if (kinds.size() > MostKinds) {
        report.note(
            QStringLiteral("Items of more than %1 kinds, which the data display cannot show").arg(MostKinds),
            item);
    }
}

std::vector<std::vector<KindFrequency>> kindsOfItems(const SourceSurvey& source, ImportReport& report)
{
    std::vector<std::vector<KindFrequency>> items;
    for (const SourceItem& item : source.items) {
        items.push_back(kindsByFrequency(item.answers));
        noteManyKinds(items.back(), item.name, report);
    }
    return items;
}

QStringList namesOf(const std::vector<SourceItem>& items)
{
    QStringList names;
    for (const SourceItem& item : items) {
        names << item.name;
    }
    return names;
}

std::vector<NewItem> newItems(SourceSurvey& source, const Folders& folders)
{
    PolygonTable polygons;
    LoadSquareData(folders.Drive, folders.VarnPath, polygons);
    std::vector<SymbolSet> symbols =
        makeSymbols(kindsOfItems(source, source.report), source.categorical, polygons.Nsquare);
    const QStringList fileNames = itemFileNames(namesOf(source.items));
    std::vector<NewItem> items;
    for (size_t i = 0; i < source.items.size(); ++i) {
        items.push_back(
            {fileNames[static_cast<qsizetype>(i)], std::move(source.items[i]), std::move(symbols[i])});
    }
    return items;
}

/// The size of the longest legend in both directions, in twips; nothing where `progress` stopped it.
std::optional<QSizeF> longestLegend(const QString& title, const std::vector<NewItem>& items,
                                    const Folders& folders, const ExchangeProgress& progress)
{
    const LegendMeasure measure(folders);
    QSizeF longest = measure.titleSize(title);
    ItemAnswers caption;
    int done = 0;
    for (const NewItem& item : items) {
        if (!progress(done++, static_cast<int>(items.size()), item.source.name)) {
            return std::nullopt;
        }
        caption.Hanrei = item.source.name;
        longest = longest.expandedTo(measure.legendSize(caption, item.symbols));
    }
    return longest;
}

qsizetype countWords(const std::vector<NewItem>& items)
{
    qsizetype words = 0;
    for (const NewItem& item : items) {
        for (const QStringList& answers : item.source.answers) {
            words += answers.size();
        }
    }
    return words;
}

} // namespace

std::optional<NewSurvey> makeSurvey(SourceSurvey source, const SurveyChoices& choices, const Folders& folders,
                                    const ExchangeProgress& progress)
{
    requireLocalities(source);
    keepChosenItems(source, choices.items);
    keepToLimits(source);
    source.title = cutToWidth(source.title, WidestLegendText);
    NewSurvey survey;
    survey.items = newItems(source, folders);
    const auto legend = longestLegend(source.title, survey.items, folders, progress);
    if (!legend) {
        return std::nullopt;
    }
    const QString naturalEarth =
        folders.Drive.hostPath(folders.VarnPath + QStringLiteral("\\NaturalEarth\\natural-earth-50m.gpkg"));
    NewMap map = makeMap(source, choices, *legend, naturalEarth, source.report);
    survey.localities = std::move(map.localities);
    survey.names = std::move(map.names);
    survey.lines = std::move(map.lines);
    survey.placeNames = std::move(map.placeNames);
    survey.report = std::move(source.report);
    survey.report.tell(QStringLiteral("The map has %1 localities, %2 items, %3 word forms and %4 lines.")
                           .arg(survey.localities.NLocality)
                           .arg(survey.items.size())
                           .arg(countWords(survey.items))
                           .arg(survey.lines.NLine));
    return survey;
}
