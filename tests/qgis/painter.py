"""Draws symbols documents by themselves: what the pictures of a map program are compared with. It shares no code with
the tool. Everything is brought into pixels, y downwards, and painted by a rasteriser of SVG."""
import io
import math
import re
import subprocess

import numpy
from PIL import Image

DEFAULT_PEN = 0.3  # millimetres
COMMAND = re.compile(r"([MLAhvl])([^MLAhvl]*)")


def commands(geometry):
    """(letter, numbers) of each command."""
    for letter, rest in COMMAND.findall(geometry):
        yield letter, [float(number) for number in rest.replace(",", " ").split()]


def pieces(geometry):
    """Straight pieces ((x, y), (x, y)) of a path without arcs."""
    at = (0.0, 0.0)
    for letter, n in commands(geometry):
        start = at
        if letter in "ML":
            at = (n[0], n[1])
        elif letter == "l":
            at = (at[0] + n[0], at[1] + n[1])
        elif letter == "h":
            at = (at[0] + n[0], at[1])
        elif letter == "v":
            at = (at[0], at[1] + n[0])
        else:
            raise ValueError("an arc among straight pieces")
        if letter != "M":
            yield start, at


def dots(geometry):
    """Where a path goes from a point to the same point."""
    at = (0.0, 0.0)
    for letter, n in commands(geometry):
        to = (at[0] + n[0], at[1] + n[1]) if letter == "l" else (at[0] + n[0], at[1]) if letter == "h" else tuple(n[-2:])
        if letter == "v":
            to = (at[0], at[1] + n[0])
        if letter != "M" and to == at:
            yield at
        at = to


def count(definition):
    """How many straight pieces a symbol without members has."""
    return sum(1 for graphic in definition["graphics"] for _ in pieces(graphic["geometry"]))


def svg_path(geometry, scale):
    """The path with y downwards, as an attribute of SVG."""
    out = []
    for letter, n in commands(geometry):
        if letter == "A":
            rx, ry, angle, large, sweep, x, y = n
            # Clockwise is clockwise in both; the document counts it with y up, SVG with y down.
            out.append(f"A{rx * scale},{ry * scale} {-angle} {int(large)} {int(sweep)} {x * scale},{-y * scale}")
        elif letter == "h":
            out.append(f"h{n[0] * scale}")
        elif letter == "v":
            out.append(f"v{-n[0] * scale}")
        else:
            out.append(f"{letter}{n[0] * scale},{-n[1] * scale}")
    return "".join(out)


def members(symbol):
    return symbol.get("symbols", [symbol])


def value(definition, expression, default):
    """An expression with its parameters at their defaults."""
    if not expression:
        return default
    for parameter in definition.get("parameters", []):
        if expression == "%" + parameter["identifier"] + "%":
            expression = parameter["defaultValue"]
    return expression


def number(definition, expression):
    """A number, or a sum of one and a parameter."""
    terms = re.split(r"(?<=%)\+", expression or "0")
    return sum(float(value(definition, term, "0")) for term in terms)


def color(definition, expression):
    text = value(definition, expression, "")
    return "#" + text[-6:] if text else None


def pen(definition, graphic):
    weight = number(definition, graphic.get("lineWeight"))
    return weight if weight > 0 else DEFAULT_PEN


def has_text(symbol):
    return any(graphic["type"] == "Text" for member in members(symbol) for graphic in member["graphics"])


def inside(point, rings):
    """Whether a point lies in a polygon, by the even-odd rule."""
    found = False
    for ring in rings:
        for (x1, y1), (x2, y2) in zip(ring, ring[1:] + ring[:1]):
            if (y1 > point[1]) != (y2 > point[1]) and point[0] < (x2 - x1) * (point[1] - y1) / (y2 - y1) + x1:
                found = not found
    return found


class Sheet:
    """Collects elements in pixels and paints them."""

    def __init__(self, size, pixels_per_mm):
        self.size = size
        self.mm = pixels_per_mm
        self.elements = []

    def add(self, element):
        self.elements.append(element)

    def paint(self):
        svg = (
            f'<svg xmlns="http://www.w3.org/2000/svg" width="{self.size}" height="{self.size}">'
            '<rect width="100%" height="100%" fill="#fff"/>' + "".join(self.elements) + "</svg>"
        )
        png = subprocess.run(["rsvg-convert"], input=svg.encode(), stdout=subprocess.PIPE, check=True).stdout
        return numpy.asarray(Image.open(io.BytesIO(png)).convert("RGB")).copy()


def paint_area(sheet, symbol, rings, anchor, scale):
    """Over a polygon of rings in pixels; `scale` is pixels per unit of the symbol."""
    outline = "".join("M" + "L".join(f"{x},{y}" for x, y in ring) + "z" for ring in rings)
    sheet.add(f'<clipPath id="c"><path d="{outline}" clip-rule="evenodd"/></clipPath>')
    corners = [point for ring in rings for point in ring]
    for member in members(symbol):
        usage = member["areaUsage"]
        step = (float(usage["repeatX"]) * scale, float(usage["repeatY"]) * scale)
        angle = math.radians(number(member, usage.get("angle")))
        cosine, sine = math.cos(angle), math.sin(angle)

        def place(x, y):
            return anchor[0] + x * cosine - y * sine, anchor[1] - x * sine - y * cosine

        def back(point):
            dx, dy = point[0] - anchor[0], anchor[1] - point[1]
            return dx * cosine + dy * sine, dy * cosine - dx * sine

        own = [back(corner) for corner in corners]
        for graphic in member["graphics"]:
            strokes = [(a[0] * scale, a[1] * scale, b[0] * scale, b[1] * scale) for a, b in pieces(graphic["geometry"])]
            if not strokes:
                continue
            ends = []
            for axis in (0, 1):
                low = min(min(s[axis], s[axis + 2]) for s in strokes)
                high = max(max(s[axis], s[axis + 2]) for s in strokes)
                ends.append(
                    (
                        math.floor((min(p[axis] for p in own) - high) / step[axis]),
                        math.ceil((max(p[axis] for p in own) - low) / step[axis]),
                    )
                )
            lines, dots = [], []
            for column in range(ends[0][0], ends[0][1] + 1):
                for row in range(ends[1][0], ends[1][1] + 1):
                    dx, dy = column * step[0], row * step[1]
                    for x1, y1, x2, y2 in strokes:
                        a, b = place(x1 + dx, y1 + dy), place(x2 + dx, y2 + dy)
                        if (x1, y1) == (x2, y2):
                            dots.append(a)
                        else:
                            lines.append(f"M{a[0]:.4f},{a[1]:.4f}L{b[0]:.4f},{b[1]:.4f}")
            width = pen(member, graphic) * sheet.mm
            paint = color(member, graphic["lineColor"])
            sheet.add(f'<path clip-path="url(#c)" d="{"".join(lines)}" stroke="{paint}" stroke-width="{width}" fill="none"/>')
            for x, y in dots:
                if inside((x, y), rings):
                    sheet.add(f'<circle cx="{x:.4f}" cy="{y:.4f}" r="{width / 2}" fill="{paint}"/>')


class Way:
    """A line of straight stretches in pixels."""

    def __init__(self, points):
        self.points = points
        self.starts = [0.0]
        for a, b in zip(points, points[1:]):
            self.starts.append(self.starts[-1] + math.dist(a, b))
        self.length = self.starts[-1]

    def at(self, distance):
        """The point and the direction, in degrees clockwise from the x axis."""
        i = 0
        while i + 2 < len(self.starts) and distance > self.starts[i + 1]:
            i += 1
        a, b = self.points[i], self.points[i + 1]
        part = (distance - self.starts[i]) / (self.starts[i + 1] - self.starts[i])
        return (
            (a[0] + (b[0] - a[0]) * part, a[1] + (b[1] - a[1]) * part),
            math.degrees(math.atan2(b[1] - a[1], b[0] - a[0])),
        )

    def between(self, start, end):
        points = [self.at(start)[0]]
        points += [p for p, s in zip(self.points, self.starts) if start < s < end]
        return "M" + "L".join(f"{x:.4f},{y:.4f}" for x, y in points + [self.at(end)[0]])


def paint_line(sheet, symbol, way, scale):
    for member in members(symbol):
        usage = member["lineUsage"]
        repeat = float(usage["repeat"]) * scale
        start = number(member, usage.get("startOffset")) * scale
        angle = number(member, usage.get("angle"))
        fixed = usage.get("angleControl") == "'FromAngle'"
        for graphic in member["graphics"]:
            geometry = graphic.get("geometry")
            if not geometry:
                continue
            width = pen(member, graphic) * sheet.mm
            stroke = f'fill="none" stroke-width="{width}" stroke-linejoin="bevel" stroke="{color(member, graphic["lineColor"])}"'
            numbers = [n for letter, n in commands(geometry)]
            if not fixed and not angle and "A" not in geometry and "v" not in geometry and all(
                abs(n[1] if len(n) > 1 else 0) == 0 for n in numbers
            ):
                paint_on_line(sheet, pieces(geometry), way, scale, start, repeat, stroke, width)
                continue
            middle = 0.0 if fixed or angle else middle_of(geometry) * scale
            # As the tool says: the first one within the first repeat.
            first = (start + middle) % repeat
            if repeat - first < 1e-9 * repeat:
                first = 0.0
            for i in range(int((way.length - first) / repeat) + 1):
                point, heading = way.at(first + i * repeat)
                turn = (0 if fixed else heading) - angle
                sheet.add(
                    f'<path transform="translate({point[0]} {point[1]}) rotate({turn}) translate({-middle} 0)" '
                    f'd="{svg_path(geometry, scale)}" {stroke}/>'
                )


def paint_on_line(sheet, strokes, way, scale, start, repeat, stroke, width):
    strokes = list(strokes)
    # Pieces that meet are one dash, as it bends round a corner.
    for i in range(-2 - int(abs(start) / repeat), int(way.length / repeat) + 3):
        for a, b in strokes:
            low = start + i * repeat + min(a[0], b[0]) * scale
            high = start + i * repeat + max(a[0], b[0]) * scale
            if a == b:
                if 0 <= low <= way.length:
                    x, y = way.at(low)[0]
                    paint = re.search(r'stroke="(#\w+)"', stroke).group(1)
                    sheet.add(f'<circle cx="{x}" cy="{y}" r="{width / 2}" fill="{paint}"/>')
            elif high > 0 and low < way.length:
                sheet.add(f'<path d="{way.between(max(low, 0), min(high, way.length))}" {stroke}/>')


def middle_of(geometry):
    """The x of the middle of what a path draws, by sampling its arcs."""
    xs, at = [], (0.0, 0.0)
    for letter, n in commands(geometry):
        if letter == "A":
            xs += [p for p in arc_xs(at, n)]
            at = (n[5], n[6])
            continue
        start = at
        if letter in "ML":
            at = (n[0], n[1])
        elif letter == "l":
            at = (at[0] + n[0], at[1] + n[1])
        elif letter == "h":
            at = (at[0] + n[0], at[1])
        else:
            at = (at[0], at[1] + n[0])
        if letter != "M":
            xs += [start[0], at[0]]
    return (min(xs) + max(xs)) / 2


def arc_xs(start, n):
    """The x of many points of a circular arc."""
    radius, large, clockwise, x, y = n[0], n[3], n[4], n[5], n[6]
    dx, dy = x - start[0], y - start[1]
    chord = math.hypot(dx, dy)
    radius = max(radius, chord / 2)
    height = math.sqrt(max(0.0, radius * radius - chord * chord / 4))
    side = 1 if bool(large) == bool(clockwise) else -1
    cx = start[0] + dx / 2 - side * height * dy / chord * -1 * -1
    cy = start[1] + dy / 2 + side * height * dx / chord
    first = math.atan2(start[1] - cy, start[0] - cx)
    turn = math.atan2(y - cy, x - cx) - first
    turn = turn % (2 * math.pi) if not clockwise else turn % (2 * math.pi) - 2 * math.pi
    return [cx + radius * math.cos(first + turn * i / 500) for i in range(501)]


def paint_point(sheet, symbol, at, scale):
    for member in members(symbol):
        for graphic in member["graphics"]:
            fill = color(member, graphic.get("fillColor"))
            line = color(member, graphic.get("lineColor"))
            paint = f'fill="{fill or "none"}" fill-rule="evenodd" '
            if line:
                paint += f'stroke="{line}" stroke-width="{pen(member, graphic) * sheet.mm}" stroke-linejoin="bevel"'
            path = graphic["geometry"]
            sheet.add(f'<path transform="translate({at[0]} {at[1]})" d="{svg_path(path, scale)}" {paint}/>')
            for x, y in dots(path) if line else []:
                x, y, r = at[0] + x * scale, at[1] - y * scale, pen(member, graphic) * sheet.mm / 2
                sheet.add(f'<circle cx="{x}" cy="{y}" r="{r}" fill="{line}"/>')


def off(picture, other):
    """What part of the ink of either picture is more than a pixel from any ink of the other one. Ink is what differs
    from the paper by more than half of what it differs most; near it, by an eighth."""
    first, second = darkness(picture), darkness(other)
    wrong = ink = 0
    for a, b in ((first, second), (second, first)):
        strong, near = a > 127, grown(b > 31)
        wrong += int((strong & ~near).sum())
        ink += int(strong.sum())
    return wrong / ink if ink else 1.0


def darkness(picture):
    difference = 255 - picture.astype(int).min(axis=2)
    return difference * 255 // max(1, int(difference.max()))


def grown(mask):
    padded = numpy.pad(mask, 1)
    height, width = mask.shape
    result = numpy.zeros_like(mask)
    for dy in range(3):
        for dx in range(3):
            result |= padded[dy : dy + height, dx : dx + width]
    return result
