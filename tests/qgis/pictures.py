"""Takes the pictures of docs/qgis.md: pictures.py STYLECONV EXAMPLES FOLDER"""
import math
import os
import subprocess
import sys
import tempfile

import maps
from PIL import Image

styleconv, examples, target = map(os.path.abspath, sys.argv[1:4])
WIDTH, HEIGHT = 900, 300  # pixels


def library(command, file, *options):
    path = os.path.join(folder, "library.xml")
    subprocess.run(
        [styleconv, command, f"{examples}/{file}", "--format", "qgis", "-o", path, *options],
        check=True,
        stderr=subprocess.DEVNULL,
    )
    style, imported = maps.read_library(path)
    assert imported, file
    return style


def strip(layers, name):
    """Maps of the layers side by side; in millimetres of the page."""
    side = WIDTH // len(layers)
    image = Image.new("RGB", (WIDTH, HEIGHT), "white")
    for i, layer in enumerate(layers):
        pixels, _ = maps.draw(layer, (0, 0, side / maps.MM, HEIGHT / maps.MM), HEIGHT, side)
        image.paste(Image.fromarray(pixels), (i * side, 0))
    image.quantize(32).save(os.path.join(target, name), optimize=True)


def hatches():
    layers = []
    for file in ("brick", "herringbone", "marsh"):
        style = library("patterns", f"patterns/{file}.pat")
        shape = [[(3, 5), (33, 3), (37, 30), (20, 37), (4, 33)], [(15, 15), (25, 14), (21, 23)]]
        layers.append(maps.layer_of([maps.polygon(shape)], style.symbol(file.upper())))
    strip(layers, "qgis-hatches.png")


def lines():
    style = library(
        "linetypes",
        "linetypes/complex.lin",
        "--shapes",
        f"{examples}/shapes",
        "--drawing",
        f"{examples}/linetypes/styles.json",
    )
    way = [(3 + i / 4, 20 + 12 * math.sin(i / 20)) for i in range(132)]
    strip([maps.layer_of([maps.line(way)], style.symbol(name)) for name in ("FENCE", "RAILWAY", "GAS_MAIN")], "qgis-lines.png")


def blocks():
    layers = []
    for file, name in (("street-furniture.dxf", "LAMP"), ("survey-symbols.json", "TREE"), ("survey-symbols.json", "HYDRANT")):
        symbol = library("blocks", f"drawings/{file}").symbol(name)
        symbol.setSize(14)
        layers.append(maps.layer_of(["POINT(10 12)", "POINT(28 28)"], symbol))
    strip(layers, "qgis-blocks.png")


with tempfile.TemporaryDirectory() as folder:
    hatches()
    lines()
    blocks()
sys.stdout.flush()
os._exit(0)
