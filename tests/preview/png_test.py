"""Compares PNG pictures of the tool with what a browser shows of the same SVG: png_test.py STYLECONV CHROMIUM CHROMEDRIVER
EXAMPLES"""
import glob
import io
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

from PIL import Image, ImageFilter
from selenium import webdriver
from selenium.webdriver.chrome.options import Options
from selenium.webdriver.chrome.service import Service

import programs

# The width and height of a single symbol's picture and where its caption begins; a row of a sheet and the same in it.
SINGLE = (640, 556, 440)
SHEET = (320, 236)

NOT_INSTALLED = "librsvg, which makes PNG pictures, is not installed (Debian package librsvg2-2)"


def start_browser(profile):
    options = Options()
    options.binary_location = chromium
    for argument in ("--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--no-first-run",
                     "--disable-background-networking", "--hide-scrollbars", "--force-device-scale-factor=1",
                     "--window-size=2100,2200", "--user-data-dir=" + profile):
        options.add_argument(argument)
    return webdriver.Chrome(options=options, service=Service(chromedriver))


def run(*arguments, env=None, text=True):
    return subprocess.run([tool, *arguments], capture_output=True, text=text, check=False, env=env)


def on_white(image):
    image = image.convert("RGBA")
    paper = Image.new("RGB", image.size, "white")
    paper.paste(image, mask=image.getchannel("A"))
    return paper


def ink(image, lightest=128):
    """255 where it is darker than that."""
    return on_white(image).convert("L").point(lambda value: 255 if value < lightest else 0)


def off(image, other):
    """The share of ink that is more than a pixel from any ink of the other picture, the larger one of both ways. What is
    narrower than a pixel may be lighter in the other one."""
    shares = []
    for one, two in ((ink(image), ink(other, 208)), (ink(other), ink(image, 208))):
        near = two.filter(ImageFilter.MaxFilter(3))
        all_ink = sum(value > 0 for value in one.getdata())
        far = sum(a > 0 and b == 0 for a, b in zip(one.getdata(), near.getdata()))
        shares.append(far / max(1, all_ink))
    return max(shares)


def without_captions(image):
    """Letters, which stand below the pictures, are drawn by each program's own typeface and hinting."""
    image = on_white(image)
    if image.size == SINGLE[:2]:
        return image.crop((0, 0, image.width, SINGLE[2]))
    card, picture = SHEET
    for row in range(0, image.height // card):
        image.paste("white", (0, row * card + picture, image.width, (row + 1) * card))
    return image


class Pictures(unittest.TestCase):
    def browsers(self, svg):
        """What the browser shows of an SVG document, on white."""
        path = os.path.join(folder, "shown.svg")
        with open(path, "w", encoding="utf-8") as file:
            file.write(svg)
        page = os.path.join(folder, "page.html")
        with open(page, "w", encoding="utf-8") as file:
            file.write('<body style="margin:0"><img src="shown.svg" style="display:block">')
        browser.get(pathlib.Path(page).as_uri())
        return Image.open(io.BytesIO(browser.find_element("tag name", "img").screenshot_as_png))

    def test_one_symbol_and_sheets_look_as_in_the_browser(self):
        compared = 0
        for command, file, *options in (
            ("patterns", "patterns/brick.pat"),
            ("patterns", "patterns/marsh.pat", "--faithful"),
            ("linetypes", "linetypes/simple.lin"),
            ("blocks", "drawings/street-furniture.dxf"),
            ("glyphs", "shapes/marks.shx"),
        ):
            with self.subTest(file):
                file = os.path.join(examples, file)
                svg = run(command, file, *options, "--format", "svg").stdout
                png = os.path.join(folder, "picture.png")
                made = run(command, file, *options, "-o", png)
                self.assertEqual(made.returncode, 0, made.stderr)
                picture = Image.open(png)
                shown = self.browsers(svg)
                self.assertEqual(picture.size, shown.size)
                self.assertGreater(sum(value > 0 for value in ink(picture).getdata()), 500)
                self.assertLess(off(without_captions(picture), without_captions(shown)), 0.005)
                compared += 1
        self.assertEqual(compared, 5)

    def test_pictures_without_letters_agree_to_a_thousandth(self):
        measured = []
        for command, file, *options in (
            ("patterns", "patterns/*.pat", "--allow-approximate", "--scale", "4"),
            ("linetypes", "linetypes/simple.lin"),
            ("blocks", "drawings/street-furniture.dxf", "--scale", "0.01"),
        ):
            for path in sorted(glob.glob(os.path.join(examples, file))):
                target = os.path.join(folder, "style")
                for old in glob.glob(os.path.join(target, "sprite", "*")):
                    os.remove(old)
                made = run(command, path, *options, "--format", "maplibre", "-o", target)
                self.assertEqual(made.returncode, 0, made.stderr)
                self.assertNotIn("sprite", made.stderr)
                for name, ratio in (("sprite", 1), ("sprite@2x", 2)):
                    with open(os.path.join(target, name + ".json"), encoding="utf-8") as stream:
                        index = json.load(stream)
                    sheet = Image.open(os.path.join(target, name + ".png"))
                    self.assertEqual(sheet.mode, "RGBA")
                    svgs = {p.stem: p for p in pathlib.Path(target, "sprite").glob("*.svg")}
                    self.assertEqual(set(index), set(svgs))
                    for key, place in index.items():
                        self.assertEqual(place["pixelRatio"], ratio)
                        svg = svgs[key].read_text(encoding="utf-8")
                        if "<text" in svg:
                            continue
                        larger = re.sub(r' (width|height)="(\d+)"', lambda m: f' {m[1]}="{int(m[2]) * ratio}"',
                                        svg, count=2)
                        shown = self.browsers(larger)
                        x, y, width, height = (place[side] for side in ("x", "y", "width", "height"))
                        self.assertEqual((width, height), shown.size, key)
                        share = off(sheet.crop((x, y, x + width, y + height)), shown)
                        measured.append((share, key, ratio))
        self.assertGreater(len(measured), 15)
        self.assertLess(max(measured)[0], 0.001, max(measured))

    def test_bare_pictures_have_their_true_size(self):
        for command, file, *options in (
            ("patterns", "patterns/herringbone.pat", "--scale", "25.4"),
            ("linetypes", "linetypes/simple.lin", "--name", "TRACK", "--scale", "5", "--length", "50.8"),
            ("blocks", "drawings/utility-symbols.json", "--name", "DUCT"),
            ("glyphs", "shapes/single-stroke.shx", "--number", "65"),
        ):
            with self.subTest(file):
                options = [command, os.path.join(examples, file), *options, "--bare"]
                svg = run(*options, "--format", "svg").stdout
                size = [float(side) * 96 / 25.4 for side in re.search(r' width="(.+?)mm" height="(.+?)mm"', svg).groups()]
                picture = Image.open(io.BytesIO(run(*options, "--format", "png", text=False).stdout))
                for pixels, side in zip(picture.size, size):
                    self.assertLessEqual(abs(pixels - side), 1)
                self.assertGreater(sum(value > 0 for value in ink(picture).getdata()), 50)
                shown = self.browsers(svg)
                both = (0, 0, *map(min, picture.size, shown.size))
                self.assertLess(off(picture.crop(both), shown.crop(both)), 0.01)

    def test_png_is_written_to_standard_output_too(self):
        made = run("patterns", os.path.join(examples, "patterns", "brick.pat"), "--format", "png", text=False)
        self.assertEqual(made.returncode, 0, made.stderr)
        self.assertEqual(Image.open(io.BytesIO(made.stdout)).size, (640, 556))

    def test_a_sheet_that_is_too_large_is_refused(self):
        path = os.path.join(folder, "many.pat")
        with open(path, "w", encoding="utf-8") as file:
            file.write("".join(f"*P{i}\n0,0,0,0,1\n" for i in range(613)))
        target = os.path.join(folder, "many.png")
        made = run("patterns", path, "-o", target)
        self.assertEqual(made.returncode, 1)
        self.assertRegex(made.stderr, r"many\.png: error: the picture would be 1912 x \d+ pixels; PNG pictures have at most "
                                      r"32767 a side and 100 million in all; --format svg has no such limits\n$")
        self.assertFalse(os.path.exists(target))
        # A row of six symbols less.
        with open(path, "w", encoding="utf-8") as file:
            file.write("".join(f"*P{i}\n0,0,0,0,1\n" for i in range(606)))
        self.assertEqual(run("patterns", path, "-o", target).returncode, 0)


class WithoutTheLibrary(unittest.TestCase):
    """As on a machine that has none: a file that is no library stands in its place."""

    def setUp(self):
        self.libraries = os.path.join(folder, "libraries")
        os.makedirs(self.libraries, exist_ok=True)
        with open(os.path.join(self.libraries, "librsvg-2.so.2"), "w", encoding="utf-8"):
            pass
        self.env = dict(os.environ, LD_LIBRARY_PATH=self.libraries)
        self.file = os.path.join(examples, "drawings", "street-furniture.dxf")

    def test_png_is_refused_with_the_package_that_helps(self):
        made = run("blocks", self.file, "--format", "png", env=self.env)
        self.assertEqual((made.returncode, made.stdout), (2, ""))
        self.assertEqual(made.stderr, f"styleconv: --format png: {NOT_INSTALLED}\n")

    def test_a_style_is_written_without_its_sheet(self):
        target = os.path.join(folder, "bare")
        made = run("blocks", self.file, "--scale", "0.01", "--format", "maplibre", "-o", target, env=self.env)
        self.assertEqual(made.returncode, 0, made.stderr)
        for name in ("sprite", "sprite@2x"):
            self.assertIn(f"{target}/{name}.png: note: not written: {NOT_INSTALLED}; a sprite builder makes it of the "
                          "folder sprite\n", made.stderr)
        self.assertEqual(sorted(os.listdir(target)), ["sprite", "style.json"])
        self.assertGreater(len(os.listdir(os.path.join(target, "sprite"))), 2)

    def test_everything_else_works(self):
        for form in ("json", "svg", "html", "qgis"):
            self.assertEqual(run("blocks", self.file, "--format", form, env=self.env).stdout,
                             run("blocks", self.file, "--format", form).stdout, form)


if __name__ == "__main__":
    tool, chromium, chromedriver, examples = sys.argv[1:5]
    programs.require(chromium, chromedriver)
    with tempfile.TemporaryDirectory() as folder:
        browser = start_browser(os.path.join(folder, "profile"))
        try:
            unittest.main(argv=sys.argv[:1], verbosity=2)
        finally:
            browser.quit()
