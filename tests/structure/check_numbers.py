"""Checks that only encoding/ turns doubles into text or text into doubles: check_numbers.py ROOT"""
import os
import re
import sys

# The converters and what they stand on. The tool, documents and previews write doubles through the JSON library
# and through encoding/.
FOLDERS = ["StyleConversion", "drawing", "diagnostics", "documents", "exchange", "preview", "styles", "conversions", "c", "web", "styleconv"]
EXEMPT = ["StyleConversion/encoding/"]

FORBIDDEN = re.compile(
    r"\b(?:s?n?w?printf(?:_s)?|s?w?scanf(?:_s)?|atof|w?strto[df]|wcsto[df]|stod|stof|"
    r"ostringstream|istringstream|stringstream|w[oi]?stringstream|setprecision)\b"
    r"|\bstd::(?:to_chars|from_chars|format|cout|cerr)\b")
# Messages that hold no number may be printed by these.
PLAIN = re.compile(r'\bstd::fprintf\(stderr, "styleconv: %s')
# Whole numbers of the command line.
WHOLE = re.compile(r"\bstd::from_chars\(text\.data\(\), end, wholeNumber\)")


def strip_comment(line):
    return line.split("//", 1)[0]


def findings(root):
    for folder in FOLDERS:
        for directory, _, names in os.walk(os.path.join(root, folder)):
            for name in names:
                path = os.path.relpath(os.path.join(directory, name), root)
                if not name.endswith((".h", ".cpp")) or path.startswith(tuple(EXEMPT)):
                    continue
                with open(os.path.join(root, path), encoding="utf-8") as file:
                    for number, line in enumerate(file, 1):
                        code = strip_comment(line)
                        if FORBIDDEN.search(code) and not PLAIN.search(code) and not WHOLE.search(code):
                            yield f"{path}:{number}: formats or reads numbers by itself: {line.strip()}"


if __name__ == "__main__":
    found = list(findings(sys.argv[1]))
    print("\n".join(found))
    sys.exit(1 if found else 0)
