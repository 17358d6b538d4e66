#!/usr/bin/env python3
"""What the command prints for every sample is valid by the JSON Schema of its kind, in both profiles; what is no such
document is not.

usage: check-json-schema.py TOOL SAMPLES
"""
import json
import pathlib
import subprocess
import sys

import jsonschema

PROFILES = ("device", "standard")


def run(*arguments):
    # Documents that fail leave their tree to nobody.
    return subprocess.run(arguments, capture_output=True, text=True, check=False, env={"ASAN_OPTIONS": "detect_leaks=0"})


def validator(tool, name):
    schema = json.loads(run(tool, "schemas", "--json", name).stdout)
    jsonschema.Draft202012Validator.check_schema(schema)
    return jsonschema.Draft202012Validator(schema)


def mutants(document):
    """The document with one thing wrong in it."""
    yield {**document, "more": 1}
    yield {**document, "schema": "other"}
    yield {"schema": document["schema"]}
    root = document["root"]
    yield {**document, "root": {**root, "class": "ix_other"}}
    yield {**document, "root": {**root, "no-such-field": ""}}
    yield {**document, "root": {key: value for key, value in root.items() if key != "class"}}
    yield {**document, "root": {**root, "rest": [{"kind": "element"}]}}
    for key in root:
        yield {**document, "root": {**root, key: {"class": "ix_other"}}}


def main(tool, samples):
    names = [line.split()[1] for line in run(tool, "schemas").stdout.splitlines()[1:]]
    validators = {name: validator(tool, name) for name in names}
    seen = set()
    faults = []
    for path in sorted(pathlib.Path(samples).rglob("*.xml")):
        for profile in PROFILES:
            result = run(tool, "decode", "--profile", profile, "--schema", path.parent.name, str(path))
            if result.returncode != 0:
                continue
            document = json.loads(result.stdout)
            check = validators[document["schema"]]
            seen.add((document["schema"], profile))
            faults += [f"{path} ({profile}): {error.json_path}: {error.message}" for error in check.iter_errors(document)]
            if path.stem == "typical":
                faults += [f"{path}: valid: {wrong}" for wrong in mutants(document) if check.is_valid(wrong)]
    missing = {(name, profile) for name in names for profile in PROFILES} - seen
    # The root of this kind has a name that is none in XML.
    faults += [f"no sample of {kind}" for kind in missing - {("call-waiting-indication", "standard")}]
    print("\n".join(faults) or f"{len(seen)} kinds of documents")
    return 1 if faults else 0


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1], sys.argv[2]))
