#!/usr/bin/env python3
"""Writes what the fuzzing programs begin with: a survey of three localities, cut out of the sample survey.

usage: fuzz/seeds.py FOLDER     a folder for each program is made in FOLDER
"""

import re
import sys
from pathlib import Path

INSTALLATION = Path(__file__).resolve().parent.parent / "installation" / "VarnData"
SAMPLE = INSTALLATION / "Sample"
LOCALITIES = 3


def lines_of(path):
    return path.read_text(encoding="utf-8").splitlines()


def first_records(path, records, lines_each, head=0):
    """The first records of a file that begins with `head` lines and the number of its records."""
    lines = lines_of(path)
    return lines[:head] + [str(records)] + lines[head + 1 : head + 1 + records * lines_each]


def first_counted(lines, records, points_in):
    """The first records of `lines`; `points_in` tells of a record's first line how many more lines it has."""
    taken = []
    for _ in range(records):
        size = 1 + points_in(lines)
        taken, lines = taken + lines[:size], lines[size:]
    return taken


def short_lines(lines):
    """The first line of each kind, with four of its points."""
    kinds = {}
    at = 1
    while at < len(lines):
        kind, points, rest = lines[at].split(",", 2)
        taken = min(int(points), 4)
        kinds.setdefault(kind, [f"{kind},{taken},{rest}"] + lines[at + 1 : at + 1 + taken])
        at += 1 + int(points)
    return [str(len(kinds))] + [line for kind in kinds.values() for line in kind]


def first_designs(lines, designs):
    taken = [str(designs)]
    at = 1
    for _ in range(designs):
        size = 2 + int(lines[at])
        taken, at = taken + lines[at : at + size], at + size
    return taken


def small_survey():
    """The files of the small survey by their names."""
    base, items = SAMPLE / "Map", SAMPLE / "Ling"
    item = lines_of(items / "01_rain.dbs")
    names = lines_of(base / "kanji.map")
    counts = lines_of(items / "sounds.ttl")
    word_forms = int(counts[0].split(",")[0])
    return {
        "Loc.map": first_records(base / "Loc.map", LOCALITIES, 1),
        "Line.map": short_lines(lines_of(base / "Line.map")),
        "kanji.map": ["2"] + names[1:5] + names[-2:],
        "Square.sbl": first_designs(lines_of(INSTALLATION / "Square.sbl"), 2),
        "item.dbs": [re.sub(r"^\d+", str(LOCALITIES), item[0])]
        + first_counted(item[1:], LOCALITIES, lambda rest: int(rest[0])),
        "item.han": first_records(items / "01_rain.han", 2, 7, head=1),
        "sounds.ttl": counts[: 1 + 3 * word_forms + LOCALITIES],
        "sounds.sum": lines_of(items / "sounds.sum"),
        "sounds.htL": lines_of(items / "sounds.htL"),
        "sounds.rnk": lines_of(items / "sounds.rnk"),
        "kinds.srt": ["2", '"vosel\\A5",40', '"tamuk\\E2",3'],
        "kinds.ipt": ["2", '"vosel\\A5"', '"tamuk\\E2"'],
        "MapName.txt": ['"\\Sample","Arial",9,#TRUE#,#FALSE#,0.5'],
        "sounds.itm": ["2,2", '"01_rain.dbs"', '"02_house.dbs"'],
        "sounds.stt": ["1,2", "1", "1,2,1.5,0.5", "3,1", "2,1", "1,1"],
        "distances.csv": ['"","1","2","3"', '"1",0,0.25,""', '"2",0.25,0,1e-3', '"3","",1e-3,0'],
        "Localities.csv": ['"id","name","longitude","latitude","projection"', '"a","Ann",5,52.5,"+proj=laea"']
        + [f'"{name}","B ""{name}""",-6.25,1e-7,"+proj=laea"' for name in "bc"],
    }


# In the order of the readers in readers.cpp.
READERS = [
    "Loc.map", "Line.map", "kanji.map", "Square.sbl", "item.dbs", "kinds.srt", "kinds.ipt", "item.han",
    "MapName.txt", "sounds.sum", "sounds.htL", "sounds.rnk", "sounds.ttl", "Localities.csv", "sounds.itm",
    "sounds.stt", "distances.csv",
]  # fmt: skip

# In the order that drawing.cpp takes them.
DRAWN = ["Loc.map", "Line.map", "kanji.map", "item.dbs", "item.han", "Square.sbl"]

OPTIONS = {
    "linguistic": "linguistic-map --installation i --map m --data a.dbs --symbols a.han --output o.png --dpi 192",
    "blank": "blank-map --installation i --map m --output o.svg --locality-dots",
    "symbols": "symbols --installation i --map m --output o.pdf",
    "atlas": "atlas --installation i --map m --output o.pdf --items a.dbs b.dbs --location left --height 90 --jobs 2",
    "accumulate": "accumulate --installation i --map m --counts c.ttl --characters c.sum --data a.dbs b.dbs",
    "statistics": "statistics --installation i --map m --counts c.ttl --output o.stt",
    "diffusion": "diffusion-map --installation i --map m --counts c.ttl --graph bar --output o.pdf --word-form 2",
    "symbols-of": "symbol-diffusion-map --installation i --map m --counts c.ttl --symbols s.htL --output o.pdf",
    "contrast": "contrast-map --installation i --map m --counts c.ttl --contrast c.rnk --output o.pdf",
    "import": "import --installation i --map m --source s --column id=a --use forms --projection EPSG:3035",
    "export": "export --installation i --map m --output o.gpkg",
    "distances": "distances --installation i --map m --output o.csv --measure levenshtein --vowels-apart --items a.dbs",
    "cluster": "cluster-map --installation i --map m --output o.pdf --distances d.csv --method ward --clusters 4 "
    "--noise 0.5 --seed 7 --dendrogram --hatched",
    "reference": "reference-map --installation i --map m --output o.svg --locality 3 --classes equal-widths",
    "help": "--help",
}

TABLES = {
    "wide": "id,name,longitude,latitude,rain,house\na,Ann,5,52,x; y,z\nb,Bo,6,53.5,z,\nc,Cy,-7,1,,x|y\n",
    "long": "place\titem\tanswer\tx\ty\nAnn\train\tx\t1\t2\nAnn\thouse\ty\t1\t2\nBo\train\tz\t3\t4\n",
    "german": "Ort;Länge;Breite;Regen\nKöln;6° 57' O;50° 56' N;x\nBonn;7,1;50,73;\"y\n\"\"z\"\"\"\n",
    "bars": "# a survey\nid|name|lat|lon|item 1\n1|A|52|5|\n2|B|53|6|x / y\n",
}


def main():
    folder = Path(sys.argv[1])

    def seed(program, name, data):
        path = folder / program / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(data)

    files = {name: "\r\n".join(lines + [""]).encode() for name, lines in small_survey().items()}
    for number, name in enumerate(READERS):
        seed("readers", name, bytes([number]) + files[name])
    seed("drawing", "survey", b"\x1f".join(files[name] for name in DRAWN))
    for text in set(re.findall(rb'"[^"]*"', files["item.dbs"])) | {b"vosel\\A5 tamu\\?a", b"\\G1\\E2\\;", b'""'}:
        seed("phonetic", re.sub(r"\W", "_", text.decode()), text)
    for name, words in OPTIONS.items():
        seed("options", name, words.replace(" ", "\n").encode())
    for name, table in TABLES.items():
        seed("table", name, table.encode())
        seed("table", name + "16", b"\xff\xfe" + table.encode("utf-16-le"))


if __name__ == "__main__":
    main()
