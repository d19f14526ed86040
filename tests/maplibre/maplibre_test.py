"""Shows the styles of all examples in MapLibre, in a browser without a window, and compares what it shows with drawings
of the same symbols: maplibre_test.py STYLECONV EXAMPLES NODE_MODULES. With a folder behind them it takes the pictures of
docs/maplibre.md instead, into that folder. Where STYLECONV_MORE_FILES names a folder, its .pat and .lin files are tested
with the examples."""
import base64
import functools
import glob
import http.server
import io
import json
import math
import os
import re
import subprocess
import sys
import tempfile
import threading
import unittest

import numpy
from PIL import Image
from selenium import webdriver
from selenium.webdriver.chrome.options import Options
from selenium.webdriver.chrome.service import Service

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "qgis"))
import painter  # noqa: E402

SIZE = 400  # pixels of a map's side
PIXELS = 96 / 25.4  # of a millimetre
ZOOM = 2  # at a whole one pictures are as large as they are
WORLD = 512 * 2**ZOOM  # pixels

PAGE = f"""<!DOCTYPE html>
<html><body style="margin:0"><div id="map" style="width:{SIZE}px;height:{SIZE}px"></div>
<script src="maplibre-gl/dist/maplibre-gl.js"></script></body></html>
"""

SHOW = """
const [style, center, done] = arguments;
style.sprite = new URL(style.sprite, location.href).href;
const map = new maplibregl.Map({container: 'map', style, center, zoom: 2, fadeDuration: 0,
  interactive: false, attributionControl: false, canvasContextAttributes: {preserveDrawingBuffer: true}});
const errors = [];
map.on('error', event => errors.push(String(event.error)));
map.once('idle', () => done({errors, picture: map.getCanvas().toDataURL()}));
"""


# The world's pixels in the middle of a map: where four tiles meet, and in the middle of one, in which a line begins once.
CROSSING = (WORLD / 2, WORLD / 2)
TILE = (WORLD / 2 + 256, WORLD / 2 - 256)


def lonlat(x, y, middle=CROSSING):
    """Of a pixel of the map, from its upper left corner."""
    across, down = ((at + m - SIZE / 2) / WORLD - 0.5 for at, m in ((x, middle[0]), (y, middle[1])))
    latitude = numpy.degrees(2 * numpy.arctan(numpy.exp(-2 * numpy.pi * down)) - numpy.pi / 2)
    return [360 * across, float(latitude)]


def convert(command, file, target, *options):
    """Writes the style into a folder and returns the symbols that it is made of, not scaled."""
    for old in glob.glob(os.path.join(target, "sprite", "*.svg")) + glob.glob(os.path.join(target, "sprite*.*")):
        os.remove(old)
    subprocess.run([styleconv, command, file, "--format", "maplibre", "-o", target, *options],
                   stderr=subprocess.DEVNULL, check=True)
    others = [] if "--scale" in options or "--allow-approximate" in options else options
    document = subprocess.run([styleconv, command, file, "--faithful", *others], stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, check=True)
    return json.loads(document.stdout)["symbols"]


def files_of(command):
    """(path, options) of the examples that the command converts, and of the other files."""
    options = {
        "patterns": [],
        "linetypes": ["--shapes", f"{examples}/shapes", "--drawing", f"{examples}/linetypes/styles.json"],
        "blocks": ["--scale", "0.01"],
    }
    pattern = {"patterns": "patterns/*.pat", "linetypes": "linetypes/*.lin", "blocks": "drawings/*.dxf"}[command]
    for file in sorted(glob.glob(os.path.join(examples, pattern))):
        yield file, options[command]
    # What else they need is not at hand; the rest of each is converted.
    for file in sorted(glob.glob(os.path.join(more, "*" + pattern[-4:]))) if more else []:
        yield file, ["--tolerant"]


def legible_scale(symbols):
    """So large that the closest repeat is some pixels."""
    closest = min(float(member["areaUsage"][key]) for symbol in symbols for member in painter.members(symbol)
                  for key in ("repeatX", "repeatY"))
    return max(1, round(4 / closest))


def read_style(target):
    with open(os.path.join(target, "style.json"), encoding="utf-8") as stream:
        return json.load(stream)


def picture_size(target, name):
    with open(os.path.join(target, "sprite", name + ".svg"), encoding="utf-8") as stream:
        head = stream.read(400)
    width, height = re.search(r' width="(\d+)" height="(\d+)"', head).groups()
    box = re.search(r'viewBox="0 0 (\S+) (\S+)"', head).groups()
    return (int(width), int(height)), (float(box[0]), float(box[1]))


class Styles(unittest.TestCase):
    def test_the_validator_finds_nothing(self):
        count = 0
        for command in ("patterns", "linetypes", "blocks"):
            for file, options in files_of(command):
                target = os.path.join(folder, "valid")
                approximate = ["--allow-approximate"] if command == "patterns" else []
                convert(command, file, target, *options, *approximate)
                script = os.path.join(modules, "@maplibre/maplibre-gl-style-spec/dist/gl-style-validate.mjs")
                result = subprocess.run(["node", script, os.path.join(target, "style.json")],
                                        stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
                self.assertEqual((result.returncode, result.stdout.decode()), (0, ""), file)
                layers = read_style(target)["layers"]
                for layer in layers:
                    name = layer.get("paint", {}).get("fill-pattern") or layer.get("paint", {}).get("line-pattern") or \
                        layer.get("layout", {}).get("icon-image")
                    if name:
                        self.assertTrue(os.path.exists(os.path.join(target, "sprite", name + ".svg")), name)
                count += len(layers)
        self.assertGreater(count, 20)

    def test_a_broken_style_is_found(self):
        path = os.path.join(folder, "broken.json")
        with open(path, "w", encoding="utf-8") as stream:
            json.dump({"version": 8, "sources": {}, "layers": [{"id": "A", "type": "hatch"}]}, stream)
        script = os.path.join(modules, "@maplibre/maplibre-gl-style-spec/dist/gl-style-validate.mjs")
        result = subprocess.run(["node", script, path], stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        self.assertNotEqual(result.returncode, 0)


class Browser(unittest.TestCase):
    """Shows maps in the real renderer."""

    @classmethod
    def setUpClass(cls):
        handler = functools.partial(Quiet, directory=site)
        cls.server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), handler)
        threading.Thread(target=cls.server.serve_forever, daemon=True).start()
        options = Options()
        options.binary_location = "/usr/bin/chromium"
        for argument in ("--headless", "--no-sandbox", "--disable-dev-shm-usage", "--use-gl=angle",
                         "--use-angle=swiftshader", "--enable-unsafe-swiftshader", "--force-device-scale-factor=1",
                         "--window-size=800,800", "--disable-background-networking", "--no-first-run",
                         "--user-data-dir=" + os.path.join(folder, "profile")):
            options.add_argument(argument)
        cls.browser = webdriver.Chrome(options=options, service=Service("/usr/bin/chromedriver"))
        cls.browser.set_script_timeout(60)

    @classmethod
    def tearDownClass(cls):
        cls.browser.quit()
        cls.server.shutdown()

    def show(self, style, symbol, geometry, middle=CROSSING, **properties):
        """The map of one feature with that symbol, on white."""
        center = lonlat(SIZE / 2, SIZE / 2, middle)
        style = dict(style, layers=[{"id": "paper", "type": "background", "paint": {"background-color": "#fff"}}] +
                     [layer for layer in style["layers"] if layer["id"] == symbol])
        self.assertEqual(len(style["layers"]), 2, symbol)
        style["sources"]["features"]["data"] = {
            "type": "Feature", "geometry": geometry, "properties": dict(properties, symbol=symbol)}
        self.browser.get(f"http://127.0.0.1:{self.server.server_address[1]}/index.html")
        result = self.browser.execute_async_script(SHOW, style, center)
        self.assertEqual(result["errors"], [])
        png = base64.b64decode(result["picture"].split(",")[1])
        return numpy.asarray(Image.open(io.BytesIO(png)).convert("RGB")).copy()


class Maps(Browser):
    def test_hatches_look_as_the_pattern_says(self):
        measured = 0
        for file, _ in files_of("patterns"):
            scale = legible_scale(convert("patterns", file, site))
            symbols = convert("patterns", file, site, "--scale", str(scale))
            style = read_style(site)
            ids = {layer["id"]: layer for layer in style["layers"]}
            for symbol in symbols:
                if symbol["name"] not in ids:
                    print(f"hatch {symbol['name']}: left out")
                    continue
                with self.subTest(file=os.path.basename(file), name=symbol["name"]):
                    name = ids[symbol["name"]]["paint"]["fill-pattern"]
                    (width, height), box = picture_size(site, name)
                    self.assertAlmostEqual(width / box[0], 1, delta=0.02)
                    self.assertAlmostEqual(height / box[1], 1, delta=0.02)
                    rings = [[(20, 20), (380, 20), (380, 380), (20, 380)]]
                    geometry = {"type": "Polygon",
                                "coordinates": [[lonlat(x, y) for x, y in rings[0] + rings[0][:1]]]}
                    shown = self.show(style, symbol["name"], geometry)
                    share = self.off_cells(shown, symbol, scale, (width, height), box)
                    print(f"hatch {symbol['name']}: {share:.2%} off")
                    self.assertLess(share, 0.01)
                    measured += 1
        self.assertGreater(measured, 3)

    def off_cells(self, shown, symbol, scale, pixels, box):
        """Pictures repeat from the world's upper left corner, and a cell begins at its lower left one."""
        corner = (WORLD - SIZE) / 2
        anchor = (-(corner % pixels[0]), pixels[1] - corner % pixels[1])
        sheet = painter.Sheet(SIZE, PIXELS)
        stretch = (pixels[0] / box[0], pixels[1] / box[1])
        rings = [[(20 / stretch[0], 20 / stretch[1]), (380 / stretch[0], 20 / stretch[1]),
                  (380 / stretch[0], 380 / stretch[1]), (20 / stretch[0], 380 / stretch[1])]]
        sheet.add(f'<g transform="scale({stretch[0]} {stretch[1]})">')
        painter.paint_area(sheet, symbol, rings, (anchor[0] / stretch[0], anchor[1] / stretch[1]), PIXELS * scale)
        sheet.add("</g>")
        picture = sheet.paint()
        # Where a polygon ends lies between pixels.
        for image in (shown, picture):
            image[:24] = image[-24:] = image[:, :24] = image[:, -24:] = 255
        return painter.off(shown, picture)

    def test_blocks_stand_at_their_points_and_turn(self):
        file = os.path.join(examples, "drawings", "street-furniture.dxf")
        symbols = convert("blocks", file, site, "--scale", "0.01")
        style = read_style(site)
        ids = {layer["id"] for layer in style["layers"]}
        measured = 0
        for symbol in symbols:
            if symbol["name"] not in ids or painter.has_text(symbol):
                continue
            with self.subTest(symbol["name"]):
                geometry = {"type": "Point", "coordinates": [0, 0]}
                sheet = painter.Sheet(SIZE, PIXELS)
                painter.paint_point(sheet, symbol, (SIZE / 2, SIZE / 2), 0.01 * PIXELS)
                picture = sheet.paint()
                self.assertLess(painter.off(self.show(style, symbol["name"], geometry), picture), 0.01)
                turned = self.show(style, symbol["name"], geometry, ROTATION=90)
                self.assertLess(painter.off(turned, numpy.rot90(picture).copy()), 0.01)
                measured += 1
        self.assertGreaterEqual(measured, 2)

    def test_linetypes_look_as_the_definition_says(self):
        worst = []
        for file, options in files_of("linetypes"):
            symbols = convert("linetypes", file, site, *options)
            style = read_style(site)
            ids = {layer["id"] for layer in style["layers"]}
            for symbol in symbols:
                if symbol["name"] not in ids or painter.has_text(symbol):
                    continue
                ends = [(20, 200), (380, 200)]
                geometry = {"type": "LineString", "coordinates": [lonlat(x, y, TILE) for x, y in ends]}
                shown = self.show(style, symbol["name"], geometry, TILE)
                sheet = painter.Sheet(SIZE, PIXELS)
                painter.paint_line(sheet, symbol, painter.Way(ends), PIXELS)
                picture = sheet.paint()
                # What reaches over an end is cut in one and whole in the other.
                for image in (shown, picture):
                    image[:, :40] = image[:, -40:] = 255
                worst.append((painter.off(shown, picture), symbol["name"]))
        print("Off along lines:", ", ".join(f"{name} {share:.1%}" for share, name in sorted(worst, reverse=True)))
        self.assertGreater(len(worst), 5)
        self.assertLess(max(worst)[0], 0.01)

    def test_what_stands_above_a_line_is_shown_above_it(self):
        file = os.path.join(folder, "above.lin")
        with open(file, "w", encoding="utf-8") as stream:
            stream.write('*ABOVE\nA,4,["L",STANDARD,S=2,X=0,Y=1],-4\n')
        convert("linetypes", file, site)
        for points, above in (([(20, 200), (380, 200)], True), ([(380, 200), (20, 200)], False)):
            geometry = {"type": "LineString", "coordinates": [lonlat(x, y) for x, y in points]}
            ink = painter.darkness(self.show(read_style(site), "ABOVE", geometry)) > 127
            self.assertEqual(bool(ink[:195].any()), above)
            self.assertEqual(bool(ink[205:].any()), not above)

    def test_dashes_are_as_long_as_in_the_definition(self):
        file = os.path.join(folder, "dashes.lin")
        with open(file, "w", encoding="utf-8") as stream:
            stream.write("*DASHES\nA,8,-4\n")
        convert("linetypes", file, site)
        geometry = {"type": "LineString", "coordinates": [lonlat(20, 200), lonlat(380, 200)]}
        row = (painter.darkness(self.show(read_style(site), "DASHES", geometry)) > 127)[200 - 1 : 200 + 2].any(axis=0)
        # 8 of 12 millimetres; half a dash at each end is neither.
        share = row[30:370].sum() / 340
        self.assertAlmostEqual(share, 8 / 12, delta=0.06)


class Pictures(Browser):
    """Maps of three symbols side by side."""

    def strip(self, name, maps):
        image = Image.new("RGB", (900, 300), "white")
        for i, shown in enumerate(maps):
            image.paste(Image.fromarray(shown).crop((50, 50, 350, 350)), (i * 300, 0))
        image.quantize(32).save(os.path.join(pictures, name), optimize=True)

    def maps(self, command, file, options, geometry, names):
        convert(command, os.path.join(examples, file), site, *options)
        return [self.show(read_style(site), name, geometry, TILE) for name in names]

    def test_are_those_of_the_documentation(self):
        self.take()
        if documentation:
            return
        for name in ("maplibre-hatches.png", "maplibre-lines.png", "maplibre-blocks.png"):
            with self.subTest(name):
                shown, drawn = (numpy.asarray(Image.open(os.path.join(place, name)).convert("RGB"))
                                for place in (os.path.join(HERE, "..", "..", "docs"), pictures))
                self.assertEqual(shown.shape, drawn.shape)
                self.assertLess(painter.off(shown, drawn), 0.01)

    def take(self):
        def placed(points):
            return [lonlat(x, y, TILE) for x, y in points]

        rings = [[(70, 90), (310, 70), (330, 280), (200, 335), (80, 310), (70, 90)],
                 [(160, 170), (240, 160), (205, 250), (160, 170)]]
        area = {"type": "Polygon", "coordinates": [placed(ring) for ring in rings]}
        hatches = []
        for name, scale in (("brick", 4), ("herringbone", 4), ("plank", 4)):
            hatches += self.maps("patterns", f"patterns/{name}.pat", ["--scale", str(scale)], area, [name.upper()])
        self.strip("maplibre-hatches.png", hatches)
        way = [(70 + 2 * i, 200 + 80 * math.sin(i / 20)) for i in range(131)]
        line = {"type": "LineString", "coordinates": placed(way)}
        styles = ["--shapes", f"{examples}/shapes", "--drawing", f"{examples}/linetypes/styles.json"]
        self.strip("maplibre-lines.png", self.maps("linetypes", "linetypes/complex.lin", styles, line,
                                                   ["FENCE", "RAILWAY", "GAS_MAIN"]))
        points = {"type": "MultiPoint", "coordinates": placed([(130, 200), (270, 200)])}
        self.strip("maplibre-blocks.png", self.maps("blocks", "drawings/street-furniture.dxf", ["--scale", "0.01"],
                                                    points, ["BENCH", "LAMP", "SIGN"]))


class Quiet(http.server.SimpleHTTPRequestHandler):
    def log_message(self, *arguments):
        pass

    def end_headers(self):
        # Files of one name follow each other within the second that their times are told in.
        self.send_header("Cache-Control", "no-store")
        super().end_headers()


if __name__ == "__main__":
    styleconv, examples, modules = (os.path.abspath(path) for path in sys.argv[1:4])
    documentation = os.path.abspath(sys.argv[4]) if len(sys.argv) > 4 else None
    more = os.environ.get("STYLECONV_MORE_FILES")
    sys.argv[1:] = ["Pictures"] if documentation else ["Styles", "Maps", "Pictures"]
    with tempfile.TemporaryDirectory() as folder:
        site, pictures = os.path.join(folder, "site"), documentation or os.path.join(folder, "pictures")
        os.makedirs(site)
        os.makedirs(pictures, exist_ok=True)
        os.symlink(os.path.join(modules, "maplibre-gl"), os.path.join(site, "maplibre-gl"))
        with open(os.path.join(site, "index.html"), "w", encoding="utf-8") as stream:
            stream.write(PAGE)
        unittest.main()
