#!/usr/bin/env python3
"""Checks that every room stands only on rooms before it, and prints each room with the rooms that it stands on.

A room is a folder with source files. An include of a room that is further along in ROOMS is an arrow against the
order: the check prints it and fails. Since the order is a line, there can be no cycle where it holds.
"""
import pathlib
import re
import sys

ROOMS = [
    "platform", "mapdata", "lingdata", "symbols", "render", "dialectometry", "geodata", "geodata/gdal",
    "exchange", "analysis", "shell", "plot", "atlas", "platform/forms", "render/forms", "mapdata/forms",
    "lingdata/forms", "symbols/forms", "analysis/forms", "exchange/forms", "atlas/forms", "shell/forms",
]
INCLUDE = re.compile(r'^\s*#include "([^"]+)/[^/"]+"', re.MULTILINE)


def main():
    root = pathlib.Path(sys.argv[1])
    wrong = []
    for place, room in enumerate(ROOMS):
        stands_on = set()
        for source in sorted((root / room).glob("*.[hc]*")):
            for target in INCLUDE.findall(source.read_text(encoding="utf-8")):
                if target == room:
                    continue
                stands_on.add(target)
                if target not in ROOMS[:place]:
                    wrong.append(f"{source.relative_to(root)} includes {target}/, which is not before {room}/")
        print(f"{room}: {', '.join(sorted(stands_on, key=lambda r: ROOMS.index(r) if r in ROOMS else -1)) or 'nothing'}")
    for line in wrong:
        print(line, file=sys.stderr)
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
