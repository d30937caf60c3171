"""Writes the sample survey, an invented island with its dialects, to VarnData/Sample. Run without arguments."""

from sample_items import answers, items, records
from sample_island import Island
from sample_places import (
    SCALE_BAR_AT,
    SCALE_DIVISIONS,
    SCALE_LABEL,
    SCALE_LENGTH,
    name_positions,
    places,
)
from written_file import statement, write_file

MAP = "VarnData/Sample/Map"
LING = "VarnData/Sample/Ling"


def position(point):
    return statement(*(round(coordinate, 1) for coordinate in point))


def line_records(lines):
    yield statement(len(lines))
    for line in lines:
        yield statement(line.kind, len(line.points), line.colour, line.style, 0, 0)
        yield from (position(point) for point in line.points)


def locality_records(localities):
    yield statement(len(localities))
    yield from (position((place.x, place.y)) for place in localities)


def name_records():
    names = list(name_positions())
    yield statement(len(names))
    for name, at in names:
        yield position(at)
        yield statement(name)
    yield position(SCALE_BAR_AT)
    yield statement(SCALE_LABEL, SCALE_DIVISIONS, SCALE_LENGTH)


def answer_records(item, recorded):
    number = item.caption.split()[0]
    yield statement(len(recorded), "", item.caption, f"Invented sample survey, item {number}")
    for forms in recorded:
        yield statement(len(forms))
        yield from (statement(form) for form in forms)


def symbol_records(item, kinds):
    yield statement(f"Invented sample survey: {item.caption}")
    yield statement(len(kinds))
    for kind, caption, symbol in kinds:
        yield statement(kind, caption)
        for number in (symbol.number, symbol.colour, symbol.colour, int(symbol.painted), symbol.size, symbol.thickness):
            yield statement(number)


def main():
    island = Island()
    localities = places(island)
    write_file(f"{MAP}/Line.map", line_records(list(island.lines())))
    write_file(f"{MAP}/Loc.map", locality_records(localities))
    write_file(f"{MAP}/kanji.map", name_records())
    for item in items():
        recorded = answers(item, localities)
        write_file(f"{LING}/{item.name}.dbs", answer_records(item, recorded))
        write_file(f"{LING}/{item.name}.han", symbol_records(item, records(item, recorded)))
    write_file("varnsymbols/TarkaKanji.map", name_records())


if __name__ == "__main__":
    main()
