#include "atlas/SurveyMap.h"

#include "atlas/AtlasItem.h"
#include "dialectometry/DistanceFile.h"
#include "dialectometry/Reliability.h"
#include "lingdata/LocalityMismatch.h"
#include "platform/FileName.h"
#include "platform/SequentialFile.h"
#include "render/MadeSymbols.h"

#include <algorithm>

namespace {

const AtlasPage* unsavedPage(const SurveyFiles& files, const QString& itemPath)
{
    const auto found = std::ranges::find_if(files.unsaved, [&](const AtlasPage& page) {
        return page.item.ItemPath.compare(itemPath, Qt::CaseInsensitive) == 0;
    });
    return found == files.unsaved.end() ? nullptr : &*found;
}

ComparedItem compared(const AtlasPage& page, AnswerRule rule, int localities)
{
    if (page.item.NLocate != localities) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, localityMismatch(page.item.NLocate, localities));
    }
    const QString name = stemOf(page.item.ItemPath);
    const bool whole = rule.wholeWordForms || isMadeForWholeWordForms(page.symbols);
    return rule.by == AnswersBy::Kinds ? comparedKinds(page.item, page.symbols, whole, name)
                                       : comparedItem(page.item, name);
}

/// Reads what is compared; an item that cannot be is left out of `survey`. Returns whether `goOn` let it end.
bool readAnswers(const SurveyFiles& files, ComparedSurvey& survey, const DistanceProgress& goOn)
{
    const QStringList paths =
        survey.source.items.isEmpty() ? atlasItemPaths(files.folders) : survey.source.items;
    const int localities = files.map->map.NLocality;
    survey.answers.localities = localities;
    int done = 0;
    for (const QString& path : paths) {
        if (!goOn(done++, static_cast<int>(paths.size()))) {
            return false;
        }
        try {
            const AtlasPage* page = unsavedPage(files, path);
            survey.answers.items.push_back(
                page != nullptr
                    ? compared(*page, survey.source.answers, localities)
                    : readComparedItem(files.folders.Drive, path, survey.source.answers, localities));
        } catch (const RunTimeError& error) {
            survey.leftOut << QStringLiteral("%1: %2").arg(stemOf(path), error.text());
        }
    }
    if (survey.answers.items.empty()) {
        throw RunTimeError(ErrorNumber::FileNotFound,
                           (QStringList(QStringLiteral("There is no item to compare.")) + survey.leftOut)
                               .join(QLatin1Char('\n')));
    }
    return true;
}

void findChanges(const CellMap& map, ComparedSurvey& survey)
{
    survey.changes = borderChanges(map.cells, survey.answers.items.front().answers);
    for (std::size_t i = 1; i < survey.answers.items.size(); ++i) {
        addChanges(survey.changes, borderChanges(map.cells, survey.answers.items[i].answers));
    }
}

void findAgreement(const BaseMap& map, ComparedSurvey& survey, const DistanceProgress& goOn)
{
    const Lengths ways = localityLengths(map, map, map);
    survey.agreement = {survey.comparison ? cronbachAlpha(*survey.comparison, goOn) : std::nullopt,
                        localIncoherence(survey.distances, ways.lengths),
                        lengthCorrelation(survey.distances, ways.lengths), ways.unit};
}

bool compareItems(const SurveyFiles& files, ComparedSurvey& survey, const DistanceProgress& goOn)
{
    if (!readAnswers(files, survey, goOn)) {
        return false;
    }
    survey.comparison = std::make_shared<const SurveyComparison>(survey.answers, survey.source.measure);
    auto distances = survey.comparison->matrix(goOn);
    if (!distances) {
        return false;
    }
    survey.distances = std::move(*distances);
    survey.name = nameOf(survey.source.measure, survey.answers.items.size());
    findChanges(*files.map, survey);
    findAgreement(files.map->map, survey, goOn);
    return goOn(0, 0);
}

void readDistancesOf(const SurveyFiles& files, ComparedSurvey& survey, const DistanceProgress& goOn)
{
    const BaseMap& map = files.map->map;
    survey.distances =
        readSequentialFile(files.folders.Drive, survey.source.distancesFile, [&map](SequentialReader& file) {
            return readDistances(file, map, map.NLocality);
        });
    survey.name = stemOf(survey.source.distancesFile);
    findAgreement(map, survey, goOn);
}

QStringList leftOutNotes(const SurveyMap& map)
{
    QStringList notes;
    if (const QStringList items = map.survey->leftOut; !items.isEmpty()) {
        notes << QStringLiteral("Items left out:") << items;
    }
    if (const QStringList names = leftOutOfMap(map.settings, map.findings, map.map->map); !names.isEmpty()) {
        notes << QStringLiteral("Localities left out, for want of a distance to others: %1")
                     .arg(names.join(QStringLiteral(", ")));
    }
    return notes;
}

} // namespace

SurveySource withPossibleMeasure(SurveySource source)
{
    if (source.answers.by == AnswersBy::Kinds && source.measure.measure == DistanceMeasure::Levenshtein) {
        source.measure.measure = DistanceMeasure::RelativeIdentity;
    }
    return source;
}

std::shared_ptr<const ComparedSurvey> compareSurvey(const SurveyFiles& files, const SurveySource& source,
                                                    const DistanceProgress& goOn)
{
    auto survey = std::make_shared<ComparedSurvey>();
    survey->source = source;
    if (!source.distancesFile.isEmpty()) {
        readDistancesOf(files, *survey, goOn);
    } else if (!compareItems(files, *survey, goOn)) {
        return nullptr;
    }
    return survey;
}

DistanceMapSettings withLookOf(DistanceMapSettings settings, const DistanceMapSettings& others)
{
    settings.rule = others.rule;
    settings.look = others.look;
    settings.symbols = others.symbols;
    settings.withDendrogram = others.withDendrogram;
    return settings;
}

bool findFor(SurveyMap& map, const DistanceProgress& goOn)
{
    if (map.kind == AtlasMapKind::Bundles) {
        return true;
    }
    const ComparedSurvey& survey = *map.survey;
    auto findings = findingsFor(map.settings, survey.distances, map.map->map, map.map->cells, goOn);
    if (!findings) {
        return false;
    }
    map.findings = std::move(*findings);
    if (map.kind != AtlasMapKind::Clusters || !map.withItemMarks || !survey.comparison) {
        return true;
    }
    auto marks = itemsOfGroups(*survey.comparison, map.findings.groups, goOn);
    if (marks) {
        map.itemMarks = std::move(*marks);
    }
    return !map.itemMarks.empty();
}

QString nameOf(const SurveyMap& map)
{
    return map.kind == AtlasMapKind::Bundles ? isoglossesOf(map.survey->answers.items.size())
                                             : map.survey->name;
}

void drawSurveyMap(const SurveyMap& map, const IsoglossStyle& style, const AreaMapParts& parts,
                   MapSurfaces surfaces)
{
    if (map.kind == AtlasMapKind::Bundles) {
        drawBundleMap(parts, nameOf(map), map.survey->changes, style, surfaces);
    } else {
        drawDistanceMap(parts, map.survey->distances, map.findings, map.settings, map.survey->name, surfaces);
    }
}

QStringList notesOf(const SurveyMap& map)
{
    QStringList notes;
    const auto tell = [&notes](const QString& what, std::optional<double> value) {
        if (value) {
            notes << QStringLiteral("%1: %2").arg(what).arg(*value, 0, 'f', 2);
        }
    };
    if (map.kind != AtlasMapKind::Bundles) {
        const Agreement& agreement = map.survey->agreement;
        tell(QStringLiteral("Cronbach's alpha"), agreement.alpha);
        tell(QStringLiteral("Local incoherence"), agreement.incoherence);
        tell(agreement.unit == LengthUnit::Kilometres ? QStringLiteral("Correlation with kilometres")
                                                      : QStringLiteral("Correlation with ways on the map"),
             agreement.correlation);
    }
    return notes + leftOutNotes(map);
}
