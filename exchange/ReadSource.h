#pragma once

#include "exchange/SourceChoices.h"
#include "exchange/SourceSurvey.h"

enum class SourceKind { Cldf, Layer, Table };

/// What is at `path`, a path of this machine. Raises file not found, and type mismatch for a folder without
/// CLDF and for a broken zip.
SourceKind kindOfSource(const QString& path);

/// Reads the survey at `choices.path`, a path of this machine: CLDF (its folder, metadata file or zip), a GIS
/// layer whose attributes are the items, or a table. Raises what `kindOfSource` and the reader of each raise.
SourceSurvey readSource(const SourceChoices& choices);
