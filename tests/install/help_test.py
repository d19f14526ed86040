"""The man page and the completion for bash name the commands and options that the tool's help names, and no others:
help_test.py PREFIX"""
import os
import re
import subprocess
import sys
import unittest

PREFIX = sys.argv.pop(1)
TOOL = os.path.join(PREFIX, "bin", "styleconv")
COMPLETION = os.path.join(PREFIX, "share", "bash-completion", "completions", "styleconv")


def help_of(*command):
    return subprocess.run([TOOL, *command, "--help"], check=True, capture_output=True, text=True).stdout


def options_of(text):
    return set(re.findall(r"(?m)^ +(?:-\w,)?(--[a-z-]+)", text))


COMMANDS = re.findall(r"(?m)^  ([a-z]+) ", help_of().partition("Commands:")[2])
OPTIONS = {command: options_of(help_of(command)) for command in COMMANDS}


def completions(*words):
    """What bash offers behind the words, the last of which is being typed."""
    script = """
        source "$1"; shift
        COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1))
        _styleconv "$1" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD-1]}"
        printf '%s\\n' "${COMPREPLY[@]}"
    """
    run = subprocess.run(["bash", "-c", script, "bash", COMPLETION, TOOL, *words], check=True,
                         capture_output=True, text=True)
    return set(run.stdout.split())


class Help(unittest.TestCase):
    def test_the_man_page_has_the_commands_and_options_of_the_tool(self):
        with open(os.path.join(PREFIX, "share", "man", "man1", "styleconv.1"), encoding="utf-8") as file:
            page = file.read().partition(".SH EXIT STATUS")[0].replace("\\-", "-")
        self.assertEqual(re.findall(r"(?m)^\.BI ([a-z]+) ", page), COMMANDS)
        told = set.union(options_of(help_of()), *OPTIONS.values())
        self.assertEqual(set(re.findall(r"--[a-z]+(?:-[a-z]+)*", page)), told)

    def test_bash_completes_commands(self):
        self.assertEqual(completions(""), set(COMMANDS) | {"--help", "--version"})
        self.assertEqual(completions("pat"), {"patterns"})

    def test_bash_completes_the_options_of_each_command(self):
        for command in COMMANDS:
            self.assertEqual(completions(command, "--"), OPTIONS[command])
        self.assertEqual(completions("glyphs", "--rot"), {"--rotation"})

    def test_bash_completes_forms(self):
        self.assertEqual(completions("patterns", "--format", ""), {"json", "svg", "html"})


if __name__ == "__main__":
    unittest.main()
