#pragma once

#include <cmath>
#include <span>

/// Mean and variance of numbers; what is not a number does not count.
struct Moments
{
    int count = 0;
    double mean = 0;
    /// Of the numbers as a whole, not of a sample.
    double variance = 0;

    double deviation() const { return std::sqrt(variance); }
};

/// The variance of equal numbers is exactly 0.
Moments momentsOf(std::span<const double> numbers);

/// Pearson's correlation of numbers that stand at the same places, where both are numbers. Not a number where
/// either does not vary.
double correlationOf(std::span<const double> a, std::span<const double> b);
