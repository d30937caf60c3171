#pragma once

#include <QRectF>

#include <set>
#include <vector>

/// A place on the map that stands for a locality: its own, or that of one of its symbols.
struct MapSpot
{
    QPointF place;
    int locality = 0;
};

/// The spots of a map in the cells of a grid, so that the nearest one is found without a walk over all.
class SpotGrid
{
public:
    SpotGrid() = default;
    explicit SpotGrid(std::vector<MapSpot> spots);

    /// The locality of the spot nearest to `point`, at most `radius` away; 0 where there is none.
    int nearest(QPointF point, double radius) const;
    /// The localities with a spot in `area`.
    std::set<int> within(const QRectF& area) const;

private:
    int column(double x) const;
    int row(double y) const;
    std::size_t cell(int column, int row) const;
    template <typename Visit>
    void visit(const QRectF& area, Visit visit) const;

    QRectF m_extent;
    /// Cells in a row, and in a column.
    int m_side = 1;
    /// The spots cell by cell, and where each cell begins.
    std::vector<MapSpot> m_spots;
    std::vector<std::size_t> m_begins = {0, 0};
};
