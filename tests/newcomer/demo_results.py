"""What scripts/demo.sh leaves for each example: a document that follows its schema and has symbols, and a gallery that
shows each of them; and that the demo printed what the README shows: demo_results.py CLONE OUTPUT"""
import glob
import html
import json
import os
import sys

import jsonschema

ROOT, OUTPUT = sys.argv[1:]
sys.path.insert(0, os.path.join(ROOT, "tests", "commands"))
from commands import blocks, commands, matches  # noqa: E402
KINDS = [  # examples, what is added to their names, the schema
    ("patterns/*.pat", "", "symbols"),
    ("linetypes/*.lin", "-linetypes", "symbols"),
    ("shapes/*.shx", "-glyphs", "glyphs"),
    ("drawings/*.json", "-blocks", "symbols"),
]


def text_of(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


def errors_of(result, schema):
    document = json.loads(text_of(result + ".json"))
    found = [error.message[:200] for error in jsonschema.Draft202012Validator(schema).iter_errors(document)]
    if found:
        return found
    items = document.get("symbols") or document.get("glyphs")
    gallery = text_of(result + ".html")
    if not items:
        found.append("no symbols")
    if gallery.count("<svg") + gallery.count("\\u003csvg") < len(items or []):
        found.append("the gallery has fewer pictures than the document symbols")
    readable = html.unescape(gallery).replace("<wbr>", "")
    found += [f"{item['name']} is not in the gallery" for item in items or [] if item["name"] not in readable]
    return found


results = os.path.join(ROOT, "build", "demo")
expected, errors = set(), []
for pattern, added, kind in KINDS:
    schema = json.loads(text_of(os.path.join(ROOT, "docs", "schemas", kind + ".schema.json")))
    examples = glob.glob(os.path.join(ROOT, "examples", pattern))
    assert examples, pattern
    for example in examples:
        name = os.path.splitext(os.path.basename(example))[0] + added
        expected |= {name + ".json", name + ".html"}
        if os.path.exists(os.path.join(results, name + ".json")):
            errors += [f"{name}: {error}" for error in errors_of(os.path.join(results, name), schema)]
there = set(os.listdir(results))
_, begin, lines = next(blocks(text_of(os.path.join(ROOT, "README.md"))))
[(_, command, shown)] = commands(lines, begin)
if not shown or not matches(shown, text_of(OUTPUT)):
    errors.append(f"{command} prints other lines than the README shows:\n{text_of(OUTPUT)}")
errors += [f"{name} is missing" for name in sorted(expected - there)]
errors += [f"{name} comes from no example" for name in sorted(there - expected)]
print("\n".join(errors) or f"{len(expected)} files are as they should be")
sys.exit(1 if errors else 0)
