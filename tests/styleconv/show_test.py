"""styleconv show opens a gallery with the system's program: show_test.py STYLECONV"""
import os
import stat
import subprocess
import sys
import tempfile
import unittest

OPENER = """#!/bin/sh
for argument; do printf '%s\\n' "$argument"; done > "$OPENED"
exit ${STATUS:-0}
"""


class Show(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.programs = self.make_folder("programs")
        self.temporary = self.make_folder("tmp")
        self.opened = os.path.join(self.folder, "opened")

    def make_folder(self, name):
        path = os.path.join(self.folder, name)
        os.mkdir(path)
        return path

    def write(self, name, text):
        path = os.path.join(self.folder, name)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        return path

    def show(self, *arguments, opener=True, status=0):
        if opener:
            program = os.path.join(self.programs, "open" if sys.platform == "darwin" else "xdg-open")
            with open(program, "w", encoding="utf-8") as file:
                file.write(OPENER)
            os.chmod(program, stat.S_IRWXU)
        environment = {**os.environ, "PATH": self.programs, "TMPDIR": self.temporary, "OPENED": self.opened,
                       "STATUS": str(status)}
        return subprocess.run([tool, "show", *arguments], env=environment, capture_output=True, text=True, check=False)

    def page(self):
        """The one page that was opened, which must be the only one that there is."""
        with open(self.opened, encoding="utf-8") as file:
            arguments = file.read().splitlines()
        self.assertEqual(len(arguments), 1)
        folders = os.listdir(self.temporary)
        self.assertEqual(len(folders), 1)
        self.assertEqual(os.path.dirname(arguments[0]), os.path.join(self.temporary, folders[0]))
        return arguments[0]

    def test_the_gallery_is_opened_and_stays(self):
        run = self.show(self.write("walls.pat", "*BRICK\n0,0,0,0,1\n"))
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertEqual(run.stdout, "")
        page = self.page()
        self.assertEqual(os.path.basename(page), "walls.pat.html")
        self.assertIn("styleconv: opened " + page, run.stderr)
        with open(page, encoding="utf-8") as file:
            self.assertIn("BRICK", file.read())
        self.assertEqual(stat.S_IMODE(os.stat(os.path.dirname(page)).st_mode), 0o700)

    def test_no_shell_reads_names(self):
        run = self.show(self.write("a b;touch x $(touch y)'\".pat", "*BRICK\n0,0,0,0,1\n"))
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertEqual(os.path.basename(self.page()), "a_b_touch_x___touch_y___.pat.html")

    def test_folders_and_documents_are_shown(self):
        self.write("walls.pat", "*BRICK\n0,0,0,0,1\n")
        document = os.path.join(self.folder, "walls.json")
        subprocess.run([tool, "patterns", os.path.join(self.folder, "walls.pat"), "-o", document], check=True)
        run = self.show(self.folder, "--include", "walls.*")
        self.assertIn("styleconv: 2 files, 2 symbols", run.stderr)
        with open(self.page(), encoding="utf-8") as file:
            self.assertIn("BRICK", file.read())

    def test_the_path_is_printed_where_no_program_opens_it(self):
        walls = self.write("walls.pat", "*BRICK\n0,0,0,0,1\n")
        for opener, status in ((False, 0), (True, 3)):
            run = self.show(walls, opener=opener, status=status)
            self.assertEqual(run.returncode, 0, run.stderr)
            self.assertIn("styleconv: no browser was found; the page is\n", run.stderr)
            self.assertTrue(os.path.isfile(run.stdout.rstrip("\n")), run.stdout)

    def test_what_can_be_converted_is_shown_and_the_rest_told(self):
        run = self.show(self.write("walls.pat", "*BRICK\n0,0,0,0,1\n"), os.path.join(self.folder, "none.pat"))
        self.assertEqual(run.returncode, 1)
        self.assertIn("none.pat: error: not found", run.stderr)
        self.assertEqual(os.path.basename(self.page()), "symbols.html")

    def test_nothing_is_opened_or_left_where_nothing_is_converted(self):
        run = self.show(self.write("lines.lin", "*A\nA,x\n"))
        self.assertEqual(run.returncode, 1)
        self.assertFalse(os.path.exists(self.opened))
        self.assertEqual(os.listdir(self.temporary), [])


if __name__ == "__main__":
    tool = sys.argv.pop(1)
    unittest.main()
