#pragma once

#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

/// The distance of every two localities (from 0), in its own unit from 0 on. Two localities that nothing is
/// known of have none: it is not a number.
class DistanceMatrix
{
public:
    /// No distance is known.
    explicit DistanceMatrix(int size = 0);

    int size() const { return m_size; }
    /// 0 of a locality to itself.
    double operator()(int a, int b) const { return a == b ? 0 : m_pairs[pair(a, b)]; }
    bool has(int a, int b) const { return !std::isnan((*this)(a, b)); }
    /// `a` and `b` are two.
    void set(int a, int b, double distance) { m_pairs[pair(a, b)] = distance; }

    /// The distances of 0 to 1, 2, ..., of 1 to 2, 3, ..., and so on.
    std::span<const double> pairs() const { return m_pairs; }
    std::span<double> pairs() { return m_pairs; }

private:
    std::size_t pair(int a, int b) const
    {
        const auto row = static_cast<std::size_t>(std::min(a, b));
        const auto column = static_cast<std::size_t>(std::max(a, b));
        const auto size = static_cast<std::size_t>(m_size);
        return row * size - row * (row + 1) / 2 + column - row - 1;
    }

    int m_size;
    std::vector<double> m_pairs;
};
