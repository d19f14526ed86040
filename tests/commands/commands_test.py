"""The runner of the documents' commands finds what is wrong with a document."""
import os
import subprocess
import sys
import tempfile
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))


class Commands(unittest.TestCase):
    def output_for(self, text):
        """What the runner says of a document with this text, and its status; the tool is one that echoes its words."""
        with tempfile.TemporaryDirectory() as root:
            os.makedirs(os.path.join(root, "examples", "shapes"))
            os.makedirs(os.path.join(root, "scripts"))
            files = {"A.md": text, "examples/shapes/single-stroke.shx": "", "tool": '#!/bin/sh\nprintf "%s\\n" "$@"\n',
                     "scripts/test.sh": ""}
            for name, content in files.items():
                with open(os.path.join(root, name), "w", encoding="utf-8") as file:
                    file.write(content)
                os.chmod(os.path.join(root, name), 0o755)
            subprocess.run(["git", "init", "-q"], cwd=root, check=True)
            subprocess.run(["git", "add", "-A"], cwd=root, check=True)
            run = subprocess.run([sys.executable, "-B", os.path.join(HERE, "commands.py"), "tool", root,
                                  os.path.join(root, "tool")], capture_output=True, text=True)
            self.assertEqual(run.stderr, "")
            return run.stdout, run.returncode

    def assert_good(self, text):
        output, status = self.output_for(text)
        self.assertEqual(status, 0, output)

    def assert_wrong(self, text, told):
        output, status = self.output_for(text)
        self.assertEqual(status, 1, output)
        self.assertIn(told, output)

    def test_output_that_is_shown_is_compared(self):
        self.assert_good("```\n$ styleconv a b\na\nb\n```\n")
        self.assert_wrong("```\n$ styleconv a b\na\nc\n```\n", "A.md:2: styleconv a b")
        self.assert_wrong("```\n$ styleconv a b c\na\nb\n```\n", "A.md:2")

    def test_an_ellipsis_stands_for_any_lines(self):
        self.assert_good("```\n$ styleconv a b c\n…\nb\n…\n```\n")
        self.assert_wrong("```\n$ styleconv a b c\n…\nd\n…\n```\n", "A.md:2")

    def test_a_command_may_be_commented_and_go_on_in_the_next_line(self):
        self.assert_good("```\n$ styleconv a \\\n    b  # two words\na\nb\n```\n")

    def test_a_failing_command_is_found(self):
        self.assert_wrong("```\n$ styleconv a && false\n```\n", "fails with status 1")

    def test_a_command_that_nobody_runs_is_found(self):
        self.assert_wrong("```\n$ styleconv a\n$ make everything\n```\n", "A.md:3: nobody runs this command: make everything")

    def test_a_script_that_is_not_there_is_found(self):
        self.assert_good("```\n$ styleconv a\n$ scripts/test.sh\n```\n")
        self.assert_wrong("```\n$ styleconv a\n$ scripts/builds.sh\n```\n", "scripts/builds.sh is not there")

    def test_a_block_is_of_commands_or_says_its_language(self):
        self.assert_good("```\n$ styleconv a\n```\n```cpp\nint i;\n```\n")
        self.assert_wrong("```\n$ styleconv a\n```\n```\nint i;\n```\n", "A.md:5: neither commands")
        self.assert_wrong("```\n$ styleconv a\n```\n```text\n$ styleconv b\n```\n", "A.md:5: commands in a block")

    def test_documents_without_commands_are_found(self):
        self.assert_wrong("nothing\n", "0 commands run")


if __name__ == "__main__":
    unittest.main()
