#pragma once

#include "exchange/SourceSurvey.h"

/// The pipeline from the coordinates of a survey to metres (in a plane survey to its own x and y), y growing
/// upward. `projection` is "laea" or "tmerc", both at the survey's centre, or "EPSG:N". Raises invalid
/// procedure call for what is none of them or has no metres.
QString surveyProjection(const SourceSurvey& survey, const QString& projection);

/// The pipeline that measures true distances in metres from `centre` in degrees.
QString distancePipeline(QPointF centre);
