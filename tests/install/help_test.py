"""The man page and the completions of the shells name the commands and options that the tool's help names, and no others:
help_test.py PREFIX"""
import os
import re
import subprocess
import sys
import tempfile
import unittest

PREFIX = os.path.abspath(sys.argv.pop(1))
TOOL = os.path.join(PREFIX, "bin", "styleconv")
SHARE = os.path.join(PREFIX, "share")
BASH_FILE = os.path.join(SHARE, "bash-completion", "completions", "styleconv")
ZSH_FILE = os.path.join(SHARE, "zsh", "site-functions", "_styleconv")
FISH_FILE = os.path.join(SHARE, "fish", "vendor_completions.d", "styleconv.fish")


def help_of(*command):
    return subprocess.run([TOOL, *command, "--help"], check=True, capture_output=True, text=True).stdout


def options_of(text):
    return set(re.findall(r"(?m)^ +(?:-\w,)?(--[a-z0-9-]+)", text))


COMMANDS = re.findall(r"(?m)^  ([a-z]+) ", help_of().partition("Commands:")[2])
OPTIONS = {command: options_of(help_of(command)) for command in COMMANDS}


def bash_completions(*words):
    """What bash offers behind the words, the last of which is being typed."""
    script = """
        source "$1"; shift
        COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1))
        _styleconv "$1" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD-1]}"
        printf '%s\\n' "${COMPREPLY[@]}"
    """
    run = subprocess.run(["bash", "-c", script, "bash", BASH_FILE, TOOL, *words], check=True,
                         capture_output=True, text=True)
    return set(run.stdout.split())


def zsh_completions(*words):
    """The same for zsh, which itself takes from the candidates those that begin as the word does."""
    script = """
        compadd() { while [[ $1 != -- ]]; do shift; done; shift; print -rl -- "$@" }
        _files() { if [[ $1 == -/ ]]; then print -rl -- *(/); else print -rl -- *; fi }
        file=$1; shift
        words=("$@"); CURRENT=$#
        source "$file"
    """
    run = subprocess.run(["zsh", "-f", "-c", script, "zsh", ZSH_FILE, TOOL, *words], check=True,
                         capture_output=True, text=True)
    return {word for word in run.stdout.split("\n") if word.startswith(words[-1])} - {""}


def fish_completions(*words):
    """The same for fish, which finds the tool by its name alone."""
    environment = dict(os.environ, PATH=os.path.dirname(TOOL) + ":" + os.environ["PATH"])
    script = 'source "$argv[1]"; complete -C "styleconv $argv[2..]"'
    run = subprocess.run(["fish", "--no-config", "-c", script, FISH_FILE, *words], check=True, env=environment,
                         capture_output=True, text=True)
    return {line.partition("\t")[0].rstrip("/") for line in run.stdout.splitlines()}


SHELLS = {"bash": bash_completions, "zsh": zsh_completions, "fish": fish_completions}


class Help(unittest.TestCase):
    def test_the_man_page_has_the_commands_and_options_of_the_tool(self):
        with open(os.path.join(PREFIX, "share", "man", "man1", "styleconv.1"), encoding="utf-8") as file:
            page = file.read().partition(".SH EXIT STATUS")[0].replace("\\-", "-")
        self.assertEqual(re.findall(r"(?m)^\.BI ([a-z]+) ", page), COMMANDS)
        told = set.union(options_of(help_of()), *OPTIONS.values())
        self.assertEqual(set(re.findall(r"--[a-z]+(?:-[a-z0-9]+)*", page)), told)

    def test_shells_complete_commands(self):
        for shell, completions in SHELLS.items():
            with self.subTest(shell):
                # fish offers options only to one who has begun to type one.
                offered = completions("") | completions("-")
                self.assertEqual(offered, set(COMMANDS) | {"--help", "--version"})
                self.assertEqual(completions("pat"), {"patterns"})

    def test_shells_complete_the_options_of_each_command(self):
        for shell, completions in SHELLS.items():
            with self.subTest(shell):
                for command in COMMANDS:
                    self.assertEqual(completions(command, "--"), OPTIONS[command])
                self.assertEqual(completions("glyphs", "--rot"), {"--rotation"})

    def test_shells_complete_the_words_that_an_option_takes(self):
        for shell, completions in SHELLS.items():
            with self.subTest(shell):
                self.assertEqual(completions("patterns", "--format", ""), {"json", "svg", "png", "html", "qgis", "qml", "maplibre"})
                self.assertEqual(completions("check", "--format", ""), {"text", "json", "sarif"})
                self.assertEqual(completions("patterns", "--units", "i"), {"inch"})

    def test_shells_complete_files_and_folders(self):
        with tempfile.TemporaryDirectory() as folder:
            os.mkdir(os.path.join(folder, "here"))
            with open(os.path.join(folder, "herein.pat"), "w", encoding="utf-8"):
                pass
            before = os.getcwd()
            os.chdir(folder)
            try:
                for shell, completions in SHELLS.items():
                    with self.subTest(shell):
                        self.assertEqual(completions("patterns", "he"), {"here", "herein.pat"})
                        self.assertEqual(completions("glyphs", "--shapes", "he"), {"here"})
            finally:
                os.chdir(before)


if __name__ == "__main__":
    unittest.main()
