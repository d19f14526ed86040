"""Checks that every #include of the project follows an allowed arrow: check_includes.py ROOT"""
import os
import re
import sys

# Folder -> the folders that it may include from, itself left out. The longest matching folder counts.
ALLOWED = {
    "StyleConversion/platform": [],
    "StyleConversion/encoding": ["StyleConversion/platform"],
    "StyleConversion/interfaces": [],
    "StyleConversion/shx": ["StyleConversion/encoding", "StyleConversion/platform"],
    "StyleConversion/pattern": ["StyleConversion/encoding", "StyleConversion/platform", "StyleConversion/interfaces"],
    "StyleConversion/linetype": ["StyleConversion/encoding", "StyleConversion/platform", "StyleConversion/interfaces",
                                 "StyleConversion/shx"],
    "StyleConversion/block": ["StyleConversion/encoding", "StyleConversion/platform", "StyleConversion/interfaces",
                              "StyleConversion/shx"],
    "StyleConversion": [],
    "drawing/geometry": ["StyleConversion/interfaces/OxDb"],
    # Host services look for files by name, in the form of path that the platform folder defines.
    "drawing/database": ["StyleConversion/interfaces/OxDb", "StyleConversion/platform"],
    "drawing/entities": ["StyleConversion/interfaces/OxDb", "drawing/database", "drawing/geometry"],
    "diagnostics": ["StyleConversion/encoding", "StyleConversion/platform"],
    "documents": ["diagnostics", "drawing", "StyleConversion"],
    "exchange": ["diagnostics", "drawing", "StyleConversion/encoding", "StyleConversion/platform"],
    "preview": ["StyleConversion"],
    # Over the symbols that previews draw.
    "styles": ["preview", "StyleConversion"],
    # Jobs over checks over reading; none opens a file or shows anything.
    "conversions": ["diagnostics", "documents", "preview", "styles", "drawing", "StyleConversion"],
    "conversions/checking": ["conversions/reading", "diagnostics", "preview", "drawing", "StyleConversion"],
    "conversions/reading": ["diagnostics", "documents", "exchange", "drawing", "StyleConversion"],
    # The jobs once more, for programs in C.
    "c": ["conversions", "diagnostics", "documents", "StyleConversion"],
    # The jobs in the browser, by the options that programs in C have.
    "web": ["c", "conversions", "diagnostics", "documents", "StyleConversion"],
    "styleconv": ["StyleConversion/platform"],
    "styleconv/commands": ["styleconv/files", "styleconv/process", "conversions", "diagnostics", "documents", "styles",
                           "StyleConversion/encoding", "StyleConversion/platform", "StyleConversion/pattern"],
    # Shape files are searched for as the library's own host services search.
    "styleconv/files": ["styleconv/process", "conversions/reading", "diagnostics", "drawing",
                        "StyleConversion/block", "StyleConversion/linetype", "StyleConversion/platform"],
    "styleconv/process": ["diagnostics", "StyleConversion/platform"],
    "tests": ["StyleConversion", "drawing", "diagnostics", "documents", "exchange", "preview", "styles", "conversions", "styleconv", "fuzz",
              "examples"],
    "fuzz": ["c", "StyleConversion", "drawing", "diagnostics", "documents", "exchange", "preview", "conversions", "tests/support"],
    "benchmarks": ["StyleConversion", "conversions", "drawing", "diagnostics", "documents", "exchange", "preview", "tests/support"],
    "examples": ["StyleConversion", "drawing", "documents", "tests/support"],
}

# These stand under every folder of the library.
COMMON = ["StyleConversion/Export.h"]

# Of the symbol model and the drawing database, which a host may bring itself, the library includes nothing but these.
MODELS = {"StyleConversion/interfaces/OxDb/": "OxDb.h", "StyleConversion/interfaces/TylModel/": "TylModel.h"}

INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"')


def folder_of(path):
    """The folder of ALLOWED that a file of the project is in."""
    matches = [folder for folder in ALLOWED if path.startswith(folder + "/")]
    return max(matches, key=len) if matches else None


def resolve(root, source, included):
    """The path, from the root, of what a source includes; None for what is not the project's."""
    for base in ("", "StyleConversion/interfaces/", os.path.dirname(source) + "/"):
        if os.path.exists(os.path.join(root, base + included)):
            return os.path.normpath(base + included)
    return None


def is_allowed(source, target):
    if target in COMMON:
        return True
    folder = folder_of(source)
    if folder is None:
        return False
    for model, header in MODELS.items():
        if target.startswith(model) and source.startswith("StyleConversion/") and not source.startswith(model):
            return target == model + header
    if folder_of(target) == folder:
        return True
    # A folder may look into the folders below it, and into those that it names.
    return any(target.startswith(allowed + "/") for allowed in ALLOWED[folder] + [folder])


def findings(root):
    for directory, folders, names in os.walk(root):
        folders[:] = [name for name in folders if not name.startswith(".") and name != "build"]
        for name in names:
            if not name.endswith((".h", ".cpp")):
                continue
            source = os.path.relpath(os.path.join(directory, name), root)
            if source.startswith("examples/host/"):
                continue
            with open(os.path.join(root, source), encoding="utf-8") as file:
                for number, line in enumerate(file, 1):
                    match = INCLUDE.match(line)
                    target = match and resolve(root, source, match.group(1))
                    if target and not is_allowed(source, target):
                        yield f"{source}:{number}: {folder_of(source) or source} must not include {target}"


if __name__ == "__main__":
    found = list(findings(sys.argv[1]))
    print("\n".join(found))
    sys.exit(1 if found else 0)
