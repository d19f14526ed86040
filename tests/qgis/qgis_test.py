"""Imports what the tool writes into QGIS and compares its maps with drawings of the same symbols:
qgis_test.py STYLECONV EXAMPLES [PICTURES]

PICTURES is a folder for what the maps look like. Where STYLECONV_MORE_FILES names a folder, its .pat and .lin files are
tested with the examples."""
import glob
import json
import math
import os
import re
import subprocess
import sys
import tempfile
import time
import unittest
import xml.etree.ElementTree as ElementTree

import maps
import numpy
import painter
from PIL import Image
from qgis.core import QgsExpression, QgsNullSymbolRenderer, QgsStyle, QgsVectorLayer
from qgis.PyQt.QtGui import QColor

HERE = os.path.dirname(os.path.abspath(__file__))
MOST_OFF = 0.001
TILTED = [[(4, 4), (61, 9), (55, 60), (9, 52)], [(25, 25), (42, 28), (33, 44)]]  # with a hole
ORIGIN = (400000.0, 5700000.0)
SCALED = ["--scale", "10"]  # what is drawn in metres, so that its strokes can be told apart
UNITS = maps.SIZE / maps.MM  # of a map with a unit to each millimetre of the page


def convert(command, file, *options):
    """(tree of the library, path of the library, symbols of the document, messages)"""
    target = os.path.join(folder, re.sub(r"\W", "_", os.path.basename(file) + "".join(options)) + ".xml")
    run = subprocess.run(
        [styleconv, command, file, "--format", "qgis", "-o", target, *options], stderr=subprocess.PIPE, check=True
    )
    plain = [option for option in options if option not in ("--hatch-units", "mm", *SCALED)]
    document = subprocess.run(
        [styleconv, command, file, "--faithful", *plain], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=True
    )
    return target, json.loads(document.stdout)["symbols"], run.stderr.decode()


def pattern_files():
    return sorted(glob.glob(f"{examples}/patterns/*.pat")) + (sorted(glob.glob(f"{more}/*.pat")) if more else [])


def scale_options(file):
    return [] if file.startswith(examples) else SCALED


def all_files():
    styles = ["--shapes", f"{examples}/shapes", "--drawing", f"{examples}/linetypes/styles.json"]
    for file in pattern_files():
        yield "patterns", file, scale_options(file), "hatch"
    for file in sorted(glob.glob(f"{examples}/linetypes/*.lin")):
        yield "linetypes", file, styles, "linetype"
    # What else they need is not at hand; the rest of each is converted.
    for file in sorted(glob.glob(f"{more}/*.lin")) if more else []:
        yield "linetypes", file, ["--tolerant"], "linetype"
    for file in sorted(glob.glob(f"{examples}/drawings/*.json") + glob.glob(f"{examples}/drawings/*.dxf")):
        yield "blocks", file, styles[:2], "block"


def symbols_of(path):
    style, imported = maps.read_library(path)
    assert imported, path
    return style


def placed(rings, shift=ORIGIN):
    return maps.polygon([[(x + shift[0], y + shift[1]) for x, y in ring] for ring in rings])


def extent(shift=ORIGIN, units=UNITS):
    return (shift[0], shift[1], shift[0] + units, shift[1] + units)


def in_pixels(points):
    return [(x * maps.MM, maps.SIZE - y * maps.MM) for x, y in points]


def save(picture, name):
    if pictures:
        Image.fromarray(picture).save(os.path.join(pictures, name))
    return picture


def yardstick():
    """Seconds of processor time that a plain loop takes here, about a quarter of one: what is measured is compared
    with it, so that a slow machine fails nothing."""
    before = time.process_time()
    total = 0
    for number in range(5_000_000):
        total += number
    return time.process_time() - before


class Library(unittest.TestCase):
    def test_everything_is_imported_with_its_names_and_tags(self):
        count = 0
        for command, file, options, kind in all_files():
            path, symbols, _ = convert(command, file, *options)
            style, imported = maps.read_library(path)
            self.assertTrue(imported, file)
            self.assertEqual(sorted(style.symbolNames()), sorted(symbol["name"] for symbol in symbols), file)
            stem = os.path.splitext(os.path.basename(file))[0]
            for name in style.symbolNames():
                self.assertEqual(sorted(style.tagsOfSymbol(QgsStyle.SymbolEntity, name)), sorted([kind, stem]), name)
                self.assertGreater(style.symbol(name).symbolLayerCount(), 0, name)
            self.assertEqual(style.symbolsOfFavorite(QgsStyle.SymbolEntity), [])
            count += len(symbols)
        self.assertGreater(count, 50)

    def test_shapes_are_imported_as_markers(self):
        target = os.path.join(folder, "shapes.xml")
        file = f"{examples}/shapes/marks.shx"
        subprocess.run([styleconv, "glyphs", file, "--format", "qgis", "-o", target], check=True)
        style = symbols_of(target)
        listed = subprocess.run([styleconv, "list", file], stdout=subprocess.PIPE, check=True).stdout.decode().split()
        self.assertEqual(sorted(name.split()[1] for name in style.symbolNames()), sorted(listed))
        for name in style.symbolNames():
            self.assertEqual(style.tagsOfSymbol(QgsStyle.SymbolEntity, name), ["shape", "marks"])

    def test_a_layer_style_gives_a_layer_its_symbol(self):
        furniture = f"{examples}/drawings/street-furniture.dxf"
        cases = (
            (["patterns", f"{examples}/patterns/brick.pat"], placed(TILTED), extent()),
            (["patterns", f"{examples}/patterns/brick.pat", "--hatch-units", "mm"], placed(TILTED), extent()),
            (["linetypes", f"{examples}/linetypes/simple.lin", "--name", "COUNTY_BOUNDARY"],
             maps.line([(x + ORIGIN[0], y + ORIGIN[1]) for x, y in Lines.CORNERS]), extent()),
            (["blocks", furniture, "--name", "LAMP", "--scale", "0.05"],
             f"POINT({ORIGIN[0] + 33} {ORIGIN[1] + 33})", extent()),
            (["glyphs", f"{examples}/shapes/marks.shx", "--number", "131"],
             f"POINT({ORIGIN[0] + 33} {ORIGIN[1] + 33})", extent()),
        )
        for command, wkt, view in cases:
            with self.subTest(command=command):
                style = os.path.join(folder, "layer.qml")
                library = os.path.join(folder, "layer.xml")
                for target in (style, library):
                    subprocess.run([styleconv, *command, "-o", target], stderr=subprocess.DEVNULL, check=True)
                known = symbols_of(library)
                symbol = known.symbol(known.symbolNames()[0])
                layer = maps.layer_of([wkt], symbol)
                expected, _ = maps.draw(layer, view)
                layer.setRenderer(QgsNullSymbolRenderer())
                self.assertEqual(int(maps.draw(layer, view)[0].min()), 255)
                message, loaded = layer.loadNamedStyle(style)
                self.assertTrue(loaded, message)
                self.assertEqual(layer.renderer().type(), "singleSymbol")
                picture, _ = maps.draw(layer, view)
                self.assertLess(int(picture.min()), 128)
                self.assertTrue((picture == expected).all())

    def test_a_layer_of_another_geometry_does_not_take_a_layer_style(self):
        style = os.path.join(folder, "layer.qml")
        subprocess.run([styleconv, "patterns", f"{examples}/patterns/brick.pat", "-o", style],
                       stderr=subprocess.DEVNULL, check=True)
        layer = QgsVectorLayer("Point?crs=EPSG:25832", "layer", "memory")
        self.assertFalse(layer.loadNamedStyle(style)[1])

    def test_a_name_that_is_there_twice_is_changed_and_told(self):
        file = os.path.join(folder, "twice.lin")
        with open(file, "w", encoding="utf-8") as stream:
            stream.write("*@A\nA,1,-1\n*@A\nA,2,-1\n")
        path, _, messages = convert("linetypes", file)
        self.assertEqual(sorted(symbols_of(path).symbolNames()), ["@A", "@A (2)"])
        self.assertIn("twice.lin: warning: the library has the name already; this style is named @A (2)", messages)

    def test_symbols_of_several_files_keep_the_tags_of_their_own(self):
        root = os.path.join(folder, "standard")
        files = {
            "roads/kerbs.lin": "*KERB\nA,1,-1\n*KERB (2)\nA,2,-1\n",
            "rail/rail.lin": "*KERB\nA,3,-1\n",
            "fields, wet/marsh.pat": "*MARSH\n0, 0,0, 0,.125\n",
        }
        for name, text in files.items():
            os.makedirs(os.path.dirname(os.path.join(root, name)), exist_ok=True)
            with open(os.path.join(root, name), "w", encoding="utf-8") as stream:
                stream.write(text)
        path, symbols, _ = convert("convert", root)
        style = symbols_of(path)
        names = style.symbolNames()
        self.assertEqual(sorted(names), sorted(symbol["name"] for symbol in symbols))
        self.assertEqual(len(names), 4)

        def tags(start):
            found = [style.tagsOfSymbol(QgsStyle.SymbolEntity, name) for name in names if name.startswith(start)]
            return sorted(sorted(of_one) for of_one in found)

        kerbs = ["kerbs", "linetype", "roads", "standard"]
        rail = ["linetype", "rail", "standard"]
        self.assertEqual(tags("KERB"), [kerbs, kerbs, rail])
        self.assertEqual(tags("MARSH"), [["fields  wet", "hatch", "marsh", "standard"]])
        self.assertEqual(len(style.symbolsWithTag(QgsStyle.SymbolEntity, style.tagId("roads"))), 2)

    def test_every_colour_follows_the_button_of_the_symbol(self):
        for command, file, options, _ in all_files():
            path, _, _ = convert(command, file, *options)
            style = symbols_of(path)
            for name in style.symbolNames():
                symbol = style.symbol(name)
                symbol.setColor(QColor(255, 0, 255))
                with self.subTest(file=file, name=name):
                    other, ink = self.inks(symbol)
                    self.assertEqual(other, 0)
                    self.assertEqual(ink > 0, name != "MARGIN")

    def test_the_pen_of_dashes_follows_the_button_of_the_symbol(self):
        path, _, _ = convert("linetypes", f"{examples}/linetypes/simple.lin")
        symbol = symbols_of(path).symbol("COUNTY_BOUNDARY")
        view, wkt = extent(), maps.line([(ORIGIN[0] + 5, ORIGIN[1] + 33), (ORIGIN[0] + 60, ORIGIN[1] + 33)])

        def ink():
            pixels, _ = maps.draw(maps.layer_of([wkt], symbol), view)
            rows = (painter.darkness(pixels) > 127).any(axis=1)
            return int(rows.sum()), (painter.darkness(pixels) > 127).any(axis=0)

        thin, dashes = ink()
        symbol.setWidth(4 * symbol.width())
        thick, dashes_of_thick = ink()
        # From a third of a millimetre to more than one.
        self.assertLessEqual(thin, 4)
        self.assertGreaterEqual(thick, 8)
        # The dashes stay where they are; a dot grows.
        self.assertFalse((dashes & ~dashes_of_thick).any())

    def inks(self, symbol):
        """Pixels of a map that are neither magenta nor paper nor between them, and pixels that are not paper."""
        kind = maps.symbol_geometry(symbol)
        if kind == 2:
            wkt, view = placed(TILTED), extent()
        elif kind == 1:
            wkt, view = maps.line([(ORIGIN[0] + 5, ORIGIN[1] + 33), (ORIGIN[0] + 60, ORIGIN[1] + 30)]), extent()
        else:
            # Whatever the size of a block.
            symbol.setSize(50)
            wkt, view = f"POINT({ORIGIN[0]} {ORIGIN[1]})", extent((ORIGIN[0] - 33, ORIGIN[1] - 33))
        pixels, _ = maps.draw(maps.layer_of([wkt], symbol), view)
        red, blue = pixels[..., 0].astype(int), pixels[..., 2].astype(int)
        return int(((red < 250) | (blue < 250)).sum()), int((pixels[..., 1] < 200).sum())


class Areas(unittest.TestCase):
    def compare(self, style, symbol, rings, scale, anchor, name):
        wkt = placed(rings)
        picture, _ = maps.draw(maps.layer_of([wkt], style.symbol(symbol["name"])), extent())
        sheet = painter.Sheet(maps.SIZE, maps.MM)
        painter.paint_area(sheet, symbol, [in_pixels(ring) for ring in rings], in_pixels([anchor])[0], scale * maps.MM)
        with self.subTest(name=name):
            part = painter.off(save(picture, f"hatch-{name}.png"), sheet.paint())
            print(f"area {name}: {part:.5%} off")
            self.assertLess(part, MOST_OFF)

    def test_hatches_in_map_units_look_as_the_pattern_says(self):
        for file in pattern_files():
            path, symbols, _ = convert("patterns", file, *scale_options(file))
            style = symbols_of(path)
            for symbol in symbols:
                self.compare(style, symbol, TILTED, float((scale_options(file) or [1])[-1]), (4, 4), symbol["name"])

    def test_hatches_in_millimetres_look_as_the_pattern_says(self):
        for file in pattern_files():
            path, symbols, _ = convert("patterns", file, "--hatch-units", "mm", *scale_options(file))
            style = symbols_of(path)
            for symbol in symbols:
                scale = float((scale_options(file) or [1])[-1])
                self.compare(style, symbol, TILTED, scale, (4, 4), symbol["name"] + "-mm")

    def test_two_views_that_overlap_agree(self):
        path, symbols, _ = convert("patterns", f"{examples}/patterns/marsh.pat")
        layer = maps.layer_of([placed(TILTED)], symbols_of(path).symbol("MARSH"))
        first, _ = maps.draw(layer, extent())
        # A hundred pixels to the right and up.
        moved = 100 / maps.MM
        second, _ = maps.draw(layer, extent((ORIGIN[0] + moved, ORIGIN[1] + moved)))
        self.assertLess(painter.off(first[:400, 100:], second[100:, :400]), MOST_OFF)

    def test_polygons_of_every_form_are_hatched_inside_and_nowhere_else(self):
        path, _, _ = convert("patterns", f"{examples}/patterns/brick.pat")
        symbol = symbols_of(path).symbol("BRICK")
        dense = [(32 + 25 * math.cos(i / 500 * math.pi), 32 + 25 * math.sin(i / 500 * math.pi)) for i in range(1000)]
        square = [(5, 5), (60, 5), (60, 60), (5, 60)]
        bow, lopsided = [(5, 5), (60, 60), (60, 5), (5, 60)], [(5, 5), (60, 60), (60, 5), (5, 40)]
        small = [(5, 5), (30, 30), (30, 5), (5, 30)]
        forms = {
            "rectangle": (placed([square]), [square]),
            "hole": (placed([square, [(20, 20), (40, 20), (40, 40), (20, 40)]]), [square, [(20, 20), (40, 20), (40, 40), (20, 40)]]),
            "dense": (placed([dense]), [dense]),
            "multipart": (
                "MULTIPOLYGON(" + ",".join(placed([[(x, y) for x, y in part]])[7:] for part in self.parts()) + ")",
                self.parts(),
            ),
            "bow-tie": (placed([bow]), [bow]),
            "lopsided bow-tie": (placed([lopsided]), [lopsided]),
            "multipart with a bow-tie": (
                "MULTIPOLYGON(" + ",".join(placed([part])[7:] for part in (small, self.parts()[1])) + ")",
                [small, self.parts()[1]],
            ),
        }
        for name, (wkt, rings) in forms.items():
            picture, _ = maps.draw(maps.layer_of([wkt], symbol), extent())
            ink = painter.darkness(picture) > 127
            sheet = painter.Sheet(maps.SIZE, maps.MM)
            outline = "".join("M" + "L".join(f"{x},{y}" for x, y in in_pixels(ring)) + "z" for ring in rings)
            sheet.add(f'<path d="{outline}" fill-rule="evenodd"/>')
            covered = painter.darkness(sheet.paint()) > 31
            with self.subTest(form=name):
                self.assertEqual(int((ink & ~painter.grown(painter.grown(covered))).sum()), 0)
                expected = painter.Sheet(maps.SIZE, maps.MM)
                document = convert("patterns", f"{examples}/patterns/brick.pat")[1][0]
                points = [point for ring in rings for point in ring]
                anchor = (min(x for x, _ in points), min(y for _, y in points))
                painter.paint_area(
                    expected, document, [in_pixels(ring) for ring in rings], in_pixels([anchor])[0], maps.MM
                )
                self.assertLess(painter.off(picture, expected.paint()), MOST_OFF)

    @staticmethod
    def parts():
        return [[(5, 5), (25, 5), (25, 25)], [(35, 35), (60, 35), (60, 60), (35, 60)]]

    def test_far_from_the_origin_hatches_are_as_exact(self):
        path, symbols, _ = convert("patterns", f"{examples}/patterns/brick.pat")
        style = symbols_of(path)
        near, _ = maps.draw(maps.layer_of([placed(TILTED, (0, 0))], style.symbol("BRICK")), extent((0, 0)))
        far = (32000000.0, 98000000.0)
        picture, _ = maps.draw(maps.layer_of([placed(TILTED, far)], style.symbol("BRICK")), extent(far))
        self.assertLess(painter.off(near, picture), MOST_OFF)

    def test_a_layer_in_degrees_is_hatched_in_millimetres(self):
        path, symbols, _ = convert("patterns", f"{examples}/patterns/brick.pat", "--hatch-units", "mm")
        degree = 0.001
        rings = [[(8 + x * degree, 51 + y * degree) for x, y in ring] for ring in TILTED]
        layer = maps.layer_of([maps.polygon(rings)], symbols_of(path).symbol("BRICK"), "EPSG:4326")
        picture, _ = maps.draw(layer, extent((8, 51), UNITS * degree))
        sheet = painter.Sheet(maps.SIZE, maps.MM)
        painter.paint_area(sheet, symbols[0], [in_pixels(ring) for ring in TILTED], in_pixels([(4, 4)])[0], maps.MM)
        self.assertLess(painter.off(picture, sheet.paint()), MOST_OFF)

    def test_beyond_the_limit_of_strokes_nothing_is_drawn_and_soon(self):
        path, _, _ = convert("patterns", f"{examples}/patterns/brick.pat")
        square = [(0, 0), (10000, 0), (10000, 10000), (0, 10000)]
        layer = maps.layer_of([placed([square])], symbols_of(path).symbol("BRICK"))
        picture, taken = maps.draw(layer, extent(units=10000))
        self.assertEqual(int(picture.min()), 255)
        self.assertLess(taken, 1)
        # What the map shows of it counts.
        picture, _ = maps.draw(layer, extent())
        self.assertLess(int(picture.min()), 100)

    def test_expressions_are_read_quickly(self):
        worst = 0.0
        for file in pattern_files():
            for options in ([], ["--hatch-units", "mm"]):
                path, _, _ = convert("patterns", file, *options)
                for option in ElementTree.parse(path).iter("Option"):
                    if option.get("name") not in ("geometryModifier", "expression"):
                        continue
                    taken = []
                    for _ in range(5):
                        before = time.process_time()
                        expression = QgsExpression(option.get("value"))
                        taken.append(time.process_time() - before)
                        self.assertFalse(expression.hasParserError(), expression.parserErrorString())
                    worst = max(worst, min(taken))
        print(f"the longest expression is read in {worst * 1000:.1f} ms")
        self.assertLess(worst, yardstick() / 25)

    @staticmethod
    def time_of_a_thousand(symbol, size, runs=4):
        """Seconds of processor time that a map of 1,000 polygons takes, each so many units wide and high."""
        wkts = []
        for i in range(1000):
            x, y, unit = ORIGIN[0] + i % 40 * size, ORIGIN[1] + i // 40 * size, size / 10
            corners = [(x, y), (x + 9 * unit, y + unit), (x + 8 * unit, y + 9 * unit), (x + unit, y + 8 * unit)]
            wkts.append(maps.polygon([corners]))
        layer = maps.layer_of(wkts, symbol)
        return min(maps.draw(layer, extent(units=40 * size), 1000)[1] for _ in range(runs))

    def test_a_thousand_polygons_are_drawn_quickly(self):
        path, _, _ = convert("patterns", f"{examples}/patterns/brick.pat")
        taken = self.time_of_a_thousand(symbols_of(path).symbol("BRICK"), 10)
        print(f"1000 polygons: {taken:.2f} s")
        self.assertLess(taken, 6 * yardstick())

    @staticmethod
    def rubble():
        """A pattern of short strokes at twelve odd angles, whose rows come back in phase after a hundred and more."""
        file = os.path.join(folder, "rubble.pat")
        with open(file, "w", encoding="utf-8") as stream:
            stream.write("*RUBBLE\n")
            for i in range(12):
                x, y = i * 0.37 % 1, i * 0.61 % 1
                shift, spacing = 0.4137 + i * 0.01713, 0.3171 + i * 0.00937
                stream.write(f"{i * 30 + 2.5 + i * i / 7:.4f}, {x:.4f},{y:.4f}, {shift:.6f},{spacing:.6f}, .117,-1.297\n")
        return file

    def test_a_hatch_of_large_tiles_is_exact_and_quick_on_polygons_that_are_smaller(self):
        path, symbols, _ = convert("patterns", self.rubble(), *SCALED)
        strokes = max(painter.count(member) for member in painter.members(symbols[0]))
        self.assertGreater(strokes, 100)
        self.compare(symbols_of(path), symbols[0], TILTED, float(SCALED[-1]), (4, 4), "rubble")
        path, _, _ = convert("patterns", self.rubble())
        symbol = symbols_of(path).symbol("RUBBLE")
        taken = self.time_of_a_thousand(symbol, 2.5, 2)
        print(f"1000 polygons of rubble: {taken:.2f} s")
        # Repeated as whole tiles they take a hundred times as long.
        self.assertLess(taken, 45 * yardstick())


class Lines(unittest.TestCase):
    CORNERS = [(3.0, 10.0), (40.0, 18.0), (62.0, 50.0)]

    def test_linetypes_look_as_the_definition_says(self):
        seen = 0
        for command, file, options, kind in all_files():
            if kind != "linetype":
                continue
            path, symbols, _ = convert(command, file, *options)
            style = symbols_of(path)
            for symbol in symbols:
                if painter.has_text(symbol) or symbol["name"] == "MARGIN":
                    continue
                wkt = maps.line([(x + ORIGIN[0], y + ORIGIN[1]) for x, y in self.CORNERS])
                picture, _ = maps.draw(maps.layer_of([wkt], style.symbol(symbol["name"])), extent())
                sheet = painter.Sheet(maps.SIZE, maps.MM)
                painter.paint_line(sheet, symbol, painter.Way(in_pixels(self.CORNERS)), maps.MM)
                with self.subTest(name=symbol["name"]):
                    part = painter.off(save(picture, f"line-{symbol['name']}.png"), sheet.paint())
                    print(f"line {symbol['name']}: {part:.5%} off")
                    self.assertLess(part, MOST_OFF)
                seen += 1
        self.assertGreater(seen, 8)

    def test_what_draws_nothing_draws_nothing(self):
        path, _, _ = convert("linetypes", f"{examples}/linetypes/simple.lin")
        wkt = maps.line([(x + ORIGIN[0], y + ORIGIN[1]) for x, y in self.CORNERS])
        picture, _ = maps.draw(maps.layer_of([wkt], symbols_of(path).symbol("MARGIN")), extent())
        self.assertEqual(int(picture.min()), 255)

    def test_two_views_that_overlap_agree(self):
        path, _, _ = convert("linetypes", f"{examples}/linetypes/simple.lin")
        wkt = maps.line([(x + ORIGIN[0], y + ORIGIN[1]) for x, y in self.CORNERS])
        layer = maps.layer_of([wkt], symbols_of(path).symbol("COUNTY_BOUNDARY"))
        first, _ = maps.draw(layer, extent())
        moved = 100 / maps.MM
        second, _ = maps.draw(layer, extent((ORIGIN[0] + moved, ORIGIN[1] + moved)))
        self.assertLess(painter.off(first[:400, 100:], second[100:, :400]), MOST_OFF)


class Points(unittest.TestCase):
    WIDEST = 40  # millimetres of the page

    def test_blocks_look_as_the_drawing(self):
        seen = 0
        for command, file, options, kind in all_files():
            if kind != "block":
                continue
            for symbol in convert(command, file, *options)[1]:
                if painter.has_text(symbol):
                    continue
                self.compare(command, file, options, symbol)
                seen += 1
        self.assertGreater(seen, 20)

    def compare(self, command, file, options, symbol):
        reach = self.reach(symbol)
        scale = float(f"{self.WIDEST / 2 / reach:.3g}") if reach else 1.0
        name = symbol["name"]
        path = self.scaled(command, file, options, name, scale)
        picture, _ = maps.draw(
            maps.layer_of([f"POINT({ORIGIN[0]} {ORIGIN[1]})"], symbols_of(path).symbol(name)),
            extent((ORIGIN[0] - UNITS / 2, ORIGIN[1] - UNITS / 2)),
        )
        sheet = painter.Sheet(maps.SIZE, maps.MM)
        painter.paint_point(sheet, symbol, (maps.SIZE / 2, maps.SIZE / 2), scale * maps.MM)
        with self.subTest(file=os.path.basename(file), name=name):
            part = painter.off(save(picture, f"point-{name}.png"), sheet.paint())
            print(f"point {name}: {part:.5%} off")
            self.assertLess(part, MOST_OFF)

    @staticmethod
    def scaled(command, file, options, name, scale):
        target = os.path.join(folder, "point.xml")
        subprocess.run(
            [styleconv, command, file, "--format", "qgis", "-o", target, *options, "--name", name, "--scale", str(scale)],
            stderr=subprocess.DEVNULL,
            check=True,
        )
        return target

    @staticmethod
    def reach(symbol):
        farthest = 0.0
        for member in painter.members(symbol):
            for graphic in member["graphics"]:
                for letter, n in painter.commands(graphic["geometry"]):
                    farthest = max(farthest, *(abs(x) for x in n[-2:]))
        return farthest

    def test_a_text_comes_from_the_attribute_of_its_name(self):
        for command, file, options, _ in all_files():
            if not file.endswith("draw-order.json"):
                continue
            path, symbols, _ = convert(command, file, *options)
            for symbol in symbols:
                if "STOP_NUMBER" in json.dumps(symbol):
                    self.check_attribute(symbols_of(path).symbol(symbol["name"]))
                    return
        self.fail("no example has a text with a parameter")

    def check_attribute(self, symbol):
        wkt = f"POINT({ORIGIN[0]} {ORIGIN[1]})"
        view = extent((ORIGIN[0] - UNITS / 2, ORIGIN[1] - UNITS / 2))

        def picture(*fields):
            return maps.draw(maps.layer_of([wkt], symbol, fields=fields), view)[0]

        without = picture()
        self.assertTrue((without == picture(("STOP_NUMBER", "000"))).all())
        self.assertTrue((without == picture(("STOP_NUMBER", None))).all())
        self.assertFalse((without == picture(("STOP_NUMBER", "471"))).all())

    def test_size_and_angle_act_on_the_whole(self):
        path = self.scaled("blocks", f"{examples}/drawings/street-furniture.dxf", [], "LAMP", 0.05)
        symbol = symbols_of(path).symbol("LAMP")
        wkt = f"POINT({ORIGIN[0]} {ORIGIN[1]})"
        view = extent((ORIGIN[0] - UNITS / 2, ORIGIN[1] - UNITS / 2))
        before, _ = maps.draw(maps.layer_of([wkt], symbol), view)
        symbol.setAngle(90)
        after, _ = maps.draw(maps.layer_of([wkt], symbol), view)
        self.assertLess(painter.off(numpy.rot90(before, -1), after), MOST_OFF)


class Documentation(unittest.TestCase):
    def test_its_pictures_are_what_the_program_draws(self):
        target = os.path.join(folder, "documentation")
        os.makedirs(target)
        subprocess.run([sys.executable, "-B", os.path.join(HERE, "pictures.py"), styleconv, examples, target], check=True)
        names = sorted(os.listdir(target))
        self.assertEqual(len(names), 3)
        for name in names:
            with self.subTest(name=name):
                shown, drawn = (
                    numpy.asarray(Image.open(os.path.join(place, name)).convert("RGB"))
                    for place in (os.path.join(HERE, "..", "..", "docs"), target)
                )
                self.assertEqual(shown.shape, drawn.shape)
                self.assertLess(painter.off(shown, drawn), MOST_OFF)


if __name__ == "__main__":
    styleconv, examples = os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2])
    pictures = os.path.abspath(sys.argv[3]) if len(sys.argv) > 3 else None
    more = os.environ.get("STYLECONV_MORE_FILES")
    with tempfile.TemporaryDirectory() as folder:
        program = unittest.main(argv=sys.argv[:1] + ["-v"], exit=False)
    # Without the program's own end, which waits for nothing of ours.
    sys.stdout.flush()
    os._exit(0 if program.result.wasSuccessful() else 1)
