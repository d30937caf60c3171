#pragma once

#include "atlas/AtlasMapKind.h"
#include "atlas/AtlasPage.h"
#include "dialectometry/GroupMarks.h"
#include "dialectometry/IsoglossMap.h"
#include "dialectometry/SurveyAnswers.h"

#include <memory>

/// What is compared: the answers to items, or distances that were written before.
struct SurveySource
{
    AnswerRule answers;
    DistanceSettings measure;
    /// Paths of the items; all of the map where there are none.
    QStringList items;
    /// Path of a file of distances in place of items; empty for none.
    QString distancesFile;

    bool operator==(const SurveySource&) const = default;
};

/// `source` with a measure that its answers allow: kinds have no sounds that could be compared.
SurveySource withPossibleMeasure(SurveySource source);

/// How far distances can be trusted; what cannot be told is nothing.
struct Agreement
{
    std::optional<double> alpha;
    std::optional<double> incoherence;
    std::optional<double> correlation;
    LengthUnit unit = LengthUnit::MapUnits;
};

/// A survey whose localities were compared.
struct ComparedSurvey
{
    SurveySource source;
    SurveyAnswers answers;
    /// The answers prepared to be compared; null for distances of a file.
    std::shared_ptr<const SurveyComparison> comparison;
    DistanceMatrix distances;
    /// What the distances are called in titles.
    QString name;
    /// How much changes at the borders of the cells.
    BorderChanges changes;
    Agreement agreement;
    /// The items that could not be read, each with its reason.
    QStringList leftOut;
};

/// A base map and the cells of its localities.
struct CellMap
{
    BaseMap map;
    LocalityCells cells;
};

/// What a survey is compared from.
struct SurveyFiles
{
    Folders folders;
    std::shared_ptr<const CellMap> map;
    /// Pages that take the place of the files of their items.
    std::vector<AtlasPage> unsaved;
};

/// Compares the localities; nothing where `goOn` returned false. Items that cannot be read are left out.
/// Raises file not found where none is left, and what reading a file of distances raises.
std::shared_ptr<const ComparedSurvey> compareSurvey(const SurveyFiles& files, const SurveySource& source,
                                                    const DistanceProgress& goOn);

/// What a map of the survey is drawn from.
struct SurveyMap
{
    AtlasMapKind kind = AtlasMapKind::Clusters;
    std::shared_ptr<const CellMap> map;
    std::shared_ptr<const ComparedSurvey> survey;
    DistanceMapSettings settings;
    DistanceFindings findings;
    /// Whether the items are wanted that groups are known by, and those of group 1 and the following.
    bool withItemMarks = false;
    std::vector<ItemsOfGroup> itemMarks;
};

/// `settings` with that of `others` which changes the drawing, but nothing in what is found out for it.
DistanceMapSettings withLookOf(DistanceMapSettings settings, const DistanceMapSettings& others);

/// Finds out what the map shows of its compared survey; returns whether `goOn` let it end. Raises what
/// `findingsFor` raises.
bool findFor(SurveyMap& map, const DistanceProgress& goOn);

void drawSurveyMap(const SurveyMap& map, const IsoglossStyle& style, const AreaMapParts& parts,
                   MapSurfaces surfaces);

/// What the map is of: "Isoglosses of 12 items".
QString nameOf(const SurveyMap& map);

/// What the user is to know of the map: what is left out of it, and how far the distances can be trusted; a
/// line each.
QStringList notesOf(const SurveyMap& map);
