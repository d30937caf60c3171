#pragma once

#include "platform/RunTimeError.h"

#include <array>
#include <concepts>
#include <cstddef>
#include <vector>

/// The bounds of one dimension of a `BoundedArray`, both included.
struct Bounds
{
    int lo;
    int hi;
};

/// An array of fixed capacity whose indices run from `lo` to `hi` in each dimension. An index outside raises
/// the subscript error. A value like any other: copied cell by cell, all cells value-initialised.
template <typename T, Bounds... Dimensions>
class BoundedArray
{
public:
    template <std::integral... Index>
    requires(sizeof...(Index) == sizeof...(Dimensions)) T& operator()(Index... index)
    {
        return m_cells[offset(index...)];
    }

    template <std::integral... Index>
    requires(sizeof...(Index) == sizeof...(Dimensions)) const T& operator()(Index... index) const
    {
        return m_cells[offset(index...)];
    }

    /// The highest index of a dimension; the dimensions count from 0.
    template <std::size_t Dimension = 0>
    static constexpr int last()
    {
        return std::array{Dimensions...}.at(Dimension).hi;
    }

    /// Raises the subscript error where there is no such cell.
    template <std::integral... Index>
    requires(sizeof...(Index) == sizeof...(Dimensions)) static void require(Index... index)
    {
        offset(index...);
    }

    bool operator==(const BoundedArray&) const = default;

private:
    static constexpr std::size_t extent(Bounds bounds)
    {
        return static_cast<std::size_t>(bounds.hi - bounds.lo) + 1;
    }

    static std::size_t position(Bounds bounds, long long index)
    {
        if (index < bounds.lo || index > bounds.hi) {
            throw RunTimeError(
                ErrorNumber::SubscriptOutOfRange,
                QStringLiteral("%1 is not in %2 to %3.").arg(index).arg(bounds.lo).arg(bounds.hi));
        }
        return static_cast<std::size_t>(index - bounds.lo);
    }

    template <std::integral... Index>
    static std::size_t offset(Index... index)
    {
        std::size_t result = 0;
        ((result = result * extent(Dimensions) + position(Dimensions, static_cast<long long>(index))), ...);
        return result;
    }

    std::vector<T> m_cells = std::vector<T>((extent(Dimensions) * ... * std::size_t{1}));
};
