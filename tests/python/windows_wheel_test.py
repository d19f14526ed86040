"""The wheel for Windows holds the package and one library, as its record says:
windows_wheel_test.py ROOT VERSION LIBRARY"""
import base64
import csv
import hashlib
import io
import subprocess
import sys
import tempfile
import zipfile

root, version, library = sys.argv[1:]
with tempfile.TemporaryDirectory() as folder:
    made = subprocess.run([sys.executable, "-B", root + "/python/make_wheel.py", version, "win_amd64", folder, library],
                          check=True, capture_output=True, text=True).stdout.strip()
    assert made.endswith(f"styleconversion-{version}-py3-none-win_amd64.whl"), made
    with zipfile.ZipFile(made) as wheel:
        record = f"styleconversion-{version}.dist-info/RECORD"
        rows = list(csv.reader(io.StringIO(wheel.read(record).decode())))
        assert sorted(row[0] for row in rows) == sorted(wheel.namelist()), rows
        for name, digest, size in rows:
            if name != record:
                data = wheel.read(name)
                expected = base64.urlsafe_b64encode(hashlib.sha256(data).digest()).rstrip(b"=").decode()
                assert (digest, int(size)) == ("sha256=" + expected, len(data)), name
        assert "styleconversion/lib/StyleConversionC.dll" in wheel.namelist()
        assert wheel.read("styleconversion/lib/StyleConversionC.dll")[:2] == b"MZ"
