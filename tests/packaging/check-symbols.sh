#!/usr/bin/env bash
# What a shared library shows to its users, and what libimsxml takes from the system.
#
# usage: check-symbols.sh LIBRARY [--update]
#
# --update rewrites the list of exported symbols, for a change that means to add or remove some.
set -euo pipefail
library=${1:?usage: $0 LIBRARY [--update]}
name=$(basename "$library")
name=${name%%.so*}
case $name in
    libimsxml) list=$(dirname "$0")/exported-symbols.txt ;;
    *) list=$(dirname "$0")/exported-symbols-$name.txt ;;
esac
status=0

# Everything that touches the device goes through the platform layer: memory, files and messages.
forbidden='malloc|free|calloc|realloc|reallocarray|aligned_alloc|posix_memalign|strdup|strndup|__strdup|__strndup'
forbidden+='|_Zn[wa].*|_Zd[la].*'
forbidden+='|open|open64|openat|openat64|creat|close|read|write|pread|pread64|pwrite|pwrite64|lseek|lseek64|fopen|fopen64'
forbidden+='|fclose|fread|fwrite|fputs|puts|putchar'
forbidden+='|(__)?v?[fsd]?n?printf(_chk)?|(__)?v?asprintf(_chk)?|perror|(__)?v?syslog(_chk)?|openlog'
found=
# The platform layer is where the system is meant to be reached, and the library for JSON is made for systems.
[ "$name" != libimsxml ] || found=$(nm -D --undefined-only "$library" | awk '{ sub(/@.*/, "", $NF); print $NF }' | grep -xE "$forbidden" || true)
if [ -n "$found" ]; then
    printf 'taken from the system and not from the platform layer:\n%s\n' "$found" >&2
    status=1
fi

soname=$(readelf -d "$library" | sed -n 's/.*(SONAME).*\[\(.*\)\]/\1/p')
if [ "$soname" != "$name.so.0" ]; then
    echo "the SONAME is '$soname' and not $name.so.0" >&2
    status=1
fi

# Behind the C interface there is nothing to see, not even what the compiler makes of templates.
if [ "$name" = libimsxmljson ] && nm -D --defined-only "$library" | grep -v ' T imsxml_'; then
    echo "exported beside the C interface" >&2
    status=1
fi

# Functions and data with one strong definition. Which inline functions, tables of virtual operations and type information
# there are is up to the compiler.
exported() {
    nm -D --defined-only "$library" | awk '$2 ~ /^[TDRB]$/ { sub(/@.*/, "", $3); print $3 }' | c++filt |
        grep -vE '^(vtable|VTT|construction vtable|typeinfo|typeinfo name|guard variable|(non-)?virtual thunk) ' |
        grep -vE '^(std|__gnu_cxx)::' | LC_ALL=C sort -u
}
if [ "${2:-}" = --update ]; then
    exported >"$list"
    exit "$status"
fi
diff -u "$list" <(exported) || { echo "the exported symbols differ from $list; $0 LIBRARY --update accepts them" >&2; status=1; }
exit "$status"
