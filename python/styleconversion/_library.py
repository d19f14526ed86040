"""The functions of the C interface, by ctypes."""
import ctypes
import os
import sys
from typing import Callable, Optional, Tuple

Find = Callable[[str], Optional[bytes]]

INTERFACE = 1
DONE, INPUT, USAGE = range(3)

_NAME = "StyleConversionC.dll" if sys.platform == "win32" else "libStyleConversionC.so.1"
_FIND = ctypes.CFUNCTYPE(None, ctypes.c_void_p, ctypes.c_char_p, ctypes.c_void_p)
_JOBS = ("convert", "list", "check")


def _opened() -> ctypes.CDLL:
    """The library of the package; where it has none, the one that the system finds."""
    own = os.path.join(os.path.dirname(os.path.abspath(__file__)), "lib", _NAME)
    library = ctypes.CDLL(own if os.path.exists(own) else _NAME)
    for job in _JOBS:
        function = getattr(library, "styleconversion_" + job)
        function.restype = ctypes.c_void_p
        function.argtypes = [ctypes.c_char_p, ctypes.c_char_p, ctypes.c_size_t, ctypes.c_char_p, _FIND,
                             ctypes.c_void_p]
    for text in ("document", "diagnostics", "error"):
        function = getattr(library, "styleconversion_" + text)
        function.restype = ctypes.c_void_p
        function.argtypes = [ctypes.c_void_p, ctypes.POINTER(ctypes.c_size_t)]
    library.styleconversion_version.restype = ctypes.c_char_p
    library.styleconversion_interface.restype = ctypes.c_uint32
    library.styleconversion_status.argtypes = [ctypes.c_void_p]
    library.styleconversion_release.argtypes = [ctypes.c_void_p]
    library.styleconversion_answer_file.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_size_t]
    if library.styleconversion_interface() != INTERFACE:
        raise ImportError(f"{_NAME} has interface {library.styleconversion_interface()}, not {INTERFACE}")
    return library


_library = _opened()


def version() -> str:
    return _library.styleconversion_version().decode()


def _text(result: int, name: str) -> str:
    size = ctypes.c_size_t()
    address = getattr(_library, "styleconversion_" + name)(result, ctypes.byref(size))
    return ctypes.string_at(address, size.value).decode()


def run(job: str, name: str, content: bytes, options: str, find: Optional[Find]) -> Tuple[int, str, str, str]:
    """Status, document, diagnostics and error of a call. What `find` raises is raised behind the call."""
    raised = []

    def asked(_context: int, wanted: bytes, answer: int) -> None:
        # Nothing may be raised through the library.
        try:
            found = find(wanted.decode()) if find is not None and not raised else None
            if found is not None:
                content = bytes(found)
                if not _library.styleconversion_answer_file(answer, content, len(content)):
                    raise MemoryError(wanted.decode())
        except BaseException as error:  # pylint: disable=broad-except
            raised.append(error)

    # Of a path that is no text, messages show what is.
    shown = name.encode(errors="replace")
    result = getattr(_library, "styleconversion_" + job)(shown, content, len(content), options.encode(), _FIND(asked),
                                                         None)
    if not result:
        raise MemoryError("the conversion ran out of memory")
    try:
        texts = _text(result, "document"), _text(result, "diagnostics"), _text(result, "error")
        status = _library.styleconversion_status(result)
    finally:
        _library.styleconversion_release(result)
    if raised:
        raise raised[0]
    return (status, *texts)
