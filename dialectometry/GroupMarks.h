#pragma once

#include "dialectometry/Distances.h"

/// What a word form says of a group of localities. Only localities with an answer to its item count.
struct FormOfGroup
{
    /// Numbers (from 0) of the item and of its word form.
    int item = 0;
    int form = 0;
    /// The share of the group's localities that have it.
    double representativeness = 0;
    /// How far it is found in the group only, 1 for nowhere else, 0 as often as elsewhere, less for seldomer:
    /// (relative occurrence - relative size) / (1 - relative size), where the relative occurrence is the
    /// share of the localities with the form that are in the group, and the relative size the share of all
    /// localities that are. 0 where all are in the group.
    double distinctiveness = 0;

    /// The mean of both.
    double importance() const { return (representativeness + distinctiveness) / 2; }
};

/// The word forms that a group has, the most important first: Wieling & Nerbonne (2011), Bipartite spectral
/// graph partitioning for clustering dialect varieties and detecting their linguistic features. `groups`
/// holds the number of each locality's group, 0 for one that does not count.
std::vector<FormOfGroup> formsOfGroup(const SurveyAnswers& survey, const std::vector<int>& groups, int group);

/// How an item parts a group from the other localities.
struct ItemOfGroup
{
    int item = 0;
    /// The mean distance within the group, and between it and all others.
    double within = 0;
    double between = 0;
    /// How much farther the others are, in standard deviations of the item's distances.
    double score = 0;
};

/// The items that a group is known by, the best first.
using ItemsOfGroup = std::vector<ItemOfGroup>;

/// How many groups there are; the last has the highest number.
int groupCount(const std::vector<int>& groups);

/// Those of group 1 and the following: Prokić, Çöltekin & Nerbonne (2012), Detecting shibboleths. Items are
/// left out that have no distance within the group or to the others, or none that varies. Nothing where
/// `goOn` returned false.
std::optional<std::vector<ItemsOfGroup>>
itemsOfGroups(const SurveyComparison& survey, const std::vector<int>& groups, const DistanceProgress& goOn);
