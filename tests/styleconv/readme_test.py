"""The README tells of what is there: readme_test.py STYLECONV ROOT"""
import os
import re
import subprocess
import sys
import unittest

COMMANDS = ("convert", "show", "linetypes", "patterns", "blocks", "drawing", "glyphs", "list", "check")
FIRST_SCREEN = 20  # lines


class Readme(unittest.TestCase):
    def read(self, name):
        with open(os.path.join(root, name), encoding="utf-8") as file:
            return file.read()

    def test_every_option_of_every_command_is_told(self):
        text = self.read("README.md")
        for command in COMMANDS:
            run = subprocess.run([tool, command, "--help"], capture_output=True, text=True, check=True)
            options = set(re.findall(r"--[a-z][a-z0-9-]*", run.stdout)) - {"--help", "--output"}
            self.assertIn("--time-limit", options)
            for option in options:
                self.assertRegex(text, re.escape(option) + r"(?![a-z0-9-])", command)

    def test_links_lead_somewhere(self):
        links = re.findall(r"\]\(([^)#]+)\)", self.read("README.md"))
        self.assertGreater(len(links), 1)
        for link in links:
            self.assertTrue(os.path.exists(os.path.join(root, link)), link)

    def test_the_first_screen_shows_the_picture_that_the_demo_makes(self):
        first = "\n".join(self.read("README.md").split("\n")[:FIRST_SCREEN])
        pictures = re.findall(r"!\[[^\]]+\]\(([^)]+)\)", first)
        self.assertEqual(len(pictures), 1)
        self.assertIn(pictures[0], self.read("scripts/demo.sh"))

    def test_the_first_screen_says_what_it_is_in_two_lines_and_shows_the_first_command(self):
        lines = self.read("README.md").split("\n")
        self.assertEqual([bool(line) for line in lines[:5]], [True, False, True, True, False])
        self.assertRegex("\n".join(lines[:FIRST_SCREEN]), r"```\n\$ scripts/demo\.sh .*\n(.+\n)+```")


if __name__ == "__main__":
    tool, root = sys.argv[1:3]
    unittest.main(argv=sys.argv[:1], verbosity=2)
