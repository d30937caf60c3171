"""Writes the table of polygon designs, VarnData/Square.sbl. Run without arguments.

A design is drawn in units of 6 twips at normal size and 3 at small size, as a line through its points. Here the
points are given from the centre of the symbol, x to the right and y downwards, at most 14 units away; in the table
they are a little smaller, so that a design drawn at twice its height stays clear of its number in the catalogue, and
stand on a grid of 0 to 32 whose centre is the reference point.
"""

from math import cos, hypot, pi, sin

from written_file import statement, write_file

CENTRE = 16
SCALE = 0.93
MAX_RADIUS = 14
MAX_POINTS = 20


def closed(*points):
    return [*points, points[0]]


def turned(points, quarters):
    """Turned clockwise by quarter turns."""
    for _ in range(quarters):
        points = [(-y, x) for x, y in points]
    return points


def mirrored(half):
    """A closed figure from its right half, given from top to bottom; points on the axis are taken once."""
    left = [(-x, y) for x, y in reversed(half) if x != 0]
    return closed(*half, *left)


def around(count, radii, start=-90):
    """A closed figure of points at equal angles, at the radii in turn; the first is at the start angle, degrees."""
    angles = [start * pi / 180 + 2 * pi * i / count for i in range(count)]
    return closed(*((radii[i % len(radii)] * cos(a), radii[i % len(radii)] * sin(a)) for i, a in enumerate(angles)))


def arc(x, y, radius, first, last, count):
    """Points on a circle from one angle to another, degrees, clockwise as seen."""
    angles = [(first + (last - first) * i / (count - 1)) * pi / 180 for i in range(count)]
    return [(x + radius * cos(a), y + radius * sin(a)) for a in angles]


TRIANGLE = mirrored([(0, -13), (13, 9)])
ARROW = mirrored([(0, -13), (11, -1), (4.5, -1), (4.5, 12)])
CHEVRON = [(-12, 7), (0, -8), (12, 7)]
TEE = mirrored([(12, -12), (12, -4), (4, -4), (4, 12)])
HOURGLASS = closed((-10, -12), (10, -12), (-10, 12), (10, 12))

DESIGNS = [
    TRIANGLE,
    turned(TRIANGLE, 2),
    turned(TRIANGLE, 3),
    turned(TRIANGLE, 1),
    around(4, [13]),
    around(6, [13]),
    mirrored([(5, -7), (14, 7)]),  # trapezium
    around(8, [14, 5]),  # star of four points
    around(10, [14, 5.5]),  # of five
    around(12, [13.5, 7.5]),  # of six
    mirrored([(4.5, -13), (4.5, -4.5), (13, -4.5), (13, 4.5), (4.5, 4.5), (4.5, 13)]),  # Greek cross
    around(12, [5.5, 14, 14]),  # saltire
    mirrored([(8, -13), (2.5, -2.5), (13, -8), (13, 8), (2.5, 2.5), (8, 13)]),  # Maltese cross
    ARROW,
    turned(ARROW, 2),
    turned(ARROW, 3),
    turned(ARROW, 1),
    CHEVRON,
    turned(CHEVRON, 2),
    HOURGLASS,
    turned(HOURGLASS, 1),  # bow tie
    mirrored([(0, -14), (12, -2), (12, 12)]),  # house
    mirrored([(0, -14), *arc(0, 6, 7.5, -20, 90, 8)]),  # drop
    mirrored([(0, -6), (3, -10), (7.5, -11), (11.5, -8), (12.5, -3), (10.5, 2.5), (0, 13)]),  # heart
    closed(*arc(-2, 0, 13, -60, -300, 11), *arc(3.5, 0, 11, -251, -109, 7)),  # crescent
    closed((4, -14), (-10, 3), (-1, 3), (-4, 14), (10, -4), (1, -4)),  # lightning
    [(-8, 13), (-8, -13), (12, -6.5), (-8, 0)],  # pennant
    TEE,
    [(-11, -12), (-11, 11), (11, 11), (11, -12)],  # cup
    [(-11, -11), (11, -11), (-11, 11), (11, 11)],  # Z
    closed((-9, -13), (-1, -13), (-1, 5), (11, 5), (11, 13), (-9, 13)),  # L
]


def records():
    yield statement(len(DESIGNS))
    for points in DESIGNS:
        if len(points) > MAX_POINTS or any(hypot(x, y) > 1.35 * MAX_RADIUS for x, y in points):
            raise ValueError(f"design out of bounds: {points}")
        yield statement(len(points))
        yield statement(CENTRE, CENTRE, 0)
        for x, y in points:
            yield statement(round(CENTRE + SCALE * x, 1), round(CENTRE + SCALE * y, 1))


if __name__ == "__main__":
    write_file("VarnData/Square.sbl", records())
