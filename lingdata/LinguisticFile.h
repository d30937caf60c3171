#pragma once

#include "lingdata/LinguisticData.h"
#include "platform/FileKind.h"
#include "platform/SequentialFile.h"

/// Items of a survey.
inline constexpr FileKind ItemFiles{QLatin1String("DBS Files"), QLatin1String(".dbs")};

/// Reads a `.dbs` file: the header (localities, item field, caption, comment), then for each locality its
/// count of word forms and the word forms. Raises subscript out of range beyond 1000 localities, 5 word forms
/// a locality or 5000 in all, and the errors of a short or malformed file.
ItemAnswers readItem(SequentialReader& file);

/// Writes a `.dbs` file. The item field is always written empty.
void writeItem(SequentialWriter& file, const ItemAnswers& item);
