#pragma once

#include "dialectometry/AreaFill.h"

#include <QString>

#include <span>
#include <vector>

/// How values are parted into classes.
enum class ClassRule {
    /// Three classes of one width from the lowest value to the mean, and three from there to the highest
    /// (Goebl 1984, MINMWMAX).
    AroundMean,
    /// Six classes of one width.
    EqualWidths
};

/// Classes of values. The values that are not a number belong to none.
struct ValueClasses
{
    /// Ascending: class i (from 0) reaches from `bounds[i]` to `bounds[i + 1]`.
    std::vector<double> bounds;

    int count() const { return bounds.size() < 2 ? 0 : static_cast<int>(bounds.size()) - 1; }
    /// The class of a value; -1 of one that is not a number. A value on a bound belongs to the lower class.
    int operator()(double value) const;
    /// "0.12 - 0.25", with as many decimals as it takes to tell the classes apart.
    QString text(int number) const;
};

/// The classes of `values`: one where all are the same, none where none is a number.
ValueClasses valueClasses(std::span<const double> values, ClassRule rule);

/// The fills of `count` classes, at most 6: from red over pale to blue around the mean, or from yellow to
/// dark blue; dark for the first class where `rule` is of equal widths. In the hatched look patterns from
/// dense to none.
std::vector<AreaFill> classFills(int count, ClassRule rule, AreaLook look);
