#pragma once

#include "analysis/ContrastData.h"

#include <vector>

/// What the boxes of the contrast form hold.
struct ContrastBoxes
{
    QString title;
    /// Number of legend steps and size of the largest circle as they are typed.
    QString steps;
    QString size;
    /// Colour numbers 0..15 of outline and fill of sides 1 and 2; -1 for an empty box.
    BoundedArray<int, Bounds{1, 2}> setColor;
    BoundedArray<int, Bounds{1, 2}> fillColor;

    bool operator==(const ContrastBoxes&) const = default;
};

/// What is set in the contrast form: its boxes, and the numbers of the word forms of sides 1 and 2, whose
/// names are the table's.
struct ContrastSettings
{
    ContrastBoxes boxes;
    BoundedArray<std::vector<int>, Bounds{1, 2}> wordforms;

    bool operator==(const ContrastSettings&) const = default;
};

/// The settings of the groups of `contrast` under boxes that may hold something else than it does.
ContrastSettings settingsOf(const ContrastBoxes& boxes, const ContrastData& contrast);

/// What the boxes hold before anything was typed or loaded.
ContrastBoxes newContrastBoxes();

/// The boxes that show `contrast`; a colour number that does not exist shows as an empty box.
ContrastBoxes boxesOf(const ContrastData& contrast);

/// Takes the boxes into `contrast`. Empty colour boxes are first filled: side 1 with light red, side 2 with
/// light blue. The steps are stored plus 1; where their box still shows what is stored, that stays as it is,
/// to the last digit. Raises overflow for a size beyond 16 bits, and nothing is taken then.
void SetRankData(ContrastBoxes& boxes, ContrastData& contrast);

/// Edits the two groups of word forms. Sides are 1 and 2; every change makes the sums outdated.
class ContrastEditor
{
public:
    ContrastEditor(const CumulativeTable& table, ContrastData& contrast)
        : m_table(table), m_contrast(contrast)
    {}

    /// The names of the word forms of a side.
    QStringList wordforms(int side) const;

    enum class AddResult { Added, Present, Full };
    /// Adds word form k of the table to a side, behind those it has; a side has each word form once, and at
    /// most ten. Raises subscript out of range for a word form that the table does not have.
    AddResult addWordform(int side, int k);
    /// Removes the t-th word form of a side. Raises subscript out of range where there is none.
    void removeWordform(int side, int t);

    /// Shows the word forms under the table's names where it has them, and notes that the sums are outdated
    /// where the counts of `localities` localities are others now.
    void followTable(int localities);

    static constexpr int MaxWordforms = 10;

private:
    bool has(int side, int k) const;
    bool sumsAreCurrent(int localities) const;

    const CumulativeTable& m_table;
    ContrastData& m_contrast;
};

/// How the word forms of `contrast` that are called otherwise in `table` differ, a line each; empty where
/// all names agree. Raises subscript out of range for a word form that the table does not have.
QString differingNames(const CumulativeTable& table, const ContrastData& contrast);
