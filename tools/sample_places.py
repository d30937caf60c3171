"""The place names and the localities of the sample survey."""

import random
from dataclasses import dataclass
from math import dist

from polylines import distance_to_line
from sample_island import MOUNTAINS

TITLE = "Velsora (invented survey)"
TITLE_AT = (32, 20)
SCALE_BAR_AT = (262, 932)
SCALE_LABEL, SCALE_DIVISIONS, SCALE_LENGTH = "20 km", 4, 200

TEXT_HEIGHT = 27  # of 10-point text, map units
LETTER_WIDTH = 12

NAMES = {
    "W E S T E R N   S E A": (30, 596),
    "Soro Bay": (985, 850),
    "Lumet Bay": (1130, 612),
    "Great Lorn": (224, 772),
    "Little Lorn": (382, 812),
    "Isk": (436, 668),
    "Tarn Rock": (322, 190),
    "Ulsa": (708, 556),
    "Temmer": (952, 336),
    "Mt Orvan": (756, 254),
    "Mt Sel": (580, 226),
    "Ketter Hills": (956, 592),
    "N": (1297, 36),
}

# Localities with a name, and where the name starts from there.
TOWNS = {
    "Doraval": ((516, 152), (-124, -34)),
    "Kessim": ((706, 110), (-36, -68)),
    "Anvel": ((1222, 172), (52, -8)),
    "Torrisa": ((1172, 332), (40, -42)),
    "Lumeta": ((1200, 528), (40, 32)),
    "Pelgan": ((1206, 838), (50, -30)),
    "Soromi": ((862, 850), (-14, 56)),
    "Runa": ((610, 742), (-94, 34)),
    "Nessa": ((1291, 662), (-28, 66)),
    "Vostel": ((440, 524), (-118, -28)),
    "Ulsamor": ((746, 636), (25, -12)),
    "Hamrik": ((850, 400), (8, -38)),
    "Mirra": ((1008, 252), (8, -38)),
}

LOCALITIES = 120


@dataclass(frozen=True)
class Place:
    """A locality as the spread of words sees it; distances in map units."""

    x: float
    y: float
    coast: float
    peak: float  # from the nearest mountain
    temmer: float  # from the river Temmer
    north: float  # of the border; below 0 south of it
    isle: bool  # on one of the small islands

    def near(self, town):
        return dist((self.x, self.y), TOWNS[town][0])


def name_positions():
    yield TITLE, TITLE_AT
    yield from NAMES.items()
    for name, ((x, y), (right, down)) in TOWNS.items():
        yield name, (x + right, y + down)


def places(island):
    """The localities from north to south, as evenly spread as the land, the rivers and the names allow."""
    chosen = [town for town, _ in TOWNS.values()]
    free = _free_points(island, random.Random(4), 1500)
    spacing = {point: _usual_spacing(island, point) for point in free}
    room = {point: min(dist(point, town) for town in chosen) for point in free}
    while len(chosen) < LOCALITIES:
        roomiest = max(free, key=lambda point: room[point] / spacing[point])
        chosen.append(roomiest)
        room = {point: min(room[point], dist(point, roomiest)) for point in free}
    return [_place(island, point) for point in sorted(chosen, key=lambda point: (point[1] // 60, point[0]))]


def _usual_spacing(island, point):
    """Localities are closer in the valleys and on the small islands."""
    return 44 + 18 * min(1, island.from_river(point) / 120) if island.on_main_land(point) else 40


def _free_points(island, rng, count):
    points = []
    while len(points) < count:
        point = (round(rng.uniform(200, 1330), 1), round(rng.uniform(50, 910), 1))
        if _is_free(island, point):
            points.append(point)
    return points


def _is_free(island, point):
    return (
        all(dist(mountain, point) > 30 for mountain in MOUNTAINS)
        and not any(_covers(name, at, point) for name, at in name_positions())
        and island.on_land(point)
        and island.from_coast(point) > 15
        and island.from_river(point) > 15
        and distance_to_line(island.border, point) > 14
    )


def _covers(name, at, point, margin=14):
    return (
        at[0] - margin < point[0] < at[0] + LETTER_WIDTH * len(name) + margin
        and at[1] - margin < point[1] < at[1] + TEXT_HEIGHT + margin
    )


def _place(island, point):
    x, y = point
    aside = distance_to_line(island.border, point)
    return Place(
        x,
        y,
        coast=island.from_coast(point),
        peak=min(dist(point, mountain) for mountain in MOUNTAINS),
        temmer=distance_to_line(island.rivers["Temmer"], point),
        north=aside if _is_north(island.border, point) else -aside,
        isle=not island.on_main_land(point),
    )


def _is_north(border, point):
    """Whether the point lies above the border, which runs from west to east."""
    y = next((a[1] for a, b in zip(border, border[1:]) if b[0] >= point[0]), border[-1][1])
    return point[1] < y
