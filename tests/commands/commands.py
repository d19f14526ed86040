"""Runs the commands of the documents from their own text, and compares what they print with what is shown.

commands.py tool ROOT STYLECONV     those that take nothing but the tool, and looks that each other one is known
commands.py clone ROOT CLONE        those that build, in a fresh clone where scripts/demo.sh has run
commands.py checkout ROOT           those that use the presets, in the checkout whose presets are built

A block of code that is no list of commands says its language ("```cpp", "```text"). A command that is not known here is
an error: no document can show one that nobody runs.
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
NO_COMMANDS = {"cpp", "cmake", "js", "json", "text", "pycon"}

# Where the commands of the tool run: a folder below the root's copy; the root itself where none is named.
FOLDERS = {
    "docs/my-file-does-not-convert.md": "gas",
    "examples/drawings/README.md": "examples/drawings",
    "examples/linetypes/README.md": "examples/linetypes",
}

# What each other command is, where it runs, and what takes the place of which of its words: what asks for root, writes
# outside of the folder or runs tests that run anyway. None: what else runs it, or how long it takes, is told behind it.
OTHERS = [
    (r"scripts/demo\.sh", None, "scripts/newcomer.sh runs it"),
    (r"scripts/test\.sh", None, "it is what runs this"),
    (r"scripts/builds\.sh", None, "scripts/test.sh runs it with --quick"),
    (r"scripts/windows\.sh", None, "scripts/test.sh does the same"),
    (r"scripts/msvc\.sh", None, "scripts/test.sh runs it"),
    (r"scripts/tidy\.sh( --all)?", None, "scripts/test.sh runs it; all takes half an hour"),
    (r"scripts/(qgis|maplibre)\.sh", None, "scripts/test.sh runs it"),
    (r"scripts/wheel\.sh && pip install \S+", None, "compiles for minutes; a test installs a wheel where nothing else is"),
    (r"cc examples/c/convert\.c .*", "checkout",
     [("cc ", "mkdir -p build/examples && cc "), ("-o convert", "-o build/examples/convert"),
      ("$(pkg-config --cflags --libs StyleConversionC)", "-I. -Ic -Lbuild/release/lib -lStyleConversionC")]),
    (r"scripts/web\.sh --serve", None, "serves until it is stopped; scripts/test.sh runs it without"),
    (r"scripts/web\.sh", None, "scripts/test.sh runs it"),
    (r"scripts/(memcheck|cppcheck|threads)\.sh", None, "takes many minutes"),
    (r"scripts/fuzz\.sh \d+( \w+)?", None, "takes as long as it says"),
    (r"sudo apt-get install [a-z0-9 +-]+", "clone", [("sudo apt-get install", "apt-get install --simulate")]),
    (r"cmake -S \. -B build/library .*", "clone", []),
    (r"sudo cmake --install build/library --prefix /usr/local", "clone",
     [("sudo ", ""), ("/usr/local", "build/prefix")]),
    (r"cmake -S \. -B build -DSTYLECONVERSION_HOST_FILE=/path/to/our-libraries\.cmake .*", "clone",
     [("/path/to/our-libraries.cmake", "tests/host/foreign/Foreign.cmake"),
      ("/path/to/OurNames.h", "$PWD/tests/host/foreign/ForeignNames.h"), ("=Our", "=Foreign"),
      ("-B build", "-B build/foreign -DCMAKE_UNITY_BUILD=ON")]),
    (r"cmake --build build && cmake --install build --prefix /where/to", "clone",
     [(" build", " build/foreign"), ("/where/to", "build/foreign/prefix")]),
    (r"cpack --config build/library/CPackConfig\.cmake", "clone", []),
    (r"DOXYGEN_OUTPUT=build/docs doxygen docs/Doxyfile", "clone", []),
    (r"cmake --preset \w+ && cmake --build --preset \w+( && ctest --preset \w+( -R \w+)?)?", "checkout",
     [("ctest --preset", "ctest -N --preset")]),
    (r"cmake --build --preset release --target \w+", "checkout", []),
    (r"build/release/bin/make_example_shapes \S+\.jhf examples/shapes", "checkout",
     [(".jhf examples/shapes", ".jhf build/examples"), ("build/release", "mkdir -p build/examples && build/release")]),
]


def documents(root):
    listed = subprocess.run(["git", "ls-files", "*.md"], cwd=root, check=True, capture_output=True, text=True)
    return sorted(listed.stdout.split())


def blocks(text):
    """The language of each block of code, its first line's number and its lines."""
    language, begin, lines = None, 0, []
    for number, line in enumerate(text.split("\n"), 1):
        fence = re.match(r"\s*```\s*(\w*)", line)
        if fence and language is None:
            language, begin, lines = fence.group(1), number + 1, []
        elif fence:
            yield language, begin, lines
            language = None
        elif language is not None:
            lines.append(line)


def commands(lines, begin):
    """Each command behind a "$ ", where it stands, and the lines that it is shown to print."""
    found = []
    for number, line in enumerate(lines, begin):
        if found and found[-1][1].endswith("\\"):
            found[-1][1] = found[-1][1][:-1] + line.strip()
        elif line.startswith("$ "):
            found.append([number, line[2:], []])
        elif found:
            found[-1][2].append(line)
        else:
            raise ValueError(f"line {number} stands before the first command")
    # A comment behind a command is set off by two blanks.
    return [(number, re.sub(r"\s{2,}#.*", "", command), shown) for number, command, shown in found]


def matches(shown, printed):
    """Whether what is shown is what was printed; "…" in a line by itself stands for any lines."""
    pattern = "".join(r"(?:.*\n)*" if line.strip() == "…" else re.escape(line) + "\n" for line in shown)
    return re.fullmatch(pattern, printed) is not None


class Runner:
    def __init__(self, stage, root, rest):
        self.stage, self.root, self.rest = stage, root, rest
        self.ran, self.errors = 0, []

    def error(self, where, text):
        self.errors.append(f"{where}: {text}")

    def shell(self, command, folder, **environment):
        return subprocess.run(["bash", "-ec", command], cwd=folder, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, text=True, env=dict(os.environ, **environment))

    def expect(self, where, command, run, shown):
        self.ran += 1
        if shown:
            # What a command says of a file is worth showing whatever its status.
            if not matches(shown, run.stdout):
                self.error(where, f"{command}\nprints\n{run.stdout[:4000]}and is shown to print\n" + "\n".join(shown))
        elif run.returncode:
            self.error(where, f"{command}\nfails with status {run.returncode}:\n{run.stdout[-4000:]}")

    def tool_command(self, where, document, command, shown, copy):
        folder = os.path.join(copy, FOLDERS.get(document, ""))
        path = os.path.join(copy, "bin") + ":" + os.environ["PATH"]
        self.expect(where, command, self.shell(command, folder, PATH=path), shown)

    def other_command(self, where, command, shown):
        for pattern, stage, changes in OTHERS:
            if not re.fullmatch(pattern, command):
                continue
            if stage is None:
                script = command.split()[0]
                if not os.access(os.path.join(self.root, script), os.X_OK):
                    self.error(where, f"{script} is not there")
            elif stage == self.stage:
                for old, new in changes:
                    command = command.replace(old, new)
                folder = self.rest[0] if stage == "clone" else self.root
                self.expect(where, command, self.shell(command, folder), shown)
            return
        self.error(where, f"nobody runs this command: {command}")

    def document(self, document, copy):
        with open(os.path.join(self.root, document), encoding="utf-8") as file:
            text = file.read()
        for language, begin, lines in blocks(text):
            if language in NO_COMMANDS:
                if any(line.startswith("$ ") for line in lines):
                    self.error(f"{document}:{begin}", "commands in a block of another language")
                continue
            if not lines or not lines[0].startswith("$ ") or language:
                self.error(f"{document}:{begin}", "neither commands, each behind a \"$ \", nor a known language")
                continue
            for number, command, shown in commands(lines, begin):
                where = f"{document}:{number}"
                if not command.startswith("styleconv "):
                    self.other_command(where, command, shown)
                elif self.stage == "tool":
                    self.tool_command(where, document, command, shown, copy)

    def run(self, copy):
        for document in documents(self.root):
            self.document(document, copy)
        return self.errors


def copy_for_the_tool(root, tool, folder):
    """What the documents' commands find: the examples, the file of the help page, and the tool by its name."""
    shutil.copytree(os.path.join(root, "examples"), os.path.join(folder, "examples"))
    os.makedirs(os.path.join(folder, "gas", "shapes"))
    shutil.copy(os.path.join(HERE, "gas.lin"), os.path.join(folder, "gas"))
    shutil.copy(os.path.join(root, "examples", "shapes", "single-stroke.shx"),
                os.path.join(folder, "gas", "shapes", "txt.shx"))
    os.makedirs(os.path.join(folder, "bin"))
    os.symlink(os.path.abspath(tool), os.path.join(folder, "bin", "styleconv"))


def main():
    stage, root, *rest = sys.argv[1:]
    runner = Runner(stage, os.path.abspath(root), rest)
    with tempfile.TemporaryDirectory() as folder:
        if stage == "tool":
            copy_for_the_tool(root, rest[0], folder)
        errors = runner.run(folder)
    for error in errors:
        print(error)
    print(f"{runner.ran} commands run, {len(errors)} errors")
    sys.exit(1 if errors or not runner.ran else 0)


if __name__ == "__main__":
    main()
