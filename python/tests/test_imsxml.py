"""Tests of the module, against the command and the library that the environment names."""

import concurrent.futures
import contextlib
import json
import os
import pathlib
import pickle
import subprocess
import sys
import threading
import time
import warnings

import pytest
from conftest import PROJECT

import imsxml

SAMPLES = sorted((PROJECT / "samples").glob("*/*.xml"))
REGINFO = (PROJECT / "samples/reginfo/typical.xml").read_bytes()
BROKEN = REGINFO[:-3]
INVALID = REGINFO.replace(b'"active"', b'"nonsense"')
NAMESPACE = 'xmlns="urn:ietf:params:xml:ns:reginfo"'
SMALL = f'<reginfo {NAMESPACE} version="1" state="full"/>'
DEEP = ('<resource-lists xmlns="urn:ietf:params:xml:ns:resource-lists">' + "<list>" * 900
        + "</list>" * 900 + "</resource-lists>")


def imdn(message_id):
    """Return a notification as decode does."""
    root = {"class": "ix_imdn", "message-id": message_id, "datetime": "-"}
    return {"schema": "imdn", "root": root}


def large():
    """Return a body of 4 MB."""
    contact = '<contact id="c" state="active" event="registered"><uri>sip:a@b</uri></contact>'
    return (f'<reginfo {NAMESPACE} version="1" state="full"><registration aor="sip:a@b" id="r" '
            f'state="active">{contact * 50000}</registration></reginfo>').encode()


def fault(call, *arguments, **options):
    """Return the error of a call that has to fail."""
    with pytest.raises(imsxml.Error) as caught:
        call(*arguments, **options)
    return caught.value


@pytest.mark.parametrize("profile", ["standard", "device"])
@pytest.mark.parametrize("sample", SAMPLES, ids=lambda path: f"{path.parent.name}-{path.stem}")
def test_a_sample_comes_back_as_the_command_writes_it(command, sample, profile):
    schema = sample.parent.name
    arguments = [command, "convert", "--profile", profile, "--schema", schema, sample]
    converted = subprocess.run(arguments, capture_output=True, check=False)

    def write():
        document = imsxml.decode(sample.read_bytes(), schema=schema, profile=profile)
        return imsxml.encode(document, profile=profile)

    if converted.returncode != 0:
        error = fault(write)
        assert error.text in converted.stderr.decode()
        return
    assert write() == converted.stdout.decode()


def test_a_document_is_what_the_command_prints(command):
    sample = PROJECT / "samples/reginfo/rich.xml"
    arguments = [command, "decode", "--profile", "standard", sample]
    printed = json.loads(subprocess.run(arguments, capture_output=True, check=True).stdout)
    del printed["file"]
    assert imsxml.decode(sample.read_bytes()) == printed


@pytest.mark.parametrize("text", [
    SMALL, SMALL.encode(), bytearray(SMALL.encode()), memoryview(SMALL.encode()),
])
def test_a_text_is_a_str_or_bytes(text):
    expected = {"schema": "reginfo", "root": {"class": "ix_reginfo", "version": 1, "state": "full"}}
    assert imsxml.decode(text) == expected
    assert imsxml.validate(text) == []


@pytest.mark.parametrize("word", ["Grüße", "日本", "\U0001f600", "\u2028", 'a"b\\c', "a&<b"])
def test_every_character_comes_through(word):
    text = imsxml.encode(imdn(word))
    assert imsxml.decode(text) == imsxml.decode(text.encode()) == imdn(word)


@pytest.mark.parametrize("options", [
    {}, {"schema": "reginfo"}, {"content_type": "application/reginfo+xml"},
    {"content_type": 'Application/Reginfo+XML; charset="utf-8"'},
])
def test_the_schema_is_told_or_found(options):
    assert imsxml.decode(SMALL, **options)["schema"] == "reginfo"
    assert imsxml.validate(SMALL, **options) == []


def test_a_document_without_a_schema_takes_the_one_that_is_told():
    root = imsxml.decode(REGINFO)["root"]
    assert imsxml.decode(imsxml.encode({"root": root}, schema="reginfo"))["root"] == root
    assert fault(imsxml.encode, {"root": root}).status == imsxml.Status.WRONG_JSON


@pytest.mark.parametrize("type, schema", [
    ("application/reginfo+xml", "reginfo"), ("message/imdn+xml ; charset=utf-8", "imdn"),
    ("text/plain", None), ("reginfo", None), ("", None),
])
def test_the_schema_of_a_content_type(type, schema):
    assert imsxml.schema_of_content_type(type) == schema


@pytest.mark.parametrize("text, options, status, line, column, word", [
    ("", {}, "NOT_READ", 0, 0, "empty"),
    ("<reginfo>", {}, "NOT_READ", 1, 10, "too early"),
    (f"<reginfo {NAMESPACE}\nversion='1'>\n <ä/></regInfo>", {}, "NOT_READ", 3, 6, "end tag"),
    (SMALL, {"schema": "imdn"}, "NOT_READ", 1, 1, "root"),
    ('<?xml version="1.0" encoding="iso-8859-1"?>' + SMALL, {}, "NOT_READ", 1, 31, "encoding"),
    (b"<reginfo>\xff</reginfo>", {}, "NOT_READ", 1, 10, "UTF-8"),
    (SMALL + "\0", {}, "NOT_READ", 1, len(SMALL) + 1, "NUL"),
    (SMALL, {"schema": "regInfo"}, "UNKNOWN_SCHEMA", 0, 0, "reginfo"),
    (SMALL, {"content_type": "text/plain"}, "UNKNOWN_SCHEMA", 0, 0, "text/plain"),
])
def test_what_cannot_be_read(text, options, status, line, column, word):
    error = fault(imsxml.decode, text, **options)
    assert (error.status, error.line, error.column) == (imsxml.Status[status], line, column)
    assert word in error.text
    assert fault(imsxml.validate, text, **options).status == imsxml.Status[status]


@pytest.mark.parametrize("document, options, status, word", [
    ({"schema": "reginfo", "root": {"class": "ix_reginfo", "stat": ""}}, {}, "WRONG_JSON", "state"),
    ({"schema": "reginfo", "root": {"class": "ix_reginfo"}}, {}, "NOT_WRITTEN", "state"),
    ({"schema": "reginfo", "root": 1}, {}, "WRONG_JSON", "root"),
    ({"schema": "no", "root": {"class": "ix_reginfo"}}, {}, "WRONG_JSON", "no schema"),
    (imdn("1"), {"schema": "no"}, "UNKNOWN_SCHEMA", "no schema"),
    (imdn("1"), {"schema": "reginfo"}, "WRONG_JSON", "ix_imdn"),
    ([], {}, "WRONG_JSON", ""),
])
def test_what_cannot_be_written(document, options, status, word):
    error = fault(imsxml.encode, document, **options)
    assert error.status == imsxml.Status[status]
    assert word in error.text


def test_an_error_says_where_and_what():
    error = fault(imsxml.decode, "<reginfo>")
    assert isinstance(error, ValueError)
    assert str(error) == f"1:10: {error.text}"
    again = pickle.loads(pickle.dumps(error))
    assert (again.status, str(again)) == (error.status, str(error))
    assert str(fault(imsxml.decode, SMALL, schema="x")).startswith("no schema")


@pytest.mark.parametrize("expected, call", [
    (TypeError, lambda: imsxml.decode(None)),
    (TypeError, lambda: imsxml.decode(9)),
    (TypeError, lambda: imsxml.validate({})),
    (TypeError, lambda: imsxml.decode(SMALL, schema=b"reginfo")),
    (TypeError, lambda: imsxml.schema_of_content_type(None)),
    (TypeError, lambda: imsxml.encode({"schema": {1}})),
    (ValueError, lambda: imsxml.decode("<reginfo>\ud800</reginfo>")),
    (ValueError, lambda: imsxml.encode(imdn("\ud800"))),
    (ValueError, lambda: imsxml.encode(imdn(float("nan")))),
    (ValueError, lambda: imsxml.decode(SMALL, schema="reginfo\0x")),
    (ValueError, lambda: imsxml.decode(SMALL, content_type="reginfo")),
    (ValueError, lambda: imsxml.decode(SMALL, schema="reginfo", content_type="a/b")),
    (ValueError, lambda: imsxml.decode(SMALL, profile="Standard")),
    (ValueError, lambda: imsxml.encode(imdn("1"), profile=None)),
])
def test_wrong_use(expected, call):
    with pytest.raises(expected) as caught:
        call()
    assert not isinstance(caught.value, imsxml.Error)


def test_elements_can_be_too_deep_for_python():
    assert imsxml.validate(DEEP) == []
    assert fault(imsxml.decode, DEEP).status == imsxml.Status.NOT_READ


def test_what_a_document_does_wrong():
    text = f"<reginfo {NAMESPACE}\nversion='1' state='Grüße'><x/></reginfo>"
    assert imsxml.validate(text) == [
        (2, 13, '"Grüße" is not a word of the standard'),
        (2, 27, '"x" is not an element of the standard'),
    ]
    assert imsxml.validate(text)[0].column == 13


def test_a_flaw_is_a_warning_of_the_caller():
    with pytest.warns(imsxml.Flaw, match="UTF-8") as caught:
        document = imsxml.decode(b"<imdn><message-id>\xff</message-id></imdn>", profile="device")
    assert document["root"]["message-id"] == "\ufffd"
    assert caught[0].filename == __file__
    with pytest.warns(imsxml.Flaw, match="cut"):
        text = imsxml.encode(imdn("a" + "é" * 32767), profile="device")
    assert "éé" in text


def test_problems_belong_to_their_thread():
    """Threads that fail in different ways each get their own error."""
    def work(number):
        for _ in range(300):
            error = fault(imsxml.decode, "\n" * number + "<reginfo>")
            assert error.line == number + 1
            assert len(imsxml.validate("\n" * number + SMALL)) == 0
            assert imsxml.decode(imsxml.encode(imdn(str(number)))) == imdn(str(number))

    with concurrent.futures.ThreadPoolExecutor(8) as pool:
        list(pool.map(work, range(8)))


def test_other_threads_run_during_a_call():
    """A call of some length lets another thread take many turns."""
    body = large()
    turns = []
    done = threading.Event()

    def count():
        while not done.is_set():
            turns.append(time.perf_counter())
            time.sleep(0.001)

    other = threading.Thread(target=count)
    other.start()
    try:
        start = time.perf_counter()
        problems = imsxml.validate(body)
        end = time.perf_counter()
    finally:
        done.set()
        other.join()
    assert problems == []
    assert sum(start < turn < end for turn in turns) >= 3


def resident() -> int:
    """Return the bytes of memory that the process has."""
    pages = int(pathlib.Path("/proc/self/statm").read_text().split()[1])
    return pages * os.sysconf("SC_PAGE_SIZE")


@pytest.mark.skipif(not os.path.exists("/proc/self/statm"), reason="needs /proc")
@pytest.mark.parametrize("count, fails, call", [
    pytest.param(20000, False, lambda: imsxml.decode(REGINFO), id="decode"),
    pytest.param(20000, False, lambda: imsxml.encode(imdn("x" * 1000)), id="encode"),
    pytest.param(20000, False, lambda: imsxml.validate(INVALID), id="validate"),
    pytest.param(20000, True, lambda: imsxml.decode(BROKEN), id="decode-fails"),
    pytest.param(20000, True, lambda: imsxml.decode(BROKEN, profile="device"), id="device-fails"),
    pytest.param(20000, True, lambda: imsxml.encode(imdn(1)), id="encode-fails"),
    # The result is 60 kB, and json.loads does not take it.
    pytest.param(500, True, lambda: imsxml.decode(DEEP), id="deep"),
])
def test_nothing_stays_behind(count, fails, call):
    def repeat(times):
        for _ in range(times):
            if fails:
                with contextlib.suppress(imsxml.Error):
                    call()
                    pytest.fail("it did not fail")
            else:
                call()

    repeat(count // 10)
    before = resident()
    repeat(count)
    # One lost result a call would be 15 MB and more.
    assert resident() - before < 3 << 20


@pytest.mark.skipif(not os.path.exists("/proc/self/statm"), reason="needs /proc")
def test_missing_memory_is_a_memory_error():
    program = """
import pathlib, resource, sys, imsxml
body = sys.stdin.buffer.read()
pages = int(pathlib.Path("/proc/self/statm").read_text().split()[0])
limit = pages * resource.getpagesize() + (16 << 20)
resource.setrlimit(resource.RLIMIT_AS, (limit, limit))
try:
    imsxml.decode(body)
except MemoryError as error:
    print(error)
imsxml.decode(b"<reginfo version='1' state='full'/>")
"""
    result = subprocess.run([sys.executable, "-c", program], input=large(), check=False,
                            capture_output=True)
    assert (result.stdout, result.stderr) == (b"no memory\n", b"")


def test_without_the_library_the_import_says_so():
    environment = {**os.environ, "IMSXML_JSON_LIBRARY": "/no/such/library.so"}
    result = subprocess.run([sys.executable, "-c", "import imsxml"], env=environment, check=False,
                            capture_output=True, text=True)
    assert "ImportError" in result.stderr
    assert "/no/such/library.so" in result.stderr
    assert "IMSXML_JSON_LIBRARY" in result.stderr


def test_the_version_is_that_of_the_project():
    cmake = (PROJECT / "CMakeLists.txt").read_text()
    assert f"project(imsxml VERSION {imsxml.version()} " in cmake


def test_warnings_can_be_errors():
    with warnings.catch_warnings():
        warnings.simplefilter("error")
        with pytest.raises(imsxml.Flaw):
            imsxml.encode(imdn("x" * 40000), profile="device")


def test_the_stub_says_what_the_module_says():
    stubtest = pytest.importorskip("mypy.stubtest")
    environment = {**os.environ, "MYPYPATH": str(PROJECT / "python")}
    result = subprocess.run([sys.executable, "-m", stubtest.__name__, "imsxml"], env=environment,
                            capture_output=True, text=True, check=False)
    assert result.returncode == 0, result.stdout + result.stderr
