"""The symbols that the sample survey uses."""

from dataclasses import dataclass

BLACK, BLUE, GREEN, CYAN, RED, MAGENTA, GRAY, LIGHT_RED = 0, 1, 2, 3, 4, 5, 8, 12
SMALL, NORMAL = 0, 1
THIN = 0


@dataclass(frozen=True)
class Symbol:
    """A symbol in one colour."""

    number: int
    colour: int
    painted: bool = True
    size: int = NORMAL
    thickness: int = THIN


def family(colour, **numbers):
    """Related symbols: name to symbol. Of a name that ends in an underscore the outline alone is drawn."""
    return {name.rstrip("_"): Symbol(number, colour, not name.endswith("_")) for name, number in numbers.items()}


def circles(colour):
    return family(colour, disc=50, upper=55, dot=51, ring=49, upright=52, level=53, slash=58)


def boxes(colour):
    return family(colour, full=1, lower=7, empty_=1)


def flat_boxes(colour):
    return family(colour, full=25, lower=31, empty_=25)


def tall_boxes(colour):
    return family(colour, full=37, lower=43, empty_=37, slash_=45)


def half_discs(colour):
    return family(colour, upper=93, lower=94, left=95, right=96)


def outlines(colour):
    """Designs of the polygon table, which begins at number 153."""
    return family(colour, triangle=153, inverted=154, diamond=157, star=161)
