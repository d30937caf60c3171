#!/usr/bin/env python3
"""Times whole processes: varnplot against gnuplot (Debian's gnuplot-nox), drawing the same maps at the same size.

    python3 bench/compare_gnuplot.py build/varnplot

One map goes to a PNG of 1600 x 1200 pixels, an atlas of 100 maps to a PDF of 600 x 450 points a page. Both programs
draw the coast lines, the place names, a symbol for each word form, and a legend. Each pair of runs is timed in
turn; the medians and their ratio are printed.
"""

import csv
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
INSTALLATION = os.path.join(ROOT, "installation")
SAMPLE = os.path.join(INSTALLATION, "VarnData", "Sample")
ATLAS_MAPS = 100


def fields(path):
    with open(path, encoding="utf-8", newline="") as file:
        for row in csv.reader(file):
            yield from row


def read_map(folder):
    values = fields(os.path.join(folder, "Loc.map"))
    places = [(float(next(values)), float(next(values))) for _ in range(int(next(values)))]

    values = fields(os.path.join(folder, "Line.map"))
    lines = []
    for _ in range(int(next(values))):
        next(values)
        count = int(next(values))
        next(values), next(values)
        dx, dy = float(next(values)), float(next(values))
        lines.append([(float(next(values)) + dx, float(next(values)) + dy) for _ in range(count)])

    values = fields(os.path.join(folder, "kanji.map"))
    names = [(float(next(values)), float(next(values)), next(values)) for _ in range(int(next(values)))]
    return places, lines, names


def read_item(path, places):
    """For each symbol record its caption and the places of the word forms that it marks."""
    values = fields(path)
    count = int(next(values))
    for _ in range(3):
        next(values)
    words = [[next(values) for _ in range(int(next(values)))] for _ in range(count)]
    values = fields(path[:-4] + ".han")
    next(values)
    groups = []
    for _ in range(int(next(values))):
        kind, caption = next(values), next(values)
        for _ in range(6):
            next(values)
        points = [places[i] for i, forms in enumerate(words) for form in forms if kind in form]
        groups.append((caption, points))
    return groups


def gnuplot_maps(items, places, lines, names, terminal, output):
    """A gnuplot script that draws a map of each item."""
    script = [
        f"set terminal {terminal}",
        f"set output '{output}'",
        "set yrange [1000:0]; set xrange [0:1333]; unset tics; unset border; set key left top",
        "$coast << EOD",
    ]
    for line in lines:
        script += [f"{x} {y}" for x, y in line] + [""]
    script.append("EOD")
    for x, y, text in names:
        script.append(f'set label "{text}" at {x},{y} noenhanced')
    for number, path in enumerate(items):
        plots = ["$coast with lines lc black notitle"]
        for group, (caption, points) in enumerate(read_item(path, places)):
            script.append(f"$item{number}_{group} << EOD")
            script += [f"{x} {y}" for x, y in points] + ["EOD"]
            title = caption.replace("\\", "").replace('"', "")
            plots.append(f'$item{number}_{group} with points pt {group + 4} ps 1.2 title "{title}" noenhanced')
        script.append("plot " + ", ".join(plots))
    return "\n".join(script) + "\n"


def seconds(command):
    start = time.perf_counter()
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return time.perf_counter() - start


def compare(name, ours, theirs, runs):
    seconds(ours), seconds(theirs)
    times = [(seconds(ours), seconds(theirs)) for _ in range(runs)]
    own, other = (statistics.median(column) for column in zip(*times))
    print(f"{name}: varnplot {own * 1000:.0f} ms, gnuplot {other * 1000:.0f} ms, ratio {own / other:.2f}")


def make_atlas_survey(folder, items):
    """The sample survey with its items repeated to a hundred."""
    shutil.copytree(INSTALLATION, folder)
    ling = os.path.join(folder, "VarnData", "Sample", "Ling")
    for name in os.listdir(ling):
        os.remove(os.path.join(ling, name))
    atlas = []
    for number in range(ATLAS_MAPS):
        path = os.path.join(ling, f"item{number:03}.dbs")
        source = items[number % len(items)]
        shutil.copy(source, path)
        shutil.copy(source[:-4] + ".han", path[:-4] + ".han")
        atlas.append(path)
    return atlas


def main():
    varnplot = os.path.abspath(sys.argv[1])
    ling = os.path.join(SAMPLE, "Ling")
    items = sorted(os.path.join(ling, name) for name in os.listdir(ling) if name.endswith(".dbs"))
    places, lines, names = read_map(os.path.join(SAMPLE, "Map"))

    with tempfile.TemporaryDirectory() as work:
        def script(file_name, *arguments):
            path = os.path.join(work, file_name)
            with open(path, "w", encoding="utf-8") as file:
                file.write(gnuplot_maps(*arguments))
            return path

        png = script("map.gp", items[:1], places, lines, names,
                     "pngcairo size 1600,1200 font 'Arial,20'", os.path.join(work, "theirs.png"))
        compare("one map to PNG",
                [varnplot, "linguistic-map", "--installation", INSTALLATION, "--map", "Sample", "--data", items[0],
                 "--symbols", items[0][:-4] + ".han", "--output", os.path.join(work, "ours.png")],
                ["gnuplot", png], 15)

        folder = os.path.join(work, "installation")
        atlas = make_atlas_survey(folder, items)
        pdf = script("atlas.gp", atlas, places, lines, names,
                     "pdfcairo size 8.3333in,6.25in font 'Arial,10'", os.path.join(work, "theirs.pdf"))
        compare("atlas of 100 maps to PDF",
                [varnplot, "atlas", "--installation", folder, "--map", "Sample",
                 "--output", os.path.join(work, "ours.pdf")],
                ["gnuplot", pdf], 7)


if __name__ == "__main__":
    main()
