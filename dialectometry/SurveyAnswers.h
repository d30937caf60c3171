#pragma once

#include "lingdata/LinguisticData.h"
#include "symbols/SymbolSet.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

class DriveC;

/// What makes two answers the same.
enum class AnswersBy : std::uint8_t {
    /// They are the same word form.
    WordForms,
    /// The same record of the item's symbol set marks them, so that spellings and sounds that the map does
    /// not tell apart are one. Answers that no record marks do not count.
    Kinds,
};

struct AnswerRule
{
    AnswersBy by = AnswersBy::WordForms;
    /// Whether records mark the word forms that equal their kind also where the symbol file does not ask for
    /// it.
    bool wholeWordForms = false;

    bool operator==(const AnswerRule&) const = default;
};

/// The answers to one item as localities are compared by them: each distinct one once.
struct ComparedItem
{
    /// The name of its file without folder and ending.
    QString name;
    /// Its caption; its name where it has none.
    QString caption;
    /// The distinct word forms, coded as in the item, in order of first appearance; or the captions of the
    /// records, in their order.
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

/// What of an item is compared by its word forms. Empty ones are no answers.
ComparedItem comparedItem(const ItemAnswers& item, const QString& name);

/// What is compared by the records of `symbols`.
ComparedItem comparedKinds(const ItemAnswers& item, const SymbolSet& symbols, bool wholeWordForms,
                           const QString& name);

/// Reads the item at `path` (of the program) for a map of `localities`, by kinds also the symbol file of its
/// name. Raises what reading them raises, and subscript out of range, at the file, for an item with another
/// number of localities.
ComparedItem readComparedItem(const DriveC& drive, const QString& path, AnswerRule rule, int localities);
