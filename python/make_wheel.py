"""Makes a wheel of the package and a built library: make_wheel.py VERSION PLATFORM FOLDER LIBRARY...

PLATFORM is that of the libraries, as linux_x86_64 or win_amd64. The wheel goes to FOLDER, and its name is printed."""
import base64
import hashlib
import pathlib
import sys
import zipfile

PACKAGE = pathlib.Path(__file__).resolve().parent / "styleconversion"
SUMMARY = "Turns CAD linetypes, hatch patterns, blocks and shape fonts into map symbols"


def contents(version, tag, libraries):
    """Names and bytes of all but the record."""
    for path in sorted(PACKAGE.iterdir()):
        if path.is_file():
            yield "styleconversion/" + path.name, path.read_bytes()
    for library in libraries:
        yield "styleconversion/lib/" + library.name, library.read_bytes()
    yield f"styleconversion-{version}.dist-info/METADATA", (
        f"Metadata-Version: 2.1\nName: styleconversion\nVersion: {version}\nSummary: {SUMMARY}\n"
        "Requires-Python: >=3.8\n").encode()
    yield f"styleconversion-{version}.dist-info/WHEEL", (
        f"Wheel-Version: 1.0\nGenerator: make_wheel\nRoot-Is-Purelib: false\nTag: {tag}\n").encode()


def main():
    version, platform, folder, *libraries = sys.argv[1:]
    tag = "py3-none-" + platform
    wheel = pathlib.Path(folder) / f"styleconversion-{version}-{tag}.whl"
    wheel.parent.mkdir(parents=True, exist_ok=True)
    record = f"styleconversion-{version}.dist-info/RECORD"
    lines = []
    with zipfile.ZipFile(wheel, "w", zipfile.ZIP_DEFLATED) as archive:
        for name, data in contents(version, tag, [pathlib.Path(library) for library in libraries]):
            # Dated as old as a zip file can be: the same input makes the same wheel.
            archive.writestr(zipfile.ZipInfo(name, (1980, 1, 1, 0, 0, 0)), data, zipfile.ZIP_DEFLATED)
            digest = base64.urlsafe_b64encode(hashlib.sha256(data).digest()).rstrip(b"=").decode()
            lines.append(f"{name},sha256={digest},{len(data)}\n")
        archive.writestr(zipfile.ZipInfo(record, (1980, 1, 1, 0, 0, 0)), "".join(lines) + record + ",,\n")
    print(wheel)


main()
