"""The example host reads the bytes of files by the code page that it is given: code_page_test.py HOST EXAMPLES"""
import os
import subprocess
import sys
import tempfile
import unittest

HOST, EXAMPLES = sys.argv[1:]
del sys.argv[1:]


class CodePage(unittest.TestCase):
    def run_host(self, *page):
        """Its status and what it says of a linetype whose name ends in a degree sign in UTF-8; other characters than
        those of ASCII are question marks there."""
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "degrees.lin")
            with open(path, "wb") as file:
                file.write("*90°,right angle\nA,1,-1\n".encode())
            run = subprocess.run([HOST, os.path.join(EXAMPLES, "patterns", "brick.pat"), path,
                                  os.path.join(EXAMPLES, "shapes"), *page], capture_output=True, text=True)
            return run.returncode, [line for line in run.stdout.split("\n") if line.startswith("90")], run.stderr

    def test_utf_8_is_in_force_where_none_is_given(self):
        self.assertEqual(self.run_host(), (0, ["90?: 1 graphics"], ""))

    def test_windows_1252_makes_two_characters_of_the_degree_sign(self):
        self.assertEqual(self.run_host("WINDOWS-1252"), (0, ["90??: 1 graphics"], ""))

    def test_an_unknown_page_is_refused(self):
        self.assertEqual(self.run_host("NO-SUCH-PAGE"), (1, [], "host: no such code page\n"))


if __name__ == "__main__":
    unittest.main()
