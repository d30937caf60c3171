#include "plot/PlotForms.h"
#include "plot/PlotOptions.h"
#include "plot/PlotReading.h"

#include <QCommandLineParser>

#include <array>

namespace {

using Command = PlotOptions::Command;

DistanceMapKind mapOf(Command command)
{
    switch (command) {
    case Command::ReferenceMap:
        return DistanceMapKind::Reference;
    case Command::BeamMap:
        return DistanceMapKind::Beams;
    case Command::Dendrogram:
        return DistanceMapKind::Dendrogram;
    case Command::MdsMap:
        return DistanceMapKind::Scaling;
    case Command::MdsPlot:
        return DistanceMapKind::ScalingPlot;
    case Command::DistancePlot:
        return DistanceMapKind::LengthPlot;
    default:
        return DistanceMapKind::Clusters;
    }
}

void readClusters(const QCommandLineParser& parser, DistanceMapSettings& map)
{
    constexpr int MostGroups = decltype(Localities::LocXY)::last();
    constexpr double MostNoise = 10;
    constexpr int LargestSeed = 1'000'000'000;

    if (parser.isSet(QStringLiteral("method"))) {
        map.method = static_cast<LinkageMethod>(readChoice(parser, QStringLiteral("method")));
    }
    if (parser.isSet(QStringLiteral("clusters"))) {
        map.groups = readCount(parser, QStringLiteral("clusters"), MostGroups);
    }
    if (parser.isSet(QStringLiteral("noise"))) {
        map.noise.noise = readPositive(parser, QStringLiteral("noise"), MostNoise);
    }
    if (parser.isSet(QStringLiteral("seed"))) {
        map.noise.seed = static_cast<std::uint64_t>(readCount(parser, QStringLiteral("seed"), LargestSeed));
    }
}

void readMeasure(const QCommandLineParser& parser, SurveyOptions& survey)
{
    if (parser.isSet(QStringLiteral("measure"))) {
        survey.measure.measure = static_cast<DistanceMeasure>(readChoice(parser, QStringLiteral("measure")));
    }
    survey.measure.vowelsApart = parser.isSet(QStringLiteral("vowels-apart"));
    const bool isLevenshtein = survey.measure.measure == DistanceMeasure::Levenshtein;
    if (survey.measure.vowelsApart && !isLevenshtein) {
        throw UsageError(QStringLiteral("--vowels-apart goes with --measure levenshtein"));
    }
    if (survey.answers.by == AnswersBy::Kinds && isLevenshtein) {
        throw UsageError(QStringLiteral("--measure levenshtein compares word forms, not kinds"));
    }
}

/// The maps of an atlas take no settings of other kinds.
void checkKind(const QCommandLineParser& parser, const ItemMapSettings& items)
{
    constexpr std::array Settings = {std::pair{"hatched", ItemMapKind::Areas},
                                     std::pair{"with-symbols", ItemMapKind::Areas},
                                     std::pair{"smooth", ItemMapKind::Isoglosses}};

    for (const auto& [name, kind] : Settings) {
        if (parser.isSet(QLatin1String(name)) && items.kind != kind) {
            throw UsageError(
                QStringLiteral("--%1 goes with --kind %2")
                    .arg(QLatin1String(name),
                         optionForm(QStringLiteral("kind")).choices[static_cast<qsizetype>(kind)]));
        }
    }
    const bool haveSymbols = items.kind == ItemMapKind::Symbols || items.areas.withSymbols;
    if (parser.isSet(QStringLiteral("location")) && !haveSymbols) {
        throw UsageError(QStringLiteral("--location goes with --kind symbols or --with-symbols"));
    }
}

void readItemMaps(const QCommandLineParser& parser, Command command, SurveyOptions& survey)
{
    ItemMapSettings& items = survey.items;
    items.areas = {survey.map.look, parser.isSet(QStringLiteral("with-symbols"))};
    items.isoglosses = {parser.isSet(QStringLiteral("smooth")), parser.isSet(QStringLiteral("numbers"))};
    if (parser.isSet(QStringLiteral("kind"))) {
        items.kind = static_cast<ItemMapKind>(readChoice(parser, QStringLiteral("kind")));
    }
    if (command == Command::Atlas) {
        checkKind(parser, items);
    }
}

/// A file of distances was made of answers; it is not made again. What marks groups is looked for in items
/// whichever distances the groups were made by.
void checkOneSource(const QCommandLineParser& parser)
{
    for (const char* name : {"items", "measure", "vowels-apart", "compare", "keep-going"}) {
        if (parser.isSet(QStringLiteral("distances")) && parser.isSet(QLatin1String(name))) {
            throw UsageError(
                QStringLiteral("--%1 goes with items, not with --distances").arg(QLatin1String(name)));
        }
    }
}

} // namespace

void readSurveyOptions(const QCommandLineParser& parser, PlotOptions& options)
{
    SurveyOptions& survey = options.survey;
    survey.answers.wholeWordForms = options.wholeWordForms;
    survey.answers.by = options.command == Command::IsoglossMap ? AnswersBy::Kinds : AnswersBy::WordForms;
    if (parser.isSet(QStringLiteral("compare"))) {
        survey.answers.by = static_cast<AnswersBy>(readChoice(parser, QStringLiteral("compare")));
    }
    readMeasure(parser, survey);
    if (options.command != Command::GroupMarks) {
        checkOneSource(parser);
    }
    survey.distances = parser.value(QStringLiteral("distances"));
    survey.locality = parser.value(QStringLiteral("locality"));
    survey.map.kind = mapOf(options.command);
    survey.map.look = parser.isSet(QStringLiteral("hatched")) ? AreaLook::Hatched : AreaLook::Colored;
    survey.map.symbols = parser.isSet(QStringLiteral("group-symbols"));
    survey.map.withDendrogram = parser.isSet(QStringLiteral("dendrogram"));
    if (parser.isSet(QStringLiteral("classes"))) {
        survey.map.rule = static_cast<ClassRule>(readChoice(parser, QStringLiteral("classes")));
    }
    readClusters(parser, survey.map);
    readItemMaps(parser, options.command, survey);
    survey.itemsOfGroups =
        parser.isSet(QStringLiteral("marks")) && readChoice(parser, QStringLiteral("marks")) == 1;
}
