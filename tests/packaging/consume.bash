# Sourced by the tests of what is installed: builds and runs the consumer project in every way that users have.
#
# Needs in the caller: `work`, an empty folder; `compiler`; `consumer`, the folder of the project.

# An instrumented library needs its consumers linked the same way.
flags=

quietly() { "$@" >"$work/log" 2>&1 || { echo "failed: $*" >&2; cat "$work/log" >&2; exit 1; }; }

# expect NAME COMMAND... compares what the consumer prints.
expect() {
    local name=$1 printed
    local expected='<communication-waiting  xmlns="http://uri.etsi.org/ngn/params/xml/simservs/xcap"  active="false"/>'
    shift
    printed=$("$@") || { echo "$name: exit code $?" >&2; exit 1; }
    [ "$printed" = "$expected" ] || { printf '%s printed\n  %s\nand not\n  %s\n' "$name" "$printed" "$expected" >&2; exit 1; }
    echo "$name: good"
}

# consume NAME [PREFIX] builds and runs all variants against a tree of its own, or against what the system has installed.
consume() {
    local name=$1 prefix=${2:-/usr} libdir
    local -a environment=(env) settings=()
    if [ $# -eq 2 ]; then
        libdir=$(dirname "$(dirname "$(find "$prefix" -name imsxml.pc)")")
        environment+=(LD_LIBRARY_PATH="$libdir" PKG_CONFIG_LIBDIR="$libdir/pkgconfig")
        settings+=(-DCMAKE_PREFIX_PATH="$prefix")
    fi

    quietly cmake -S "$consumer" -B "$work/$name" -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_CXX_FLAGS="$flags" \
        "${settings[@]}" -DCMAKE_BUILD_TYPE=Release -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF
    quietly cmake --build "$work/$name"
    # Another installed imsxml must not be what was found.
    grep -q "^imsxml_DIR:PATH=$prefix/" "$work/$name/CMakeCache.txt" || { echo "$name: found another imsxml" >&2; exit 1; }
    expect "$name, CMake, shared" "${environment[@]}" "$work/$name/consumer_shared"
    expect "$name, CMake, static" "$work/$name/consumer_static"
    expect "$name, CMake, JSON, shared" "${environment[@]}" "$work/$name/consumer_json"
    expect "$name, CMake, JSON, static" "$work/$name/consumer_json_static"
    if ldd "$work/$name/consumer_static" "$work/$name/consumer_json_static" | grep -E 'libimsxml|libixdpl'; then
        echo "$name: the static variant loads shared libraries" >&2
        exit 1
    fi

    local -a options warnings
    read -r -a options <<<"$("${environment[@]}" pkg-config --cflags --libs imsxml)"
    read -r -a warnings <<<"-std=c++17 -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror $flags"
    quietly "$compiler" "${warnings[@]}" "$consumer/main.cpp" -o "$work/$name/with-pkg-config" "${options[@]}"
    expect "$name, pkg-config" "${environment[@]}" "$work/$name/with-pkg-config"

    read -r -a options <<<"$("${environment[@]}" pkg-config --cflags --libs imsxmljson)"
    quietly cc -std=c89 -pedantic -Wall -Wextra -Werror "$consumer/json.c" -o "$work/$name/json-with-pkg-config" "${options[@]}"
    expect "$name, JSON, pkg-config" "${environment[@]}" "$work/$name/json-with-pkg-config"
}
