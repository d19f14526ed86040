"""The linter looks again at what may have changed, and only at that."""
import contextlib
import io
import json
import os
import sys
import tempfile
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "scripts"))
import tidy

# They stand in for the programs: a source with "bad" in it has a finding, and every look is written down.
COMPILER = """#!/bin/sh
cat a.cpp a.h
"""
LINTER = """#!/bin/sh
case "$*" in
  *--version*) cat version;;
  *--dump-config*) cat config;;
  *) echo looked >> looks; if grep -q bad a.cpp; then echo "a.cpp: a finding"; exit 1; fi;;
esac
"""


class Tidy(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.addCleanup(os.chdir, os.getcwd())
        os.chdir(folder.name)
        for name, text in (("clang++", COMPILER), ("clang-tidy", LINTER)):
            self.write(name, text)
            os.chmod(name, 0o755)
        path = os.environ["PATH"]
        self.addCleanup(os.environ.__setitem__, "PATH", path)
        os.environ["PATH"] = folder.name + os.pathsep + path
        for name in ("a.cpp", "a.h", "version", "config", "looks"):
            self.write(name, "first\n" if name != "looks" else "")
        self.write(
            "compile_commands.json",
            json.dumps([{"directory": folder.name, "file": "a.cpp", "command": "ccache clang++ -o a.o -c a.cpp"}]),
        )

    def write(self, name, text):
        with open(name, "w", encoding="utf-8") as file:
            file.write(text)

    def run_tidy(self, *sources):
        said = io.StringIO()
        with contextlib.redirect_stdout(said):
            status = tidy.main(".", list(sources))
        with open("looks", encoding="utf-8") as file:
            return status, said.getvalue(), len(file.readlines())

    def test_a_clean_source_is_looked_at_once(self):
        self.assertEqual(self.run_tidy("a.cpp"), (0, "", 1))
        self.assertEqual(self.run_tidy("a.cpp"), (0, "", 1))

    def test_what_changes_is_looked_at_again(self):
        for looks, changed in enumerate(("a.cpp", "a.h", "version", "config"), 2):
            self.run_tidy("a.cpp")
            self.write(changed, "second\n")
            self.assertEqual(self.run_tidy("a.cpp"), (0, "", looks), changed)

    def test_a_finding_is_told_every_time(self):
        self.write("a.cpp", "bad\n")
        self.assertEqual(self.run_tidy("a.cpp"), (1, "a.cpp: a finding\n", 1))
        self.assertEqual(self.run_tidy("a.cpp"), (1, "a.cpp: a finding\n", 2))

    def test_a_source_that_is_not_built_is_a_finding(self):
        status, said, looks = self.run_tidy("b.cpp")
        self.assertEqual((status, looks), (1, 0))
        self.assertIn("b.cpp", said)


if __name__ == "__main__":
    unittest.main()
