"""XML documents of the IP Multimedia Subsystem to and from dictionaries.

    >>> import imsxml
    >>> document = imsxml.decode(body, content_type="application/reginfo+xml")
    >>> document["root"]["registration"][0]["aor"]
    'sip:ada@ims.example.net'
    >>> document["root"]["registration"][0]["aor"] = "sip:eve@ims.example.net"
    >>> body = imsxml.encode(document)

A document is what the command "imsxml decode" prints: {"schema": ..., "root": {...}}. Elements are
dictionaries with their class, lists of elements are lists; what a document does not say is not
there.

The work is done by the library libimsxmljson.so.0, which the loader finds, or which the environment
variable IMSXML_JSON_LIBRARY names by its path. The interpreter is not locked meanwhile: calls of
several threads run at the same time.
"""

from __future__ import annotations

import ctypes
import enum
import json
import os
import warnings
from typing import Any, NamedTuple, Union

__all__ = [
    "Error", "Flaw", "Problem", "Status",
    "decode", "encode", "schema_of_content_type", "validate", "version",
]

_Text = Union[str, bytes, bytearray, memoryview]


class Status(enum.IntEnum):
    """Why a call failed."""

    NO_MEMORY = 1
    WRONG_USE = 2
    UNKNOWN_SCHEMA = 3
    NOT_READ = 4
    NOT_WRITTEN = 5
    WRONG_JSON = 6


class Error(ValueError):
    """A document that cannot be read or written.

    status: which kind of fault it is.
    line, column: where it is, from 1 on; in encode, of json.dumps(document, ensure_ascii=False).
        0: it has no place.
    text: what is wrong, on one line.
    """

    def __init__(self, status: Status, line: int, column: int, text: str) -> None:
        super().__init__(status, line, column, text)
        self.status = status
        self.line = line
        self.column = column
        self.text = text

    def __str__(self) -> str:
        return f"{self.line}:{self.column}: {self.text}" if self.line > 0 else self.text


class Flaw(UserWarning):
    """There is a result, but something was lost: bytes that are not UTF-8, or the end of a text."""


class Problem(NamedTuple):
    """One point in which a document is not what its standard says."""

    line: int
    column: int
    text: str


class _LastProblem(ctypes.Structure):
    _fields_ = [("line", ctypes.c_int), ("column", ctypes.c_int), ("text", ctypes.c_char * 256)]


_Report = ctypes.CFUNCTYPE(None, ctypes.c_int, ctypes.c_int, ctypes.c_char_p, ctypes.py_object)


def _load() -> ctypes.CDLL:
    name = os.environ.get("IMSXML_JSON_LIBRARY") or "libimsxmljson.so.0"
    try:
        library = ctypes.CDLL(name)
    except OSError as error:
        raise ImportError(f"{error}; IMSXML_JSON_LIBRARY can name the library") from error
    text = [ctypes.c_char_p, ctypes.c_size_t, ctypes.c_char_p]
    for function in (library.imsxml_decode, library.imsxml_encode):
        function.argtypes = text + [ctypes.c_int, ctypes.POINTER(ctypes.c_void_p)]
    library.imsxml_validate.argtypes = text + [
        _Report, ctypes.py_object, ctypes.POINTER(ctypes.c_int)]
    library.imsxml_schema_of_content_type.argtypes = [ctypes.c_char_p]
    library.imsxml_schema_of_content_type.restype = ctypes.c_char_p
    library.imsxml_version.restype = ctypes.c_char_p
    library.imsxml_free.argtypes = [ctypes.c_void_p]
    library.imsxml_free.restype = None
    library.imsxml_last_problem.argtypes = [ctypes.POINTER(_LastProblem)]
    library.imsxml_last_problem.restype = None
    return library


_library = _load()
_PROFILES = {"device": 0, "standard": 1}


def _last_problem() -> _LastProblem:
    problem = _LastProblem()
    _library.imsxml_last_problem(problem)
    return problem


def _plain(text: bytes) -> str:
    # A text that was cut may end inside a character.
    return text.decode(errors="replace")


def _failure(status: int, problem: _LastProblem) -> Exception:
    text = _plain(problem.text)
    if status == Status.NO_MEMORY:
        return MemoryError(text)
    return Error(Status(status), problem.line, problem.column, text)


def _bytes(text: _Text) -> bytes:
    if isinstance(text, bytes):
        return text
    # bytes() alone takes numbers, too.
    return text.encode() if isinstance(text, str) else bytes(memoryview(text))


def _c_string(text: str) -> bytes:
    if not isinstance(text, str):
        raise TypeError(f"a string is needed, not {type(text).__name__}")
    if "\0" in text:
        raise ValueError("a name has no null character")
    return text.encode()


def _schema(schema: str | None, content_type: str | None) -> bytes | None:
    if content_type is None:
        return None if schema is None else _c_string(schema)
    if schema is not None:
        raise ValueError("schema and content_type say the same; give one of them")
    if "/" not in content_type:
        raise ValueError(f"{content_type!r} is no content type")
    return _c_string(content_type)


def _profile(name: str) -> int:
    if name not in _PROFILES:
        raise ValueError(f"there is no profile {name!r}; there are {', '.join(_PROFILES)}")
    return _PROFILES[name]


def _convert(function: Any, text: bytes, schema: bytes | None, profile: int) -> str:
    result = ctypes.c_void_p()
    try:
        status = function(text, len(text), schema, profile, result)
        problem = _last_problem()
        if status != 0:
            raise _failure(status, problem)
        converted = _plain(ctypes.string_at(result))
    finally:
        _library.imsxml_free(result)
    if problem.text:
        # Of the line that called decode or encode.
        warnings.warn(_plain(problem.text), Flaw, stacklevel=3)
    return converted


def decode(
    text: _Text,
    *,
    schema: str | None = None,
    content_type: str | None = None,
    profile: str = "standard",
) -> dict[str, Any]:
    """Read a document.

    text: a str, or bytes in UTF-8.
    schema: its name, such as "reginfo"; without schema and content_type the root element tells.
    content_type: instead of schema, as the message says it, parameters included.
    profile: "standard" reads what the public standards say and loses nothing. "device" is the
        dialect of the IMS client stack; two of its walks do not end for some texts, which is why
        it has to be asked for: give it no documents of strangers.

    Raise Error when the document cannot be read. Warn with Flaw when bytes were not UTF-8.
    """
    read = _convert(
        _library.imsxml_decode, _bytes(text), _schema(schema, content_type), _profile(profile))
    try:
        document: dict[str, Any] = json.loads(read)
    except RecursionError:
        # A document of strangers must not take another way out than all others.
        raise Error(Status.NOT_READ, 0, 0, "the elements are too deep for json.loads") from None
    return document


def encode(
    document: dict[str, Any], *, schema: str | None = None, profile: str = "standard"
) -> str:
    """Write a document that decode has returned, or one of the same form.

    schema: a name, such as "reginfo", for a document that does not say its own.
    profile: as in decode.

    Raise Error when the document cannot be written: nothing in it is passed over. Warn with Flaw
    when the device profile writes a text that is cut or lacks an end tag, as the client stack does.
    """
    text = json.dumps(document, ensure_ascii=False, allow_nan=False).encode()
    return _convert(_library.imsxml_encode, text, _schema(schema, None), _profile(profile))


def _report(line: int, column: int, text: bytes, problems: list[Problem]) -> None:
    problems.append(Problem(line, column, _plain(text)))


_report_function = _Report(_report)


def validate(
    text: _Text, *, schema: str | None = None, content_type: str | None = None
) -> list[Problem]:
    """Tell in which points a document is not what its standard says, in the order of the text.

    text, schema, content_type: as in decode.

    Raise Error when the document cannot be read.
    """
    data = _bytes(text)
    problems: list[Problem] = []
    count = ctypes.c_int()
    status = _library.imsxml_validate(
        data, len(data), _schema(schema, content_type), _report_function, problems, count)
    if status != 0:
        raise _failure(status, _last_problem())
    if len(problems) != count.value:
        # What is raised in a callback goes no further: a keyboard interrupt would make a shorter
        # list, and nobody would know.
        raise RuntimeError("interrupted")
    return problems


def schema_of_content_type(type: str) -> str | None:
    """Return the name of the schema of a content type, which may have parameters, or None."""
    name = _library.imsxml_schema_of_content_type(_c_string(type))
    return None if name is None else name.decode()


def version() -> str:
    """Return the version of the library, such as "0.1.0"."""
    found: bytes = _library.imsxml_version()
    return found.decode()
