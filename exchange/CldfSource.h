#pragma once

#include "exchange/SourceChoices.h"
#include "exchange/SourceSurvey.h"

/// Whether CLDF is at `path`: a metadata file, or a folder or zip with one. Raises type mismatch for a broken
/// zip.
bool isCldf(const QString& path);

/// Reads a survey from CLDF, a Wordlist or a StructureDataset: an item for each parameter, a locality for
/// each language that has coordinates. The answers are the forms, their cognate sets, or the values by the
/// names of their codes, as `choices` say; the answers of a StructureDataset are its values. Each answer of a
/// locality to an item is taken once. Raises type mismatch, with
/// file, row and column, for tables and columns that are missing and for what is not sound.
SourceSurvey readCldf(const SourceChoices& choices);
