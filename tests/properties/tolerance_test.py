"""A reading that forgives gives what a strict one gives where there is nothing to forgive: tolerance_test.py STYLECONV
ROOT COUNT

For the examples and for COUNT random files of each kind, right ones and damaged ones: where check finds no errors, the
conversion succeeds, and gives the same bytes with --tolerant as without; and where the strict conversion fails, check
finds errors."""
import json
import os
import random
import subprocess
import sys
import tempfile

TOOL, ROOT, COUNT = sys.argv[1], sys.argv[2], int(sys.argv[3])
EXAMPLES = os.path.join(ROOT, "examples")
SHAPES = os.path.join(EXAMPLES, "shapes")
with open(os.path.join(SHAPES, "marks.shx"), "rb") as marks:
    MARKS = marks.read()


def run(*arguments):
    return subprocess.run([TOOL, *arguments], capture_output=True)


class Judge:
    def __init__(self):
        self.clean = self.faulty = 0
        self.wrong = []

    def judge(self, command, path, *options):
        check = run("check", path, *options)
        strict = run(command, path, *options)
        tolerant = run(command, path, "--tolerant", *options)
        if check.returncode == 0:
            self.clean += 1
            if strict.returncode != 0:
                self.say(path, "check finds no error, but the conversion fails", strict)
            elif (strict.stdout, tolerant.returncode) != (tolerant.stdout, 0):
                self.say(path, "check finds no error, but --tolerant gives something else", tolerant)
        else:
            self.faulty += 1
        if check.returncode not in (0, 1) or tolerant.returncode not in (0, 1):
            self.say(path, "an unexpected status", check)

    def say(self, path, what, result):
        with open(path, "rb") as file:
            self.wrong.append(f"{what}: {file.read()!r}\n{result.stderr.decode(errors='replace')}")


def number(source):
    return source.choice(["1", "-1", ".5", "-.25", "0", "2.5", "-0.75", "+3", "1e-1"])


def linetype(source, index):
    parts = []
    for _ in range(source.randint(1, 5)):
        kind = source.random()
        placed = "".join("," + source.choice("RSXYrsxy") + "=" + number(source) for _ in range(source.randint(0, 3)))
        if kind < 0.7:
            parts.append(number(source))
        elif kind < 0.85:
            parts.append('["' + source.choice(["GAS", "A B", "%%D"]) + '",STANDARD' + placed + "]")
        else:
            parts.append("[" + source.choice(["TRACK", "BOLT"]) + ",marks.shx" + placed + "]")
    return f"*L{index},remark {index}\nA,{','.join(parts)}\n"


def pattern(source, index):
    lines = []
    for _ in range(source.randint(1, 4)):
        family = [source.choice(["0", "45", "90", "30"]), number(source), number(source),
                  source.choice(["0", ".5", ".25"]), source.choice(["1", ".5", "2"])]
        family += source.choice([[], ["1", "-1"], [".5", "-.25", "0", "-.25"]])
        lines.append(source.choice([",", ", "]).join(family))
    return f"*P{index}, remark\n" + "\n".join(lines) + "\n"


def value(source):
    return source.choice([0, 1, -1, 0.5, 2.5, 10, -3.25])


def point(source):
    return [value(source), value(source)]


def entity(source):
    kind = source.choice(["line", "line", "circle", "polyline", "spline", "hatch", "hatch", "text", "insert", "other"])
    made = {"type": kind, "linetype": source.choice(["ByLayer"] * 4 + ["MARKED", "NONE"]),
            "color": source.choice([1, "ByLayer", "#102030"]), "layer": source.choice(["0", "ROADS"])}
    if kind == "line":
        made.update(start=point(source), end=point(source))
    elif kind == "circle":
        made.update(center=point(source), radius=2)
    elif kind == "polyline":
        made["vertices"] = [point(source) for _ in range(source.randint(1, 4))]
    elif kind == "spline":
        made["fitPoints"] = [point(source) for _ in range(source.choice([0, 3, 4, 5]))]
    elif kind == "hatch":
        made.update(loops=[{"vertices": [[0, 0], [3, 0], [3, 3]]}], solid=source.random() < 0.5)
        if source.random() < 0.7:
            made["pattern"] = [{"angle": 0, "base": [0, 0], "offset": [0, 1], "dashes": []}]
    elif kind == "text":
        made.update(position=point(source), height=1, text="T", style=source.choice(["MARKS", "MARKS", "NONE"]))
    elif kind == "insert":
        made["block"] = "B0"
    else:
        made["class"] = "Ray"
    return made


def drawing(source):
    dash = {"length": -1, "shapeStyle": "MARKS", "shapeNumber": source.choice([130, 130, 130, 999])}
    blocks = [{"name": f"B{i}", "entities": [entity(source) for _ in range(source.randint(1, 4))]}
              for i in range(source.randint(1, 3))]
    return json.dumps({"format": "styleconversion/drawing", "version": 1,
                       "layers": [{"name": "0"}, {"name": "ROADS", "color": 3}],
                       "linetypes": [{"name": "MARKED", "dashes": [{"length": 1}, dash]}],
                       "textStyles": [{"name": "MARKS", "fileName": "marks.shx"}], "blocks": blocks})


def damaged(source, text):
    for _ in range(source.randint(0, 3)):
        at = source.randrange(len(text))
        text = source.choice([
            text[:at] + text[at + 1:],
            text[:at] + source.choice(" ,;]*\"[AaxU=\n\t9-") + text[at:],
            text[:at] + source.choice(" ,;]*\"[AaxU=\n\t9-") + text[at + 1:]])
    return text


def main():
    judge = Judge()
    options = ["--drawing", os.path.join(EXAMPLES, "linetypes", "styles.json"), "--shapes", SHAPES]
    for name in os.listdir(os.path.join(EXAMPLES, "linetypes")):
        if name.endswith(".lin"):
            judge.judge("linetypes", os.path.join(EXAMPLES, "linetypes", name), *options)
    for name in os.listdir(os.path.join(EXAMPLES, "patterns")):
        judge.judge("patterns", os.path.join(EXAMPLES, "patterns", name))
    for name in ("marks.shx", "single-stroke.shx"):
        judge.judge("glyphs", os.path.join(SHAPES, name))
    for name in os.listdir(os.path.join(EXAMPLES, "drawings")):
        judge.judge("blocks", os.path.join(EXAMPLES, "drawings", name), "--shapes", SHAPES)
    examples = judge.clean
    with tempfile.TemporaryDirectory() as folder:
        for seed in range(COUNT):
            source = random.Random(seed)
            path = os.path.join(folder, "random.lin")
            with open(path, "w", newline="") as file:
                file.write(damaged(source, "".join(linetype(source, i) for i in range(source.randint(1, 4)))))
            judge.judge("linetypes", path, "--shapes", SHAPES)
            path = os.path.join(folder, "random.pat")
            with open(path, "w", newline="") as file:
                file.write(damaged(source, "".join(pattern(source, i) for i in range(source.randint(1, 3)))))
            judge.judge("patterns", path)
            if seed % 2 == 0:
                path = os.path.join(folder, "random.json")
                with open(path, "w", newline="") as file:
                    file.write(damaged(source, drawing(source)))
                judge.judge("blocks", path, "--shapes", SHAPES)
                path = os.path.join(folder, "random.shx")
                with open(path, "wb") as file:
                    file.write(damaged(source, MARKS.decode("latin-1")).encode("latin-1"))
                judge.judge("glyphs", path)
    print(f"{judge.clean} files without errors, {examples} of them examples; {judge.faulty} with")
    for text in judge.wrong[:10]:
        print(text)
    # That there are enough of both is what makes this a test.
    sys.exit(1 if judge.wrong or examples < 10 or judge.clean < COUNT / 4 or judge.faulty < COUNT / 4 else 0)


if __name__ == "__main__":
    main()
