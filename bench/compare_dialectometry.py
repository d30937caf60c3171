#!/usr/bin/env python3
"""Compares distances, trees and scalings with SciPy, NumPy and python3-levenshtein (Debian's packages).

    python3 bench/compare_dialectometry.py build/dialectometry_check [INSTALLATION MAP]

Trees by all methods and the scaling are compared on random matrices and, where a map is given, on those of its
items by each measure: heights and members to 1e-9, places up to sign. For the map, Levenshtein distances are
compared and timed too: the same distinct pairs of word forms of each item, and all pairs of localities. Times are
processor times of all threads, the best of several runs, so that other work on the machine does not count.
"""

import csv
import itertools
import json
import os
import subprocess
import sys
import tempfile
import time

import Levenshtein
import numpy
from scipy.cluster.hierarchy import linkage
from scipy.spatial.distance import pdist, squareform

MEASURES = ["relative-identity", "weighted-identity", "levenshtein", "levenshtein-vowels"]
METHODS = ["single", "complete", "average", "weighted", "ward"]
RUNS = 9
EXACT = 1e-9

failures = []


def check(holds, what):
    if not holds:
        failures.append(what)
        print("    DIFFERENT:", what)


def best_time(work, runs=RUNS):
    times = []
    for _ in range(runs):
        start = time.process_time()
        work()
        times.append(time.process_time() - start)
    return 1000 * min(times)


def run(program, *arguments):
    return json.loads(subprocess.run([program, *arguments], check=True, capture_output=True).stdout)


def write_matrix(path, square):
    with open(path, "w", newline="", encoding="utf-8") as file:
        writer = csv.writer(file)
        names = [f"L{i}" for i in range(len(square))]
        writer.writerow([""] + names)
        for name, row in zip(names, square):
            writer.writerow([name] + [repr(float(x)) for x in row])


def read_matrix(path):
    with open(path, encoding="utf-8", newline="") as file:
        rows = list(csv.reader(file))[1:]
    return numpy.array([[float(x) if x else numpy.nan for x in row[1:]] for row in rows])


def members(rows, leaves):
    """The clusters of a tree as sets, with the height at which each is made."""
    clusters = [frozenset([i]) for i in range(leaves)]
    for first, second, *_ in rows:
        clusters.append(clusters[int(first)] | clusters[int(second)])
    return {(cluster, round(row[2], 9)) for cluster, row in zip(clusters[leaves:], rows)}


def compare_trees(found, pairs, leaves):
    for method in METHODS:
        tree = found["trees"][method]
        wanted = linkage(pairs, method)
        rows = numpy.array(tree["rows"])
        off = numpy.abs(rows[:, 2] - wanted[:, 2]).max()
        same = members(tree["rows"], leaves) == members(wanted.tolist(), leaves)
        ties = len(wanted) - len(set(wanted[:, 2].round(12)))
        theirs = best_time(lambda: linkage(pairs, method))
        print(f"    {method:9} heights differ by {off:.1e}, members {'same' if same else 'not same'}, {ties} ties; "
              f"{tree['time']:.2f} ms, SciPy {theirs:.2f} ms")
        check(off <= EXACT, f"heights by {method}")
        # Where single linkage joins several clusters at one height, any order of them is right.
        check(same or (method == "single" and ties > 0), f"members by {method}")


def compare_scaling(found, square):
    squares = square ** 2
    centred = -0.5 * (squares - squares.mean(0) - squares.mean(1)[:, None] + squares.mean())
    values, vectors = numpy.linalg.eigh(centred)
    wanted = vectors[:, ::-1][:, :3] * numpy.sqrt(numpy.maximum(values[::-1][:3], 0))
    places = numpy.array(found["places"])
    signs = numpy.sign((wanted * places).sum(0))
    off = numpy.abs(places - wanted * signs).max()
    theirs = best_time(lambda: numpy.linalg.eigh(centred), 3)
    print(f"    scaling   places differ by {off:.1e}, variance {found['variance'][1]:.4f} and stress "
          f"{found['stress'][1]:.4f} of two; {found['time']:.1f} ms, NumPy's eigh {theirs:.1f} ms")
    check(off <= EXACT * 100, "places")
    full = squareform(square, checks=False)
    for k in (1, 2, 3):
        shown = pdist(places[:, :k])
        check(abs(numpy.corrcoef(shown, full)[0, 1] ** 2 - found["variance"][k - 1]) < EXACT, f"variance of {k}")
        stress = numpy.sqrt(1 - (shown @ full) ** 2 / ((shown @ shown) * (full @ full)))
        check(abs(stress - found["stress"][k - 1]) < EXACT, f"stress of {k}")


def compare_matrix(program, path, square):
    found = run(program, "analyse", path)
    if numpy.isnan(square).any():
        print(f"    {found['trees']['single']['leftOut']} localities left out: not compared")
        return
    compare_trees(found, squareform(square, checks=False), len(square))
    compare_scaling(found, square)


def random_matrices():
    random = numpy.random.default_rng(12)
    for size in (3, 20, 347, 1000):
        yield f"random, {size}", squareform(random.random(size * (size - 1) // 2))
    for size in (347, 1000):
        yield f"random places, {size}", squareform(pdist(random.random((size, 5))))
    yield "with ties, 100", squareform(random.integers(1, 60, 100 * 99 // 2).astype(float))


def compare_levenshtein(forms, times):
    def distinct_pairs():
        for item in forms["items"]:
            for a, b in itertools.combinations(item["forms"], 2):
                Levenshtein.distance(a, b)

    def all_pairs():
        for item in forms["items"]:
            for here, there in itertools.combinations(item["answers"], 2):
                for a in here:
                    for b in there:
                        Levenshtein.distance(item["forms"][a], item["forms"][b])

    count = sum(len(item["forms"]) * (len(item["forms"]) - 1) // 2 for item in forms["items"])
    distinct = best_time(distinct_pairs, 5)
    every = best_time(all_pairs, 3)
    print(f"    {count} distinct pairs of word forms: {times['tables']:.1f} ms in one thread, "
          f"python3-levenshtein {distinct:.1f} ms")
    print(f"    all pairs of localities: {times['matrix']:.1f} ms for the whole matrix, "
          f"python3-levenshtein {every:.1f} ms: 1/{every / times['matrix']:.0f}")


def aligned(a, b, apart):
    """Steps and length of the longest cheapest alignment of two words, by the plain table."""
    table = {(0, 0): (0, 0)}
    for i in range(len(a) + 1):
        for j in range(len(b) + 1):
            ways = []
            if i:
                ways.append((table[i - 1, j][0] + 1, table[i - 1, j][1] - 1))
            if j:
                ways.append((table[i, j - 1][0] + 1, table[i, j - 1][1] - 1))
            if i and j and (a[i - 1] == b[j - 1] or not apart(a[i - 1], b[j - 1])):
                ways.append((table[i - 1, j - 1][0] + (a[i - 1] != b[j - 1]), table[i - 1, j - 1][1] - 1))
            if ways:
                table[i, j] = min(ways)
    steps, length = table[len(a), len(b)]
    return steps / -length if length else 0


def wanted_distance(forms, here, there):
    """The mean distance of two localities over their common items."""
    sums = []
    for item in forms["items"]:
        first = [item["forms"][a] for a in item["answers"][here]]
        second = [item["forms"][b] for b in item["answers"][there]]
        if first and second:
            table = [[aligned(a, b, lambda x, y: False) for b in second] for a in first]
            nearest = [min(row) for row in table] + [min(column) for column in zip(*table)]
            sums.append(sum(nearest) / len(nearest))
    return sum(sums) / len(sums) if sums else numpy.nan


def compare_distances(forms, square):
    random = numpy.random.default_rng(5)
    pairs = [sorted(random.choice(len(square), 2, replace=False)) for _ in range(25)]
    off = numpy.nanmax([abs(wanted_distance(forms, a, b) - square[a, b]) for a, b in pairs])
    print(f"    distances of {len(pairs)} pairs of localities differ by {off:.1e} from plain Python")
    check(off <= EXACT, "distances")


def main():
    program = os.path.abspath(sys.argv[1])
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "matrix.csv")
        for name, square in random_matrices():
            print(f"{name}:")
            write_matrix(path, square)
            compare_matrix(program, path, square)
        if len(sys.argv) > 3:
            forms = run(program, "forms", *sys.argv[2:4])
            for measure in MEASURES:
                times = run(program, "distances", *sys.argv[2:4], measure, path)
                print(f"{sys.argv[3]}, {measure}: alpha {times['alpha']:.4f} ({times['alphaTime']:.0f} ms), incoherence "
                      f"{times['incoherence']:.4f}, correlation {times['correlation']:.4f}; matrix "
                      f"{times['matrix']:.1f} ms")
                square = read_matrix(path)
                if measure == "levenshtein":
                    compare_distances(forms, square)
                    compare_levenshtein(forms, times)
                compare_matrix(program, path, square)
    print("load:", os.getloadavg()[0], "-", len(failures), "differences")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
