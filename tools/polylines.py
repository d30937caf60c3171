"""Lines as lists of (x, y) points."""

from math import dist, hypot


def crinkled(points, roughness, step, rng):
    """The line with every part longer than the step broken at a point set aside from its middle, as coasts are."""
    line = [points[0]]
    for end in points[1:]:
        line += _broken(line[-1], end, roughness, step, rng)
    return line


def _broken(start, end, roughness, step, rng):
    if dist(start, end) <= step:
        return [end]
    aside = max(-1.6, min(1.6, rng.gauss(0, 1))) * roughness
    along = rng.uniform(0.42, 0.58)
    middle = (
        start[0] + along * (end[0] - start[0]) - aside * (end[1] - start[1]),
        start[1] + along * (end[1] - start[1]) + aside * (end[0] - start[0]),
    )
    return [*_broken(start, middle, roughness, step, rng), *_broken(middle, end, roughness, step, rng)]


def length(line):
    return sum(dist(a, b) for a, b in zip(line, line[1:]))


def nearest(line, point):
    return min(line, key=lambda other: dist(other, point))


def distance_to_line(line, point):
    return min(distance_to_segment(a, b, point) for a, b in zip(line, line[1:]))


def distance_to_segment(a, b, point):
    dx, dy = b[0] - a[0], b[1] - a[1]
    square = dx * dx + dy * dy
    t = 0 if square == 0 else max(0, min(1, ((point[0] - a[0]) * dx + (point[1] - a[1]) * dy) / square))
    return hypot(a[0] + t * dx - point[0], a[1] + t * dy - point[1])


def pieces(line, size):
    """The line in parts of at most so many points, each beginning where the one before ends."""
    return [line[i : i + size] for i in range(0, max(1, len(line) - 1), size - 1)]


def simplified(line, tolerance):
    """The line without the points that lie within the tolerance of what remains."""
    if len(line) < 3:
        return line
    middle = max(range(1, len(line) - 1), key=lambda i: distance_to_segment(line[0], line[-1], line[i]))
    if distance_to_segment(line[0], line[-1], line[middle]) <= tolerance:
        return [line[0], line[-1]]
    return simplified(line[: middle + 1], tolerance)[:-1] + simplified(line[middle:], tolerance)


def crossings(outline, y):
    """Where a closed outline crosses a horizontal, from left to right."""
    return sorted(
        a[0] + (y - a[1]) / (b[1] - a[1]) * (b[0] - a[0])
        for a, b in zip(outline, outline[1:])
        if (a[1] <= y) != (b[1] <= y)
    )


def contains(outline, point):
    return sum(x < point[0] for x in crossings(outline, point[1])) % 2 == 1
