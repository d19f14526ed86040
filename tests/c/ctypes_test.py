"""The C interface from Python, with nothing but ctypes: ctypes_test.py LIBRARY EXAMPLES"""
import concurrent.futures
import ctypes
import json
import os
import sys
import unittest

LIBRARY, EXAMPLES = sys.argv[1:]
FIND = ctypes.CFUNCTYPE(None, ctypes.c_void_p, ctypes.c_char_p, ctypes.c_void_p)
library = ctypes.CDLL(LIBRARY)
for name in ("convert", "list", "check"):
    function = getattr(library, "styleconversion_" + name)
    function.restype = ctypes.c_void_p
    function.argtypes = [ctypes.c_char_p, ctypes.c_char_p, ctypes.c_size_t, ctypes.c_char_p, FIND, ctypes.c_void_p]
for name in ("document", "diagnostics", "error"):
    function = getattr(library, "styleconversion_" + name)
    function.restype = ctypes.c_void_p
    function.argtypes = [ctypes.c_void_p, ctypes.POINTER(ctypes.c_size_t)]
library.styleconversion_status.argtypes = [ctypes.c_void_p]
library.styleconversion_release.argtypes = [ctypes.c_void_p]
library.styleconversion_answer_file.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_size_t]


def bytes_of(path):
    with open(os.path.join(EXAMPLES, path), "rb") as file:
        return file.read()


def text(name, result):
    size = ctypes.c_size_t()
    return ctypes.string_at(getattr(library, "styleconversion_" + name)(result, ctypes.byref(size)), size.value)


def run(job, name, content, options=None, files=None):
    """Status, document, diagnostics; `files` are by their names in lower case."""
    def find(_, asked, answer):
        content = (files or {}).get(asked.decode().lower())
        if content is not None:
            library.styleconversion_answer_file(answer, content, len(content))
    result = getattr(library, "styleconversion_" + job)(name.encode(), content, len(content),
                                                        json.dumps(options or {}).encode(), FIND(find), None)
    try:
        return library.styleconversion_status(result), text("document", result), text("diagnostics", result)
    finally:
        library.styleconversion_release(result)


class FromPython(unittest.TestCase):
    def test_a_pattern_becomes_a_symbol_of_its_name(self):
        status, document, _ = run("convert", "brick.pat", bytes_of("patterns/brick.pat"))
        self.assertEqual(status, 0)
        self.assertIn("BRICK", document.decode().upper())
        json.loads(document)

    def test_shape_files_come_from_the_callback(self):
        files = {name: bytes_of("shapes/" + name) for name in ("marks.shx", "single-stroke.shx")}
        content = bytes_of("linetypes/complex.lin")
        files["styles.json"] = bytes_of("linetypes/styles.json")
        options = {"drawing": "styles.json"}
        self.assertEqual(run("convert", "complex.lin", content, options, files)[0], 0)
        status, document, diagnostics = run("convert", "complex.lin", content, options)
        self.assertEqual((status, document), (1, b""))
        self.assertIn("missing-file", diagnostics.decode())

    def test_names_are_read_in_the_encoding_of_the_option(self):
        content = "*\u0416, lines\n0, 0,0, 0,1\n".encode("cp1251")
        listed = run("list", "a.pat", content, {"encoding": "WINDOWS-1251"})[1]
        self.assertEqual([symbol["name"] for symbol in json.loads(listed)], ["\u0416"])

    def test_threads_do_not_disturb_each_other(self):
        # The same byte is another letter in each: the encoding is not another thread's.
        content = b"*\xc6, lines\n0, 0,0, 0,1\n"
        letters = {"WINDOWS-1251": "\u0416", "WINDOWS-1252": "\u00c6"}
        jobs = [encoding for encoding in letters for _ in range(200)]

        def name(encoding):
            listed = run("list", "a.pat", content, {"encoding": encoding})[1]
            return json.loads(listed)[0]["name"]
        with concurrent.futures.ThreadPoolExecutor(4) as threads:
            self.assertEqual(list(threads.map(name, jobs)), [letters[encoding] for encoding in jobs])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
