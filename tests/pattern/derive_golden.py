#!/usr/bin/env python3
"""Writes the stored conversions of the example patterns, from the patterns' definition alone.

    tests/pattern/derive_golden.py examples/patterns tests/pattern/golden
"""
import math
import pathlib
import re
import sys

NUMBER = re.compile(r"\s*([+-]?(?:\d+\.?\d*|\.\d+)(?:[eE][+-]?\d+)?)")


def trimmed(value):
    """Five decimals, cut at the leftmost zero among the last four."""
    text = "%.5f" % value
    zero = text.find("0", len(text) - 4)
    return text if zero < 0 else text[:zero]


def near_whole(value):
    return abs(value - math.floor(value + 0.5)) < 0.0001


class Family:
    def __init__(self, text):
        numbers = [float(m.group(1)) if (m := NUMBER.match(piece)) else 0.0 for piece in text.split(",")]
        numbers += [0.0] * (5 - len(numbers))
        self.angle, self.x, self.y, shift, self.spacing = numbers[:5]
        self.spacing = self.spacing or 10.0
        self.dashes = []
        for dash in reversed(numbers[5:]):
            if self.dashes and (dash < 0) == (self.dashes[0] < 0):
                self.dashes[0] += dash
            else:
                self.dashes.insert(0, dash)
        self.total = sum(abs(dash) for dash in self.dashes)
        if len(self.dashes) < 2:
            shift = 0.0
        if self.total == 0:
            self.dashes, self.total, shift = [], 10.0, 0.0
        self.offset = math.fmod(shift, self.total)
        if self.offset < 0:
            self.offset += self.total
        self.rows, self.rotated, self.tile = 1, False, (self.total, self.spacing)
        if self.offset != 0 and not self.find_rotated() and not self.find_stacked():
            self.rows = -1

    def find_rotated(self):
        c, s = math.cos(math.radians(self.angle)), math.sin(math.radians(self.angle))
        if c == 0 or s == 0:
            return False
        d, h, t = self.offset, self.spacing, self.total
        p = h * c + d * s
        q = -p / (t * s)
        r = -(d * c - h * s) / (t * c)
        n = next((n for n in range(1, 512) if near_whole(n * q)), None)
        m = next((m for m in range(1, 512) if near_whole(m * r)), None)
        if n is None or m is None:
            return False
        width = (d * c - h * s) * n + t * c * (n * q)
        height = m * p + t * s * (m * r)
        if width * height == 0 or not abs(abs(t * h / (height * width)) - 1) < 0.0001:
            return False
        self.rotated, self.tile = True, (width, height)
        return True

    def find_stacked(self):
        phase, best = 0.0, math.inf
        for n in range(1, 65):
            phase += self.offset
            error = abs(phase - self.total)
            if error < best:
                best, rows = error, n
            if error < 0.0001:
                break
            if phase >= self.total:
                phase -= self.total
        if not best < self.offset * 0.25:
            return False
        self.rows, self.tile = rows, (self.total, rows * self.spacing)
        return True

    def key(self):
        angle = 0.0 if self.rotated else self.angle
        return angle, abs(self.tile[0]), abs(self.tile[1])

    def turned(self, x, y, angle, about):
        c, s = math.cos(math.radians(angle)), math.sin(math.radians(angle))
        x, y = x - about[0], y - about[1]
        return x * c - y * s + about[0], x * s + y * c + about[1]

    def path(self):
        origin = (self.x, self.y) if self.rotated else self.turned(self.x, self.y, -self.angle, (0, 0))
        pieces = []
        for row in range(self.rows):
            x, y = row * self.offset + origin[0], row * self.spacing + origin[1]
            for dash in self.dashes or [self.tile[0]]:
                if dash >= 0 and self.rotated:
                    ends = [self.turned(at, y, self.angle, origin) for at in (x, x + dash)]
                    pieces.append("M %s L %s" % tuple(",".join(map(trimmed, end)) for end in ends))
                elif dash >= 0:
                    pieces.append("M %s,%s h %s" % (trimmed(x), trimmed(y), trimmed(dash)))
                x += abs(dash)
        return " ".join(pieces)


def describe(name, families):
    groups = []
    previous = (0.0, 0.0, 0.0)
    for family in sorted(families, key=lambda f: (not f.rotated, f.key())):
        if family.rows < 0:
            continue
        if groups and all(abs(a - b) < 0.0001 for a, b in zip(family.key(), previous)):
            groups[-1][1].append(family.path())
        else:
            groups.append((family.key(), [family.path()]))
        previous = family.key()
    lines = [("simple " if len(groups) == 1 else "compound ") + name]
    for (angle, width, height), paths in groups:
        turn = "" if angle == 0 else "+" + trimmed(angle)
        lines.append("area %%HATCHANGLE%%%s %s %s" % (turn, trimmed(width), trimmed(height)))
        lines.append("path " + " ".join(paths))
    return "".join(line + "\n" for line in lines) if groups else ""


def main():
    examples, golden = map(pathlib.Path, sys.argv[1:])
    for example in sorted(examples.glob("*.pat")):
        patterns = {}
        for line in example.read_text(encoding="utf-8").splitlines():
            if line.startswith("*"):
                name = line[1:].split(",")[0].strip(" ")
                patterns.setdefault(name, [])
            elif line and not line.startswith(";"):
                patterns[name].append(Family(line))
        text = "".join(describe(name, patterns[name]) for name in sorted(patterns))
        (golden / (example.stem + ".txt")).write_text(text, encoding="utf-8")


if __name__ == "__main__":
    main()
