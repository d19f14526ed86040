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


unittest.main(argv=sys.argv[:1])
