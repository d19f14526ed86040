"""Compares the tool with a second implementation on random drawings:
compare_blocks.py STYLECONV [COUNT [SEED [MATHS]]]

MATHS is the program system_maths, where the tool runs on another system than this.
"""
import functools
import json
import math
import os
import random
import struct
import subprocess
import sys
import tempfile

import reference_blocks


class SystemMaths:
    """The maths functions of the system that the tool runs on, bit for bit."""

    def __init__(self, command):
        self.program = subprocess.Popen([command], stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self.results = {}  # of lines, in which 0 and -0 differ
        for name in ("sin", "cos", "atan", "atan2"):
            setattr(self, name, functools.partial(self.result, name))

    def result(self, name, *arguments):
        line = " ".join([name] + [struct.pack(">d", argument).hex() for argument in arguments]) + "\n"
        if line not in self.results:
            self.program.stdin.write(line.encode())
            self.program.stdin.flush()
            bits = int(self.program.stdout.readline(), 16)
            self.results[line] = struct.unpack(">d", bits.to_bytes(8, "big"))[0]
        return self.results[line]


LAYERS = ["0", "Roads", "roads", "WATER", "Nowhere"]


class Maker:
    """Makes drawings of small round numbers, where patterns fit exactly now and then, and of any numbers."""

    def __init__(self, seed):
        self.random = random.Random(seed)
        self.is_round = self.random.random() < 0.5

    def chance(self, share):
        return self.random.random() < share

    def number(self, low=-10.0, high=10.0):
        if self.is_round:
            return round(self.random.uniform(low, high) * 4) / 4
        return self.random.uniform(low, high)

    def positive(self, high=10.0):
        return max(abs(self.number(0.0, high)), 0.25)

    def point(self):
        return [self.number(), self.number()] + ([self.number()] if self.chance(0.2) else [])

    def point2(self):
        return [self.number(), self.number()]

    def angle(self):
        if self.is_round:
            return self.random.choice([0, 0.5, 1, 1.5, 2, -1, 3]) * math.pi / self.random.choice([1, 2, 3, 4])
        return self.random.uniform(-7, 7)

    def color(self):
        return self.random.choice(["ByLayer", "ByBlock", self.random.randint(1, 255),
                                   "#%06x" % self.random.getrandbits(24), "ByLayer"])

    def weight(self):
        return self.random.choice([-1, -1, -2, -3, 0, 25, 211, 212, self.random.randint(-5, 300)])

    def dash(self):
        length = self.random.choice([1, -1, 1, -1, 0]) * self.positive(2.0)
        if self.is_round and self.chance(0.5):
            length = self.random.choice([0.5, -0.25, 1, -1, 0, 0.25])
        dash = {"length": length}
        if self.chance(0.3):
            dash["shapeStyle"] = self.random.choice(["LIB", "FONT", "MISSING", "NOWHERE"])
            if self.chance(0.6):
                dash["shapeNumber"] = self.random.choice([65, 66, 67, 68, 200])
            elif self.chance(0.9):
                dash["text"] = "".join(self.random.choice("ABCDE \U0001F600") for _ in range(self.random.randint(0, 4)))
            if self.chance(0.7):
                dash["offset"] = self.point2()
                dash["scale"] = self.positive(3)
                dash["rotation"] = self.angle()
        return dash

    def linetype(self, name):
        record = {"name": name, "dashes": [self.dash() for _ in range(self.random.randint(0, 5))]}
        if self.chance(0.15):
            record["patternLength"] = self.random.choice([0, self.positive(5.0)])
        return record

    def properties(self, kind):
        entity = {"type": kind}
        if self.chance(0.8):
            entity["layer"] = self.random.choice(LAYERS)
        if self.chance(0.8):
            entity["color"] = self.color()
        if self.chance(0.8):
            entity["lineWeight"] = self.weight()
        if self.chance(0.85):
            entity["linetype"] = self.random.choice(["A", "B", "C", "a", "Continuous", "ByBlock", "NOWHERE"])
        return entity

    def vertices(self, least=0, most=6):
        vertices = []
        for _ in range(self.random.randint(least, most)):
            vertex = self.point2()
            if vertices and self.chance(0.1):
                vertex = list(vertices[-1][:2])
            elif self.is_round and vertices and self.chance(0.4):
                vertex[self.random.randint(0, 1)] = vertices[-1][0]
            if self.chance(0.4):
                vertex.append(self.random.choice([0, 1, -1, 0.5, -0.5, self.random.uniform(-3, 3)]))
            vertices.append(vertex)
        return vertices

    def edges(self):
        edges = []
        at = self.point2()
        for _ in range(self.random.randint(0, 5)):
            kind = self.random.choice(["line", "line", "arc", "ellipse"])
            edge = {"type": kind}
            if kind == "line":
                end = self.point2()
                if self.chance(0.4):
                    end[self.random.randint(0, 1)] = at[self.random.randint(0, 1)]
                edge.update(start=at if self.chance(0.8) else self.point2(), end=end)
                at = end
            else:
                start = self.angle()
                edge.update(center=self.point2(), startAngle=start,
                            endAngle=start + 2 * math.pi if self.chance(0.3) else self.angle())
                if kind == "arc":
                    edge["radius"] = self.positive()
                else:
                    edge.update(majorAxis=[self.positive(), self.number()], radiusRatio=self.positive(1))
                if self.chance(0.5):
                    edge["clockwise"] = self.chance(0.5)
            edges.append(edge)
        return {"edges": edges}

    def text(self, entity):
        entity.update(position=self.point(), height=self.positive(), text=self.random.choice(["", "x", "it's", "ä%c"]))
        if self.chance(0.7):
            entity.update(rotation=self.angle(), horizontalMode=self.random.randint(0, 5),
                          verticalMode=self.random.randint(0, 3),
                          style=self.random.choice(["STANDARD", "LIB", "BOLD", "NOWHERE"]))

    def entity(self):
        kind = self.random.choice(["point", "line", "line", "arc", "arc", "circle", "ellipse", "polyline", "polyline",
                                   "polyline", "hatch", "mpolygon", "text", "attributeDefinition", "mtext", "insert",
                                   "other"])
        entity = self.properties(kind)
        if kind == "point":
            entity["position"] = self.point()
        elif kind == "line":
            entity.update(start=self.point(), end=self.point())
            if self.chance(0.3):
                entity["end"][self.random.randint(0, 1)] = entity["start"][self.random.randint(0, 1)]
        elif kind == "arc":
            entity.update(center=self.point(), radius=self.positive(), startAngle=self.angle(), endAngle=self.angle())
            if self.chance(0.4):
                entity["normal"] = [0, 0, self.random.choice([1, -1])]
        elif kind == "circle":
            entity.update(center=self.point(), radius=self.positive())
        elif kind == "ellipse":
            entity.update(center=self.point(), majorAxis=[self.positive(), self.number()],
                          radiusRatio=self.positive(1))
            if self.chance(0.6):
                entity.update(startAngle=self.angle(), endAngle=self.angle())
        elif kind == "polyline":
            entity.update(vertices=self.vertices(), closed=self.chance(0.4), plinegen=self.chance(0.6))
        elif kind == "hatch":
            if self.chance(0.7):
                entity.update(solid=True, loops=[self.edges() if self.chance(0.5) else {"vertices": self.vertices()}
                                                 for _ in range(self.random.randint(0, 3))])
            else:
                entity.update(loops=[], hatchLines=[self.point2() + self.point2()
                                                    for _ in range(self.random.randint(0, 3))])
        elif kind == "mpolygon":
            entity["loops"] = [{"vertices": self.vertices()} for _ in range(self.random.randint(0, 3))]
            if self.chance(0.7):
                entity["fillColor"] = self.color()
        elif kind in ("text", "attributeDefinition"):
            self.text(entity)
            if kind == "attributeDefinition":
                entity.update(tag=self.random.choice(["TAG", "COLORBYLAYER0", ""]),
                              prompt=self.random.choice(["", "Name?"]))
        elif kind == "mtext":
            entity.update(location=self.point(), textHeight=self.positive(), contents="a\\P'b'")
            if self.chance(0.7):
                entity.update(rotation=self.angle(), style="bold", actualWidth=self.positive(),
                              actualHeight=self.positive())
        elif kind == "insert":
            entity["block"] = self.random.choice(["ONE", "two", "NOWHERE"])
        else:
            entity["class"] = "Unknown"
        return entity

    def block(self, name):
        entities = [self.entity() for _ in range(self.random.randint(0, 12))]
        block = {"name": name, "entities": entities, "layout": self.chance(0.1), "anonymous": self.chance(0.1)}
        if self.chance(0.6):
            block["units"] = self.random.randint(0, 20)
        if self.chance(0.3):
            for i, entity in enumerate(entities):
                entity["id"] = "e%d" % i
            block["drawOrder"] = self.random.sample(["e%d" % i for i in range(len(entities))],
                                                    self.random.randint(0, len(entities)))
        return block

    def drawing(self):
        return {
            "format": "styleconversion/drawing", "version": 1,
            "insunits": self.random.choice([4, 4, self.random.randint(0, 20)]),
            "layers": [{"name": "0"}, {"name": "Roads", "color": self.random.choice([30, "ByBlock", "#123456"]),
                                       "lineWeight": self.random.choice([50, -3, 30])},
                       {"name": "WATER", "color": self.random.randint(1, 255), "lineWeight": 13}],
            "linetypes": [self.linetype(name) for name in "ABC"],
            "textStyles": [{"name": "STANDARD", "typeface": "Arial"}, {"name": "LIB", "fileName": "lib"},
                           {"name": "FONT", "fileName": "font.shx"}, {"name": "MISSING", "fileName": "missing.shx"},
                           {"name": "BOLD", "typeface": "Times", "bold": True, "italic": self.chance(0.5)}],
            "blocks": [self.block(name) for name in ("ONE", "TWO", "THREE")],
        }

    def program(self):
        codes = []
        for _ in range(self.random.randint(0, 6)):
            codes += self.random.choice([
                [self.random.randint(1, 15) << 4 | self.random.randint(0, 15)], [1], [2],
                [self.random.choice([3, 4]), self.random.randint(1, 3)], [5], [6], [5, 0x24, 6],
                [8, self.random.randint(0, 255), self.random.randint(0, 255)],
                [10, self.random.randint(1, 9), self.random.randint(0, 255)]])
        return bytes(codes + [0])

    def shape_file(self, font_info=b""):
        return reference_blocks.ShapeFile({number: self.program() for number in (65, 66, 67, 68, 0xd83d)}, font_info)


def first_difference(expected, found, path=""):
    if isinstance(expected, dict) and isinstance(found, dict) and list(expected) == list(found):
        pairs = [(key, expected[key], found[key]) for key in expected]
    elif isinstance(expected, list) and isinstance(found, list) and len(expected) == len(found):
        pairs = [(i, a, b) for i, (a, b) in enumerate(zip(expected, found))]
    else:
        return None if expected == found else f"{path}\n  expected {expected}\n  found    {found}"
    return next((text for key, a, b in pairs if (text := first_difference(a, b, f"{path}/{key}"))), None)


def start(command):
    """What the command did. The tool never fails without a word, but under an emulator a start may, now and then."""
    run = subprocess.run(command, capture_output=True, check=False, timeout=300)
    if run.returncode and not run.stderr:
        print("ended with status %d and without a word; started again" % run.returncode)
        run = subprocess.run(command, capture_output=True, check=False, timeout=300)
    return run


def compare(tool, seed, folder):
    """What differs, or None."""
    maker = Maker(seed)
    drawing = maker.drawing()
    files = {"lib.shx": maker.shape_file(), "font.shx": maker.shape_file(bytes([maker.random.choice([4, 0, 250]), 1, 0]))}
    for name, file in files.items():
        with open(os.path.join(folder, name), "wb") as out:
            out.write(file.bytes())
    path = os.path.join(folder, "drawing.json")
    with open(path, "w", encoding="utf-8") as out:
        json.dump(drawing, out)
    ignored = maker.random.choice([[], [], ["Roads"], ["ROADS", "0"]])
    expected = reference_blocks.convert_all(drawing, files, ignored)
    arguments = [argument for layer in ignored for argument in ("--ignore-layer", layer)]
    run = start([tool, "blocks", path] + arguments)
    if run.returncode != (0 if expected else 1):
        return "status %d: %s" % (run.returncode, run.stderr.decode())
    return first_difference(expected, json.loads(run.stdout)["symbols"]) if expected else None


def main():
    tool = sys.argv[1]
    count = int(sys.argv[2]) if len(sys.argv) > 2 else 200
    first = int(sys.argv[3]) if len(sys.argv) > 3 else 1
    if len(sys.argv) > 4:
        reference_blocks.maths = SystemMaths(sys.argv[4])
    with tempfile.TemporaryDirectory() as folder:
        for seed in range(first, first + count):
            difference = compare(tool, seed, folder)
            if difference:
                print(f"seed {seed}: {difference}")
                return 1
    print(f"{count} drawings converted alike")
    return 0


if __name__ == "__main__":
    sys.exit(main())
