#!/usr/bin/env bash
# Every piece of code that docs/guide.md shows stands in docs/guide.cpp, which is compiled and run; indentation aside.
#
# usage: check-guide.sh DOCS
set -euo pipefail
[ $# -eq 1 ] || { echo "usage: $0 DOCS" >&2; exit 2; }
awk '
    { line = $0; sub(/^ +/, "", line) }
    FILENAME ~ /\.cpp$/ { program = program line "\n"; next }
    /^```cpp$/ { inside = 1; piece = ""; next }
    /^```$/ && inside {
        inside = 0
        ++count
        if (index(program, piece) == 0) { printf "not in guide.cpp:\n%s\n", piece; status = 1 }
    }
    inside { piece = piece line "\n" }
    END { if (count == 0) status = 1; exit status }' "$1/guide.cpp" "$1/guide.md"
