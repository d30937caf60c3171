"""Lines at a fixed distance outside closed outlines, such as the water lining along a coast."""

from math import ceil, floor

from polylines import crossings, distance_to_segment, length, simplified

CELL = 2  # width of the grid on which the distances are taken, map units
TOLERANCE = 0.3
LEAST_LENGTH = 100  # shorter ones, left over in narrow inlets, are dropped


def contours(outlines, level):
    """Lines at that distance from the outlines, outside them; a line round an outline ends where it begins."""
    distances = _signed_distances(outlines, level + 2 * CELL)
    following, points = {}, {}
    for column, row in distances:
        _trace_cell(distances, column, row, level, following, points)
    lines = [[points[edge] for edge in chain] for chain in _chains(following)]
    return [simplified(line, TOLERANCE) for line in lines if length(line) > LEAST_LENGTH]


def _signed_distances(outlines, reach):
    """Grid point to distance, for the points within reach of an outline; distances inside an outline are negative."""
    distances = {}
    for outline in outlines:
        for a, b in zip(outline, outline[1:]):
            for column in range(*_grid_range(a[0], b[0], reach)):
                for row in range(*_grid_range(a[1], b[1], reach)):
                    distance = distance_to_segment(a, b, (column * CELL, row * CELL))
                    if distance < distances.get((column, row), reach):
                        distances[column, row] = distance
    for row in {row for _, row in distances}:
        banks = sorted(x for outline in outlines for x in crossings(outline, row * CELL))
        for left, right in zip(banks[::2], banks[1::2]):
            for column in range(ceil(left / CELL), floor(right / CELL) + 1):
                if (column, row) in distances:
                    distances[column, row] *= -1
    return distances


def _grid_range(a, b, reach):
    return floor((min(a, b) - reach) / CELL), ceil((max(a, b) + reach) / CELL) + 1


def _trace_cell(distances, column, row, level, following, points):
    """Adds the parts of the contour within one cell: each leads from one edge of the cell to another."""
    corners = [(column, row), (column + 1, row), (column + 1, row + 1), (column, row + 1)]
    if not all(corner in distances for corner in corners):
        return
    rising, falling = [], []
    for a, b in zip(corners, corners[1:] + corners[:1]):
        if (distances[a] < level) != (distances[b] < level):
            edge = (min(a, b), max(a, b))
            share = (level - distances[a]) / (distances[b] - distances[a])
            points[edge] = (CELL * (a[0] + share * (b[0] - a[0])), CELL * (a[1] + share * (b[1] - a[1])))
            (rising if distances[a] < level else falling).append(edge)
    for start, end in zip(rising, falling):
        following[start] = end


def _chains(following):
    """The parts joined end to end, closed chains first of all broken at any of their edges."""
    ends = set(following.values())
    starts = [edge for edge in following if edge not in ends] + list(following)
    for start in starts:
        chain = [start]
        while chain[-1] in following:
            chain.append(following.pop(chain[-1]))
        if len(chain) > 1:
            yield chain
