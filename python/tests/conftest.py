"""What the tests share. All need the library (IMSXML_JSON_LIBRARY), some the command."""

import os
import pathlib

import pytest

PROJECT = pathlib.Path(__file__).resolve().parents[2]


@pytest.fixture(scope="session")
def command() -> str:
    """Return the path of the imsxml command."""
    path = os.environ.get("IMSXML_COMMAND")
    if not path:
        pytest.skip("IMSXML_COMMAND does not name the imsxml command")
    return path
