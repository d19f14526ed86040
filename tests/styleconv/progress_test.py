"""Runs the tool with standard error on a terminal, and not: progress_test.py STYLECONV"""
import os
import pty
import subprocess
import sys
import tempfile
import unittest

COUNT = 300


class Progress(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.patterns = os.path.join(folder.name, "many.pat")
        self.result = os.path.join(folder.name, "result.html")
        with open(self.patterns, "w") as file:
            for number in range(COUNT):
                file.write(f"*P{number}\n0, 0,0, 0,1\n")

    def command(self, *options, command="patterns"):
        return [tool, command, self.patterns, "--format", "html", "-o", self.result, *options]

    def on_terminal(self, *options, command="patterns"):
        """What the tool writes to a terminal."""
        master, slave = pty.openpty()
        with subprocess.Popen(self.command(*options, command=command), stderr=slave) as process:
            os.close(slave)
            written = b""
            try:
                while piece := os.read(master, 4096):
                    written += piece
            except OSError:  # how the end of a terminal reads
                pass
            os.close(master)
        self.assertEqual(process.returncode, 0)
        return written.decode()

    def test_a_terminal_sees_the_stages_with_their_counts(self):
        written = self.on_terminal()
        stages = [written.find(text) for text in ("Reading", f"Converting {COUNT} of {COUNT}", f"Writing {COUNT} of {COUNT}")]
        self.assertNotIn(-1, stages, repr(written))
        self.assertEqual(stages, sorted(stages))

    def test_a_terminal_is_shown_a_table_of_one_file(self):
        master, slave = pty.openpty()
        subprocess.run([tool, "list", self.patterns, "--quiet"], stdout=slave, check=True)
        os.close(slave)
        self.assertTrue(os.read(master, 4096).decode().startswith("KIND     NAME"))
        os.close(master)

    def test_the_line_is_empty_in_the_end(self):
        line, column = [" "] * 200, 0
        for character in self.on_terminal():
            if character == "\r":
                column = 0
            elif character == "\b":
                column -= 1
            else:
                line[column] = character
                column += 1
        self.assertEqual("".join(line).strip(), "")
        self.assertEqual(column, 0)

    def test_a_terminal_sees_the_file_of_many_and_what_came_of_those_before(self):
        folder = os.path.dirname(self.patterns)
        os.remove(self.patterns)
        for number in range(100, 140):
            with open(os.path.join(folder, f"of-a-long-name-the-end-is-{number}.pat"), "w") as file:
                file.write("".join(f"*Q{number}-{pattern}\n0, 0,0, 0,1\n" for pattern in range(30)))
        self.patterns = folder
        written = self.on_terminal(command="convert")
        self.assertRegex(written, r"File \d+ of 40, \d+ symbols, …name-the-end-is-1\d\d.pat: ")
        self.assertIn("Writing 1200 of 1200", written)

    def test_quiet_writes_nothing(self):
        self.assertEqual(self.on_terminal("--quiet"), "")

    def test_what_is_no_terminal_sees_nothing(self):
        finished = subprocess.run(self.command(), stderr=subprocess.PIPE, check=True)
        self.assertEqual(finished.stderr, b"")


if __name__ == "__main__":
    tool = sys.argv[1]
    unittest.main(argv=sys.argv[:1])
