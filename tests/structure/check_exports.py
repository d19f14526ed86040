"""Compares what a library exports with a list: check_exports.py LIBRARY LIST NM-OR-OBJDUMP CXXFILT

A shared object is read with nm, a dynamic library of Windows with objdump. Names of constructors and destructors that
the compiler makes several of count once.
"""
import re
import subprocess
import sys

LIBRARY, LIST, READER, FILTER = sys.argv[1:]
STRING = "std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> >"
WSTRING = "std::__cxx11::basic_string<wchar_t, std::char_traits<wchar_t>, std::allocator<wchar_t> >"


def output(*command, text=None):
    return subprocess.run(command, input=text, check=True, capture_output=True, text=True).stdout


def exported():
    if LIBRARY.endswith(".dll"):
        table = output(READER, "-p", LIBRARY).partition("[Ordinal/Name Pointer] Table")[2].partition("\n\n")[0]
        names = re.findall(r"(?m)^\s*\[ *\d+\](?: \+base\[ *\d+\])?(?: +[0-9a-f]+)? +(\S+)$", table)
    else:
        names = [line.split()[-1] for line in output(READER, "-D", "--defined-only", LIBRARY).splitlines()]
    demangled = output(FILTER, text="\n".join(names)).splitlines()
    # The name of a type goes with its information, and is exported on some systems only.
    return {name.replace(WSTRING, "std::wstring").replace(STRING, "std::string") for name in demangled if not name.startswith("typeinfo name for ")}


# What only some systems have is marked.
with open(LIST, encoding="utf-8") as file:
    lines = [line.strip() for line in file if line.strip() and not line.startswith("#")]
listed = {line.removeprefix("posix: ") for line in lines
          if not (line.startswith("posix: ") and LIBRARY.endswith(".dll"))}
found = exported()
for name in sorted(found - listed):
    print(f"exported, but not in the list: {name}")
for name in sorted(listed - found):
    print(f"in the list, but not exported: {name}")
sys.exit(found != listed)
