"""The reference has a page for everything that the libraries export, and says something of every operation and
enumerator: reference_test.py ROOT DOXYGEN NM CXXFILT FOLDER LIBRARY..."""
import glob
import os
import re
import subprocess
import sys
import xml.etree.ElementTree as xml

ROOT, DOXYGEN, NM, CXXFILT, FOLDER, *LIBRARIES = sys.argv[1:]


def documented():
    """What the reference has: the names of all that has a page, and those without a word."""
    pages, mute = set(), set()
    folder = os.path.join(FOLDER, "xml")
    for file in os.listdir(folder):
        if not file.endswith(".xml") or file == "index.xml":
            continue
        for compound in xml.parse(os.path.join(folder, file)).getroot().iter("compounddef"):
            if compound.get("kind") == "page" or compound.get("kind") == "dir":
                continue
            scope = "" if compound.get("kind") == "file" else compound.findtext("compoundname") + "::"
            if scope:
                pages.add(scope[:-2])
            for member in compound.iter("memberdef"):
                name = scope + member.findtext("name")
                if member.get("prot") == "private" or member.get("kind") in ("define", "friend"):
                    continue
                (pages if is_described(member) else mute).add(name)
                for value in member.iter("enumvalue"):
                    (pages if is_described(value) else mute).add(scope + value.findtext("name"))
    return pages, mute - pages


def private():
    """What classes that are exported as a whole keep to themselves."""
    found = set()
    for path in glob.glob(os.path.join(ROOT, "StyleConversion", "interfaces", "*", "*.h")):
        scope, hidden = "", False
        with open(path, encoding="utf-8") as file:
            for line in file:
                if opened := re.match(r"class \w+_API (\w+)", line):
                    scope, hidden = opened[1], False
                elif label := re.match(r"(public|protected|private):", line):
                    hidden = label[1] == "private"
                elif hidden and (member := re.search(r"(\w+)\(", line)):
                    found.add(scope + "::" + member[1])
    return found


def is_described(element):
    """Assignments, and what the compiler makes, say all by their names."""
    texts = [element.find("briefdescription"), element.find("detaileddescription")]
    if any("".join(text.itertext()).strip() for text in texts if text is not None):
        return True
    arguments = element.findtext("argsstring") or ""
    return element.findtext("name").startswith("~") or arguments.endswith(("=delete", "=default", "override"))


def exported():
    """The names that the libraries export, without their arguments."""
    found = set()
    for library in LIBRARIES:
        lines = subprocess.run([NM, "-D", "--defined-only", library], check=True, capture_output=True, text=True).stdout
        names = "\n".join(line.split()[-1] for line in lines.splitlines())
        for name in subprocess.run([CXXFILT], input=names, check=True, capture_output=True,
                                   text=True).stdout.splitlines():
            name = re.sub(r"^(typeinfo|vtable|typeinfo name|VTT) for ", "", name)
            name = re.sub(r"^non-virtual thunk to |^virtual thunk to ", "", name)
            name = re.sub(r"\[abi:\w+\]", "", name).split("(")[0]
            if re.match(r"(Block|Pattern|Line)Converter\b|platform::|TylModel::|Ox|ox", name):
                found.add(name)
    return found


subprocess.run([DOXYGEN, "docs/Doxyfile"], cwd=ROOT, check=True, env=dict(os.environ, DOXYGEN_OUTPUT=FOLDER))
pages, mute = documented()
if len(pages) < 300:
    sys.exit(f"The reference has only {len(pages)} entries.")
missing = sorted(name for name in exported() - pages - private() if not name.split("::")[-1].startswith("~"))
for name in missing:
    print(f"exported, but not in the reference: {name}")
for name in sorted(mute):
    print(f"in the reference without a word: {name}")
sys.exit(1 if missing or mute else 0)
