"""The schemas accept good documents and refuse changed ones: schemas_test.py FOLDER"""
import copy
import json
import os
import sys
import unittest

import jsonschema

FOLDER = sys.argv.pop()

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
        }
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


unittest.main(argv=sys.argv[:1])
