"""Makes the sample survey's files for the analysis over many items: the cumulative table, the identifying strings of
its word forms, the symbols of the diffusion map, and the groups of the contrast map. The counts are accumulated from
the survey's own items by the program. Run with the path of varnplot.
"""

import subprocess
import sys

from written_file import INSTALLATION, statement, write_file

LING = "VarnData/Sample/Ling/"
LOCALITIES = 120

# Name, identifying strings, outline and paint colour, symbol (number, paint flag, size), minimum points.
WORD_FORMS = [
    ("raised final vowel", ["\\A5", "\\I6", "\\U5"], 1, 9, (50, 1, 1), 5),
    ("final schwa", ["\\E2"], 4, 12, (1, 1, 0), 4),
    ("glottal stop", ["\\?"], 2, 10, (153, 0, 1), 1),
    ("voiced fricative", ["\\G1", "\\B"], 5, 13, (10, 0, 1), 1),
]


def write_counts():
    lines = [statement(len(WORD_FORMS), 0, "Sound changes over eleven items")]
    for name, _, outline, paint, _, _ in WORD_FORMS:
        lines += [statement(name), statement(outline, paint), statement(0, 0)]
    lines += [statement(*[0] * len(WORD_FORMS))] * LOCALITIES
    write_file(LING + "sounds.ttl", lines)


def write_identifying_strings():
    lines = [statement(len(WORD_FORMS))]
    lines += [statement(len(strings), *strings) for _, strings, *_ in WORD_FORMS]
    write_file(LING + "sounds.sum", lines)


def write_diffusion_symbols():
    lines = [statement("Sound changes of the invented sample survey", len(WORD_FORMS))]
    for name, _, outline, paint, (number, painted, size), minimum in WORD_FORMS:
        lines.append(statement(number, outline, paint, painted, size, 0, minimum, name))
    write_file(LING + "sounds.htL", lines)


def write_contrast():
    """Raised vowels against schwas."""
    lines = [statement("Raised vowels (blue) or schwas (red)", 7, 150)]
    for index in (0, 1):
        name, _, outline, paint, _, _ = WORD_FORMS[index]
        lines += [statement(1), statement(outline, paint), statement(name, index + 1)]
    write_file(LING + "sounds.rnk", lines)


def accumulate(varnplot):
    items = sorted(path for path in (INSTALLATION / LING).glob("*.dbs") if not path.name.startswith("12_"))
    subprocess.run(
        [varnplot, "accumulate", "--installation", INSTALLATION, "--map", "Sample",
         "--counts", INSTALLATION / LING / "sounds.ttl", "--characters", INSTALLATION / LING / "sounds.sum",
         "--data", *items], check=True)


if __name__ == "__main__":
    write_counts()
    write_identifying_strings()
    write_diffusion_symbols()
    write_contrast()
    accumulate(sys.argv[1])
