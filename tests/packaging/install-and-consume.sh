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
source "$(dirname "$0")/consume.bash"
flags=$(sed -n 's/^CMAKE_CXX_FLAGS:[A-Z]*=//p' "$build/CMakeCache.txt")

# Distributions leave the way to the libraries out of the command, because their loader knows it.
skips_way=$(sed -n 's/^CMAKE_SKIP_INSTALL_RPATH:[A-Z]*=//p' "$build/CMakeCache.txt")

# use NAME PREFIX: the libraries, and the command, which has to find them by itself.
use() {
    consume "$@"
    [ ! -e "$2/bin/imsxml" ] || [ "$skips_way" = ON ] || quietly "$2/bin/imsxml" schemas
}

quietly cmake --install "$build" --prefix "$work/first/prefix"
use installed "$work/first/prefix"
mv "$work/first" "$work/moved"
use moved "$work/moved/prefix"
