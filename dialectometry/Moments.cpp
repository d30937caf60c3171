#include "dialectometry/Moments.h"

#include <algorithm>
#include <limits>
#include <vector>

Moments momentsOf(std::span<const double> numbers)
{
    Moments moments;
    double least = std::numeric_limits<double>::infinity();
    double most = -least;
    for (const double number : numbers) {
        if (!std::isnan(number)) {
            ++moments.count;
            moments.mean += number;
            least = std::min(least, number);
            most = std::max(most, number);
        }
    }
    if (moments.count == 0) {
        return moments;
    }
    moments.mean = least == most ? least : moments.mean / moments.count;
    for (const double number : numbers) {
        moments.variance += std::isnan(number) ? 0 : std::pow(number - moments.mean, 2) / moments.count;
    }
    return moments;
}

double correlationOf(std::span<const double> a, std::span<const double> b)
{
    std::vector<double> first;
    std::vector<double> second;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (!std::isnan(a[i]) && !std::isnan(b[i])) {
            first.push_back(a[i]);
            second.push_back(b[i]);
        }
    }
    const Moments ofFirst = momentsOf(first);
    const Moments ofSecond = momentsOf(second);
    if (ofFirst.variance == 0 || ofSecond.variance == 0) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    double sum = 0;
    for (std::size_t i = 0; i < first.size(); ++i) {
        sum += (first[i] - ofFirst.mean) * (second[i] - ofSecond.mean);
    }
    return sum / ofFirst.count / (ofFirst.deviation() * ofSecond.deviation());
}
