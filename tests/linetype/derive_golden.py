#!/usr/bin/env python3
"""Converts linetype files by the definition of the formats alone, as one line of text for each symbol.

    tests/linetype/derive_golden.py FILE.lin STYLES.json FOLDER-OF-SHAPE-FILES SCALE

The stored conversions of the examples are its output:

    tests/linetype/derive_golden.py examples/linetypes/complex.lin examples/linetypes/styles.json \
        examples/shapes 1 > tests/linetype/golden/complex.txt
"""
import json
import math
import pathlib
import re
import struct
import sys

SPACE = b" \t\n\v\f\r"
NUMBER = re.compile(rb"[ \t\n\v\f\r]*([+-]?(?:[0-9]+\.?[0-9]*|\.[0-9]+)(?:[eE][+-]?[0-9]+)?)")


class Refused(Exception):
    """The whole file cannot be converted."""


def number_text(value):
    return "%.15g" % value


def move(x, y):
    return "M %.15g,%.15g " % (x, y)


def wide(data):
    return data.decode("utf-8", "surrogateescape")


def upper(text):
    return "".join(chr(ord(c) - 32) if "a" <= c <= "z" else c for c in text)


# Shape files.


class ShapeFile:
    def __init__(self, data):
        if data[:11] != b"Vorlanx-86 ":
            raise Refused("magic")
        word, rest = data[11:].split(b" ", 1)
        if word not in (b"shapes", b"unifont"):
            raise Refused("kind")
        self.unifont = word == b"unifont"
        version, body = rest.split(b"\x1a", 1)
        self.version10 = version[:3] == b"1.0"
        self.information = b""
        self.by_number = {}
        self.by_name = {}
        for number, content in self.entries(body):
            name, program = content.split(b"\0", 1)
            if number == 0:
                self.information = program
            else:
                self.by_number[number] = program
                if name:
                    self.by_name.setdefault(name, program)

    def entries(self, body):
        if self.unifont:
            (count,) = struct.unpack_from("<H", body)
            at = 2
            for _ in range(count):
                number, length = struct.unpack_from("<HH", body, at)
                yield number, body[at + 4 : at + 4 + length]
                at += 4 + length
            return
        (count,) = struct.unpack_from("<H", body, 4)
        at = 6 + 4 * count
        for i in range(count):
            number, length = struct.unpack_from("<HH", body, 6 + 4 * i)
            yield number, body[at : at + length]
            at += length
        if body[at : at + 3] != b"EOF":
            raise Refused("trailer")

    def is_font(self):
        return self.unifont or len(self.information) > 0


VECTORS = [(1.0, 0.0), (1.0, 0.5), (1.0, 1.0), (0.5, 1.0), (0.0, 1.0), (-0.5, 1.0), (-1.0, 1.0), (-1.0, 0.5)]
VECTORS += [(0.0 - x, 0.0 - y) for x, y in VECTORS]


def signed(byte):
    return byte - 256 if byte > 127 else byte


def bulge(dx, dy, q):
    b = q / 127.0
    if b == 0 or (dx == 0 and dy == 0):
        return ("move", float(dx), float(dy))
    k = (1.0 / b - b) * 0.5
    cy = (k * dx + dy) * 0.5
    cx = (dx - k * dy) * 0.5
    start = math.atan2(-cy, -cx) * 180 / math.pi
    end = math.atan2(dy - cy, dx - cx) * 180 / math.pi
    if end - start > 180:
        start += 360
    elif end - start < -180:
        end += 360
    if q < 0 and end > start:
        start += 360
    elif q > 0 and start > end:
        end += 360
    return ("arc", start, end, math.sqrt(cx * cx + cy * cy))


def decode(program):
    """Instructions as tuples; the vertical-only flag is the last item."""
    out = []
    bytes_left = iter(program)

    def take():
        try:
            return next(bytes_left)
        except StopIteration:
            raise Refused("program")

    vertical = False
    for code in bytes_left:
        made = []
        if code > 14:
            n, d = code >> 4, code & 15
            made.append(("move", n * VECTORS[d][0], n * VECTORS[d][1]))
        elif code == 0:
            break
        elif code in (1, 2):
            made.append(("pen", code == 1))
        elif code in (3, 4):
            factor = take()
            if factor == 0:
                raise Refused("factor")
            made.append(("divide" if code == 3 else "multiply", factor))
        elif code in (5, 6):
            made.append(("push" if code == 5 else "pop",))
        elif code == 7:
            made.append(("subshape", take()))
        elif code == 8:
            dx = signed(take())
            made.append(("move", float(dx), float(signed(take()))))
        elif code in (9, 13):
            while True:
                dx, dy = signed(take()), signed(take())
                if dx == 0 and dy == 0:
                    break
                made.append(("move", float(dx), float(dy)) if code == 9 else bulge(dx, dy, signed(take())))
        elif code in (10, 11):
            a = b = high = 0
            if code == 11:
                a, b, high = take(), take(), take()
            radius = take()
            if radius == 0:
                raise Refused("radius")
            octant = take()
            start, span = octant >> 4 & 7, octant & 7
            clockwise = octant >= 128
            if code == 10:
                span = (-span if clockwise else span) if span else 8
                made.append(("arc", start * 45.0, (start + span) * 45.0, float(radius)))
            else:
                span = span or 8
                a, b = int(a * 45 / 256 + 0.5) & 255, int(b * 45 / 256 + 0.5) & 255
                less = 1 if b else 0
                end = ((less - span if clockwise else span - less) + start) * 45.0 + b
                made.append(("arc", start * 45.0 + a, end, float(high * 256 + radius)))
        elif code == 12:
            dx, dy = signed(take()), signed(take())
            made.append(bulge(dx, dy, signed(take())))
        elif code == 14:
            vertical = True
            continue
        out += [instruction + (vertical,) for instruction in made]
        vertical = False
    return out


class Pen:
    def __init__(self, file, x, y, rotation, vertical):
        self.file, self.x, self.y = file, x, y
        self.rotation, self.vertical = rotation, vertical
        self.path = ""

    def draw_top(self, program, scale):
        self.scale = scale
        self.saved = []
        self.active = []
        self.draw(program, self.vertical)

    def draw(self, program, vertical):
        self.down = True
        for op, *values, vertical_only in decode(program):
            if vertical_only and not vertical:
                continue
            getattr(self, "do_" + op)(*values)

    def do_pen(self, down):
        self.down = down

    def do_divide(self, factor):
        self.scale = self.scale / factor

    def do_multiply(self, factor):
        self.scale = self.scale * factor

    def do_push(self):
        if len(self.saved) >= 3:
            raise Refused("stack")
        self.saved.append((self.x, self.y))

    def do_pop(self):
        if not self.saved:
            raise Refused("stack")
        self.x, self.y = self.saved.pop()

    def do_subshape(self, number):
        if number in self.active or number not in self.file.by_number:
            raise Refused("subshape")
        self.active.append(number)
        self.draw(self.file.by_number[number], False)
        self.active.pop()

    def do_move(self, dx, dy):
        angle = self.rotation * math.pi / 180
        x = (math.cos(angle) * dx - math.sin(angle) * dy) * self.scale
        y = (math.sin(angle) * dx + math.cos(angle) * dy) * self.scale
        if self.down:
            self.path += move(self.x, self.y) + "l %.15g,%.15g " % (x, y)
        self.x += x
        self.y += y

    def arc_to(self, start, end, r, large, sweep):
        self.path += move(self.x, self.y)
        s, e = start * math.pi / 180, end * math.pi / 180
        self.x += r * (math.cos(e) - math.cos(s))
        self.y += r * (math.sin(e) - math.sin(s))
        self.path += "A %.15g,%.15g 0 %d %d %.15g,%.15g " % (r, r, large, sweep, self.x, self.y)

    def do_arc(self, start, end, radius):
        start += self.rotation
        end += self.rotation
        r = radius * self.scale
        if end - start >= 270:
            self.arc_to(start, start + 180, r, 0, 0)
            start = start + 180
        elif end - start <= -270:
            self.arc_to(start, start - 180, r, 0, 1)
            start = start - 180
        self.arc_to(start, end, r, int(abs(end - start) > 180), int(end - start < 0))


# Linetype files.


class Transform:
    def __init__(self):
        self.a, self.r, self.s, self.x, self.y = math.nan, 0.0, 1.0, 0.0, 0.0

    def fixed(self):
        return self.r == 0.0 and not math.isnan(self.a)


class Reader:
    def __init__(self, data):
        pieces = []
        for line in re.findall(rb"[^\n]*\n|[^\n]+", data):
            pieces += [line[i : i + 1023] for i in range(0, len(line), 1023)]
        self.pieces = iter([piece.split(b"\0", 1)[0] for piece in pieces])

    def header(self):
        for piece in self.pieces:
            if piece[:1] == b"*":
                text = piece[1:].split(b";", 1)[0].rstrip(SPACE)
                if text and text[:1] != b",":
                    return text
        return None

    def content(self):
        for piece in self.pieces:
            text = piece.lstrip(SPACE).split(b";", 1)[0]
            if text:
                return text.rstrip(SPACE)
        return None

    def linetypes(self):
        while (header := self.header()) is not None:
            name, _, description = header.partition(b",")
            self.text = self.content()
            if self.text is None or self.text[:2] not in (b"A,", b"S,"):
                raise Refused("pattern")
            self.at = 2
            elements = []
            while True:
                if self.at == len(self.text):
                    self.text, self.at = self.content(), 0
                    if self.text is None:
                        raise Refused("continuation")
                elements.append(self.element())
                self.at += 1
                if self.text[self.at - 1 : self.at] != b",":
                    break
            yield name, description, elements

    def peek(self):
        return self.text[self.at : self.at + 1]

    def number(self):
        found = NUMBER.match(self.text, self.at)
        if not found:
            raise Refused("number")
        self.at = found.end()
        return float(found.group(1))

    def until(self, stops, refused):
        start = self.at
        while self.peek() not in stops:
            if self.peek() in refused or self.peek() == b"":
                raise Refused("name")
            self.at += 1
        return self.text[start : self.at]

    def element(self):
        if self.peek() != b"[":
            return ("dash", self.number())
        self.at += 1
        if self.peek() == b'"':
            self.at += 1
            element = self.text_element()
        else:
            name = upper(self.until((b",",), (b"]",)).decode("latin-1")).encode("latin-1")
            self.at += 1
            file = self.until((b",", b"]"), ())
            if not file:
                raise Refused("file")
            element = ("shape", name, upper(wide(file)), self.transform())
        if self.peek() != b"]":
            raise Refused("]")
        self.at += 1
        return element

    def text_element(self):
        end = self.text.find(b'"', self.at)
        if end < 0:
            raise Refused("quote")
        text = self.text[self.at : end]
        self.at = end + 1
        if self.peek() == b"]":
            self.at += 1
            return ("text", text, "STANDARD", Transform())
        if self.peek() != b",":
            raise Refused("style")
        self.at += 1
        style = self.until((b",", b"]"), (b"=",))
        if not style:
            raise Refused("style")
        return ("text", text, upper(wide(style)), self.transform())

    def transform(self):
        transform = Transform()
        while self.peek() == b",":
            key = self.text[self.at + 1 : self.at + 2].lower().decode("latin-1")
            if key not in ("a", "r", "s", "x", "y") or self.text[self.at + 2 : self.at + 3] != b"=":
                raise Refused("field")
            self.at += 3
            value = self.number()
            unit = self.peek()
            if unit in (b"d", b"g", b"r"):
                if key not in ("a", "r"):
                    raise Refused("unit")
                self.at += 1
                if unit == b"g":
                    value = value * 0.9
                elif unit == b"r":
                    value = value * 0.017453292519943295
            if key == "a":
                transform.r = 0.0
            setattr(transform, key, value)
        return transform


def decode_text(text):
    """Characters with their overline and underline flags."""
    out = []
    over = under = False
    at = 0
    while at < len(text):
        if text[at : at + 2] != "%%":
            out.append((text[at], over, under))
            at += 1
            continue
        at += 2
        code = text[at : at + 1]
        if code and code in "0123456789":
            digits = re.match("[0-9]{1,3}", text[at:]).group()
            out.append((chr(int(digits)), over, under))
            at += len(digits)
            continue
        at += 1
        if code in ("o", "O"):
            over = not over
        elif code in ("u", "U"):
            under = not under
        elif code:
            signs = {"c": "\u2205", "d": "\u00b0", "p": "\u00b1"}
            out.append((signs.get(code.lower(), code) if code in "cCdDpP" else code, over, under))
    return out


def utf16(character):
    data = character.encode("utf-16-le", "surrogatepass")
    return struct.unpack("<%dH" % (len(data) // 2), data)


class Converter:
    def __init__(self, styles, shape_folder, scale):
        self.styles = {upper(style["name"]): style for style in styles}
        self.files = {upper(path.name): path for path in pathlib.Path(shape_folder).iterdir()}
        self.scale = scale
        self.loaded = {}

    def load(self, name):
        """The shape file of that name, beside which nothing else is looked for."""
        if name not in self.loaded:
            path = self.files.get(name) or self.files.get(name + ".SHX")
            if path is None:
                raise Refused("no file " + name)
            self.loaded[name] = ShapeFile(path.read_bytes())
        return self.loaded[name]

    def convert(self, data):
        linetypes = list(Reader(data).linetypes())
        for _, _, elements in linetypes:
            for element in elements:
                self.check(element)
        return [self.symbol(*linetype) for linetype in linetypes]

    def check(self, element):
        if element[0] == "shape" and self.load(element[2]).is_font():
            raise Refused("a font for shapes")
        if element[0] == "text":
            if element[2] not in self.styles:
                raise Refused("no style")
            if not self.styles[element[2]].get("typeface"):
                self.load(upper(self.styles[element[2]].get("fileName", "")))

    def symbol(self, name, description, elements):
        self.name = wide(name)
        self.position = 0.0
        self.dashes = ""
        self.members = []
        self.texts = ""
        for element in elements:
            if element[0] == "dash":
                self.dash(element[1])
            elif element[0] == "shape":
                self.shape(*element[1:])
            else:
                self.text(*element[1:])
        repeat = number_text(self.position * self.scale)
        head = self.name
        if description:
            head += " (" + wide(description) + ")"
        own = "{%spath %s; params LINECOLOR LINEWEIGHT%s; line repeat=%s}" % (
            self.texts, self.dashes, " TEXTCOLOR" if self.texts else "", repeat)
        if not self.members:
            return "simple %s %s" % (head, own)
        members = [member.replace("\0", " repeat=" + repeat) for member in self.members]
        return "compound %s [%s]" % (head, ", ".join(members + ["simple %s %s" % (self.name, own)]))

    def dash(self, length):
        x = self.position * self.scale
        if length == 0:
            self.dashes += move(x, 0) + "L %.15g,0 " % x
        else:
            self.position += abs(length)
            if length > 0:
                self.dashes += move(x, 0) + "L %.15g,0 " % (self.position * self.scale)

    def place(self, transform):
        return (transform.x + self.position) * self.scale, transform.y * self.scale

    def usage(self, transform, x):
        if not transform.fixed():
            return "line\0"
        return "line angle=%s control='FromAngle'\0 start=%s" % (number_text(transform.a), number_text(x))

    def drawn(self, path, transform, x):
        if path:
            self.members.append("simple %s {path %s; params LINECOLOR LINEWEIGHT; %s}" % (
                self.name, path, self.usage(transform, x)))

    def shape(self, name, file_name, transform):
        x, y = self.place(transform)
        file = self.load(file_name)
        if name not in file.by_name:
            raise Refused("no shape")
        pen = Pen(file, 0.0 if transform.fixed() else x, y, transform.r, False)
        pen.draw_top(file.by_name[name], transform.s * self.scale)
        self.drawn(pen.path, transform, x)

    def text(self, text, style_name, transform):
        style = self.styles[style_name]
        characters = decode_text(wide(text))
        if style.get("typeface"):
            self.typeset_text(characters, style, transform)
        else:
            self.shx_text("".join(c for c, _, _ in characters), style, transform)

    def typeset_text(self, characters, style, transform):
        x, y = self.place(transform)
        height = transform.s
        if style.get("textSize"):
            height = height * style["textSize"]
        content = "".join(c for c, _, _ in characters).replace("'", "''")
        line = "text '%s' font=%s height=%s" % (content, style["typeface"], number_text(height * self.scale))
        if not transform.fixed():
            if transform.r != 0.0:
                line += " angle=" + number_text(transform.r)
            line += " x=" + number_text(x)
        line += " y=%s 'Left' 'Baseline' %%TEXTCOLOR%%" % number_text(y)
        line += " bold=true" if style.get("bold") else ""
        line += " italic=true" if style.get("italic") else ""
        line += " underlined=true" if all(under for _, _, under in characters) else ""
        line += " overlined=true" if all(over for _, over, _ in characters) else ""
        if transform.fixed():
            self.members.append("simple %s {%s; params TEXTCOLOR; %s}" % (self.name, line, self.usage(transform, x)))
        else:
            self.texts += line + "; "

    def shx_text(self, characters, style, transform):
        x, y = self.place(transform)
        file = self.load(upper(style.get("fileName", "")))
        if not file.information or signed(file.information[0]) == 0:
            raise Refused("height")
        scale = transform.s * self.scale / signed(file.information[0])
        if style.get("textSize"):
            scale = scale * style["textSize"]
        vertical = style.get("isVertical", False) and file.information[2] == 2
        pen = Pen(file, 0.0 if transform.fixed() else x, y, transform.r, vertical)
        for character in characters:
            for unit in utf16(character):
                numbers = [unit]
                if file.version10:
                    numbers += {256: [248, 127], 257: [241, 128], 258: [237, 129]}.get(unit, [])
                found = [number for number in numbers if number in file.by_number]
                if found:
                    pen.draw_top(file.by_number[found[0]], scale)
        self.drawn(pen.path, transform, x)


def main():
    file, styles, shapes, scale = sys.argv[1:]
    converter = Converter(json.loads(pathlib.Path(styles).read_text())["textStyles"], shapes, float(scale))
    for line in converter.convert(pathlib.Path(file).read_bytes()):
        sys.stdout.buffer.write((line + "\n").encode("utf-8", "surrogateescape"))


if __name__ == "__main__":
    main()
