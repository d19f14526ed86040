"""The code that docs/hosts.md shows stands in examples/host, word for word: quotes_test.py ROOT"""
import glob
import os
import sys
import unittest

import commands

ROOT = sys.argv.pop(1)


def stands_in(lines, sources):
    """Whether the lines follow each other in one of the sources; how far the whole is indented does not count."""
    quote = [line.strip() for line in lines]
    for source in sources:
        found = [line.strip() for line in source.split("\n")]
        if any(found[i:i + len(quote)] == quote for i in range(len(found) - len(quote) + 1)):
            return True
    return False


class Quotes(unittest.TestCase):
    def test_what_differs_in_a_word_or_leaves_a_line_out_is_no_quote(self):
        source = "int a;\n    int b;\nint c;\n"
        self.assertTrue(stands_in(["int a;", "int b;"], [source]))
        self.assertFalse(stands_in(["int a;", "int c;"], [source]))
        self.assertFalse(stands_in(["int a; ", "int bb;"], [source]))

    def test_the_code_of_the_walk_is_that_of_the_example(self):
        sources = []
        for path in glob.glob(os.path.join(ROOT, "examples", "host", "*.cpp")):
            with open(path, encoding="utf-8") as file:
                sources.append(file.read())
        with open(os.path.join(ROOT, "docs", "hosts.md"), encoding="utf-8") as file:
            text = file.read()
        quotes = [(begin, lines) for language, begin, lines in commands.blocks(text) if language == "cpp"]
        self.assertGreaterEqual(len(quotes), 7)
        for begin, lines in quotes:
            self.assertTrue(stands_in(lines, sources), f"docs/hosts.md:{begin} is not in examples/host")


if __name__ == "__main__":
    unittest.main()
