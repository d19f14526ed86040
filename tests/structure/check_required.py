"""Checks the page of required behaviour against the code and the tests: check_required.py ROOT"""
import os
import re
import sys

PAGE = "docs/required-behaviour.md"
MARK = re.compile(r"//+ Required: (.*)")
NUMBERS = re.compile(r"R\d+(?:, R\d+)*\Z")
HEADING = re.compile(r"### (R\d+) \S")
TEST = re.compile(r"\bTEST(?:_F|_P)?\(\s*(\w+),\s*(\w+)\s*\)")
NAMED = re.compile(r"`(\w+)\.(\w+)`")


def sources(root, folder):
    for directory, _, names in os.walk(os.path.join(root, folder)):
        for name in names:
            if name.endswith((".h", ".cpp")):
                path = os.path.join(directory, name)
                with open(path, encoding="utf-8") as file:
                    yield os.path.relpath(path, root), file.read()


def numbers_in_code(root):
    """Where each number stands, and what is no list of numbers."""
    places, wrong = {}, []
    for path, text in sources(root, "StyleConversion"):
        for line, content in enumerate(text.split("\n"), 1):
            mark = MARK.search(content)
            if mark and not NUMBERS.match(mark[1]):
                wrong.append(f"{path}:{line}: \"Required:\" and numbers, no more: {content.strip()}")
            elif mark:
                for number in mark[1].split(", "):
                    places.setdefault(number, f"{path}:{line}")
    return places, wrong


def entries_of(text):
    """The heading's number and the text of each entry, in order."""
    entries = []
    for line in text.split("\n"):
        heading = HEADING.match(line)
        if heading:
            entries.append((heading[1], []))
        elif line.startswith("#"):
            entries.append((None, []))
        elif entries:
            entries[-1][1].append(line)
    return [(number, "\n".join(lines)) for number, lines in entries if number]


def findings(root):
    places, wrong = numbers_in_code(root)
    yield from wrong
    with open(os.path.join(root, PAGE), encoding="utf-8") as file:
        entries = entries_of(file.read())
    tests = {test for _, text in sources(root, "tests") for test in TEST.findall(text)}
    for order, (number, text) in enumerate(entries, 1):
        if number != f"R{order}":
            yield f"{PAGE}: {number} stands where R{order} should"
        if number not in places:
            yield f"{PAGE}: nothing in the code is marked {number}"
        for label in ("- Example:", "- Seen:", "- Faithful:", "- Test:"):
            if text.count(label) != 1:
                yield f"{PAGE}: {number} needs one line \"{label}\""
        named = NAMED.findall(text.partition("- Test:")[2])
        if not named:
            yield f"{PAGE}: {number} names no test"
        for test in named:
            if test not in tests:
                yield f"{PAGE}: {number}: there is no test {'.'.join(test)}"
    known = {number for number, _ in entries}
    for number, place in places.items():
        if number not in known:
            yield f"{place}: {PAGE} has no {number}"


if __name__ == "__main__":
    found = list(findings(sys.argv[1]))
    print("\n".join(found))
    sys.exit(1 if found else 0)
