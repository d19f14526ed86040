"""A wheel is made of an installed tree, installed in a virtual environment where nothing else is, and used there:
wheel_test.py ROOT PREFIX VERSION TOOL"""
import importlib.util
import os
import platform
import subprocess
import sys
import tempfile

root, prefix, version, tool = sys.argv[1:]
pytest_folder = os.path.dirname(importlib.util.find_spec("pytest").submodule_search_locations[0])
libraries = [os.path.join(prefix, "lib", name)
             for name in ("libOxDb.so.0", "libTylModel.so.0", "libStyleConversionC.so.1")]
with tempfile.TemporaryDirectory() as folder:
    made = subprocess.run([sys.executable, "-B", root + "/python/make_wheel.py", version, "linux_" + platform.machine(),
                           folder, *libraries], check=True, capture_output=True, text=True).stdout.strip()
    environment = os.path.join(folder, "environment")
    subprocess.run([sys.executable, "-m", "venv", environment], check=True)
    python = os.path.join(environment, "bin", "python")
    # What the wheel says of its files is checked as they are installed.
    subprocess.run([python, "-m", "pip", "install", "--quiet", "--no-index", "--disable-pip-version-check", made],
                   check=True)
    subprocess.run([python, "-m", "pip", "check", "--disable-pip-version-check"], check=True)
    # The tests' own tool is the system's; the package is not.
    subprocess.run([python, "-B", "-m", "pytest", "-q", "-p", "no:cacheprovider",
                    root + "/tests/python/package_test.py"], check=True, cwd=folder,
                   env=dict(os.environ, PYTHONPATH=pytest_folder, EXAMPLES=root + "/examples", STYLECONV=tool))
    subprocess.run([python, "-B", "-m", "doctest", root + "/docs/python.md"], check=True, cwd=root)
