#pragma once

#include "exchange/ImportReport.h"

#include <QPointF>
#include <QString>
#include <QStringList>

#include <vector>

/// A place of a survey as its source gives it.
struct SourceLocality
{
    /// What the source calls it in its tables, unique in the survey.
    QString id;
    QString name;
    /// Degrees east (x) and north (y), WGS 84; in a plane survey x and y as they are, y growing upward.
    QPointF position;
};

/// An item of a survey as its source gives it.
struct SourceItem
{
    QString name;
    /// The answers of each locality, in the survey's order of localities; none where it was not asked.
    std::vector<QStringList> answers;
};

/// A whole survey as it comes from outside: every locality has its place, every answer its locality and item.
/// What its source held beyond that is told in the report.
struct SourceSurvey
{
    QString title;
    std::vector<SourceLocality> localities;
    std::vector<SourceItem> items;
    /// Whether its localities have no degrees, only positions in some plane.
    bool plane = false;
    /// Whether its answers are categories (codes, cognate sets), which mean the same in every item.
    bool categorical = false;
    /// Layers that the source itself brings for the base map: paths that GDAL opens.
    QStringList baseMapLayers;
    ImportReport report;
};
