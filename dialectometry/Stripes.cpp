#include "dialectometry/Stripes.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace {

constexpr double StripeWidth = 90;
/// No page has as many.
constexpr double MostStripes = 10000;

/// How far across the stripes a point lies.
double across(QPointF point)
{
    return (point.x() + point.y()) / std::numbers::sqrt2;
}

/// What of `ring` lies on one side of a line along the stripes: beyond `bound`, or before it where `side` is
/// negative.
Ring cutOff(const Ring& ring, double bound, double side)
{
    Ring rest;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const QPointF a = ring[i];
        const QPointF b = ring[(i + 1) % ring.size()];
        const double fromA = (across(a) - bound) * side;
        const double fromB = (across(b) - bound) * side;
        if (fromA >= 0) {
            rest.push_back(a);
        }
        if ((fromA < 0) != (fromB < 0)) {
            rest.push_back(a + (b - a) * (fromA / (fromA - fromB)));
        }
    }
    return rest;
}

void addStripe(const Ring& ring, double from, Rings& result)
{
    Ring stripe = cutOff(cutOff(ring, from, 1), from + StripeWidth, -1);
    if (stripe.size() >= 3) {
        result.push_back(std::move(stripe));
    }
}

} // namespace

Rings stripes(const Rings& rings, std::size_t which, std::size_t of)
{
    const double period = StripeWidth * static_cast<double>(of);
    const double shift = StripeWidth * static_cast<double>(which);
    Rings result;
    for (const Ring& ring : rings) {
        double least = std::numeric_limits<double>::max();
        double most = std::numeric_limits<double>::lowest();
        for (const QPointF point : ring) {
            least = std::min(least, across(point));
            most = std::max(most, across(point));
        }
        const double first = std::floor((least - shift - StripeWidth) / period);
        const double last = std::min(std::floor((most - shift) / period), first + MostStripes);
        const auto count = static_cast<int>(last - first) + 1;
        for (int i = 0; i < count; ++i) {
            addStripe(ring, (first + i) * period + shift, result);
        }
    }
    return result;
}
