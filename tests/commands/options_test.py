"""The README's table of options has those of CMakeLists.txt with their defaults, and no others: options_test.py ROOT"""
import os
import re
import sys
import unittest

ROOT = sys.argv.pop(1)


def text_of(name):
    with open(os.path.join(ROOT, name), encoding="utf-8") as file:
        return file.read()


class Options(unittest.TestCase):
    def test_the_table_names_the_options_and_their_defaults(self):
        given = dict(re.findall(r'option\((\w+) "[^"]*" ([^)]+)\)', text_of("CMakeLists.txt")))
        told = dict(re.findall(r"(?m)^\| `(STYLECONVERSION_\w+|BUILD_SHARED_LIBS)` \| `?([^`| ]+)`?", text_of("README.md")))
        cached = re.findall(r'set\((STYLECONVERSION_\w+) "" CACHE', text_of("cmake/HostLibraries.cmake"))
        given.update((name, "empty") for name in cached)
        self.assertIn("STYLECONVERSION_SYMBOL_MODEL", given)
        self.assertEqual(sorted(told), sorted(given))
        for name, default in given.items():
            # By itself on, as a part of another project off.
            self.assertEqual(told[name], "ON" if default == "${PROJECT_IS_TOP_LEVEL}" else default, name)

    def test_presets_set_options_that_there_are(self):
        there = set(re.findall(r"STYLECONVERSION_\w+", text_of("CMakeLists.txt")))
        named = set(re.findall(r"STYLECONVERSION_\w+", text_of("CMakePresets.json")))
        self.assertLessEqual({"STYLECONVERSION_TESTS", "STYLECONVERSION_WARNINGS_AS_ERRORS"}, named)
        self.assertLessEqual(named, there)


if __name__ == "__main__":
    unittest.main()
