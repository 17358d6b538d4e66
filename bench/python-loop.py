#!/usr/bin/env python3
"""Four values of each of 10,000 reginfo bodies: through imsxml.decode, and through lxml with XPath.

They take turns, so that all meet the same machine; what counts is the best turn of each. lxml has
two: with expressions in the loop, as a test says them, and with expressions that were compiled
before it. It is Debian's python3-lxml.

usage: python-loop.py    with python/ in PYTHONPATH and the library in IMSXML_JSON_LIBRARY
"""
import json
import sys
import time

import imsxml
from lxml import etree

COUNT = 10000
TURNS = 7
BODY = """<?xml version="1.0"?>
<reginfo xmlns="urn:ietf:params:xml:ns:reginfo" version="{number}" state="full">
  <registration aor="sip:+1555{number:04}@ims.example.net" id="r{number}" state="active">
    <contact id="c{number}" state="active" event="registered" expires="599970" q="1.000">
      <uri>sip:+1555{number:04}@198.51.100.17:31112;transport=tcp</uri>
      <unknown-param name="+g.3gpp.smsip"/>
      <unknown-param name="+g.3gpp.icsi-ref">"urn%3Aurn-7%3A3gpp-service.ims"</unknown-param>
      <unknown-param name="+sip.instance">"&lt;urn:gsma:imei:90420156-025763-0&gt;"</unknown-param>
    </contact>
  </registration>
</reginfo>
"""
BODIES = [BODY.format(number=number).encode() for number in range(COUNT)]
NAMESPACES = {"r": "urn:ietf:params:xml:ns:reginfo"}
PATHS = (
    "string(/r:reginfo/r:registration/@aor)",
    "string(/r:reginfo/r:registration/@state)",
    "string(/r:reginfo/r:registration/r:contact/r:uri)",
    "string(/r:reginfo/r:registration/r:contact/@state)",
)
COMPILED = [etree.XPath(path, namespaces=NAMESPACES) for path in PATHS]


def through_imsxml():
    values = []
    for body in BODIES:
        registration = imsxml.decode(body, schema="reginfo")["root"]["registration"][0]
        contact = registration["contact"][0]
        values.append(
            (registration["aor"], registration["state"], contact["uri"], contact["state"]))
    return values


def through_xpath():
    values = []
    for body in BODIES:
        root = etree.fromstring(body)
        values.append(tuple(root.xpath(path, namespaces=NAMESPACES) for path in PATHS))
    return values


def through_compiled_xpath():
    values = []
    for body in BODIES:
        root = etree.fromstring(body)
        values.append(tuple(path(root) for path in COMPILED))
    return values


def part_of_json():
    """What json.loads takes of the first loop."""
    texts = [json.dumps(imsxml.decode(body), separators=(",", ":")) for body in BODIES]
    start = time.perf_counter()
    for text in texts:
        json.loads(text)
    return time.perf_counter() - start


def main():
    loops = {"imsxml.decode": through_imsxml, "lxml, XPath": through_xpath,
             "lxml, compiled XPath": through_compiled_xpath}
    best = dict.fromkeys(loops, float("inf"))
    expected = through_imsxml()
    for _ in range(TURNS):
        for name, loop in loops.items():
            start = time.perf_counter()
            values = loop()
            best[name] = min(best[name], time.perf_counter() - start)
            if values != expected:
                sys.exit(f"{name}: other values")
    own = best["imsxml.decode"]
    for name, seconds in best.items():
        print(f"{name:22} {seconds / COUNT * 1e6:6.1f} us a body, ratio {seconds / own:.2f}")
    part = min(part_of_json() for _ in range(TURNS))
    print(f"{'json.loads alone':22} {part / COUNT * 1e6:6.1f} us a body")


if __name__ == "__main__":
    main()
