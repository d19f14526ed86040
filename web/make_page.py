"""Puts the page together as one file: make_page.py MODULE GALLERY_SCRIPT PAGE"""
import base64
import hashlib
import pathlib
import sys

FOLDER = pathlib.Path(__file__).parent


def hash_of(data):
    return "sha256-" + base64.b64encode(hashlib.sha256(data).digest()).decode()


def page_of(module, gallery_script):
    script = "\"use strict\";\n" + (FOLDER / "page.js").read_text(encoding="utf-8")
    worker = "".join((FOLDER / name).read_text(encoding="utf-8") for name in ("conversions.js", "worker.js"))
    parts = {
        "style": (FOLDER / "page.css").read_text(encoding="utf-8"),
        "worker": "\"use strict\";\n" + worker,
        "script": script,
        "scriptHash": hash_of(script.encode()),
        "galleryHash": hash_of(gallery_script),
        "module": base64.b64encode(module).decode(),
    }
    page = (FOLDER / "page.html").read_text(encoding="utf-8")
    for name, text in parts.items():
        # What stands in a script ends at its end.
        assert "</script" not in text, name
        page = page.replace("{{" + name + "}}", text)
    return page


if __name__ == "__main__":
    module_file, gallery_file, page_file = map(pathlib.Path, sys.argv[1:4])
    page_file.parent.mkdir(parents=True, exist_ok=True)
    page = page_of(module_file.read_bytes(), gallery_file.read_bytes())
    page_file.write_bytes(page.encode())
