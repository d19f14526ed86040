"""Checks the examples: the findings documents follow their schema, and have no findings but those that the examples
show on purpose: findings_test.py STYLECONV ROOT"""
import json
import os
import subprocess
import sys
import unittest

import jsonschema

ROOT = sys.argv.pop(2)
TOOL = sys.argv.pop(1)
EXAMPLES = os.path.join(ROOT, "examples")

# Examples that show what cannot be drawn, or not in its place (dashes behind arcs, paragraphs, a shape too many), or
# takes its colour from an insert that this drawing lacks: file, and what its findings are of.
ON_PURPOSE = {
    ("simple.lin", "linetype MARGIN"),
    ("marsh.pat", "pattern MARSH"),
    ("street-furniture.dxf", "block SIGN"),
    ("draw-order.json", "block BUS_STOP"),
    ("survey-symbols.json", "block ORCHARD"),
    ("boundaries.json", "block FOOTPATH_RUNNING"),
    ("boundaries.json", "block FOOTPATH_BY_SEGMENT"),
    ("boundaries.json", "block PLOT_RUNNING"),
    ("boundaries.json", "block POND"),
    ("title-block.json", "block NOTES"),
    ("utility-symbols.json", "block FENCED_TANK"),
    ("land-cover.json", "block COURTYARD_BUILDING"),
}


def check(*arguments):
    run = subprocess.run([TOOL, "check", "--format", "json", *arguments], capture_output=True, text=True)
    assert run.stderr == "", run.stderr
    document = json.loads(run.stdout)
    with open(os.path.join(ROOT, "docs", "schemas", "findings.schema.json"), encoding="utf-8") as schema:
        jsonschema.validate(document, json.load(schema))
    assert run.returncode == (1 if document["errors"] else 0)
    return document


class Examples(unittest.TestCase):
    def of_folder(self, folder, end, *options):
        files = [os.path.join(EXAMPLES, folder, name) for name in os.listdir(os.path.join(EXAMPLES, folder))
                 if name.endswith(end)]
        document = check(*files, *options)
        found = {(os.path.basename(f["file"]), f.get("item", "")) for f in document["findings"]
                 if f["severity"] != "note"}
        self.assertLessEqual(found, ON_PURPOSE)
        return document

    def test_linetypes(self):
        self.of_folder("linetypes", ".lin", "--drawing", os.path.join(EXAMPLES, "linetypes", "styles.json"),
                       "--shapes", os.path.join(EXAMPLES, "shapes"))

    def test_patterns(self):
        document = self.of_folder("patterns", ".pat", "--notes")
        # Nothing is said of families that are in their places to within a hundredth.
        self.assertEqual([finding["code"] for finding in document["findings"]], ["lost-families"])

    def test_shapes(self):
        self.of_folder("shapes", ".shx")

    def test_dxf_files(self):
        self.of_folder("drawings", ".dxf")

    def test_drawings(self):
        self.of_folder("drawings", ".json", "--shapes", os.path.join(EXAMPLES, "shapes"))

    def test_notes_are_told_where_they_are_asked_for(self):
        for options, notes in (([], set()), (["--notes"], {"note"})):
            document = self.of_folder("drawings", ".json", "--shapes", os.path.join(EXAMPLES, "shapes"), *options)
            self.assertEqual({finding["severity"] for finding in document["findings"]} & {"note"}, notes)


if __name__ == "__main__":
    unittest.main()
