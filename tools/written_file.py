"""Writes the comma-separated text files of an installation tree."""

from pathlib import Path

INSTALLATION = Path(__file__).resolve().parent.parent / "installation"


def statement(*values):
    """One line: strings in double quotes, numbers bare in their shortest form."""
    return ",".join(_field(value) for value in values)


def write_file(path, statements):
    """Writes the lines to a path below the installation tree."""
    target = INSTALLATION / path
    target.parent.mkdir(parents=True, exist_ok=True)
    target.write_bytes("".join(line + "\r\n" for line in statements).encode("utf-8"))


def _field(value):
    if isinstance(value, str):
        return '"' + value.replace('"', '""') + '"'
    return repr(value).removesuffix(".0")
