"""The header and the example are C99 without a warning, and the header is C++: header_test.py ROOT COMPILER..."""
import subprocess
import sys

root, *compilers = sys.argv[1:]
strict = ["-pedantic", "-Wall", "-Wextra", "-Werror", "-fsyntax-only", "-I", root + "/c"]
for compiler in compilers:
    for standard in ("c99", "c11"):
        subprocess.run([compiler, "-std=" + standard, *strict, root + "/examples/c/convert.c"], check=True)
    for language, standard in (("c", "c99"), ("c++", "c++11")):
        subprocess.run([compiler, "-std=" + standard, *strict, "-x", language, "-"], check=True,
                       input="#include <StyleConversionC.h>\n", text=True)
