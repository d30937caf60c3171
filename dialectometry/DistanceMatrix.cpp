#include "dialectometry/DistanceMatrix.h"

#include <algorithm>
#include <cmath>
#include <limits>

DistanceMatrix::DistanceMatrix(int size)
    : m_size(size),
      m_pairs(static_cast<std::size_t>(size) * static_cast<std::size_t>(std::max(0, size - 1)) / 2,
              std::numeric_limits<double>::quiet_NaN())
{}

bool DistanceMatrix::has(int a, int b) const
{
    return !std::isnan((*this)(a, b));
}

std::size_t DistanceMatrix::pair(int a, int b) const
{
    const auto row = static_cast<std::size_t>(std::min(a, b));
    const auto column = static_cast<std::size_t>(std::max(a, b));
    const auto size = static_cast<std::size_t>(m_size);
    return row * size - row * (row + 1) / 2 + column - row - 1;
}
