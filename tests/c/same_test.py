"""The C interface gives what the tool writes, to the byte: same_test.py PROGRAM TOOL EXAMPLES [--one-of-each-kind]

PROGRAM is examples/c/convert.c, built.
"""
import glob
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

PROGRAM, TOOL, EXAMPLES = sys.argv[1:4]
FILES = sorted(path for kind in ("patterns/*.pat", "linetypes/*.lin", "shapes/*.shx", "drawings/*.json", "drawings/*.dxf")
               for path in glob.glob(os.path.join(EXAMPLES, kind)))

if "--one-of-each-kind" in sys.argv:
    FILES = list({os.path.splitext(path)[1]: path for path in FILES}.values())


def output(folder, *command):
    run = subprocess.run(command, cwd=folder, stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    return run.returncode, run.stdout.replace(b"\r\n", b"\n")


# Where a file was looked for is another place in each.
def without_places(document):
    return re.sub(rb"found (in|among|beside|anywhere)\b[^;\"]*", b"found", document)


class Same(unittest.TestCase):
    # Further files stand in one folder, where both run.
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = folder.name
        for path in glob.glob(os.path.join(EXAMPLES, "shapes", "*.shx")):
            shutil.copy(path, cls.folder)
        shutil.copy(os.path.join(EXAMPLES, "linetypes", "styles.json"), cls.folder)

    def same(self, path, job, options, *arguments):
        if job != "list" and path.endswith(".lin"):
            options = dict(options, drawing="styles.json")
            arguments += ("--drawing", "styles.json", "--shapes", ".")
        elif job != "list":
            arguments += ("--shapes", ".")
        tool = output(self.folder, TOOL, job, path, *arguments)
        program = output(self.folder, PROGRAM, job, path, json.dumps(options), ".")
        self.assertTrue(tool[1], path)
        self.assertEqual(without_places(program[1]), without_places(tool[1]), path)
        # A check with findings is done, too.
        if job != "check":
            self.assertEqual(program[0], tool[0], path)

    def test_there_are_files_of_each_kind(self):
        self.assertEqual({os.path.splitext(path)[1] for path in FILES}, {".pat", ".lin", ".shx", ".json", ".dxf"})

    def test_conversions_in_each_format_are_the_same(self):
        for path in FILES:
            for form in ("json", "svg", "html", "qgis"):
                self.same(path, "convert", {"format": form}, "--format", form)

    def test_faithful_and_tolerant_conversions_are_the_same(self):
        for path in FILES:
            self.same(path, "convert", {"faithful": True, "tolerant": True}, "--faithful", "--tolerant")

    def test_layer_styles_are_the_same(self):
        for command, file, name in (("linetypes", "linetypes/simple.lin", "TRACK"), ("patterns", "patterns/brick.pat", "BRICK"),
                                    ("blocks", "drawings/boundaries.json", "POND")):
            path = os.path.join(EXAMPLES, *file.split("/"))
            with self.subTest(file=file):
                tool = output(self.folder, TOOL, command, path, "--format", "qml", "--name", name)
                self.assertEqual(tool[0], 0)
                program = output(self.folder, PROGRAM, "convert", path, json.dumps({"format": "qml", "names": [name]}), ".")
                self.assertEqual(program, tool)

    # By the commands of one kind, which choose by name: what is asked for, in that order, and as often.
    def test_what_is_chosen_by_names_is_the_same(self):
        for command, file, names in (("linetypes", "linetypes/simple.lin", ["TRACK", "FOOTPATH", "TRACK"]),
                                     ("patterns", "patterns/brick.pat", ["BRICK", "BRICK"]),
                                     ("blocks", "drawings/boundaries.json", ["POND", "PLOT_RUNNING"]),
                                     ("linetypes", "linetypes/simple.lin", ["NONE"])):
            path = os.path.join(EXAMPLES, *file.split("/"))
            chosen = [argument for name in names for argument in ("--name", name)]
            for form in ("json", "svg", "html"):
                with self.subTest(file=file, form=form):
                    tool = output(self.folder, TOOL, command, path, "--format", form, *chosen)
                    program = output(self.folder, PROGRAM, "convert", path, json.dumps({"format": form, "names": names}),
                                     ".")
                    self.assertEqual(program, tool)
            if tool[0] == 0:
                document = output(self.folder, PROGRAM, "convert", path, json.dumps({"names": names}), ".")[1]
                self.assertEqual([symbol["name"] for symbol in json.loads(document)["symbols"]], names)

    def test_lists_are_the_same(self):
        for path in FILES:
            self.same(path, "list", {"tolerant": True}, "--tolerant", "--format", "json")

    def test_checks_are_the_same(self):
        for path in FILES:
            self.same(path, "check", {}, "--format", "json")
            self.same(path, "check", {"notes": True, "tolerant": True}, "--notes", "--tolerant", "--format", "json")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
