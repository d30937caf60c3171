#pragma once

#include "lingdata/LinguisticData.h"

#include <QString>
#include <QStringList>

#include <vector>

class DriveC;

/// The answers to one item as localities are compared by them: each distinct word form once.
struct ComparedItem
{
    /// The name of its file without folder and ending.
    QString name;
    /// Its caption; its name where it has none.
    QString caption;
    /// The distinct word forms, coded as in the item, in order of first appearance.
    QStringList forms;
    /// For each locality (from 0) the numbers (from 0) of its word forms, each once; none where it has no
    /// answer.
    std::vector<std::vector<int>> answers;
};

/// The answers of a survey to some items.
struct SurveyAnswers
{
    int localities = 0;
    std::vector<ComparedItem> items;
};

/// What of an item is compared. Empty word forms are no answers.
ComparedItem comparedItem(const ItemAnswers& item, const QString& name);

/// Reads the items at `paths` (of the program) for a map of `localities`. Raises what reading an item raises,
/// and subscript out of range, at the file, for an item with another number of localities.
SurveyAnswers readSurveyAnswers(const DriveC& drive, const QStringList& paths, int localities);
