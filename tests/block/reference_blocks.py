"""Block conversion written a second time, straight from its rules, to compare the tool with.

Everything is done the slow way: parameters are searched for one by one, patterns are walked entry by entry. Splines
and hatch patterns, which need the drawing's own geometry, are not known here.
"""
import ctypes
import math
from fractions import Fraction

# Where sines, cosines and arctangents come from. Those of two systems differ in the last bit now and then, so for a
# tool that runs on another system this is to be that system's.
maths = math

PI = 3.141592653589793
HALF_PI = 1.5707963267948966
TWO_PI = 6.283185307179586

FACTORS = [1000.0, 25.4, 304.79999999999995, 1609344.0, 1.0, 10.0, 1000.0, 1000000.0, 2.5399999999999997e-05, 0.0254,
           914.4, 1e-07, 1e-06, 0.001, 100.0, 10000.0, 100000.0, 1e12, 1.5e14, 9.46e18, 3.09e19]


def to_int32(value):
    if math.isnan(value) or not -2147483649.0 < value < 2147483648.0:
        return -2147483648
    return int(value)


def divide(a, b):
    """As the machine divides."""
    if b == 0:
        if a == 0 or math.isnan(a):
            return math.nan
        return math.copysign(math.inf, a) * math.copysign(1.0, b)
    return a / b


def trimmed(value):
    text = "%.5f" % value
    length = len(text)
    cut = length
    for back in (1, 2, 3, 4):
        if text[length - back] == "0":
            cut = length - back
    return text[:cut]


def line_angle(a, b):
    if a[0] == b[0]:
        return HALF_PI if b[1] > a[1] else -HALF_PI
    angle = maths.atan((b[1] - a[1]) / (b[0] - a[0]))
    if a[0] > b[0]:
        angle += PI
    return angle


def distance(a, b):
    dx = b[0] - a[0]
    dy = b[1] - a[1]
    return math.sqrt(dx * dx + dy * dy)


def wrap32(value):
    return ctypes.c_int32(value & 0xffffffff).value


# Colours ------------------------------------------------------------------------------------------------------------

def palette(index):
    fixed = {1: "ff0000", 2: "ffff00", 3: "00ff00", 4: "00ffff", 5: "0000ff", 6: "ff00ff", 7: "ffffff", 8: "808080",
             9: "c0c0c0", 250: "333333", 251: "5b5b5b", 252: "848484", 253: "adadad", 254: "d6d6d6", 255: "ffffff"}
    if index in fixed:
        return fixed[index]
    hue = (index // 10 - 1) * 15
    value = [Fraction(1), Fraction(4, 5), Fraction(3, 5), Fraction(1, 2), Fraction(3, 10)][index % 10 // 2]
    saturation = Fraction(1) if index % 2 == 0 else Fraction(1, 2)
    sector, within = divmod(Fraction(hue, 60), 1)
    p = value * (1 - saturation)
    q = value * (1 - saturation * within)
    t = value * (1 - saturation * (1 - within))
    channels = [(value, t, p), (q, value, p), (p, value, t), (p, q, value), (t, p, value), (value, p, q)][int(sector)]
    return "".join("%02x" % int(channel * 255) for channel in channels)


def true_color(color):
    if color in ("ByLayer", "ByBlock"):
        return "000000"
    if isinstance(color, int):
        return palette(color)
    return color[1:].lower()


def color_text(color):
    return "ff" + true_color(color)


def weight_text(code):
    return trimmed(code * 0.01 * 2.0 if 0 <= code <= 211 else 0.0)


# Shape files --------------------------------------------------------------------------------------------------------

DIRECTIONS = [(1, 0), (1, .5), (1, 1), (.5, 1), (0, 1), (-.5, 1), (-1, 1), (-1, .5), (-1, 0), (-1, -.5), (-1, -1),
              (-.5, -1), (0, -1), (.5, -1), (1, -1), (1, -.5)]


class ShapeFile:
    """Shapes of vectors, moves, pen codes, factors, saved positions and octant arcs."""

    def __init__(self, shapes, font_info=b""):
        self.shapes = shapes  # number -> bytes
        self.font_info = font_info

    def bytes(self):
        entries = ([(0, b"font", self.font_info)] if self.font_info else []) + \
            [(number, b"", program) for number, program in self.shapes.items()]
        index = b"".join(number.to_bytes(2, "little") + (len(name) + 1 + len(data)).to_bytes(2, "little")
                         for number, name, data in entries)
        body = b"".join(name + b"\0" + data for _, name, data in entries)
        return (b"Vorlanx-86 shapes 1.0\r\n\x1a" + bytes(4) + len(entries).to_bytes(2, "little") + index + body + b"EOF")

    def draw(self, number, state, rotation):
        """The path of a shape; state is [x, y, scale], left where drawing stopped. None after a failure."""
        program = self.shapes.get(number & 0xffff)
        if program is None:
            return ""
        path = ""
        stack = []
        pen = True
        degrees = rotation * 57.29577951308232
        at = 0
        while at < len(program):
            code = program[at]
            at += 1
            if code == 0:
                break
            if code == 1:
                pen = True
            elif code == 2:
                pen = False
            elif code in (3, 4):
                factor = program[at]
                at += 1
                state[2] = state[2] / factor if code == 3 else state[2] * factor
            elif code == 5:
                if len(stack) == 3:
                    return ""
                stack.append((state[0], state[1]))
            elif code == 6:
                if not stack:
                    return ""
                state[0], state[1] = stack.pop()
            elif code == 10:
                radius, octants = program[at], program[at + 1]
                at += 2
                span = octants & 7
                if span == 0:
                    span = 8
                elif octants & 0x80:
                    span = -span
                start = (octants >> 4 & 7) * 45.0
                path += self.arc(state, start, start + span * 45.0, radius, degrees)
            elif code == 8 or code > 14:
                if code == 8:
                    dx, dy = (ctypes.c_int8(program[at + i]).value for i in (0, 1))
                    at += 2
                else:
                    dx, dy = (code >> 4) * DIRECTIONS[code & 15][0], (code >> 4) * DIRECTIONS[code & 15][1]
                theta = degrees * PI / 180
                x = (maths.cos(theta) * dx - maths.sin(theta) * dy) * state[2]
                y = (maths.sin(theta) * dx + maths.cos(theta) * dy) * state[2]
                if pen:
                    path += "M %.15g,%.15g l %.15g,%.15g " % (state[0], state[1], x, y)
                state[0] += x
                state[1] += y
        return path

    @staticmethod
    def arc(state, start, end, radius, degrees):
        path = ""
        start += degrees
        end += degrees
        r = radius * state[2]

        def piece(a, b, large, sweep):
            text = "M %.15g,%.15g " % (state[0], state[1])
            state[0] += r * (maths.cos(b * PI / 180) - maths.cos(a * PI / 180))
            state[1] += r * (maths.sin(b * PI / 180) - maths.sin(a * PI / 180))
            return text + "A %.15g,%.15g 0 %d %d %.15g,%.15g " % (r, r, large, sweep, state[0], state[1])

        if end - start >= 270:
            path += piece(start, start + 180, 0, 0)
            start += 180
        elif end - start <= -270:
            path += piece(start, start - 180, 0, 1)
            start -= 180
        return path + piece(start, end, int(abs(end - start) > 180), int(end - start < 0))


# The converter ------------------------------------------------------------------------------------------------------

class Linetype:
    def __init__(self, record):
        self.dashes = record.get("dashes", [])
        lengths = [dash["length"] for dash in self.dashes]
        total = 0.0
        for length in lengths:
            total += abs(length)
        self.pattern_length = float(record.get("patternLength", total))

    def length(self, i):
        return float(self.dashes[i]["length"]) if i < len(self.dashes) else 0.0


class Converter:
    def __init__(self, drawing, files, ignored=()):
        self.drawing = drawing
        self.files = files  # file name -> ShapeFile
        self.ignored = ignored
        self.scale = 1.0
        self.set_scale(drawing.get("insunits", 0))

    def set_scale(self, units):
        if 0 <= units <= 20:
            self.scale = FACTORS[units]

    def find(self, table, name):
        for record in self.drawing.get(table, []):
            if record["name"].lower() == name.lower():
                return record
        return None

    # Texts of values

    def number(self, value):
        return trimmed(value * self.scale)

    def point(self, p):
        return trimmed(p[0] * self.scale) + "," + trimmed(p[1] * self.scale)

    def line_piece(self, a, b):
        dx = abs(a[0] - b[0])
        dy = abs(a[1] - b[1])
        if (dx < 1e-6 and dy < 1e-6) or (dx > 1e-6 and dy > 1e-6):
            return " L " + self.point(b)
        if dx < 1e-6:
            return " v " + self.number(b[1] - a[1])
        if dy < 1e-6:
            return " h " + self.number(b[0] - a[0])
        return ""

    def arc_piece(self, rx, ry, rotation, large, sweep, end):
        return (" A " + self.point((rx, ry)) + " " + trimmed(rotation) + (" 1" if large else " 0") +
                (" 1 " if sweep else " 0 ") + self.point(end))

    # The frame

    def convert(self, block):
        units = block.get("units", 0)
        own = units != self.drawing.get("insunits", 0) and units != 0
        if own:
            self.set_scale(units)
        self.block = block
        self.graphics = []
        self.parameters = []
        entities = block["entities"]
        order = block.get("drawOrder")
        if order:
            by_id = {entity["id"]: entity for entity in entities if "id" in entity}
            entities = [by_id[name] for name in order]
        for entity in entities:
            if entity.get("layer", "0") not in self.ignored:
                collector = getattr(self, "collect_" + entity["type"], None)
                if collector:
                    collector(entity)
        self.parameter("ROTATION", "&Rotation", "Rotation", self.number(0.0), 5)
        if own:
            self.set_scale(self.drawing.get("insunits", 0))
        return {"type": "SimpleSymbolDefinition", "name": block["name"], "graphics": self.graphics,
                "parameters": self.parameters, "pointUsage": {"angle": "%ROTATION%"}}

    def parameter(self, identifier, name, description, default, kind):
        record = {"identifier": identifier, "displayName": name, "description": description, "defaultValue": default,
                  "dataType": kind}
        self.parameters.append({key: value for key, value in record.items() if value != ""})

    def graphic(self, kind, **values):
        self.graphics.append({"type": kind, **{key: value for key, value in values.items() if value != ""}})

    # Colour and line weight

    def refer(self, identifier, display, default, kind):
        if not any(parameter.get("identifier", "") == identifier for parameter in self.parameters):
            self.parameter(identifier, display, display, default, kind)
        return "%" + identifier + "%"

    def first_reference(self):
        for block in self.drawing["blocks"]:
            for entity in block["entities"]:
                if entity["type"] == "insert" and entity["block"].lower() == self.block["name"].lower():
                    return entity
        return None

    def layer_of(self, entity):
        return self.find("layers", entity.get("layer", "0"))

    def color(self, entity, color):
        if color == "ByBlock":
            color = "#000000"
            reference = self.first_reference()
            if reference is not None:
                color = reference.get("color", "ByLayer")
                if color == "ByLayer":
                    layer = self.layer_of(reference)
                    if layer is not None:
                        color = layer.get("color", 7)
                name = self.block["name"]
                return self.refer("COLORBYBLOCK" + name, "Color Defined ByBlock " + name, color_text(color), 7)
        if color == "ByLayer":
            layer = self.layer_of(entity)
            if layer is None:
                return "ff000000"
            name = layer["name"]
            return self.refer("COLORBYLAYER" + name, "Color Defined ByLayer " + name,
                              color_text(layer.get("color", 7)), 7)
        return color_text(color)

    def own_color(self, entity):
        return self.color(entity, entity.get("color", "ByLayer"))

    def weight(self, entity):
        weight = entity.get("lineWeight", -1)
        if weight == -2:
            reference = self.first_reference()
            if reference is None:
                return "0.0"
            weight = reference.get("lineWeight", -1)
            if weight == -1:
                layer = self.layer_of(reference)
                if layer is not None:
                    weight = layer.get("lineWeight", -3)
            name = self.block["name"]
            return self.refer("LWBYBLOCK" + name, "Lineweight Defined ByBlock " + name, weight_text(weight), 8)
        if weight != -1:
            return weight_text(weight)
        layer = self.layer_of(entity)
        if layer is None:
            return "0.0"
        name = layer["name"]
        return self.refer("LWBYLAYER" + name, "Lineweight Defined ByLayer " + name,
                          weight_text(layer.get("lineWeight", -3)), 8)

    # Linetypes

    def linetype(self, entity):
        name = entity.get("linetype", "ByLayer")
        record = self.find("linetypes", name)
        if record is not None:
            return Linetype(record)
        if name.lower() in ("bylayer", "byblock", "continuous"):
            return Linetype({})
        return None

    def shape(self, linetype, i, at, direction, stretch=1.0):
        dash = linetype.dashes[i]
        if not dash.get("shapeStyle"):
            return ""
        style = self.find("textStyles", dash["shapeStyle"])
        if style is None:
            return ""
        file = self.files.get(style.get("fileName", "")) or self.files.get(style.get("fileName", "") + ".shx")
        if file is None:
            return ""
        ox, oy = dash.get("offset", [0, 0])
        c = maths.cos(direction)
        s = maths.sin(direction)
        state = [at[0] + c * ox - s * oy, at[1] + s * ox + c * oy, dash.get("scale", 1.0) * stretch]
        rotation = dash.get("rotation", 0.0) + direction
        if dash.get("shapeNumber", 0) != 0:
            return file.draw(dash["shapeNumber"], state, rotation)
        if "text" not in dash:
            return ""
        if file.font_info and file.font_info[0] != 0:
            state[2] = state[2] / ctypes.c_int8(file.font_info[0]).value
        units = dash["text"].encode("utf-16-le")
        path = ""
        for k in range(0, len(units), 2):
            path += file.draw(units[k] | units[k + 1] << 8, state, rotation)
        return path

    def fit(self, linetype, length):
        pattern = linetype.pattern_length
        n = to_int32(divide(length, pattern))
        rem = length - n * pattern
        d0 = linetype.length(0)
        if d0 > 0 and n != 0:
            return n, (d0 + rem) * 0.5
        return n, rem * 0.5

    def dash_line(self, linetype, a, b, out):
        if out[0]:
            out[0] += " "
        out[0] += "M " + self.point(a)
        if linetype is None or linetype.pattern_length == 0.0 or len(linetype.dashes) < 1:
            out[0] += " L " + self.point(b)
            return
        n, h = self.fit(linetype, distance(a, b))
        angle = line_angle(a, b)
        c = maths.cos(angle)
        s = maths.sin(angle)
        cur = (a[0] + h * c, a[1] + h * s)
        out[0] += " L " + self.point(cur)
        for r in range(n):
            for i in range(len(linetype.dashes)):
                if r == 0 and i == 0:
                    continue
                length = linetype.length(i)
                if length < 0.0:
                    out[0] += " M "
                    length = -length
                else:
                    out[0] += " L "
                cur = (cur[0] + length * c, cur[1] + length * s)
                out[0] += self.point(cur)
                out[1] += self.shape(linetype, i, cur, angle)
        out[0] += " L " + self.point((cur[0] + h * c, cur[1] + h * s))

    def dash_arc(self, linetype, a, b, center, radius, sweep, clockwise, out):
        def on(t):
            return (center[0] + radius * maths.cos(t), center[1] + radius * maths.sin(t))

        def moved(p, step):
            t = line_angle(center, p)
            return on(t - step if clockwise else t + step)

        if out[0]:
            out[0] += " "
        out[0] += "M " + self.point(a)
        if linetype is None or linetype.pattern_length == 0.0 or len(linetype.dashes) < 1:
            out[0] += self.arc_piece(radius, radius, 0.0, sweep >= PI, clockwise, b)
            return
        n, h = self.fit(linetype, radius * sweep)
        ha = h / radius
        cur = moved(a, ha)
        out[0] += self.arc_piece(radius, radius, 0.0, ha >= PI, clockwise, cur)
        for r in range(n):
            for i in range(len(linetype.dashes)):
                if r == 0 and i == 0:
                    continue
                length = linetype.length(i)
                step = abs(length) / radius
                cur = moved(cur, step)
                if length <= 0:
                    out[0] += (" M " if length < 0 else " L ") + self.point(cur)
                else:
                    out[0] += self.arc_piece(radius, radius, 0.0, step >= PI, clockwise, cur)
                out[1] += self.shape(linetype, i, cur, line_angle(center, cur) + HALF_PI)
        out[0] += self.arc_piece(radius, radius, 0.0, ha >= PI, clockwise, moved(cur, ha))

    # Simple curves

    def finish(self, entity, out):
        if out[1]:
            out[0] += " " + out[1]
        color = self.own_color(entity)
        weight = self.weight(entity)
        if out[0]:
            self.graphic("Path", geometry=out[0], lineColor=color, lineWeight=weight, lineWeightScalable="false")

    def collect_point(self, entity):
        p = entity["position"]
        self.finish(entity, ["M " + self.point(p) + " L " + self.point(p), ""])

    def collect_line(self, entity):
        out = ["", ""]
        self.dash_line(self.linetype(entity), entity["start"], entity["end"], out)
        self.finish(entity, out)

    def collect_arc(self, entity):
        out = ["", ""]
        center = entity["center"]
        radius = entity["radius"]
        clockwise = entity.get("normal", [0, 0, 1])[2] < 0

        def at(t):
            x = -maths.cos(t) if clockwise else maths.cos(t)
            return (center[0] + radius * x, center[1] + radius * maths.sin(t))

        a, b = entity["startAngle"], entity["endAngle"]
        sweep = b - a
        if sweep < 0:
            sweep += TWO_PI
        self.dash_arc(self.linetype(entity), at(a), at(b), center, radius, sweep, clockwise, out)
        self.finish(entity, out)

    def collect_circle(self, entity):
        cx, cy = entity["center"][:2]
        r = entity["radius"]
        linetype = self.linetype(entity)
        circumference = r * 2.0 * PI
        out = ["M " + self.point((cx + r, cy)), ""]
        if linetype is None or len(linetype.dashes) < 1 or not circumference > linetype.pattern_length:
            for end in ((cx - r, cy), (cx + r, cy)):
                out[0] += " A " + self.point((r, r)) + " " + trimmed(0.0) + " 0" + " 1 " + self.point(end)
            self.finish(entity, out)
            return
        n = to_int32(divide(circumference, linetype.pattern_length) + 0.5)
        s = divide(circumference, n)
        k = divide(s, linetype.pattern_length)
        x, y = cx + r, cy
        for _ in range(n):
            for i in range(len(linetype.dashes)):
                d = linetype.length(i) * k
                a = line_angle((cx, cy), (x, y))
                if d > 0:
                    a = a + d / r
                    x, y = cx + r * maths.cos(a), cy + r * maths.sin(a)
                    out[0] += (" A " + self.point((r, r)) + " " + "0.0" + (" 1" if d / r >= PI else " 0") + " 0 " +
                               self.point((x, y)))
                else:
                    out[0] += " L " if d == 0 else " M "
                    a = a - d / r
                    x, y = cx + r * maths.cos(a), cy + r * maths.sin(a)
                    out[0] += self.point((x, y))
                out[1] += self.shape(linetype, i, (x, y), line_angle((cx, cy), (x, y)) + HALF_PI, k)
        self.finish(entity, out)

    def collect_ellipse(self, entity):
        cx, cy = entity["center"][:2]
        mx, my, mz = (list(map(float, entity["majorAxis"])) + [0.0])[:3]
        ratio = entity["radiusRatio"]
        nx, ny = -my * ratio, mx * ratio
        a, b = entity.get("startAngle", 0.0), entity.get("endAngle", TWO_PI)
        rx = math.sqrt(mx * mx + my * my + mz * mz)
        ry = math.sqrt(nx * nx + ny * ny)

        def at(t):
            return (cx + mx * maths.cos(t) + nx * maths.sin(t), cy + my * maths.cos(t) + ny * maths.sin(t))

        start, end = at(a), at(b)
        rotation = maths.atan2(my, mx) * 180 / PI
        out = ["M " + self.point(start), ""]
        if abs(abs(b - a) - TWO_PI) <= 1e-9:
            opposite = (2 * cx - start[0], 2 * cy - start[1])
            for point in (opposite, start):
                out[0] += self.arc_piece(rx, ry, rotation, True, True, point)
        else:
            sweep = b - a
            while sweep < 0:
                sweep += TWO_PI
            while sweep > TWO_PI:
                sweep -= TWO_PI
            out[0] += self.arc_piece(rx, ry, rotation, sweep >= PI, False, end)
        self.finish(entity, out)

    # Polylines

    @staticmethod
    def segments(entity):
        vertices = [list(map(float, v)) + [0.0] * (3 - len(v)) for v in entity["vertices"]]
        count = len(vertices) if entity.get("closed") else len(vertices) - 1
        result = []
        for i in range(count):
            p, q = vertices[i], vertices[(i + 1) % len(vertices)]
            a, b, bulge = (p[0], p[1]), (q[0], q[1]), p[2]
            if a == b:
                continue
            if bulge == 0:
                result.append(("line", a, b))
                continue
            chord = distance(a, b)
            along = chord * (1 - bulge * bulge) / (4 * bulge)
            ux, uy = (b[0] - a[0]) / chord, (b[1] - a[1]) / chord
            center = ((a[0] + b[0]) / 2 - uy * along, (a[1] + b[1]) / 2 + ux * along)
            radius = chord * (1 + bulge * bulge) / (4 * abs(bulge))
            result.append(("arc", a, b, center, radius, 4 * maths.atan(abs(bulge)), bulge < 0))
        return result

    def collect_polyline(self, entity):
        out = ["", ""]
        linetype = self.linetype(entity)
        segments = self.segments(entity)
        if entity.get("plinegen") and linetype is not None and len(linetype.dashes) >= 1:
            self.walk(linetype, segments, out)
        else:
            for segment in segments:
                if segment[0] == "line":
                    self.dash_line(linetype, segment[1], segment[2], out)
                else:
                    self.dash_arc(linetype, *segment[1:], out)
        self.finish(entity, out)

    def walk(self, linetype, segments, out):
        total = 0.0
        for segment in segments:
            total += distance(segment[1], segment[2]) if segment[0] == "line" else segment[4] * segment[5]
        dashes = len(linetype.dashes)
        n, h = self.fit(linetype, total)
        counter = wrap32(n * dashes)
        remaining = h
        index = 0
        cur = None
        idle = 0
        is_lead = True
        is_rest = False
        solid = False
        for segment in segments:
            is_line = segment[0] == "line"
            if is_line:
                _, a, b = segment
                left = distance(a, b)
                angle = line_angle(a, b)
            else:
                _, a, b, center, radius, sweep, clockwise = segment
                left = radius * sweep
            if cur is None:
                out[0] += (" " if out[0] else "") + "M " + self.point(a)
                cur = a
            while not solid and left >= abs(remaining):
                before = left
                size = abs(remaining)
                left -= size
                if is_line:
                    cur = (cur[0] + size * maths.cos(angle), cur[1] + size * maths.sin(angle))
                else:
                    step = size / radius
                    t = line_angle(center, cur)
                    t = t - step if clockwise else t + step
                    cur = (center[0] + radius * maths.cos(t), center[1] + radius * maths.sin(t))
                if remaining > 0 and not is_line:
                    out[0] += self.arc_piece(radius, radius, 0.0, step >= PI, clockwise, cur)
                else:
                    out[0] += (" L " if remaining >= 0 else " M ") + self.point(cur)
                if is_line:
                    base = angle
                else:
                    base = line_angle(center, cur) + (-HALF_PI if clockwise else HALF_PI)
                out[1] += self.shape(linetype, index, cur, base)
                # A round of the pattern that gets nowhere.
                if left != before:
                    idle = 0
                elif not is_lead and not is_rest:
                    idle += 1
                    solid = idle >= dashes
                is_rest = False
                counter = wrap32(counter - 1)
                is_lead = counter == 0
                if is_lead:
                    remaining = h
                else:
                    index = (index + 1) % dashes
                    remaining = linetype.length(index)
            if left > 0:
                is_rest = True
                idle = 0
                if solid:
                    out[0] += " L " + self.point(b) if is_line else self.arc_piece(
                        radius, radius, 0.0, left / radius >= PI, clockwise, b)
                elif remaining < 0:
                    out[0] += " M " + self.point(b)
                    remaining += left
                elif is_line:
                    out[0] += " L " + self.point(b)
                    remaining -= left
                else:
                    out[0] += self.arc_piece(radius, radius, 0.0, remaining / radius >= PI, clockwise, b)
                cur = b

    # Areas

    def vertex_loop(self, loop, path):
        vertices = loop["vertices"]
        if len(vertices) <= 2:
            return path
        path += (" " if path else "") + "M " + self.point(vertices[0])
        for k in range(1, len(vertices)):
            bulge = vertices[k - 1][2] if len(vertices[k - 1]) > 2 else 0.0
            if bulge != 0:
                radius = abs((bulge * bulge + 1) * distance(vertices[k - 1], vertices[k]) / (4 * bulge))
                path += self.arc_piece(radius, radius, 0.0, abs(bulge) > 1, bulge < 0, vertices[k])
            else:
                path += " L " + self.point(vertices[k])
        return path

    def edge_loop(self, loop, path):
        current = None

        def start(p):
            if current is None:
                return "M " + self.point(p)
            if distance(p, current) <= 1e-10:
                return ""
            return " M " + self.point(p)

        for edge in loop["edges"]:
            kind = edge["type"]
            if kind == "line":
                path += start(edge["start"]) + self.line_piece(edge["start"], edge["end"])
                current = edge["end"]
                continue
            center = edge["center"]
            if kind == "arc":
                major, ratio = (float(edge["radius"]), 0.0), 1.0
                rx = ry = edge["radius"]
            else:
                major, ratio = tuple(map(float, edge["majorAxis"][:2])), edge["radiusRatio"]
                rx = math.sqrt(major[0] * major[0] + major[1] * major[1])
                ry = rx * ratio
            clockwise = edge.get("clockwise", False)
            minor = (-major[1] * ratio, major[0] * ratio)
            if clockwise:
                minor = (-minor[0], -minor[1])
            a, b = edge["startAngle"], edge["endAngle"]

            def at(t):
                if kind == "arc":
                    return (center[0] + rx * maths.cos(t),
                            center[1] - rx * maths.sin(t) if clockwise else center[1] + rx * maths.sin(t))
                return (center[0] + major[0] * maths.cos(t) + minor[0] * maths.sin(t),
                        center[1] + major[1] * maths.cos(t) + minor[1] * maths.sin(t))

            if abs(abs(b - a) - TWO_PI) <= 1e-9:
                p = (center[0] - rx, center[1])
                path += start(p)
                for point in ((2 * center[0] - p[0], 2 * center[1] - p[1]), p):
                    path += " A " + self.point((rx, ry)) + " 0.0 1 1 " + self.point(point)
                current = p
            else:
                sweep = b - a
                if sweep < 0:
                    sweep += TWO_PI
                path += start(at(a)) + self.arc_piece(rx, ry, 0.0, sweep >= PI, clockwise, at(b))
                current = at(b)
        return path

    def collect_hatch(self, entity):
        path = ""
        if entity.get("solid"):
            for loop in entity["loops"]:
                path = self.edge_loop(loop, path) if "edges" in loop else self.vertex_loop(loop, path)
            color = self.own_color(entity)
            if path:
                self.graphic("Path", geometry=path, fillColor=color)
            return
        if not entity.get("hatchLines"):
            return
        for x0, y0, x1, y1 in entity["hatchLines"]:
            path += (" " if path else "") + "M " + self.point((x0, y0)) + " L " + self.point((x1, y1))
        self.graphic("Path", geometry=path, lineColor=self.own_color(entity))

    def collect_mpolygon(self, entity):
        path = ""
        for loop in entity["loops"]:
            path = self.vertex_loop(loop, path)
        fill = self.color(entity, entity.get("fillColor", "ByLayer"))
        line = self.own_color(entity)
        weight = self.weight(entity)
        if path:
            self.graphic("Path", geometry=path, lineColor=line, fillColor=fill, lineWeight=weight,
                         lineWeightScalable="false")

    # Texts

    def text_element(self, entity, height, position, alignments, content):
        style = self.find("textStyles", entity.get("style", "STANDARD"))
        font, bold, italic = "", "", ""
        if style is not None:
            font = style.get("typeface", "")
            bold = "true" if style.get("bold") else ""
            italic = "true" if style.get("italic") else ""
        angle = str(to_int32(entity.get("rotation", 0.0) * 180.0 / PI + 0.5))
        color = self.own_color(entity)
        self.graphic("Text", content=content, fontName=font, height=self.number(height), angle=angle,
                     positionX=self.number(position[0]), positionY=self.number(position[1]),
                     horizontalAlignment=alignments[0], verticalAlignment=alignments[1], textColor=color, bold=bold,
                     italic=italic)

    def single_line(self, entity, content):
        alignments = ({0: "'Left'", 2: "'Right'"}.get(entity.get("horizontalMode", 0), ""),
                      {0: "'Baseline'", 1: "'Bottom'", 3: "'Top'"}.get(entity.get("verticalMode", 0), ""))
        self.text_element(entity, entity["height"], entity["position"], alignments, content)

    def collect_text(self, entity):
        self.single_line(entity, "'" + entity["text"] + "'")

    def collect_attributeDefinition(self, entity):
        self.parameter(entity["tag"], entity["prompt"], entity["prompt"], "'" + entity["text"] + "'", 0)
        self.single_line(entity, "%" + entity["tag"] + "%")

    def collect_mtext(self, entity):
        x = entity["location"][0] + entity.get("actualWidth", 0) * 0.5
        y = entity["location"][1] - entity.get("actualHeight", 0) * 0.5
        self.text_element(entity, entity["textHeight"], (x, y), ("", ""), "'" + entity["contents"] + "'")


def convert_all(drawing, files, ignored=()):
    converter = Converter(drawing, files, ignored)
    return [converter.convert(block) for block in drawing["blocks"]
            if not block.get("layout") and not block.get("anonymous")]
