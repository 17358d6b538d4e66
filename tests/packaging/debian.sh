#!/usr/bin/env bash
# Builds the Debian packages, looks into them, installs them, uses all of them and removes them again.
#
# usage: debian.sh
set -euo pipefail
source_dir=$(cd "$(dirname "$0")/../.." && pwd)
# Read by consume.bash.
# shellcheck disable=SC2034
compiler=g++ consumer=$source_dir/tests/consumer
packages=(libimsxml0 libimsxml-dev libimsxmljson0 libimsxmljson-dev imsxml python3-imsxml)

fail() { echo "$*" >&2; exit 1; }
is_installed() { dpkg-query -W -f='${Status}' "$1" 2>/dev/null | grep -q 'ok installed'; }

if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || fail "$0 installs packages and has to be run as root"
    exec sudo -- "$0"
fi
for package in "${packages[@]}"; do
    ! is_installed "$package" || fail "$package is installed, and would be removed by this test"
done
"$source_dir/.ci/install" g++ cmake pkg-config bash-completion lintian man-db python3 mypy

work=$(mktemp -d)
# shellcheck source=/dev/null
source "$(dirname "$0")/consume.bash"
clean_up() {
    local package
    for package in "${packages[@]}"; do
        ! is_installed "$package" || dpkg --purge "${packages[@]}" >/dev/null 2>&1 || break
    done
    rm -rf "$work"
}
trap clean_up EXIT

quietly "$source_dir/package" "$work/packages"
architecture=$(dpkg --print-architecture)
version=$(sed -n 's/^project(.* VERSION \([0-9.]*\) .*/\1/p' "$source_dir/CMakeLists.txt")
# file_of PACKAGE is its file, for this architecture or for all.
file_of() {
    local suffix=$architecture
    case $1 in python3-*) suffix=all ;; esac
    echo "$work/packages/$1_${version}_$suffix.deb"
}
files=()
for package in "${packages[@]}"; do files+=("$(file_of "$package")"); done
ls "${files[@]}" >/dev/null 2>&1 || fail "the version of debian/changelog is not that of the project, $version"
lintian --allow-root --fail-on error,warning "$work"/packages/*.changes
echo "built: good"

# contents PACKAGE PATTERN... compares the files of a package, documentation aside, with patterns that each match some, and
# together all of them.
contents() {
    local package=$1 pattern names rest
    shift
    names=$(dpkg-deb --contents "$(file_of "$package")" |
        awk '$1 !~ /^d/ { print ($1 ~ /^l/ ? $(NF - 2) : $NF), $2 }')
    grep -qv ' root/root$' <<<"$names" && fail "$package: files that root does not own"
    names=$(sed 's/^\.//; s/ .*//' <<<"$names")
    grep -qx "/usr/share/doc/$package/copyright" <<<"$names" || fail "$package: no copyright file"
    rest=$(grep -v '^/usr/share/doc/' <<<"$names")
    for pattern in "$@"; do
        grep -qxE "$pattern" <<<"$rest" || fail "$package: no $pattern"
        rest=$(grep -vxE "$pattern" <<<"$rest" || true)
    done
    [ -z "$rest" ] || fail "$package has more than it should: $rest"
}
lib=/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)
contents libimsxml0 "$lib/libimsxml\.so\.0" "$lib/libimsxml\.so\.$version" "$lib/libixdpl\.so\.0" "$lib/libixdpl\.so\.$version"
contents libimsxml-dev '/usr/include/imsxml/\w+\.(h|inc)' "$lib/libimsxml\.so" "$lib/libixdpl\.so" "$lib/libimsxml\.a" \
    "$lib/libixdpl\.a" "$lib/cmake/imsxml/imsxml(Config|ConfigVersion|Targets)(-\w+)?\.cmake" "$lib/pkgconfig/imsxml\.pc"
contents libimsxmljson0 "$lib/libimsxmljson\.so\.0" "$lib/libimsxmljson\.so\.$version"
contents libimsxmljson-dev /usr/include/imsxmljson/imsxml.h "$lib/libimsxmljson\.so" "$lib/libimsxmljson\.a" \
    "$lib/cmake/imsxml/imsxmljsonTargets(-\w+)?\.cmake" "$lib/pkgconfig/imsxmljson\.pc"
contents imsxml /usr/bin/imsxml /usr/share/bash-completion/completions/imsxml /usr/share/man/man1/imsxml.1.gz
modules=/usr/lib/python3/dist-packages
contents python3-imsxml "$modules/imsxml\.py" "$modules/imsxml-stubs/__init__\.pyi"
headers=$(dpkg-deb --contents "${files[1]}" | grep -c '\.h$')
[ "$headers" -eq "$(find "$source_dir"/ims/{dpl,xml}/include -name '*.h' | wc -l)" ] || fail "$headers headers are not all"
depends() { dpkg-deb --field "$(file_of "$1")" Depends; }
grep -qF "libimsxml0 (= $version)" <<<"$(depends libimsxml-dev)" || fail "libimsxml-dev goes with any library"
grep -qF "libimsxmljson0 (= $version)" <<<"$(depends libimsxmljson-dev)" || fail "libimsxmljson-dev goes with any library"
grep -qF "libimsxml0 (>= $version)" <<<"$(depends imsxml)" || fail "imsxml goes without the library"
grep -qF "libimsxmljson0 (>= $version)" <<<"$(depends python3-imsxml)" || fail "python3-imsxml goes without the library"
echo "contents: good"

# Small systems leave documentation out unless they are told.
quietly dpkg --install --path-include='/usr/share/doc/*' --path-include='/usr/share/man/*' "${files[@]}"
consume packages
read -r -a options <<<"$(pkg-config --cflags --libs imsxml)"
quietly "$compiler" -std=c++17 /usr/share/doc/libimsxml-dev/examples/example.cpp -o "$work/example" "${options[@]}"
quietly "$work/example"

[ "$(command -v imsxml)" = /usr/bin/imsxml ] || fail "the command is not /usr/bin/imsxml but $(command -v imsxml)"
! readelf -d /usr/bin/imsxml "$lib/libimsxml.so.0" | grep -E 'RPATH|RUNPATH' || fail "a path is built in"
[ "$(imsxml --version)" = "imsxml $version" ] || fail "the command is $(imsxml --version)"
quietly imsxml decode "$source_dir"/samples/*/typical.xml
[ "$(man --where imsxml)" = /usr/share/man/man1/imsxml.1.gz ] || fail "man finds another page"
warnings=$(man --warnings -E UTF-8 -T utf8 imsxml 2>&1 >/dev/null)
[ -z "$warnings" ] || fail "$warnings"
completed=$(bash -c 'source /usr/share/bash-completion/bash_completion && _completion_loader imsxml; complete -p imsxml')
[ "$completed" = 'complete -F _imsxml imsxml' ] || fail "completion is '$completed'"
[ "$(cd / && /usr/bin/python3 -c 'import imsxml; print(imsxml.version())')" = "$version" ] || fail "Python has another library"
printf 'import imsxml\n\nimsxml.decode(1)\n' >"$work/wrong.py"
types=$(/usr/bin/python3 -m mypy --cache-dir=/dev/null "$work/wrong.py" || true)
grep -qF '"decode" has incompatible type "int"' <<<"$types" || fail "mypy says $types"
echo "used: good"

# Everything but what the packages share with others.
dpkg --listfiles "${packages[@]}" | grep imsxml | sort -u >"$work/installed"
quietly dpkg --purge "${packages[@]}"
while read -r name; do
    [ ! -e "$name" ] || fail "left behind: $name"
done <"$work/installed"
for package in "${packages[@]}"; do
    ! dpkg-query -W "$package" >/dev/null 2>&1 || fail "$package is still known"
done
echo "removed: good"
