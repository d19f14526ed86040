#!/usr/bin/env python3
"""Converts random linetype files with the tool and by derive_golden.py, and compares.

    tests/linetype/differential_test.py STYLECONV FOLDER-OF-SHAPE-FILES COUNT [SEED]
"""
import json
import pathlib
import random
import re
import subprocess
import sys
import tempfile

import derive_golden

STYLES = [
    {"name": "PIPES", "fileName": "single-stroke.shx"},
    {"name": "BIG", "fileName": "single-stroke.shx", "textSize": 2.5, "isVertical": True},
    {"name": "LABELS", "typeface": "Arial", "bold": True},
    {"name": "FIXED", "typeface": "Times", "italic": True, "textSize": 0.3},
    {"name": "NOFONT", "fileName": "marks.shx"},
]
SHAPES = ["ARROW", "tree", "Bolt", "TRACKTIE", "WAVE", "CIRC", "SQUARE", "TARGET"]


def number(r):
    forms = ["%d", "%.1f", "%.2f", "%.4f", "%g", "%.17g", "%e"]
    value = r.choice([0, 0.5, 1, 1e-3, 12.5, r.uniform(-10, 10), r.uniform(0, 1)]) * r.choice([1, 1, 1, -1])
    text = r.choice(forms) % value
    return r.choice(["", "", "", "", " ", "+" if value >= 0 else ""]) + text.replace("0.", ".", r.random() < 0.3)


def fields(r):
    text = ""
    for _ in range(r.choice([0, 1, 2, 3, 5])):
        key = r.choice("ARSXYarsxy")
        unit = r.choice(["", "", "", "d", "g", "r"]) if key in "ARar" else ""
        text += ",%s=%s%s" % (key, number(r), unit)
    return text


def text(r):
    pieces = ["A", "gas", "50", " ", "'", "%", "%%", "%%d", "%%C", "%%p", "%%u", "%%O", "%%065", "%%256", "%%9",
              "\u00e9", "\U0001f682", "[", "]", ",", "=", "x"]
    return "".join(r.choice(pieces) for _ in range(r.randrange(6)))


def element(r):
    kind = r.random()
    if kind < 0.6:
        return number(r)
    if kind < 0.8:
        return "[%s,%s%s]" % (r.choice(SHAPES), r.choice(["marks.shx", "MARKS", "Marks.SHX"]), fields(r))
    return '["%s",%s%s]' % (text(r), r.choice(["pipes", "BIG", "Labels", "FIXED"]), fields(r))


def linetype(r):
    head = "*" + r.choice(["", " ", "a"]) + "LINE%d" % r.randrange(100)
    head += r.choice(["", ",", ",description, with a comma", ", \u00e9 \t", ",cut; comment"])
    pattern = r.choice("AAAS") + ","
    for i in range(r.randrange(1, 9)):
        pattern += (r.choice([",", ",", ",", ",\n", ", ; comment\n\n  "]) if i else "") + element(r)
    pattern += r.choice(["", "", "", " ", " rest", "; comment"])
    between = r.choice(["", "", "\n", "stray line\n", "; comment\n", " *indented\n"])
    return head + "\n" + r.choice(["", "", "\n", ";x\n"]) + pattern + "\n" + between


def spoil(r, data):
    """Now and then one byte is lost, doubled or replaced; or a line is long."""
    kind = r.random()
    at = r.randrange(len(data))
    if kind < 0.2:
        return data[:at] + data[at + 1 :]
    if kind < 0.3:
        return data[:at] + bytes([r.choice(b'*,;[]"=AS%\0\n 1.e-')]) + data[at + 1 :]
    if kind < 0.4:
        return data[:at] + b" " * r.choice([1000, 1023, 1024, 3000]) + data[at:]
    return data


def described(symbol):
    """As derive_golden.py writes symbols."""
    head = symbol["name"] + (" (%s)" % symbol["description"] if "description" in symbol else "")
    if symbol["type"] == "CompoundSymbolDefinition":
        return "compound %s [%s]" % (head, ", ".join(described(member) for member in symbol["symbols"]))
    out = "simple %s {" % head
    for graphic in symbol["graphics"]:
        if graphic["type"] == "Path":
            out += "path %s; " % graphic.get("geometry", "")
            continue
        out += "text %s font=%s height=%s" % (graphic["content"], graphic["fontName"], graphic["height"])
        for label, key in (("angle", "angle"), ("x", "positionX"), ("y", "positionY")):
            out += " %s=%s" % (label, graphic[key]) if key in graphic else ""
        out += " %s %s %s" % (graphic["horizontalAlignment"], graphic["verticalAlignment"], graphic["textColor"])
        for key in ("bold", "italic", "underlined", "overlined"):
            out += " %s=%s" % (key, graphic[key]) if key in graphic else ""
        out += "; "
    out += "params" + "".join(" " + parameter["identifier"] for parameter in symbol["parameters"]) + "; line"
    usage = symbol["lineUsage"]
    for label, key in (("angle", "angle"), ("control", "angleControl"), ("repeat", "repeat"), ("start", "startOffset")):
        out += " %s=%s" % (label, usage[key]) if key in usage else ""
    return out + "}"


def expected(converter, data):
    try:
        # A document has no place for bytes that are no characters.
        return [re.sub("[\udc80-\udcff]", "\ufffd", line) for line in converter.convert(data)] or None
    except derive_golden.Refused:
        return None


def main():
    tool, shapes, count = sys.argv[1:4]
    r = random.Random(int(sys.argv[4]) if len(sys.argv) > 4 else 1)
    refused = 0
    with tempfile.TemporaryDirectory() as folder:
        file = pathlib.Path(folder, "test.lin")
        drawing = pathlib.Path(folder, "styles.json")
        drawing.write_text(json.dumps({"format": "styleconversion/drawing", "version": 1, "textStyles": STYLES}))
        for case in range(int(count)):
            data = "".join(linetype(r) for _ in range(r.randrange(1, 5))).encode()
            data = spoil(r, data)
            file.write_bytes(data)
            scale = r.choice(["1", "1", "25.4", "2e3", "0.001", "0.5"])
            converter = derive_golden.Converter(STYLES, shapes, float(scale))
            wanted = expected(converter, data)
            run = subprocess.run(
                [tool, "linetypes", str(file), "--drawing", str(drawing), "--shapes", shapes, "--scale", scale,
                 "--code-page", "UTF-8"], capture_output=True, check=False)
            symbols = json.loads(run.stdout)["symbols"] if run.returncode == 0 else None
            # Python does not show the sign of what is not a number.
            found = [described(symbol).replace("-nan", "nan") for symbol in symbols] if symbols is not None else None
            refused += wanted is None
            if found != wanted or run.returncode not in (0, 1):
                print("case", case, "scale", scale, repr(data), "\nwanted", wanted, "\nfound", found, run.stderr)
                return 1
    print(count, "files,", refused, "of them refused by both")
    return 0


if __name__ == "__main__":
    sys.exit(main())
