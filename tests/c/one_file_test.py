"""Of libraries that are linked statically, the C interface for Windows is one file: it asks for nothing but what
Windows has, exports its own functions alone, and a program of C loads it by itself.

one_file_test.py ROOT BUILD CMAKE OBJDUMP EXPORTS PROGRAM OPTION..."""
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

root, build, cmake, objdump, exports, program, *options = sys.argv[1:]

subprocess.run([cmake, "-S", root, "-B", build, "-DBUILD_SHARED_LIBS=OFF", *options], check=True,
               stdout=subprocess.DEVNULL)
subprocess.run([cmake, "--build", build, "--target", "StyleConversionC"], check=True, stdout=subprocess.DEVNULL)
library = pathlib.Path(build, "bin", "StyleConversionC.dll")

headers = subprocess.run([objdump, "-p", library], check=True, capture_output=True, text=True).stdout
imported = {name.lower() for name in re.findall(r"DLL Name: (\S+)", headers)}
assert imported and imported <= {"kernel32.dll", "msvcrt.dll"}, imported

table = headers[headers.index("[Ordinal/Name Pointer] Table"):]
exported = re.findall(r"^\s*\[ *\d+\](?: \+base\[ *\d+\])?\s+(?:[0-9a-f]+ )?(\w+)$", table, re.M)
expected = [line for line in pathlib.Path(exports).read_text().splitlines() if line and line[0] != "#"]
assert sorted(exported) == sorted(expected), (exported, expected)

# Where nothing else of the project is.
with tempfile.TemporaryDirectory() as folder:
    shutil.copy(library, folder)
    # Under wine Z: is the root.
    subprocess.run([program, "Z:" + folder.replace("/", "\\") + "\\StyleConversionC.dll"], check=True)
