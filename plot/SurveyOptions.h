#pragma once

#include "dialectometry/DistanceMaps.h"
#include "dialectometry/ItemMaps.h"
#include "dialectometry/SurveyAnswers.h"

#include <QString>

/// What the commands on a whole survey take besides its items.
struct SurveyOptions
{
    AnswerRule answers;
    DistanceSettings measure;
    /// A file of distances in place of items to compare; empty for none.
    QString distances;
    /// Number or name of a locality.
    QString locality;
    /// How distances are drawn; which map, is the command's matter.
    DistanceMapSettings map;
    /// How maps of items are drawn, and which an atlas is made of.
    ItemMapSettings items;
    /// Whether the items that mark groups are listed, not the word forms.
    bool itemsOfGroups = false;
};

struct PlotOptions;
class QCommandLineParser;

/// Reads them. Raises `UsageError`.
void readSurveyOptions(const QCommandLineParser& parser, PlotOptions& options);
