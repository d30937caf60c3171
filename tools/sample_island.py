"""The island of the sample survey: its coasts, rivers, border, mountains and neat-line.

Map units: ten are one kilometre; x to the right, y downwards, both within the sheet.
"""

import random
from dataclasses import dataclass

from contours import contours
from polylines import contains, crinkled, distance_to_line, nearest, pieces, simplified

SHEET_WIDTH = 1350
SHEET_HEIGHT = 1000
FRAME_BOTTOM = 968  # below it the file name and date of a map are stamped
FRAME_GAP = 7
MAX_POINTS = 500  # of one line

BLACK, SILVER, GRAY, LIGHT_BLUE = 0, 7, 8, 9
SOLID, DASH = 0, 1


@dataclass(frozen=True)
class MapLine:
    kind: int  # 1 coast, 2 water lining, 3 river, 4 border, 5 mountain, 6 neat-line and north arrow, 7 sheet
    colour: int
    style: int
    points: list


MAIN_COAST = [
    (470, 190), (530, 96), (566, 150), (600, 176), (622, 118), (706, 84), (792, 100), (836, 168), (862, 172),
    (866, 112), (960, 58), (1090, 84), (1132, 128), (1206, 112), (1246, 196), (1192, 256), (1160, 300),
    (1222, 344), (1282, 462), (1216, 556), (1120, 566), (1072, 628), (1128, 688), (1204, 742), (1238, 842),
    (1170, 884), (1120, 800), (1030, 760), (960, 690), (924, 742), (952, 820), (868, 888), (738, 868),
    (664, 800), (590, 790), (598, 716), (672, 690), (724, 622), (650, 634), (596, 584), (540, 622), (440, 580),
    (408, 512), (474, 462), (496, 398), (440, 352), (414, 258),
]  # fmt: skip

SMALL_COASTS = [
    [(222, 672), (262, 634), (330, 660), (346, 716), (296, 756), (244, 740)],
    [(392, 742), (430, 698), (474, 730), (452, 790), (408, 788)],
    [(486, 676), (514, 660), (530, 684), (504, 704)],
    [(1262, 650), (1296, 614), (1318, 662), (1300, 716), (1266, 700)],
    [(352, 150), (374, 138), (386, 160), (366, 178)],
]

RIVERS = {
    "Ulsa": [(856, 312), (816, 372), (836, 430), (782, 470), (756, 528), (778, 576), (724, 622)],
    "Ulsa source": [(944, 428), (890, 446), (836, 430)],
    "Temmer": [(900, 290), (942, 334), (1008, 312), (1062, 356), (1108, 318), (1160, 300)],
}

BORDER = [
    (490, 400), (550, 424), (640, 408), (700, 446), (782, 470), (850, 496), (944, 458), (1000, 440), (1070, 462),
    (1140, 434), (1244, 400),
]  # fmt: skip

MOUNTAINS = [(872, 262), (916, 238), (836, 226), (990, 534), (1034, 556), (560, 236), (1010, 582)]


class Island:
    """All lines of the base map, and distances to its coasts, rivers and border."""

    def __init__(self):
        rng = random.Random(7)
        self.main_coast = crinkled([*MAIN_COAST, MAIN_COAST[0]], 0.19, 5, rng)
        self.small_coasts = [crinkled([*coast, coast[0]], 0.2, 4, rng) for coast in SMALL_COASTS]
        self.rivers = {name: crinkled(course, 0.13, 6, rng) for name, course in RIVERS.items()}
        for name in ("Ulsa", "Temmer"):
            self.rivers[name][-1] = nearest(self.main_coast, self.rivers[name][-1])
        self.border = crinkled(BORDER, 0.1, 10, rng)
        for end in (0, -1):
            self.border[end] = nearest(self.main_coast, self.border[end])
        self.coasts = [self.main_coast, *self.small_coasts]
        self._coarse_coasts = [simplified(coast, 1.5) for coast in self.coasts]

    def lines(self):
        yield from self._neat_lines()
        yield from self._water_lining()
        for course in self.rivers.values():
            yield MapLine(3, LIGHT_BLUE, SOLID, course)
        yield MapLine(4, GRAY, DASH, self.border)
        for x, y in MOUNTAINS:
            ridge = [(-13, 8), (-2, -9), (2, -3), (5, -6), (14, 8)]
            yield MapLine(5, GRAY, SOLID, [(x + right, y + down) for right, down in ridge])
        for coast in self.coasts:
            for part in pieces(coast, MAX_POINTS):
                yield MapLine(1, BLACK, SOLID, part)

    def on_land(self, point):
        return any(contains(coast, point) for coast in self._coarse_coasts)

    def on_main_land(self, point):
        return contains(self._coarse_coasts[0], point)

    def from_coast(self, point):
        return min(distance_to_line(coast, point) for coast in self._coarse_coasts)

    def from_river(self, point):
        return min(distance_to_line(river, point) for river in self.rivers.values())

    def _water_lining(self):
        for level in (6, 13):
            for line in contours(self.coasts, level):
                for part in pieces(line, MAX_POINTS):
                    yield MapLine(2, SILVER, SOLID, part)

    def _neat_lines(self):
        outer = rectangle(0, 0, SHEET_WIDTH, FRAME_BOTTOM)
        inner = rectangle(FRAME_GAP, FRAME_GAP, SHEET_WIDTH - FRAME_GAP, FRAME_BOTTOM - FRAME_GAP)
        yield MapLine(6, BLACK, SOLID, meander(outer, inner))
        yield MapLine(6, BLACK, SOLID, meander(inner, outer))
        x, y = SHEET_WIDTH - 46, 70
        yield MapLine(6, BLACK, SOLID, [(x, y + 60), (x, y), (x - 8, y + 22), (x, y + 16)])
        yield MapLine(7, SILVER, SOLID, [(0, SHEET_HEIGHT)])  # a single point: the lower edge of the sheet


def rectangle(left, top, right, bottom):
    return [(left, top), (right, top), (right, bottom), (left, bottom), (left, top)]


def meander(frame, other):
    """A line along a frame that changes to the other one, or back, every ten kilometres.

    A meander from the outer frame and one from the inner make up both frames and the ticks between them, without a
    turn that would stick out.
    """
    line = [frame[0]]
    for corner in range(4):
        for tick in _tick_positions(frame[corner], frame[corner + 1]):
            line.append(_level_with(frame[corner], tick, across=corner % 2 == 0))
            frame, other = other, frame
            line.append(_level_with(frame[corner], tick, across=corner % 2 == 0))
        line.append(frame[corner + 1])
    return line


def _tick_positions(start, end):
    """The multiples of 100 between two corners, on the way from one to the other."""
    a, b = (start[0], end[0]) if start[1] == end[1] else (start[1], end[1])
    multiples = range(100, int(max(a, b)), 100)
    return multiples if a < b else reversed(multiples)


def _level_with(corner, tick, across):
    return (tick, corner[1]) if across else (corner[0], tick)
