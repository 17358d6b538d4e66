"""Every block of docs/bridges.md is a program that prints what its section says."""

import os
import pathlib
import re
import shlex
import subprocess
import sys

import pytest
from conftest import PROJECT

PAGE = (PROJECT / "docs/bridges.md").read_text()
LANGUAGES = ("cpp", "c", "python", "sh")


def sections():
    """Yield the tasks of the page: title, blocks by language, and the file that is read or None."""
    for section in PAGE.split("\n## ")[1:]:
        blocks = re.findall(r"^```(\w+)\n(.*?)^```$", section, re.MULTILINE | re.DOTALL)
        sample = re.search(r"samples/[\w/.-]+", section)
        yield section.split("\n")[0], blocks, sample and PROJECT / sample[0]


def build(compiler, options, source: pathlib.Path) -> list[str]:
    """Compile a program with the flags that the environment has for it."""
    flags = os.environ.get("IMSXML_BRIDGE_FLAGS")
    if not flags:
        pytest.skip("IMSXML_BRIDGE_FLAGS does not say where the headers and libraries are")
    program = source.with_suffix("")
    subprocess.run(
        [*shlex.split(compiler), "-Wall", "-Wextra", "-Werror", source, "-o", program,
         *shlex.split(flags), *options], check=True)
    return [str(program)]


def test_every_task_is_there_in_every_language():
    assert [[language for language, _ in blocks] for _, blocks, _ in sections()] == \
        3 * [[*LANGUAGES, "text"]]


@pytest.mark.parametrize("language, code, sample, expected", [
    pytest.param(language, code, sample, dict(blocks)["text"], id=f"{title}-{language}")
    for title, blocks, sample in sections() for language, code in blocks if language in LANGUAGES
])
def test_a_block_prints_what_the_page_says(command, tmp_path, language, code, sample, expected):
    source = tmp_path / f"program.{language}"
    source.write_text(code)
    if language == "cpp":
        run = build(os.environ.get("CXX", "c++"), ["-std=c++17", "-limsxml", "-lixdpl"], source)
    elif language == "c":
        run = build(os.environ.get("CC", "cc"), ["-limsxmljson"], source)
    else:
        run = [sys.executable if language == "python" else "sh", str(source)]
    path = f"{pathlib.Path(command).parent}:{os.environ['PATH']}"
    result = subprocess.run(
        run, input=sample.read_bytes() if sample else b"", env={**os.environ, "PATH": path},
        capture_output=True, check=False)
    assert result.stderr.decode() == ""
    assert result.returncode == 0
    # The command prints a document without a line of its own behind it.
    assert result.stdout.decode().rstrip("\n") == expected.rstrip("\n")
