"""What is compiled by cl or clang-cl gets their flags and none of g++'s: check_cl_flags.py COMPILE-COMMANDS"""
import json
import re
import shlex
import sys

WANTED = ["/W4", "/permissive-", "/utf-8", "/fp:precise", "/WX"]
with open(sys.argv[1], encoding="utf-8") as file:
    entries = json.load(file)
assert len(entries) > 90, len(entries)
for entry in entries:
    words = shlex.split(entry["command"])
    for wanted in WANTED:
        assert wanted in words, f"{entry['file']} is compiled without {wanted}"
    assert any(word.startswith("/FI") and word.endswith("PreciseMath.h") for word in words), entry["file"]
    # CMake's own words for this compiler are among those that begin with a dash; g++'s are these.
    foreign = [word for word in words if re.match(r"-(W|f|O|g|m|std=|include|pedantic|pthread|municode)", word)]
    assert not foreign, f"{entry['file']} is compiled with {foreign}"
