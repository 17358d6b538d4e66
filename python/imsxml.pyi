# What the module offers, for type checkers.
import enum
from typing import Any, NamedTuple, Union

__all__ = [
    "Error", "Flaw", "Problem", "Status",
    "decode", "encode", "schema_of_content_type", "validate", "version",
]

_Text = Union[str, bytes, bytearray, memoryview]

class Status(enum.IntEnum):
    NO_MEMORY = 1
    WRONG_USE = 2
    UNKNOWN_SCHEMA = 3
    NOT_READ = 4
    NOT_WRITTEN = 5
    WRONG_JSON = 6

class Error(ValueError):
    status: Status
    line: int
    column: int
    text: str
    def __init__(self, status: Status, line: int, column: int, text: str) -> None: ...

class Flaw(UserWarning): ...

class Problem(NamedTuple):
    line: int
    column: int
    text: str

def decode(
    text: _Text,
    *,
    schema: str | None = ...,
    content_type: str | None = ...,
    profile: str = ...,
) -> dict[str, Any]: ...
def encode(
    document: dict[str, Any], *, schema: str | None = ..., profile: str = ...
) -> str: ...
def validate(
    text: _Text, *, schema: str | None = ..., content_type: str | None = ...
) -> list[Problem]: ...
def schema_of_content_type(type: str) -> str | None: ...
def version() -> str: ...
