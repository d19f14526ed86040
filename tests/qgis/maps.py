"""Maps of one layer, drawn by QGIS without a window."""
import os
import time

os.environ.setdefault("QT_QPA_PLATFORM", "offscreen")

import numpy
from qgis.core import (
    QgsApplication,
    QgsExpressionContext,
    QgsExpressionContextUtils,
    QgsFeature,
    QgsField,
    QgsGeometry,
    QgsMapRendererCustomPainterJob,
    QgsMapSettings,
    QgsRectangle,
    QgsSingleSymbolRenderer,
    QgsStyle,
    QgsVectorLayer,
)
from qgis.PyQt.QtCore import QSize, QVariant
from qgis.PyQt.QtGui import QColor, QImage, QPainter

SIZE = 500  # pixels
DPI = 192
MM = DPI / 25.4  # pixels

application = QgsApplication([], False)
application.initQgis()


def read_library(path):
    """The library in memory, and whether it was imported."""
    style = QgsStyle()
    style.createMemoryDatabase()
    return style, style.importXml(path)


def layer_of(wkts, symbol, crs="EPSG:25832", fields=()):
    kind = {0: "Point", 1: "LineString", 2: "Polygon"}[symbol_geometry(symbol)]
    if any(wkt.upper().startswith("MULTI") for wkt in wkts):
        kind = "Multi" + kind
    layer = QgsVectorLayer(f"{kind}?crs={crs}", "layer", "memory")
    layer.dataProvider().addAttributes([QgsField(name, QVariant.String) for name, _ in fields])
    layer.updateFields()
    features = []
    for wkt in wkts:
        feature = QgsFeature(layer.fields())
        feature.setGeometry(QgsGeometry.fromWkt(wkt))
        for name, text in fields:
            feature[name] = text
        features.append(feature)
    layer.dataProvider().addFeatures(features)
    layer.setRenderer(QgsSingleSymbolRenderer(symbol.clone()))
    return layer


def symbol_geometry(symbol):
    return {0: 0, 1: 1, 2: 2}[int(symbol.type())]


def draw(layer, extent, size=SIZE, width=None):
    """The map of an extent (xmin, ymin, xmax, ymax) as pixels, and the processor seconds that it took."""
    settings = QgsMapSettings()
    settings.setLayers([layer])
    settings.setOutputSize(QSize(width or size, size))
    settings.setOutputDpi(DPI)
    settings.setExtent(QgsRectangle(*extent))
    settings.setBackgroundColor(QColor("white"))
    settings.setDestinationCrs(layer.crs())
    settings.setFlag(QgsMapSettings.Antialiasing, True)
    # As the program's own window has it.
    context = QgsExpressionContext()
    context.appendScope(QgsExpressionContextUtils.globalScope())
    context.appendScope(QgsExpressionContextUtils.mapSettingsScope(settings))
    settings.setExpressionContext(context)
    image = QImage(QSize(width or size, size), QImage.Format_ARGB32_Premultiplied)
    image.setDotsPerMeterX(int(DPI / 25.4 * 1000))
    image.setDotsPerMeterY(int(DPI / 25.4 * 1000))
    image.fill(QColor("white"))
    painter = QPainter(image)
    before = time.process_time()
    job = QgsMapRendererCustomPainterJob(settings, painter)
    job.renderSynchronously()
    taken = time.process_time() - before
    painter.end()
    image = image.convertToFormat(QImage.Format_RGB888)
    bits = image.constBits()
    bits.setsize(image.byteCount())
    pixels = numpy.frombuffer(bits, numpy.uint8).reshape(image.height(), image.bytesPerLine())
    return pixels[:, : image.width() * 3].reshape(image.height(), image.width(), 3).copy(), taken


def polygon(rings):
    return "POLYGON(" + ",".join("(" + ",".join(f"{x} {y}" for x, y in ring + ring[:1]) + ")" for ring in rings) + ")"


def line(points):
    return "LINESTRING(" + ",".join(f"{x} {y}" for x, y in points) + ")"
