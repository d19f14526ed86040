"""The schemas accept good documents and refuse changed ones: schemas_test.py FOLDER [TOOL]

With the tool, the schema of drawings is compared with what the tool reads."""
import copy
import json
import os
import random
import subprocess
import sys
import tempfile
import unittest

import jsonschema

FOLDER = sys.argv[1]
TOOL = sys.argv[2] if len(sys.argv) > 2 else None
DOCUMENTS_COMPARED = 150  # each a run of the tool

SYMBOLS = {
    "format": "styleconversion/symbols",
    "version": 1,
    "symbols": [
        {
            "type": "CompoundSymbolDefinition",
            "name": "",
            "symbols": [
                {
                    "type": "SimpleSymbolDefinition",
                    "name": "A",
                    "graphics": [
                        {"type": "Path", "geometry": "M 0,0 L 1,0 ", "lineWeightScalable": "false"},
                        {"type": "Text", "content": "'A'", "bold": "true"},
                    ],
                    "parameters": [{"identifier": "LINECOLOR", "dataType": 7}],
                    "lineUsage": {"repeat": "1"},
                }
            ],
        },
        {
            "type": "SimpleSymbolDefinition",
            "name": "B",
            "kind": "pattern",
            "source": {"file": "b.pat", "line": 3},
            "graphics": [],
            "parameters": [],
        },
    ],
}

GLYPHS = {
    "format": "styleconversion/glyphs",
    "version": 1,
    "kind": "kFont",
    "isVersion10": True,
    "fontInfo": [8, 2, 0, 0],
    "glyphs": [
        {"number": 65, "name": "UCA", "geometry": "M 0,0 l 0,1 A 1e-05,inf 0 0 1 -2,nan ", "end": [0, None], "result": 0},
        {"number": 66, "name": "", "result": 7},
        {"number": 32, "name": "", "geometry": "", "end": [0.5, -0.0], "result": 0},
    ],
}


DRAWING = {
    "format": "styleconversion/drawing",
    "version": 1,
    "insunits": 6,
    "layers": [{"name": "0"}, {"name": "Roads", "color": "#00fF80", "lineWeight": 25}],
    "linetypes": [
        {
            "name": "GAS",
            "patternLength": 3,
            "dashes": [
                {"length": 1},
                {"length": -1, "shapeStyle": "S", "text": "GAS", "offset": [0.1, 0], "scale": 2, "rotation": 0.5},
                {"length": -1, "shapeStyle": "S", "shapeNumber": 132},
            ],
        }
    ],
    "textStyles": [
        {
            "name": "S",
            "fileName": "f.shx",
            "bigFontFileName": "",
            "typeface": "Arial",
            "bold": True,
            "italic": False,
            "isShapeFile": False,
            "isVertical": False,
            "obliquingAngle": 0.0,
            "textSize": 0.0,
            "xScale": 1.0,
            "flagBits": 0,
        }
    ],
    "blocks": [
        {
            "name": "B",
            "layout": False,
            "anonymous": False,
            "units": 1,
            "drawOrder": ["a"],
            "entities": [
                {
                    "type": "point", "id": "a", "layer": "0", "color": "ByBlock", "lineWeight": -2,
                    "linetype": "ByBlock", "position": [0, 0],
                },
                {"type": "line", "start": [0, 0], "end": [1, 0, 5]},
                {"type": "arc", "center": [0, 0], "radius": 1, "startAngle": 0, "endAngle": 1, "normal": [0, 0, -1]},
                {"type": "circle", "center": [0, 0], "radius": 1},
                {
                    "type": "ellipse", "center": [0, 0], "majorAxis": [1, 0], "radiusRatio": 0.5, "startAngle": 0,
                    "endAngle": 1,
                },
                {"type": "polyline", "vertices": [[0, 0], [1, 0, 1]], "closed": True, "plinegen": True},
                {
                    "type": "spline", "fitPoints": [[0, 0], [1, 1]], "degree": 3, "fitTolerance": 0,
                    "startTangent": [1, 0], "endTangent": [1, 0],
                },
                {
                    "type": "spline", "degree": 1, "controlPoints": [[0, 0], [1, 1]], "knots": [0, 0, 1, 1],
                    "weights": [1, 2], "closed": False, "periodic": False,
                },
                {
                    "type": "hatch",
                    "solid": False,
                    "loops": [
                        {"vertices": [[0, 0], [1, 0], [1, 1, 0.5]]},
                        {
                            "edges": [
                                {"type": "line", "start": [0, 0], "end": [1, 0]},
                                {
                                    "type": "arc", "center": [0, 0], "radius": 1, "startAngle": 0, "endAngle": 1,
                                    "clockwise": True,
                                },
                                {
                                    "type": "ellipse", "center": [0, 0], "majorAxis": [1, 0], "radiusRatio": 0.5,
                                    "startAngle": 0, "endAngle": 1, "clockwise": False,
                                },
                                {"type": "spline", "fitPoints": [[0, 0], [1, 1]]},
                            ]
                        },
                    ],
                    "pattern": [{"angle": 0, "base": [0, 0], "offset": [0, 1], "dashes": [1, -1]}],
                    "hatchLines": [[0, 0, 1, 1]],
                },
                {"type": "mpolygon", "loops": [{"vertices": [[0, 0], [1, 0]]}], "fillColor": 5},
                {
                    "type": "text", "position": [0, 0], "height": 1, "rotation": 0, "text": "x", "style": "S",
                    "horizontalMode": 1, "verticalMode": 2,
                },
                {
                    "type": "attributeDefinition", "position": [0, 0], "height": 1, "text": "x", "tag": "T",
                    "prompt": "?",
                },
                {
                    "type": "mtext", "location": [0, 0], "textHeight": 1, "rotation": 0, "contents": "x", "style": "S",
                    "actualWidth": 2, "actualHeight": 1,
                },
                {"type": "insert", "block": "B"},
                {"type": "insert", "block": "B", "position": [1, 2], "scale": [1, -1], "rotation": 1, "mirrored": True,
                 "columns": 2, "rows": 3, "columnSpacing": 4, "rowSpacing": 5, "hidden": True,
                 "attributes": [{"position": [0, 0], "height": 1, "text": "a", "hidden": False}]},
                {"type": "other", "class": "Table"},
            ],
        },
        {"name": "C", "entities": []},
    ],
}


def change(document, path, value):
    """A copy of the document with the value at the path replaced; None removes it."""
    changed = copy.deepcopy(document)
    place = changed
    for step in path[:-1]:
        place = place[step]
    if value is None:
        del place[path[-1]]
    else:
        place[path[-1]] = value
    return changed


def paths_of(value, path=()):
    """The paths of all values in a document, but for the document itself."""
    steps = value.items() if isinstance(value, dict) else enumerate(value) if isinstance(value, list) else ()
    for step, inner in steps:
        yield path + (step,)
        yield from paths_of(inner, path + (step,))


def value_at(document, path):
    for step in path:
        document = document[step]
    return document


def changes_of(document):
    """Changes at every place of the document: each value left out, and replaced by others; a key too many."""
    others = [0, -1, 1, 2.0, 0.5, 21, 256, 2147483648, "", "x", "#12345g", "ByLayer", "line", "spline", True, [], [0],
              [0, 1], [0, 1, 2], [0, 1, 2, 3], [0, 1, 2, 3, 4], ["x"], [[0]], [[]], [{}], {}]
    for path in paths_of(document):
        last = path[-1]
        if last == "id" or "drawOrder" in path:
            continue  # which ids there are is beyond a schema
        yield change(document, path, None)
        value = value_at(document, path)
        for other in others:
            if other != value:
                yield change(document, path, other)
        if isinstance(value, dict):
            for key in ("extra", "start", "closed", "clockwise", "knots", "vertices", "shapeNumber"):
                if key not in value:
                    yield change(document, path + (key,), [])


def is_read(document):
    """Whether the tool reads the document; having no block to list is no fault of reading."""
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "drawing.json")
        with open(path, "w", encoding="utf-8") as file:
            json.dump(document, file)
        run = subprocess.run([TOOL, "list", path], capture_output=True, text=True, check=False)
    return run.returncode == 0 or "has no block to convert" in run.stderr


class SymbolsSchema(unittest.TestCase):
    def setUp(self):
        with open(os.path.join(FOLDER, "symbols.schema.json"), encoding="utf-8") as file:
            self.validator = jsonschema.Draft202012Validator(json.load(file))

    def test_a_good_document_is_accepted(self):
        self.assertTrue(self.validator.is_valid(SYMBOLS))

    def test_a_changed_document_is_refused(self):
        member = ["symbols", 0, "symbols", 0]
        changes = [
            (["format"], "styleconversion/glyphs"),
            (["version"], 2),
            (["symbols"], None),
            (["extra"], 1),
            (member + ["type"], "Symbol"),
            (member + ["name"], None),
            (member + ["graphics"], None),
            (member + ["description"], ""),
            (member + ["graphics", 0, "geometry"], ""),
            (member + ["graphics", 0, "geometry"], 5),
            (member + ["graphics", 1, "bold"], "false"),
            (member + ["parameters", 0, "dataType"], 1),
            (member + ["lineUsage", "repeatX"], "1"),
        ]
        for path, value in changes:
            self.assertFalse(self.validator.is_valid(change(SYMBOLS, path, value)), (path, value))


class GlyphsSchema(unittest.TestCase):
    def setUp(self):
        with open(os.path.join(FOLDER, "glyphs.schema.json"), encoding="utf-8") as file:
            self.validator = jsonschema.Draft202012Validator(json.load(file))

    def test_a_good_document_is_accepted(self):
        self.assertTrue(self.validator.is_valid(GLYPHS))

    def test_a_changed_document_is_refused(self):
        changes = [
            (["format"], "styleconversion/symbols"),
            (["version"], "1"),
            (["kind"], "kBigfont"),
            (["kind"], "kShapes"),
            (["fontInfo"], [8, 2]),
            (["fontInfo", 0], 256),
            (["isVersion10"], None),
            (["glyphs"], []),
            (["extra"], 1),
            (["glyphs", 0, "number"], 0),
            (["glyphs", 0, "name"], None),
            (["glyphs", 0, "geometry"], None),
            (["glyphs", 0, "geometry"], "M 0,0 z"),
            (["glyphs", 0, "end"], [0]),
            (["glyphs", 0, "end"], None),
            (["glyphs", 0, "result"], 7),
            (["glyphs", 1, "result"], 0),
            (["glyphs", 1, "result"], 3),
            (["glyphs", 1, "end"], [0, 0]),
        ]
        for path, value in changes:
            self.assertFalse(self.validator.is_valid(change(GLYPHS, path, value)), (path, value))


class DrawingSchema(unittest.TestCase):
    def setUp(self):
        with open(os.path.join(FOLDER, "drawing.schema.json"), encoding="utf-8") as file:
            self.validator = jsonschema.Draft202012Validator(json.load(file))

    def is_valid(self, *changed):
        return self.validator.is_valid(change(DRAWING, *changed))

    def test_a_good_document_is_accepted(self):
        self.assertEqual(list(self.validator.iter_errors(DRAWING)), [])
        self.assertTrue(self.validator.is_valid({"format": "styleconversion/drawing", "version": 1}))

    def test_an_unknown_key_is_refused_at_every_level(self):
        for path in paths_of(DRAWING):
            if isinstance(value_at(DRAWING, path), dict):
                self.assertFalse(self.is_valid(list(path) + ["extra"], 1), path)

    def test_a_changed_document_is_refused(self):
        entities = ["blocks", 0, "entities"]
        hatch = entities + [8]
        changes = [
            (["format"], "styleconversion/symbols"),
            (["version"], 2),
            (["insunits"], 2147483648),
            (["insunits"], 1.5),
            (["layers", 0, "name"], None),
            (["layers", 0, "name"], "a\0b"),
            (["layers", 1, "color"], 0),
            (["layers", 1, "color"], "#00ff8"),
            (["layers", 1, "color"], "#00ff80\n"),
            (["layers", 1, "color"], "bylayer"),
            (["layers", 1, "lineWeight"], 2**31),
            (["linetypes", 0, "dashes", 1, "shapeStyle"], None),
            (["linetypes", 0, "dashes", 1, "offset"], [1, 2, 3]),
            (["textStyles", 0, "bold"], 1),
            (["blocks", 0, "entities"], None),
            (["blocks", 0, "units"], 2147483648),
            (["blocks", 0, "drawOrder"], [1]),
            (entities + [0, "type"], "blob"),
            (entities + [0, "radius"], 1),
            (entities + [1, "start"], [0]),
            (entities + [1, "start"], [0, float("inf")]),
            (entities + [3, "normal"], [0, 0, 1]),
            (entities + [6, "endTangent"], None),
            (entities + [6, "knots"], [0, 1]),
            (entities + [7, "knots"], None),
            (entities + [7, "fitPoints"], []),
            (hatch + ["loops", 0, "edges"], []),
            (hatch + ["loops", 0, "vertices"], None),
            (hatch + ["loops", 1, "edges", 0, "clockwise"], True),
            (hatch + ["loops", 1, "edges", 0, "layer"], "0"),
            (hatch + ["hatchLines", 0], [0, 0, 1]),
            (hatch + ["pattern", 0, "offset"], None),
            (entities + [9, "loops", 0], {"edges": []}),
            (entities + [11, "prompt"], None),
        ]
        for path, value in changes:
            self.assertFalse(self.is_valid(path, value), (path, value))

    @unittest.skipIf(TOOL is None, "there is no tool to compare with")
    def test_the_tool_refuses_what_the_schema_refuses_and_nothing_else(self):
        changed = list(changes_of(DRAWING))
        self.assertGreater(len(changed), 1000)
        random.Random(20260).shuffle(changed)
        refused = 0
        for document in [DRAWING] + changed[:DOCUMENTS_COMPARED]:
            valid = self.validator.is_valid(document)
            refused += not valid
            self.assertEqual(is_read(document), valid, json.dumps(document))
        self.assertGreater(refused, DOCUMENTS_COMPARED // 2)


unittest.main(argv=sys.argv[:1])
