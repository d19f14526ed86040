"""Converts a generated standard: 436 pattern files, 2,336 linetypes in 9 files with shapes and texts, a shape library,
a font and drawings. Prints the time of one run over its folder beside the sum of runs over each of its files, and their
ratio, and beside a run on one core, where the system can keep a process there: standard_benchmark.py STYLECONV [FOLDER].
FOLDER keeps the standard; it must not be there."""
import os
import random
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

PATTERN_FILES = 436
LINETYPE_FILES = 9
LINETYPES = 2336
DRAWINGS = 4
BLOCKS_OF_A_DRAWING = 50
RUNS = 5
EXAMPLES = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "examples")


def pattern(number, numbers):
    lines = [f"*HATCH-{number:03},surface {number}"]
    for _ in range(numbers.randint(1, 12)):
        angle = numbers.choice((0, 45, 90, 135))
        dashes = numbers.choice(("", ",.5,-.5", ",.25,-.25,.25,-.25"))
        lines.append(f"{angle},{numbers.randint(0, 4) / 4},{numbers.randint(0, 4) / 4},0,{numbers.choice((0.5, 1, 2))}{dashes}")
    return "\n".join(lines) + "\n"


def linetype(number, numbers):
    element = numbers.choice(("", "[ARROW,marks.shx,S=.2],-.2,", '["GAS",STANDARD,S=.2,X=-.1,Y=-.1],-.6,'))
    dash = numbers.randint(1, 20) / 4
    return f"*LINE-{number:04},line {number}\nA,{dash},-.25,{element}{dash / 2},-.25\n"


def block(number, numbers):
    def point():
        return f"[{numbers.randint(-9, 9)}, {numbers.randint(-9, 9)}]"
    entities = [f'{{"type": "line", "start": {point()}, "end": {point()}}}' for _ in range(10)]
    entities.append(f'{{"type": "circle", "center": {point()}, "radius": {numbers.randint(1, 9)}}}')
    return f'{{"name": "SIGN_{number:03}", "entities": [{", ".join(entities)}]}}'


def write(folder, name, text):
    with open(os.path.join(folder, name), "w", encoding="utf-8") as file:
        file.write(text)


def generate(folder):
    """The same files in every run."""
    numbers = random.Random(1)
    for number in range(PATTERN_FILES):
        write(folder, f"hatch-{number:03}.pat", pattern(number, numbers))
    for file in range(LINETYPE_FILES):
        write(folder, f"lines-{file}.lin", "".join(linetype(number, numbers)
                                                   for number in range(file, LINETYPES, LINETYPE_FILES)))
    for name, source in (("marks.shx", "marks.shx"), ("txt.shx", "single-stroke.shx")):
        shutil.copy(os.path.join(EXAMPLES, "shapes", source), os.path.join(folder, name))
    for drawing in range(DRAWINGS):
        blocks = ", ".join(block(number, numbers) for number in range(BLOCKS_OF_A_DRAWING))
        write(folder, f"signs-{drawing}.json", f'{{"format": "styleconversion/drawing", "version": 1, "blocks": [{blocks}]}}')


def on_one_core():
    os.sched_setaffinity(0, {min(os.sched_getaffinity(0))})


def seconds(tool, paths, result, **options):
    start = time.perf_counter()
    run = subprocess.run([tool, "convert", *paths, "-o", result], capture_output=True, text=True, check=False, **options)
    took = time.perf_counter() - start
    assert os.path.exists(result), run.stderr
    os.remove(result)
    return took, run.stderr


def measure(tool, folder, result):
    files = sorted(os.path.join(folder, name) for name in os.listdir(folder))
    whole = statistics.median(seconds(tool, [folder], result)[0] for _ in range(RUNS))
    single = sum(seconds(tool, [file], result)[0] for file in files)
    print(f"{os.path.splitext(result)[1][1:]:5} {whole:.3f} s; {len(files)} single conversions {single:.3f} s; "
          f"ratio {whole / single:.2f}")
    if hasattr(os, "sched_setaffinity"):
        one = statistics.median(seconds(tool, [folder], result, preexec_fn=on_one_core)[0] for _ in range(RUNS))
        print(f"      on one core {one:.3f} s; ratio {whole / one:.2f}")


def main():
    tool = os.path.abspath(sys.argv[1])
    with tempfile.TemporaryDirectory() as scratch:
        folder = sys.argv[2] if len(sys.argv) > 2 else os.path.join(scratch, "standard")
        os.mkdir(folder)
        generate(folder)
        result = os.path.join(scratch, "result.json")
        print(next(line for line in seconds(tool, [folder], result)[1].splitlines() if " symbols" in line))
        for form in ("json", "html"):
            measure(tool, folder, os.path.join(scratch, "result." + form))


if __name__ == "__main__":
    main()
