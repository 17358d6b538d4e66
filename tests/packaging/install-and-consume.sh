#!/usr/bin/env bash
# Installs a build into an empty folder, builds the consumer project against it in every way that users have, and moves the
# installed tree once to see that nothing in it remembers where it was.
#
# usage: install-and-consume.sh BUILD-DIR COMPILER SOURCE-DIR
set -euo pipefail
[ $# -eq 3 ] || { echo "usage: $0 BUILD-DIR COMPILER SOURCE-DIR" >&2; exit 2; }
build=$1
compiler=$2
source=$3
consumer=$source/tests/consumer

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
expected='<communication-waiting  xmlns="http://uri.etsi.org/ngn/params/xml/simservs/xcap"  active="false"/>'
# An instrumented library needs its consumers linked the same way.
flags=$(sed -n 's/^CMAKE_CXX_FLAGS:[A-Z]*=//p' "$build/CMakeCache.txt")

quietly() { "$@" >"$work/log" 2>&1 || { echo "failed: $*" >&2; cat "$work/log" >&2; exit 1; }; }

# expect NAME COMMAND... compares what the consumer prints.
expect() {
    local name=$1 printed
    shift
    printed=$("$@") || { echo "$name: exit code $?" >&2; exit 1; }
    [ "$printed" = "$expected" ] || { printf '%s printed\n  %s\nand not\n  %s\n' "$name" "$printed" "$expected" >&2; exit 1; }
    echo "$name: good"
}

# consume NAME PREFIX builds and runs all variants against an installed tree.
consume() {
    local name=$1 prefix=$2 pc libdir
    pc=$(find "$prefix" -name imsxml.pc)
    libdir=$(dirname "$(dirname "$pc")")

    quietly cmake -S "$consumer" -B "$work/$name" -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_CXX_FLAGS="$flags" \
        -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_BUILD_TYPE=Release -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF
    quietly cmake --build "$work/$name"
    # Another installed imsxml must not be what was found.
    grep -q "^imsxml_DIR:PATH=$prefix/" "$work/$name/CMakeCache.txt" || { echo "$name: found another imsxml" >&2; exit 1; }
    expect "$name, CMake, shared" env LD_LIBRARY_PATH="$libdir" "$work/$name/consumer_shared"
    expect "$name, CMake, static" "$work/$name/consumer_static"
    if ldd "$work/$name/consumer_static" | grep -E 'libimsxml|libixdpl'; then
        echo "$name: the static variant loads shared libraries" >&2
        exit 1
    fi

    local -a options warnings
    read -r -a options <<<"$(PKG_CONFIG_LIBDIR="$libdir/pkgconfig" pkg-config --cflags --libs imsxml)"
    read -r -a warnings <<<"-std=c++17 -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror $flags"
    quietly "$compiler" "${warnings[@]}" "$consumer/main.cpp" -o "$work/$name/with-pkg-config" "${options[@]}"
    expect "$name, pkg-config" env LD_LIBRARY_PATH="$libdir" "$work/$name/with-pkg-config"

    quietly "$compiler" "${warnings[@]}" "$source/examples/reginfo-contacts.cpp" -o "$work/$name/example" "${options[@]}"
    expected=$(<"$source/examples/expected/reginfo-contacts.txt") \
        expect "$name, example" env LD_LIBRARY_PATH="$libdir" "$work/$name/example" "$source/samples/reginfo/rich.xml"
}

quietly cmake --install "$build" --prefix "$work/first/prefix"
consume installed "$work/first/prefix"
mv "$work/first" "$work/moved"
consume moved "$work/moved/prefix"
