"""The dialects of the sample survey: where they are spoken, and the sound laws by which they differ.

Words are invented. They are given in the common older form; a dialect's form follows from it by the dialect's laws.
"""

import re

# In the order in which they apply.
LAWS = {
    "north": [("p", "ɸ"), ("a$", "ᵃ"), ("e$", "ᵉ"), ("i$", "ⁱ"), ("o$", "ᵒ"), ("u$", "ᵘ")],
    "west": [("(?<=[aeiou])k(?=[aeiou])", "ʔ")],
    "east": [("ŋ", "n"), ("s(?=i)", "ʃ")],
    "south": [("(?<=[aeiou])k(?=[aeiou])", "ɣ"), ("(?<=[aeiou])b(?=[aeiou])", "β"), ("[aeiou]$", "ə")],
    "isles": [],
    "port": [("r", "ʀ")],
}

# Heard everywhere in the dialect, but written in narrow transcription only.
NARROW_LAWS = {
    "west": [("e", "ɛ"), ("o", "ɔ"), ("r", "ɾ")],
    "south": [("r", "ɾ")],
}

CODES = {
    "ɸ": r"\F", "β": r"\B", "ɣ": r"\G1", "ʔ": r"\?", "ŋ": r"\N1", "ʃ": r"\S1", "ɾ": r"\R1", "ʀ": r"\R2",
    "ə": r"\E2", "ɛ": r"\E1", "ɔ": r"\O1", "ᵃ": r"\A5", "ᵉ": r"\E5", "ⁱ": r"\I6", "ᵒ": r"\O3", "ᵘ": r"\U5",
}  # fmt: skip


def reflex(word, dialect, narrow):
    """The dialect's form of a word, phonetic letters as codes."""
    for sound, outcome in LAWS[dialect] + (NARROW_LAWS.get(dialect, []) if narrow else []):
        word = re.sub(sound, outcome, word)
    return "".join(CODES.get(letter, letter) for letter in word)


def belonging(place):
    """Dialect to how far the place lies within its area, map units; below 0 outside."""
    south = -place.north
    return {
        "north": place.north,
        "west": min(south, 745 - place.x, 690 - place.y),
        "east": min(south, place.x - 745, 690 - place.y),
        "south": min(south, place.y - 690),
        "isles": 500 if place.isle else -500,
        "port": 4 * trade_area(place, reach=110),
    }


def trade_area(place, reach):
    """How far the place lies within the reach of Torrisa, which follows the river upstream."""
    return max(reach - place.near("Torrisa"), 0.6 * reach - place.temmer)
