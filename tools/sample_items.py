"""The items of the sample survey: which words compete for a meaning, where each prevails, and its symbols."""

import random
from collections.abc import Callable
from dataclasses import dataclass
from math import inf

from sample_dialects import belonging, reflex, trade_area
from sample_symbols import (
    BLACK, BLUE, CYAN, GRAY, GREEN, LIGHT_RED, MAGENTA, RED, SMALL,
    Symbol, boxes, circles, flat_boxes, half_discs, outlines, tall_boxes,
)  # fmt: skip

DIALECTS = ("north", "west", "east", "south", "isles")
MOST_FORMS = 3  # at one locality
DIALECT_BLUR = 8  # how irregular the borders of the dialects are, map units


@dataclass(frozen=True)
class Word:
    """A word, in its older form, with the symbols of its dialect forms.

    The field tells of a place how far it lies within the word's area, map units.
    """

    older: str
    field: Callable
    symbols: dict
    captions: dict | None = None  # of the forms that are not their own captions


@dataclass(frozen=True)
class Item:
    name: str
    caption: str
    words: list
    narrow: bool = False  # transcription
    dialects: tuple = DIALECTS
    blur: float = 20  # how irregular the border between two words is, map units
    mixing: float = 14  # width of the belt on its sides where both are known
    bend: float = 14  # how far the borders of the dialects' forms lie from their usual course
    unanswered: float = 0.03


def everywhere(_place):
    return 0


def answers(item, localities):
    """The forms recorded at each locality, the commonest first."""
    rng = random.Random(item.name)
    bends = {dialect: rng.gauss(0, item.bend) for dialect in item.dialects}
    return [_forms(item, place, bends, rng) for place in localities]


def _forms(item, place, bends, rng):
    if rng.random() < item.unanswered:
        return []
    words = _ranked({word.older: word.field(place) + rng.gauss(0, item.blur) for word in item.words})
    areas = belonging(place)
    dialects = _ranked({dialect: areas[dialect] + bends[dialect] + rng.gauss(0, DIALECT_BLUR) for dialect in bends})
    forms = {}
    for word, word_lag in words.items():
        for dialect, dialect_lag in dialects.items():
            form = reflex(word, dialect, item.narrow)
            forms[form] = min(forms.get(form, inf), word_lag + dialect_lag)
    known = [form for form, lag in forms.items() if lag == 0 or lag < item.mixing]
    return sorted(known, key=forms.get)[:MOST_FORMS]


def _ranked(scores):
    """Each key's lag behind the best."""
    best = max(scores.values())
    return {key: best - score for key, score in scores.items()}


def records(item, recorded):
    """Word, caption and symbol of every kind of form that was recorded; every form is of exactly one kind."""
    symbols = {kind: symbol for word in item.words for kind, symbol in word.symbols.items()}
    captions = {kind: caption for word in item.words for kind, caption in (word.captions or {}).items()}
    kinds_found = set()
    for form in {form for forms in recorded for form in forms}:
        kinds = [kind for kind in symbols if kind in form]
        if len(kinds) != 1:
            raise ValueError(f"{item.name}: {form} is of the kinds {kinds}")
        kinds_found.update(kinds)
    return [(kind, captions.get(kind, kind), symbol) for kind, symbol in symbols.items() if kind in kinds_found]


def items():
    yield rain()
    yield house()
    yield butterfly()
    yield lamp()
    yield fishing_net()
    yield snake()
    yield water()
    yield red()
    yield to_dance()
    yield grandmother()
    yield fog()
    yield uvular_r()


def rain():
    """East against west."""
    blue, bar = circles(BLUE), tall_boxes(RED)
    west = {"vosela": blue["disc"], r"vosel\A5": blue["upper"], r"vosel\E2": blue["ring"]}
    east = {
        "tamuka": bar["full"],
        r"tamuk\A5": bar["lower"],
        r"tamu\G1\E2": bar["empty"],
        r"tamu\?a": bar["slash"],
    }
    return Item(
        "01_rain",
        "1  rain",
        [Word("vosela", lambda place: 760 - place.x, west), Word("tamuka", lambda place: place.x - 760, east)],
        blur=36,
        mixing=50,
    )


def house():
    """North against south, along the border: one word, different sounds."""
    blue, red_box = circles(BLUE), boxes(RED)
    symbols = {
        r"\Fakun\A5": red_box["full"],
        "pakuna": blue["disc"],
        r"pa\?una": blue["dot"],
        r"pa\G1un\E2": blue["ring"],
    }
    return Item("02_house", "2  house", [Word("pakuna", everywhere, symbols)], mixing=30, bend=0)


def butterfly():
    """An inner area and a cut-up outer one."""
    inner, outer = tall_boxes(MAGENTA), circles(GREEN)
    return Item(
        "03_butterfly",
        "3  butterfly",
        [
            Word(
                "mopota",
                everywhere,
                {"mopota": outer["disc"], r"mo\Fot\A5": outer["upper"], r"mopot\E2": outer["ring"]},
            ),
            Word(
                "lilavi",
                lambda place: 225 - place.near("Hamrik"),
                {"lilavi": inner["full"], r"lilav\I6": inner["lower"], r"lilav\E2": inner["empty"]},
            ),
        ],
    )


def lamp():
    """A new word that spreads from Torrisa up the river."""
    new, old = boxes(LIGHT_RED), circles(BLACK)
    return Item(
        "04_lamp",
        "4  lamp",
        [
            Word(
                "lantra",
                lambda place: trade_area(place, reach=190),
                {"lantra": new["full"], r"lantr\A5": new["lower"], r"lantr\E2": new["empty"]},
            ),
            Word(
                "osiku",
                everywhere,
                {
                    "osiku": old["dot"],
                    r"osik\U5": old["ring"],
                    r"osi\?u": old["upright"],
                    r"o\S1iku": old["level"],
                    r"osi\G1\E2": old["slash"],
                },
            ),
        ],
    )


def fishing_net():
    """A fringe along the coast."""
    fringe, inland = flat_boxes(BLUE), half_discs(RED)
    return Item(
        "05_fishing_net",
        "5  fishing net",
        [
            Word(
                "teŋubi",
                everywhere,
                {
                    r"te\N1ub\I6": inland["upper"],
                    r"te\N1ubi": inland["left"],
                    "tenubi": inland["right"],
                    r"te\N1u\B\E2": inland["lower"],
                },
            ),
            Word(
                "raska",
                lambda place: 46 - place.coast,
                {"raska": fringe["full"], r"rask\A5": fringe["lower"], r"rask\E2": fringe["empty"]},
            ),
        ],
        blur=10,
    )


def snake():
    """Relics in out-of-the-way places."""
    relic, general = boxes(BLACK), circles(GREEN)
    towns = {"Vostel": 75, "Doraval": 80, "Anvel": 90, "Pelgan": 95}

    def relic_area(place):
        return 120 if place.isle else max(reach - place.near(town) for town, reach in towns.items())

    return Item(
        "06_snake",
        "6  snake",
        [
            Word(
                "udama",
                relic_area,
                {"udama": relic["full"], r"udam\A5": relic["lower"], r"udam\E2": relic["empty"]},
            ),
            Word(
                "silika",
                everywhere,
                {
                    "silika": general["dot"],
                    r"silik\A5": general["ring"],
                    r"sili\?a": general["upright"],
                    r"\S1ilika": general["level"],
                    r"sili\G1\E2": general["slash"],
                },
            ),
        ],
        blur=10,
    )


def water():
    """One word in narrow transcription, with a broad belt of mixture."""
    blue = circles(BLUE)
    symbols = {
        r"\N1\E1si": blue["disc"],
        r"\N1es\I6": blue["upper"],
        r"\N1esi": blue["dot"],
        r"\N1es\E2": blue["ring"],
        r"ne\S1i": tall_boxes(RED)["full"],
    }
    return Item("07_water", "7  water", [Word("ŋesi", everywhere, symbols)], narrow=True, blur=34, mixing=60)


def red():
    """Kinds of r in narrow transcription."""
    uvular, tap, trill = boxes(LIGHT_RED), outlines(BLUE), circles(BLACK)
    symbols = {
        r"\R2o\R2a": uvular["full"],
        r"\R1\O1\R1a": tap["triangle"],
        r"\R1o\R1\E2": tap["inverted"],
        "rora": trill["dot"],
        r"ror\A5": trill["ring"],
    }
    return Item("08_red", "8  red", [Word("rora", everywhere, symbols)], narrow=True, dialects=(*DIALECTS, "port"))


def to_dance():
    """Four words, one in every quarter."""
    north_west, north_east, south_west, south_east = (
        circles(BLUE), tall_boxes(RED), flat_boxes(GREEN), outlines(MAGENTA),
    )  # fmt: skip
    return Item(
        "09_to_dance",
        "9  to dance",
        [
            Word(
                "halupi",
                lambda place: min(place.north + 40, 800 - place.x),
                {r"halu\F\I6": north_west["disc"], "halupi": north_west["ring"]},
            ),
            Word(
                "gondu",
                lambda place: min(place.north, place.x - 800),
                {r"gond\U5": north_east["full"], "gondu": north_east["empty"]},
            ),
            Word(
                "wesamo",
                lambda place: min(-place.north - 40, 800 - place.x),
                {"wesamo": south_west["full"], r"wesam\O3": south_west["lower"], r"wesam\E2": south_west["empty"]},
            ),
            Word(
                "kisati",
                lambda place: min(-place.north, place.x - 800),
                {
                    r"ki\S1ati": south_east["triangle"],
                    "kisati": south_east["star"],
                    r"kisat\I6": south_east["diamond"],
                    r"kisat\E2": south_east["inverted"],
                },
            ),
        ],
        blur=26,
    )


def grandmother():
    """Words that live side by side; the dialect forms of each share a symbol."""
    everyday, polite, childish = circles(GREEN)["disc"], boxes(RED)["empty"], outlines(BLUE)["triangle"]
    captions = {
        "omel": r"omeli, omel\I6, omel\E2",
        "velun": r"veluna, velun\A5, velun\E2",
        "bi": r"bibu, bib\U5, bi\B\E2",
    }
    return Item(
        "10_grandmother",
        "10  grandmother",
        [
            Word("omeli", lambda place: 12, {"omel": everyday}, captions),
            Word("veluna", lambda place: place.x / 20 - 44, {"velun": polite}, captions),
            Word("bibu", lambda place: -place.north / 12 - 18, {"bi": childish}, captions),
        ],
        blur=14,
        mixing=16,
    )


def fog():
    """Upland against lowland."""
    upland, lowland = outlines(MAGENTA), half_discs(CYAN)
    return Item(
        "11_fog",
        "11  fog",
        [
            Word(
                "sabeka",
                everywhere,
                {
                    r"sabek\A5": lowland["upper"],
                    r"sabe\?a": lowland["left"],
                    "sabeka": lowland["right"],
                    r"sa\Be\G1\E2": lowland["lower"],
                },
            ),
            Word(
                "hulma",
                lambda place: 120 - place.peak,
                {"hulma": upland["diamond"], r"hulm\A5": upland["triangle"], r"hulm\E2": upland["inverted"]},
            ),
        ],
        blur=12,
    )


def uvular_r():
    """Answers to a question about speakers instead of words."""
    marks = circles(RED)
    captions = {"all": "heard from all", "young": "heard from the young", "none": "not heard"}
    return Item(
        "12_uvular_r",
        "12  uvular r",
        [
            Word("all", lambda place: 2 * trade_area(place, reach=130), {"all": marks["disc"]}, captions),
            Word("young", lambda place: trade_area(place, reach=210) / 2, {"young": marks["dot"]}, captions),
            Word("none", everywhere, {"none": Symbol(49, GRAY, size=SMALL)}, captions),
        ],
        dialects=("isles",),
        blur=14,
        mixing=0,
        unanswered=0.05,
    )
