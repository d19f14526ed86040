"""Every header that a host names can be included first, in C++17 and C++20 and without a warning, and pkg-config tells
all that it needs: headers_test.py PREFIX COMPILER HOST-SOURCES"""
import concurrent.futures
import glob
import os
import subprocess
import sys
import tempfile

prefix, compiler, host = sys.argv[1:]
root = os.path.join(prefix, "include", "styleconversion")
headers = sorted(os.path.relpath(path, root) for path in glob.glob(root + "/**/*.h", recursive=True))
# Of the models, those that include all the others stand for these.
headers = [path for path in headers if "/interfaces/" not in path or path.endswith(("/OxDb.h", "/TylModel.h"))]
assert "StyleConversion/block/BlockConverter.h" in headers, headers


def pkg_config(option):
    environment = dict(os.environ, PKG_CONFIG_PATH=os.path.join(prefix, "lib", "pkgconfig"))
    return subprocess.run(["pkg-config", option, "StyleConversion"], env=environment, check=True,
                          capture_output=True, text=True).stdout.split()


def errors(header):
    name = header.removeprefix("StyleConversion/interfaces/")
    found = ""
    for standard in ("c++17", "c++20"):
        command = [compiler, f"-std={standard}", "-Wall", "-Wextra", "-Wpedantic", "-Wconversion", "-Wshadow", "-Werror",
                   "-fsyntax-only", "-x", "c++", "-"]
        found += subprocess.run(command + pkg_config("--cflags"), input=f"#include <{name}>\n", text=True,
                                capture_output=True).stderr
    return found


with concurrent.futures.ThreadPoolExecutor(2) as threads:
    found = "".join(threads.map(errors, headers))
if found:
    sys.exit(found)

with tempfile.TemporaryDirectory() as folder:
    # Linked without being run: the libraries may want a sanitizer's runtime, which pkg-config does not know.
    subprocess.run([compiler, "-std=c++17", "-o", os.path.join(folder, "host"), "-Wl,--allow-shlib-undefined",
                    *glob.glob(host + "/*.cpp"), *pkg_config("--cflags"), *pkg_config("--libs")], check=True)
