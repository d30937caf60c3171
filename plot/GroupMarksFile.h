#pragma once

#include "dialectometry/GroupMarks.h"

class SequentialWriter;

// What marks groups of localities, as tables (CSV) with a line of headings.

/// A line for each word form that a group has, the most important first.
void writeFormsOfGroups(SequentialWriter& file, const SurveyAnswers& answers, const std::vector<int>& groups);

/// A line for each item that parts a group from the others, the best first. `marks` holds those of group 1,
/// group 2, and so on.
void writeItemsOfGroups(SequentialWriter& file, const SurveyAnswers& answers,
                        const std::vector<ItemsOfGroup>& marks);
