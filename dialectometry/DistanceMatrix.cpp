#include "dialectometry/DistanceMatrix.h"

#include <limits>

DistanceMatrix::DistanceMatrix(int size)
    : m_size(size),
      m_pairs(static_cast<std::size_t>(size) * static_cast<std::size_t>(std::max(0, size - 1)) / 2,
              std::numeric_limits<double>::quiet_NaN())
{}
