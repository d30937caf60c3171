#pragma once

#include "exchange/SourceSurvey.h"

/// Leaves out of the survey what a map of this program cannot hold, and tells it in the survey's report:
/// localities beyond 1000, answers beyond five at a locality, and items that nobody answered. Word forms
/// become plain lines of text: breaks and control characters in them become blanks, and backslashes that are
/// codes of phonetic letters in no survey of this program become a letter of their own.
void keepToLimits(SourceSurvey& survey);
