"""A C program is built by what pkg-config tells of an installed tree, and runs: installed_test.py PREFIX COMPILER ROOT"""
import os
import subprocess
import sys
import tempfile

prefix, compiler, root = sys.argv[1:]
environment = dict(os.environ, PKG_CONFIG_PATH=os.path.join(prefix, "lib", "pkgconfig"))
flags = subprocess.run(["pkg-config", "--cflags", "--libs", "StyleConversionC"], env=environment, check=True,
                       capture_output=True, text=True).stdout.split()
with tempfile.TemporaryDirectory() as folder:
    program = os.path.join(folder, "convert")
    subprocess.run([compiler, "-std=c99", "-o", program, root + "/examples/c/convert.c", *flags,
                    "-Wl,-rpath," + os.path.join(prefix, "lib")], check=True)
    listed = subprocess.run([program, "list", root + "/examples/patterns/brick.pat"], check=True,
                            capture_output=True, text=True).stdout
assert '"kind": "pattern"' in listed, listed
