"""The installed package, as programs and notebooks use it. EXAMPLES and STYLECONV are the examples and the tool."""
import dataclasses
import json
import os
import pathlib
import pickle
import shutil
import subprocess
import tempfile
import unittest

import styleconversion

EXAMPLES, TOOL = os.environ["EXAMPLES"], os.environ["STYLECONV"]
BRICK = os.path.join(EXAMPLES, "patterns", "brick.pat")
COMPLEX = os.path.join(EXAMPLES, "linetypes", "complex.lin")


def written_by_tool(*arguments):
    return subprocess.run([TOOL, *arguments], check=True, capture_output=True).stdout.decode()


class Converting(unittest.TestCase):
    def test_results_are_the_tools(self):
        for name in ("patterns/brick.pat", "drawings/boundaries.json", "shapes/marks.shx", "linetypes/simple.lin"):
            path = os.path.join(EXAMPLES, name)
            with self.subTest(name):
                result = styleconversion.convert(path)
                self.assertEqual(result.document, written_by_tool("convert", path))
                self.assertEqual(result.svg(), written_by_tool("convert", path, "--format", "svg"))
                self.assertEqual(result.html(), written_by_tool("convert", path, "--format", "html"))

    def test_symbols_have_their_names_parts_and_parameters(self):
        brick = styleconversion.convert(BRICK)["BRICK"]
        self.assertEqual(brick.type, "CompoundSymbolDefinition")
        part = brick.symbols[0]
        self.assertEqual(part.graphics[0]["geometry"], "M 0.0,0.0 h 10.0")
        self.assertEqual(part.parameters[0], styleconversion.Parameter(
            "HATCHCOLOR", "&Hatch Color", "Color for the hatch style", "0xff000000", 6))
        with self.assertRaises(dataclasses.FrozenInstanceError):
            brick.name = "WALL"

    def test_a_result_is_a_sequence_by_place_and_name(self):
        result = styleconversion.convert(b"*ONE\n0,0,0,0,1\n*TWO\n0,0,0,0,2\n", name="a.pat")
        self.assertEqual([symbol.name for symbol in result], ["ONE", "TWO"])
        self.assertEqual((len(result), result[1].name, result["TWO"].name), (2, "TWO", "TWO"))
        self.assertEqual(repr(result), "<Result of a.pat: 2 symbols>")
        self.assertTrue("TWO" in result and result[0] in result and "THREE" not in result)
        with self.assertRaises(KeyError):
            result["THREE"]

    def test_options_go_to_the_conversion(self):
        content = b"*ONE\n0,0,0,0,1\n*TWO\n0,0,0,0,0.105\n"
        self.assertEqual(len(styleconversion.convert(content, kind="patterns", names=["TWO"])), 1)
        faithful = styleconversion.convert(content, kind="patterns", faithful=True)
        self.assertEqual(json.loads(faithful.document)["fidelity"], "faithful")
        with self.assertRaisesRegex(ValueError, "option encoding: expected a known encoding"):
            styleconversion.convert(content, name="a.pat", encoding="no such")
        with self.assertRaises(TypeError):
            styleconversion.convert(content, name="a.pat", tolerent=True)

    def test_one_name_is_a_name_and_not_its_letters(self):
        simple = os.path.join(EXAMPLES, "linetypes", "simple.lin")
        self.assertEqual([symbol.name for symbol in styleconversion.convert(simple, names="TRACK")], ["TRACK"])
        self.assertEqual([symbol.name for symbol in styleconversion.convert(simple, names=["TRACK", "FOOTPATH"])],
                         ["TRACK", "FOOTPATH"])

    def test_refused_files_raise_with_their_diagnostics(self):
        with self.assertRaises(styleconversion.ConversionError) as raised:
            styleconversion.convert(b"*BAD,without its first field\nB,1,-1\n", name="a.lin")
        first = raised.exception.diagnostics[0]
        self.assertEqual((first.severity, first.file, first.line), ("error", "a.lin", 2))
        self.assertIn("a.lin:2: error: ", str(raised.exception))
        with self.assertRaises(FileNotFoundError):
            styleconversion.convert(os.path.join(EXAMPLES, "none.pat"))

    def test_errors_come_whole_from_other_processes(self):
        error = styleconversion.ConversionError([styleconversion.Diagnostic("error", "no-patterns", "none", "a.pat")])
        again = pickle.loads(pickle.dumps(error))
        self.assertEqual((str(again), again.diagnostics), (str(error), error.diagnostics))

    def test_paths_that_are_no_text_are_converted(self):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, os.fsdecode(b"\xff.pat"))
            with open(path, "wb") as file:
                file.write(b"*ONE\n0,0,0,0,1\nx\n")
            self.assertIn("?.pat:3: warning: ", str(styleconversion.check(path)[0]))


class FurtherFiles(unittest.TestCase):
    def test_shape_files_are_found_beside_the_file_in_any_case(self):
        with tempfile.TemporaryDirectory() as folder:
            for source, name in (("linetypes/complex.lin", "complex.lin"), ("linetypes/styles.json", "styles.json"),
                                 ("shapes/marks.shx", "MARKS.shx"),
                                 ("shapes/single-stroke.shx", "Single-Stroke.SHX")):
                with open(os.path.join(EXAMPLES, source), "rb") as read:
                    with open(os.path.join(folder, name), "wb") as written:
                        written.write(read.read())
            self.assertTrue(styleconversion.convert(os.path.join(folder, "complex.lin"), drawing="styles.json"))

    def test_the_drawing_may_be_anywhere(self):
        with tempfile.TemporaryDirectory() as folder:
            for source in ("linetypes/complex.lin", "shapes/marks.shx", "shapes/single-stroke.shx"):
                shutil.copy(os.path.join(EXAMPLES, source), folder)
            path, drawing = os.path.join(folder, "complex.lin"), os.path.join(EXAMPLES, "linetypes", "styles.json")
            self.assertTrue(styleconversion.convert(path, drawing=drawing))
            self.assertTrue(styleconversion.convert(path, drawing=pathlib.Path(drawing)))

    def test_a_folder_is_no_file(self):
        with tempfile.TemporaryDirectory() as folder:
            os.mkdir(os.path.join(folder, "MARKS.SHX"))
            path = os.path.join(folder, "a.lin")
            with open(path, "wb") as file:
                file.write(b"*X\nA,1,-1,[M,marks.shx],-1\n")
            self.assertIn("missing-shape-file", {diagnostic.code for diagnostic in styleconversion.check(path)})

    def test_find_may_give_any_bytes(self):
        def find(name):
            with open(os.path.join(EXAMPLES, "shapes", name.lower()), "rb") as file:
                return memoryview(file.read())

        self.assertTrue(styleconversion.convert(b"*X\nA,1,-1,[TREE,marks.shx],-1\n", name="a.lin", find=find))

    def test_find_gives_them(self):
        asked = []

        def find(name):
            asked.append(name)
            folder = "linetypes" if name.endswith(".json") else "shapes"
            with open(os.path.join(EXAMPLES, folder, name.lower()), "rb") as file:
                return file.read()

        self.assertTrue(styleconversion.convert(COMPLEX, drawing="styles.json", find=find))
        self.assertIn("styles.json", asked)

    def test_what_find_raises_is_raised(self):
        def find(name):
            raise PermissionError(name)

        with self.assertRaises(PermissionError):
            styleconversion.convert(COMPLEX, drawing="styles.json", find=find)

    def test_bytes_have_no_files_beside_them(self):
        with self.assertRaises(styleconversion.ConversionError) as raised:
            styleconversion.convert(b"*X\nA,1,-1,[M,marks.shx],-1\n", name="a.lin")
        self.assertIn("missing-shape-file", {diagnostic.code for diagnostic in raised.exception.diagnostics})


class LookingAtFiles(unittest.TestCase):
    def test_check_tells_what_the_tool_tells(self):
        path = os.path.join(EXAMPLES, "patterns", "marsh.pat")
        told = styleconversion.check(path)
        self.assertEqual([(one.severity, one.code, one.item) for one in told],
                         [("error", "lost-families", "pattern MARSH")])
        font = os.path.join(EXAMPLES, "shapes", "single-stroke.shx")
        self.assertEqual(styleconversion.check(font), ())
        self.assertIn("font-coverage", [one.code for one in styleconversion.check(font, notes=True)])

    def test_list_tells_kinds_and_names(self):
        self.assertEqual(styleconversion.list_symbols(BRICK)[0], styleconversion.Entry(
            "pattern", "BRICK", "Brick wall in running bond", BRICK, 3))


class Pictures(unittest.TestCase):
    def test_notebooks_show_symbols_and_results(self):
        result = styleconversion.convert(BRICK)
        self.assertTrue(result["BRICK"]._repr_svg_().startswith("<?xml"))
        for shown in (result, result["BRICK"]):
            self.assertTrue(shown._repr_html_().startswith("<div><svg"))
        self.assertEqual(result._repr_svg_(), result.svg())

    def test_diagnostics_are_shown_as_text(self):
        result = styleconversion.convert(b"*<b>\n0,0,0,0,1\nx\n", name="a.pat", tolerant=True)
        self.assertTrue(result.diagnostics)
        self.assertNotIn("<b>", result._repr_html_().rsplit("<ul>", 1)[1])

    def test_glyphs_have_pictures(self):
        glyphs = styleconversion.convert(os.path.join(EXAMPLES, "shapes", "marks.shx"))
        self.assertTrue(glyphs[0].svg().startswith("<?xml"))

    def test_style_libraries_are_the_tools(self):
        self.assertEqual(styleconversion.convert(BRICK).qgis(), written_by_tool("convert", BRICK, "--format", "qgis"))

    def test_layer_styles_are_the_tools_and_of_one_symbol(self):
        self.assertEqual(styleconversion.convert(BRICK).qml(), written_by_tool("convert", BRICK, "--format", "qml"))
        two = b"*ONE\n45, 0,0, 0,2\n*OTHER\n0, 0,0, 0,1\n"
        with self.assertRaisesRegex(ValueError, "the style of one symbol, and there are 2: choose one with names"):
            styleconversion.convert(two, name="a.pat").qml()
        one = styleconversion.convert(two, name="a.pat", names="OTHER").qml()
        self.assertIn('<symbol type="fill" name="0"', one)
