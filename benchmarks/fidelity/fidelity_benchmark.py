"""Counts the instructions of strict and of faithful conversions and of checks of the same files, less those of starting
the tool, and prints for each file, and for its kind as a whole, faithful/strict, the same for each byte that is written,
and check/strict: fidelity_benchmark.py STYLECONV [FILE...]. Without files: the examples. A strict conversion measures
its symbols, as users have it. It needs valgrind, whose counts other programs do not change."""
import os
import re
import subprocess
import sys
import tempfile

EXAMPLES = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "examples")
SHAPES = ["--shapes", os.path.join(EXAMPLES, "shapes")]
OPTIONS = {
    "patterns": [],
    "linetypes": [*SHAPES, "--drawing", os.path.join(EXAMPLES, "linetypes", "styles.json")],
    "blocks": SHAPES,
}
KINDS = {".pat": "patterns", ".lin": "linetypes", ".json": "blocks", ".dxf": "blocks"}


def instructions(command):
    with tempfile.TemporaryDirectory() as folder:
        out = os.path.join(folder, "out")
        run = subprocess.run(
            ["valgrind", "--tool=callgrind", f"--callgrind-out-file={out}", *command],
            stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True, check=False)
        counted = re.search(r"Collected : (\d+)", run.stderr)
        if counted is None:
            sys.exit(run.stderr)
        return int(counted.group(1))


def written(command):
    return len(subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False).stdout)


def measure(tool, path, start):
    kind = KINDS[os.path.splitext(path)[1]]
    strict = [tool, kind, *OPTIONS[kind], path]
    faithful = [*strict, "--faithful"]
    size = written(strict)
    if size == 0:
        sys.exit(f"{path}: nothing converted")
    counts = [instructions(command) - start for command in (strict, faithful, [tool, "check", *OPTIONS[kind], path])]
    return kind, [*counts, size, written(faithful)]


def show(name, strict, faithful, check, size, faithful_size):
    print(f"{name:32} {faithful / strict:15.2f} {faithful * size / (strict * faithful_size):8.2f} {check / strict:12.2f}")


def examples():
    for kind in ("linetypes", "patterns", "drawings"):
        folder = os.path.join(EXAMPLES, kind)
        for name in sorted(os.listdir(folder)):
            if os.path.splitext(name)[1] in KINDS and name != "styles.json":
                yield os.path.join(folder, name)


def main(tool, paths):
    start = instructions([tool, "--version"])
    wholes = {}
    print(f"{'':32} faithful/strict per byte check/strict")
    for path in paths:
        kind, counts = measure(tool, path, start)
        show(os.path.basename(path), *counts)
        whole = wholes.setdefault(kind, [0] * len(counts))
        wholes[kind] = [before + count for before, count in zip(whole, counts)]
    for kind, whole in wholes.items():
        show(f"all {kind}", *whole)


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2:] or list(examples()))
