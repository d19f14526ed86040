"""Turns CAD linetypes, hatch patterns, blocks and shape fonts into map symbols.

    import styleconversion
    walls = styleconversion.convert("walls.pat")
    walls["BRICK"]          # a notebook shows its picture

Files are linetype files (.lin), hatch patterns (.pat), shape and font files (.shx), drawings (.dxf, or .json as
"styleconv drawing" writes them) and symbols documents (.json), as a path or as bytes. Results are those of the tool
"styleconv", to the byte.
"""
import json
import os
from dataclasses import dataclass, field
from typing import Any, Dict, Iterator, Mapping, Optional, Sequence, Tuple, Union

from . import _library
from ._library import Find, version

__all__ = ["ConversionError", "Diagnostic", "Entry", "Parameter", "Result", "Symbol", "check", "convert",
           "list_symbols", "version"]
__version__ = version()

Path = Union[str, "os.PathLike[str]"]
Source = Union[Path, bytes, bytearray, memoryview]


@dataclass(frozen=True)
class Diagnostic:
    """What there is to say of a file."""

    severity: str
    """"error": a strict conversion fails or loses something; "warning": the result will surprise; "note"."""
    code: str
    """The stable name of what is wrong, as "missing-file"."""
    message: str
    """What is wrong, for people, without the place."""
    file: str
    line: Optional[int] = None
    """From 1."""
    column: Optional[int] = None
    """The byte of the line, from 1."""
    byte: Optional[int] = None
    """In the bytes of a shape file, from 0."""
    shape: Optional[int] = None
    """The number of the shape, which is the code of a glyph."""
    path: Optional[str] = None
    """The value of a document, as "blocks[2].entities[0].radius"."""
    item: Optional[str] = None
    """What it is said of, as "linetype GAS"."""
    count: int = 1
    """Of how many entities or places it is said."""

    def __str__(self) -> str:
        place = self.file + (f":{self.line}" if self.line is not None else "")
        return f"{place}: {self.severity}: {self.message}"


class ConversionError(ValueError):
    """A file is refused. `diagnostics` say why."""

    def __init__(self, diagnostics: Sequence[Diagnostic]):
        self.diagnostics: Tuple[Diagnostic, ...] = tuple(diagnostics)
        errors = [str(diagnostic) for diagnostic in self.diagnostics if diagnostic.severity == "error"]
        super().__init__("\n".join(errors) or "nothing was converted")

    def __reduce__(self):
        # Exceptions of another process are made anew, from what they were made of.
        return type(self), (self.diagnostics,)


@dataclass(frozen=True)
class Entry:
    """A linetype, pattern, block, shape or symbol that a file holds."""

    kind: str
    name: str
    description: str = ""
    file: str = ""
    line: Optional[int] = None
    """From 1."""


@dataclass(frozen=True)
class Parameter:
    """What of a symbol its user may change."""

    identifier: str
    """Stands as "%IDENTIFIER%" in the symbol's expressions."""
    display_name: str
    description: str
    default_value: str
    data_type: int


@dataclass(frozen=True)
class Symbol:
    """A symbol definition. Lengths are those of its file: units of a linetype, a pattern or a font, millimetres of a
    block. Every value of its graphics is an expression text of the symbol model."""

    name: str
    type: str
    """"SimpleSymbolDefinition", or "CompoundSymbolDefinition", whose parts are `symbols`."""
    description: str = ""
    graphics: Tuple[Mapping[str, Any], ...] = ()
    """Paths and texts, as the symbols document has them."""
    parameters: Tuple[Parameter, ...] = ()
    symbols: Tuple["Symbol", ...] = ()
    data: Mapping[str, Any] = field(default_factory=dict, repr=False, compare=False)
    """All of it, as the symbols document has it."""

    def svg(self) -> str:
        """The picture as SVG, with a card that is as large as the symbol needs; lengths of it are pixels."""
        document = {"format": "styleconversion/symbols", "version": 1, "symbols": [self.data]}
        return _convert(self.name + ".json", json.dumps(document).encode(), {"kind": "symbols", "format": "svg"}, None)[0]

    def _repr_svg_(self) -> str:
        return self.svg()

    def _repr_html_(self) -> str:
        return f"<div>{_of_page(self.svg())}</div>"


class Result(Sequence[Symbol]):
    """The symbols of a file, in its order: by their place, or by their name."""

    def __init__(self, name: str, content: bytes, options: Dict[str, Any], find: Optional[Find]):
        self._call = (name, content, options, find)
        self.document, self.diagnostics = _convert(name, content, options, find)
        """The symbols document, JSON as the tool writes it; and what there is to say of the file."""
        self.symbols: Tuple[Symbol, ...] = tuple(map(_symbol, json.loads(self.document)["symbols"]))

    def __len__(self) -> int:
        return len(self.symbols)

    def __iter__(self) -> Iterator[Symbol]:
        return iter(self.symbols)

    def __contains__(self, key: object) -> bool:
        return any(key in (symbol, symbol.name) for symbol in self.symbols)

    def __getitem__(self, key):  # type: ignore[override]
        if isinstance(key, str):
            for symbol in self.symbols:
                if symbol.name == key:
                    return symbol
            raise KeyError(key)
        return self.symbols[key]

    def __repr__(self) -> str:
        return f"<Result of {self._call[0]}: {len(self)} symbol{'' if len(self) == 1 else 's'}>"

    def _as(self, format_name: str) -> str:
        name, content, options, find = self._call
        return _convert(name, content, {**options, "format": format_name}, find)[0]

    def svg(self) -> str:
        """A sheet of all symbols as SVG; of one symbol, its picture."""
        return self._as("svg")

    def html(self) -> str:
        """The gallery: one page that needs nothing else."""
        return self._as("html")

    def qgis(self) -> str:
        """A style library for QGIS, which its style manager imports. Its symbols are always faithful."""
        return self._as("qgis")

    def qml(self) -> str:
        """The style of the one symbol, which a layer of QGIS loads; always faithful. Raises ValueError where there are
        several: convert one of them with `names`."""
        return self._as("qml")

    def _repr_svg_(self) -> str:
        return self.svg()

    def _repr_html_(self) -> str:
        told = "".join(f"<li>{_escaped(str(diagnostic))}</li>" for diagnostic in self.diagnostics)
        return f"<div>{_of_page(self.svg())}{f'<ul>{told}</ul>' if told else ''}</div>"


def convert(source: Source, *, name: Optional[str] = None, find: Optional[Find] = None, kind: Optional[str] = None,
            tolerant: bool = False, faithful: bool = False, names: Optional[Sequence[str]] = None,
            font: Optional[str] = None, drawing: Optional[Path] = None, encoding: Optional[str] = None,
            ignore_layers: Optional[Sequence[str]] = None) -> Result:
    """Converts a file to symbols.

    source: the path of the file, or its bytes.
    name: what messages call it; its end, as ".lin", tells the kind. Of bytes, give it or `kind`.
    find: gives the bytes of a further file by its name, as a shape file "marks.shx", or None where it is missing.
        Otherwise files are looked for beside the source, in any case of the letters; of bytes, nowhere.
    kind: "linetypes", "patterns", "shapes", "drawing" or "symbols".
    tolerant: use what is valid, and report the rest in `diagnostics`.
    faithful: symbols that draw what the definition says, where the required output draws something else.
    names: only linetypes, patterns or blocks of these names, in this order; or of one name.
    font: the font of text style STANDARD of linetypes: an SHX file, or the name of a typeface.
    drawing: the file with the text styles of linetypes: its path, or its name beside the source.
    encoding: of linetype, pattern and shape files, as "WINDOWS-1251". Otherwise UTF-8 where the whole file is.
    ignore_layers: layers of drawings that are left out; or one.

    Raises ConversionError where the file is refused, ValueError where an option is wrong, OSError where the file cannot
    be read.
    """
    opened = _open(source, name, find, drawing)
    return Result(*opened[:2], _options(kind=kind, tolerant=tolerant, faithful=faithful, names=names, font=font,
                                        drawing=drawing, encoding=encoding, ignoreLayers=ignore_layers), opened[2])


def check(source: Source, *, name: Optional[str] = None, find: Optional[Find] = None, kind: Optional[str] = None,
          tolerant: bool = False, notes: bool = False, font: Optional[str] = None, drawing: Optional[Path] = None,
          encoding: Optional[str] = None, ignore_layers: Optional[Sequence[str]] = None) -> Tuple[Diagnostic, ...]:
    """What there is to say of a file: errors and likely surprises, and with `notes` also what is as it should be. The
    arguments are those of convert."""
    opened = _open(source, name, find, drawing)
    options = _options(kind=kind, tolerant=tolerant, notes=notes, font=font, drawing=drawing, encoding=encoding,
                       ignoreLayers=ignore_layers)
    return _diagnostics(_run("check", *opened[:2], options, opened[2])[2])


def list_symbols(source: Source, *, name: Optional[str] = None, kind: Optional[str] = None, tolerant: bool = False,
                 encoding: Optional[str] = None) -> Tuple[Entry, ...]:
    """What a file holds, without converting it. The arguments are those of convert."""
    opened = _open(source, name, None, None)
    status, document, diagnostics, _ = _run("list", *opened[:2],
                                            _options(kind=kind, tolerant=tolerant, encoding=encoding), None)
    if status != _library.DONE:
        raise ConversionError(_diagnostics(diagnostics))
    return tuple(Entry(entry["kind"], entry["name"], entry.get("description", ""), entry.get("file", ""),
                       entry.get("line")) for entry in json.loads(document))


def _open(source: Source, name: Optional[str], find: Optional[Find],
          drawing: Optional[Path]) -> Tuple[str, bytes, Optional[Find]]:
    if isinstance(source, (bytes, bytearray, memoryview)):
        return name or "(bytes)", bytes(source), find
    path = os.fspath(source)
    folder = os.path.dirname(os.path.abspath(path))
    with open(path, "rb") as file:
        return name or path, file.read(), find or (lambda wanted: _found(folder, wanted, drawing))


def _found(folder: str, wanted: str, drawing: Optional[Path]) -> Optional[bytes]:
    """The bytes of a file of that folder, or of the drawing, whose path the caller gave."""
    if drawing is not None and wanted == os.fspath(drawing) and os.path.isfile(wanted):
        with open(wanted, "rb") as file:
            return file.read()
    return _beside(folder, wanted)


def _beside(folder: str, wanted: str) -> Optional[bytes]:
    """The bytes of the file of that name, in any case of its letters."""
    wanted = wanted.replace("\\", "/").rsplit("/", 1)[-1].lower()
    for entry in sorted(os.listdir(folder)):
        path = os.path.join(folder, entry)
        if entry.lower() == wanted and os.path.isfile(path):
            with open(path, "rb") as file:
                return file.read()
    return None


def _options(**options: Any) -> Dict[str, Any]:
    return {key: _option(key, value) for key, value in options.items() if value is not None and value is not False}


def _option(key: str, value: Any) -> Any:
    if key in ("names", "ignoreLayers"):
        return [value] if isinstance(value, str) else list(value)
    return os.fspath(value) if key == "drawing" else value


def _run(job: str, name: str, content: bytes, options: Dict[str, Any],
         find: Optional[Find]) -> Tuple[int, str, str, str]:
    status, document, diagnostics, error = _library.run(job, name, content, json.dumps(options), find)
    if status == _library.USAGE:
        raise ValueError(error)
    return status, document, diagnostics, error


def _convert(name: str, content: bytes, options: Dict[str, Any],
             find: Optional[Find]) -> Tuple[str, Tuple[Diagnostic, ...]]:
    status, document, diagnostics, _ = _run("convert", name, content, options, find)
    if status != _library.DONE:
        raise ConversionError(_diagnostics(diagnostics))
    return document, _diagnostics(diagnostics)


def _diagnostics(document: str) -> Tuple[Diagnostic, ...]:
    return tuple(Diagnostic(**finding) for finding in json.loads(document)["findings"]) if document else ()


def _symbol(data: Mapping[str, Any]) -> Symbol:
    return Symbol(name=data.get("name", ""), type=data["type"], description=data.get("description", ""),
                  graphics=tuple(data.get("graphics", ())),
                  parameters=tuple(Parameter(parameter.get("identifier", ""), parameter.get("displayName", ""),
                                             parameter.get("description", ""), parameter.get("defaultValue", ""),
                                             parameter.get("dataType", 0)) for parameter in data.get("parameters", ())),
                  symbols=tuple(map(_symbol, data.get("symbols", ()))), data=data)


def _of_page(picture: str) -> str:
    return picture[picture.index("<svg"):]


def _escaped(text: str) -> str:
    return text.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;")
